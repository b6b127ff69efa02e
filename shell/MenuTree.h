// The menu of the main window: everything that a user can start.
#pragma once

#include <QLatin1StringView>

#include <span>

namespace norvane::shell
{

/// What a menu entry opens.
enum class Opens {
    Nothing,     ///< an entry without any function
    Menu,        ///< a menu of further entries
    Screen,      ///< a record editor with the screen file `target`
    ModelScreen, ///< a record editor; the register model decides on the screen file, see ScreenChoice
    GatedScreen, ///< a record editor that needs newer firmware and a table with records, see ScreenChoice
    Form,        ///< the form or procedure `target` of the program's openers
    ModelForm,   ///< a form; the register model decides on which one, see ScreenChoice
    Separator,
};

/// Whether a menu entry can be chosen.
enum class Choosable { Yes, No };

/// An entry of the menu.
struct MenuEntry {
    QLatin1StringView parent; ///< empty for the top level
    QLatin1StringView name;   ///< control name
    QLatin1StringView caption;
    Opens opens;
    QLatin1StringView target = {};
    /// Never changes while the program runs; an entry that cannot be chosen is grey.
    Choosable choosable = Choosable::Yes;
};

/// All entries in their order on the screen, each menu before its own entries.
[[nodiscard]] std::span<const MenuEntry> menuTree();

/// Whether @p entry opens a record editor.
[[nodiscard]] bool opensScreen(const MenuEntry& entry);

} // namespace norvane::shell
