// Unsaved input of screens, kept until the user restores it or the program ends.
#pragma once

#include "screens/RecordEditor.h"

#include <QString>

#include <optional>
#include <vector>

namespace norvane::screens
{

/// Changes to one record.
struct LostChanges {
    QString databasePath;
    QString screenFile;
    QString record;                 ///< "PLU 1001", for messages
    bool isNew = false;             ///< a record that was never stored
    std::vector<store::Value> seen; ///< the record as it was shown, from RecordEditor::seen()
    BoundFields typed;              ///< the controls that the user changed
};

/// The dropped changes of all screens, from which each screen restores its own.
class LostChangesList
{
public:
    void add(LostChanges lost) { m_losses.push_back(std::move(lost)); }
    /// Removes and returns the latest dropped changes of a screen; nothing if there are none.
    std::optional<LostChanges> take(const QString& databasePath, const QString& screenFile);
    /// The screen file of the latest dropped changes in this database; empty if there are none.
    [[nodiscard]] QString latestScreen(const QString& databasePath) const;

private:
    std::vector<LostChanges> m_losses; ///< the latest last
};

} // namespace norvane::screens
