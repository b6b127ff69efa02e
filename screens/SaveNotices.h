// Questions before a save or a deletion, and messages after it.
#pragma once

#include "platform/Boxes.h"
#include "platform/RuntimeFailure.h"
#include "screens/KeyReferences.h"
#include "screens/KeyUses.h"

#include <QString>

namespace norvane::screens
{

/// Asks whether to write over what somebody else has stored since the record was shown: a save writes all
/// fields of a screen, also those that the user left alone.
[[nodiscard]] bool mayOverwrite(Boxes& boxes);

/// Asks whether @p record ("PLU 1001") may get the number @p after in place of @p before, since what refers
/// to a record by its number keeps the old one. @param holders of the old number.
[[nodiscard]] bool mayRenumber(Boxes& boxes, const QString& record, const QString& before,
                               const QString& after, const KeyHolders& holders);

/// Asks whether to delete @p record ("PLU 1001"), which @p uses would then be without. A record that nothing
/// uses is not asked about. @return true to delete it.
[[nodiscard]] bool mayDeleteUsed(Boxes& boxes, const QString& record, const KeyUses& uses);

/// Says that the new record is like @p record, and what to do next.
[[nodiscard]] QString newLike(const QString& record);

/// Asks what to do with changes to @p record ("PLU 1001") before a control leads away from them.
[[nodiscard]] UnsavedAnswer askToSave(Boxes& boxes, const QString& record);
/// Says that they were left unsaved, and how to restore them.
[[nodiscard]] QString changesLost(const QString& record);
/// Says that they are on the screen again.
[[nodiscard]] QString changesBack(const QString& record);
/// Says that they cannot be restored, since the record was deleted.
[[nodiscard]] QString changesGone(const QString& record);

/// Reports that nothing was stored, and why.
[[nodiscard]] QString nothingStored(const RuntimeFailure& failure);

/// The name for one record of the screen @p caption, whose key has the label @p label: "PLU". The label is
/// empty if the key is not shown.
[[nodiscard]] QString recordName(const QString& caption, QString label);

/// "PLU 1001" for the record @p key of many; "Tax Options" with an empty key for the only record of a screen.
[[nodiscard]] QString recordName(const QString& caption, const QString& label, const QString& key);

/// "Saved PLU 1001".
[[nodiscard]] QString recordSaved(const QString& record);

} // namespace norvane::screens
