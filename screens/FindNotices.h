// What a screen asks and says when a record is sought.
#pragma once

#include "store/engine/Definitions.h"

#include <QString>

namespace norvane::screens
{

/// What the find dialog calls the keys of @p field: "PLU number", "text", "number".
[[nodiscard]] QString kindOfKey(const store::FieldDefinition& field);

/// The status bar's text if a record after @p sought is shown because @p sought is missing: "No PLU Latte.
/// This is the next one."
/// @param caption of the screen. @param label of the box that shows the key, empty without one.
/// @param hasList whether the list beside the screen can be named as an alternative.
[[nodiscard]] QString foundNext(const QString& caption, const QString& label, const QString& sought,
                                bool hasList);

} // namespace norvane::screens
