// What the user is asked before a save and told after it.
#pragma once

#include "platform/Boxes.h"
#include "platform/RuntimeFailure.h"

#include <QString>

namespace norvane::screens
{

/// Asks whether to write over what somebody else has stored since the record was shown: a save writes all
/// fields of a screen, also those that the user left alone.
[[nodiscard]] bool mayOverwrite(Boxes& boxes);

/// Says that nothing was stored, and why.
[[nodiscard]] QString nothingStored(const RuntimeFailure& failure);

/// What one record of the screen @p caption is called, whose key has the label @p label: "PLU". The label is
/// empty where the key is not shown.
[[nodiscard]] QString recordName(const QString& caption, QString label);

/// "Saved PLU 1001" for the record @p key of many, which the screen calls by the words @p label; "Saved Tax
/// Options" with an empty key for the only record of the screen @p caption.
[[nodiscard]] QString recordSaved(const QString& caption, const QString& label, const QString& key);

} // namespace norvane::screens
