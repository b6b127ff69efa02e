// See EditsModel.h.
#include "screens/table/EditsModel.h"

#include "register/PluNumber.h"
#include "screens/table/TableModel.h"

#include <array>

using namespace Qt::Literals::StringLiterals;

namespace norvane::screens
{
namespace
{

constexpr std::array editHeadings{"Record", "Column", "Stored", "New"};

} // namespace

EditsModel::EditsModel(const TableModel& table, const std::vector<PendingEdit>& edits, QObject* parent)
    : QAbstractTableModel(parent), m_table(table), m_edits(edits)
{
}

void EditsModel::showChanges()
{
    beginResetModel();
    m_count = static_cast<int>(m_edits.size());
    endResetModel();
}

int EditsModel::rowCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : m_count;
}

int EditsModel::columnCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(editHeadings.size());
}

QVariant EditsModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (orientation != Qt::Horizontal || role != Qt::DisplayRole)
        return {};
    return QString::fromLatin1(editHeadings.at(static_cast<std::size_t>(section)));
}

QVariant EditsModel::data(const QModelIndex& index, int role) const
{
    if (role != Qt::DisplayRole)
        return {};
    const PendingEdit& edit = m_edits.at(static_cast<std::size_t>(index.row()));
    const TableColumn& column = m_table.column(edit.column);
    const std::array<QString, editHeadings.size()> cells{
        shownKey(m_table.rows().source().keyField, QString::fromStdString(edit.key)), column.label,
        column.text(edit.before), column.text(edit.after)};
    const QString& text = cells.at(static_cast<std::size_t>(index.column()));
    const bool isNo = column.kind() == ControlKind::Check && index.column() >= 2 && text.isEmpty();
    return isNo ? u"No"_s : text;
}

} // namespace norvane::screens
