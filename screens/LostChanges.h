// What users typed into screens and left without saving, kept until they want it back or the program ends.
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

/// The losses of all screens, from which each screen takes back its own.
class LostChangesList
{
public:
    void add(LostChanges lost) { m_losses.push_back(std::move(lost)); }
    /// Takes out the latest loss of a screen. @return nothing if there is none.
    std::optional<LostChanges> take(const QString& databasePath, const QString& screenFile);
    /// The screen file of the latest loss in this database; empty if there is none.
    [[nodiscard]] QString latestScreen(const QString& databasePath) const;

private:
    std::vector<LostChanges> m_losses; ///< the latest last
};

} // namespace norvane::screens
