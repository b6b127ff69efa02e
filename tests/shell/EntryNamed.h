// An entry of the menu by the name of its control.
#pragma once

#include "shell/MenuTree.h"

#include <algorithm>

namespace norvane::shell
{

inline const MenuEntry& entryNamed(QLatin1StringView name)
{
    return *std::ranges::find(menuTree(), name, &MenuEntry::name);
}

} // namespace norvane::shell
