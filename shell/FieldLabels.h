// The tables' records and fields as users know them: the labels and texts of the screens.
#pragma once

#include "base/ApplicationValues.h"
#include "screens/ScreenLabels.h"
#include "screens/table/TableColumns.h"

#include <QHash>
#include <QString>

#include <memory>
#include <vector>

namespace norvane::shell
{

/// Knows the screens of the menu for the customer's registers. The screens of a table are read when it is
/// first asked for. A screen that cannot be built has no labels.
class FieldLabels
{
public:
    /// @throws RuntimeFailure as the database reports.
    explicit FieldLabels(const ApplicationValues& values);

    /// "PLU 1001", or "PLUDATA 1001" if no screen shows the table.
    [[nodiscard]] QString record(const QString& table, const QString& key);
    /// "Price 1", or the name of a field that no screen shows.
    [[nodiscard]] QString field(const QString& table, const QString& name);
    /// "2.50", "3 Drinks": the text of a screen for a value with the plain text @p plain, which is returned
    /// for yes and no and for a field that no screen shows.
    [[nodiscard]] QString value(const QString& table, const QString& field, const QString& plain);

private:
    struct Screen {
        screens::ScreenLabels labels;
        screens::TableColumns columns; ///< how it shows fields
    };
    using Screens = std::vector<Screen>;

    [[nodiscard]] Screen read(const screens::ScreenReader& file) const;
    [[nodiscard]] const Screens& screensOf(const QString& table);

    ApplicationValues m_values;
    std::shared_ptr<store::Database> m_database;
    std::vector<screens::ScreenReader> m_files;
    QHash<QString, Screens> m_screens; ///< by table
};

} // namespace norvane::shell
