// What the keyboard layout editor asks, and why it changes nothing.
#pragma once

#include "keys/layout/KeyEditor.h"

#include <QString>

namespace norvane::keys
{

/// Empty for Refusal::None.
[[nodiscard]] QString refusalText(Refusal refusal);
[[nodiscard]] QString blockQuestion(std::size_t keys);
/// Before function key 200 is put on a key.
[[nodiscard]] QString pluFunctionQuestion();

} // namespace norvane::keys
