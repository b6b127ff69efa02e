// See ScreenLabels.h.
#include "screens/ScreenLabels.h"

#include "screens/FieldPanel.h"
#include "screens/RegisterRules.h"
#include "screens/SaveNotices.h"
#include "store/engine/Recordset.h"

#include <algorithm>

namespace norvane::screens
{

ScreenLabels::ScreenLabels(const ScreenReader& file, const std::shared_ptr<store::Database>& database,
                           const ApplicationValues& values)
    : m_caption(file.window().name)
{
    const store::TableDefinition table = database->table(file.table().table);
    FieldPanel panel(database);
    for (ControlDefinition& control : file.controls()) {
        if (control.kind == ControlKind::Grid) {
            takeHeadings(control, *database);
        } else {
            fitToRegister(control, table.name, values);
            panel.addControl(control);
        }
    }
    panel.finish({});
    for (const store::FieldDefinition& field : table.fields) {
        if (const QString label = panel.labelOf(field.name); !label.isEmpty())
            m_labels.insert(field.name.toCaseFolded(), label);
    }
    if (!table.indexes.isEmpty())
        m_keyLabel = field(table.indexes.front().field);
}

void ScreenLabels::takeHeadings(const ControlDefinition& grid, store::Database& database)
{
    const store::Recordset rows = database.openQuery(grid.sqlCriteria);
    const auto headings = std::min<qsizetype>(grid.gridColumns.size(), rows.fieldCount());
    for (int column = 0; column < headings; ++column)
        m_labels.insert(rows.field(column).name.toCaseFolded(), grid.gridColumns[column].caption);
}

QString ScreenLabels::record(const QString& key) const
{
    return recordName(m_caption, m_keyLabel, key);
}

} // namespace norvane::screens
