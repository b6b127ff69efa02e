// Opens every dialog and every window that is not a screen.
#pragma once

#include "scripts/windows/EveryWindow.h"

namespace norvane::windows
{

class FilledShop;

/// Each is made with names as long as users give them.
void lookAtDialogs(FilledShop& shop, const Look& look);
/// Those of the model whose keyboard has tables of its own.
void lookAtDorvikDialogs(FilledShop& shop, const Look& look);

} // namespace norvane::windows
