// "Used in 3 Places..." on the editors of function keys and look-ups.
#pragma once

#include "keys/ItemUses.h"
#include "ui/UsesButton.h"

#include <functional>

namespace norvane::keys
{

/// The button of @p form, which Ctrl+R presses as well. @p number returns that of the record shown, empty for
/// none. The database and @p keyboard must outlive the form.
[[nodiscard]] ui::UsesButton* makeUsesButton(store::Database& database, const KeyGeometry& keyboard,
                                             ItemKind kind, std::function<QString()> number, QWidget* form);

} // namespace norvane::keys
