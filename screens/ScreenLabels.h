// What a screen calls its records and their fields, without opening it.
#pragma once

#include "base/ApplicationValues.h"
#include "screens/ScreenReader.h"
#include "store/engine/Database.h"

#include <QHash>
#include <QString>

#include <memory>

namespace norvane::screens
{

/// The labels that users know from a screen, and the headings of its grid. A label belongs to the control
/// beside it, so the controls are made for it and destroyed again.
class ScreenLabels
{
public:
    /// @throws RuntimeFailure as the screen does when it is built from the file.
    ScreenLabels(const ScreenReader& file, const std::shared_ptr<store::Database>& database,
                 const ApplicationValues& values);

    /// "Price 1"; empty for a field that the screen does not show.
    [[nodiscard]] QString field(const QString& name) const { return m_labels.value(name.toCaseFolded()); }
    /// "PLU 1001"; of a screen with a single record its caption.
    [[nodiscard]] QString record(const QString& key) const;

private:
    void takeHeadings(const ControlDefinition& grid, store::Database& database);

    QString m_caption;
    QString m_keyLabel;
    QHash<QString, QString> m_labels; ///< by the names of the fields, case folded
};

} // namespace norvane::screens
