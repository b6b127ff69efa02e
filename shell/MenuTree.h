// The menu of the main window, which is the program's whole command surface, as a table.
#pragma once

#include <QLatin1StringView>

#include <span>

namespace norvane::shell
{

enum class Opens {
    Nothing,     ///< the entry is there, but nothing was ever put behind it
    Menu,        ///< its entries
    Screen,      ///< a record editor with the screen file `target`
    ModelScreen, ///< a record editor whose file depends on the register model, see ScreenChoice
    GatedScreen, ///< a record editor that needs newer firmware and a table with records, see ScreenChoice
    Form,        ///< the form or procedure `target` of the program's openers
    ModelForm,   ///< a form that depends on the register model, see ScreenChoice
    Separator,
};

enum class Choosable { Yes, No };

struct MenuEntry {
    QLatin1StringView parent; ///< empty for the top level
    QLatin1StringView name;   ///< control name
    QLatin1StringView caption;
    Opens opens;
    QLatin1StringView target = {};
    /// No code ever switches an entry on or off; one that cannot be chosen is greyed.
    Choosable choosable = Choosable::Yes;
};

/// All entries; those of one menu stand in their order on the screen, a menu stands before its entries.
[[nodiscard]] std::span<const MenuEntry> menuTree();

/// The entry of this control name; nullptr when there is none.
[[nodiscard]] const MenuEntry* menuEntry(QLatin1StringView name);

} // namespace norvane::shell
