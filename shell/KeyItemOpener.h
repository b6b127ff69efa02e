// Opens what a key holds, above the editor of the keyboard.
#pragma once

#include "base/ApplicationValues.h"
#include "keys/KeyItems.h"
#include "platform/Boxes.h"
#include "store/engine/WorkHistory.h"

#include <memory>

namespace norvane::keys
{
class KeyLayout;
}

namespace norvane::shell
{

/// What an opener works with; the references must outlive the editor.
struct KeyItemGround {
    keys::KeyLayout& editor;
    ApplicationValues& values;
    Boxes& boxes;
    std::shared_ptr<store::WorkHistory> history;
};

/// Opens the function key, article or look-up of this number on its record; when its window closes, the
/// editor reads the names of all items again. An article's screen has neither reports nor other windows here:
/// the editor blocks the main window.
/// @throws RuntimeFailure as the forms do.
void openKeyItem(const KeyItemGround& ground, keys::ItemKind kind, const QString& number);

} // namespace norvane::shell
