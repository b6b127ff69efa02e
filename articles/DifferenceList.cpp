// See DifferenceList.h.
#include "articles/DifferenceList.h"

#include "register/PluNumber.h"
#include "store/catalogue/Catalogue.h"

using namespace Qt::Literals::StringLiterals;

namespace norvane::articles
{
namespace
{

constexpr std::array listHeadings{"Kind"_L1, "Record"_L1, "Column"_L1, "Stored"_L1, "New value"_L1};

QString wordOf(DifferenceKind kind)
{
    switch (kind) {
    case DifferenceKind::Mistake:
        return u"Mistake"_s;
    case DifferenceKind::New:
        return u"New"_s;
    default:
        return u"Changed"_s;
    }
}

} // namespace

void DifferenceList::list(const SheetComparison& comparison, const ColumnNames& names)
{
    beginResetModel();
    m_lines.clear();
    m_counts = {};
    m_isCut = comparison.mistakes().count() > SheetMistakes::mostKept;
    addMistakes(comparison.mistakes(), comparison.sheet(), names);
    comparison.forEach([&](const SheetChange& change) { addChange(change, comparison.sheet(), names); });
    choose();
    endResetModel();
}

void DifferenceList::list(const PlannedList& planned, const HeadingLabels& labels)
{
    beginResetModel();
    m_lines.clear();
    m_counts = {};
    m_isCut = false;
    const auto* const table = store::catalogueTable(planned.table);
    const QString keyField = table == nullptr ? QString() : table->fields.front().name;
    for (const auto& [number, isNew, fields] : planned.records) {
        const auto kind = isNew ? DifferenceKind::New : DifferenceKind::Changed;
        const QString record = shownKey(keyField, number);
        if (isNew)
            add({kind, record, {}, {}, u"new record"_s});
        for (const auto& [heading, before, after] : fields)
            add({kind, record, labels.value(heading, heading), before, after});
    }
    choose();
    endResetModel();
}

void DifferenceList::clear()
{
    beginResetModel();
    m_lines.clear();
    m_shown.clear();
    m_isCut = false;
    endResetModel();
}

void DifferenceList::showOnly(std::optional<DifferenceKind> kind)
{
    beginResetModel();
    m_kind = kind;
    choose();
    endResetModel();
}

void DifferenceList::choose()
{
    m_shown.clear();
    for (std::size_t place = 0; place < m_lines.size(); ++place) {
        if (m_lines[place].kind == m_kind.value_or(m_lines[place].kind))
            m_shown.push_back(place);
    }
}

void DifferenceList::add(Difference line)
{
    if (++m_counts.at(static_cast<std::size_t>(line.kind)) > mostOfKind) {
        m_isCut = true;
    } else {
        m_lines.push_back(std::move(line));
    }
}

void DifferenceList::addMistakes(const SheetMistakes& mistakes, const TableSheet& sheet,
                                 const ColumnNames& names)
{
    for (const auto& [line, heading, reason, place] : mistakes.first()) {
        const auto column = std::ranges::find(sheet.columns, heading, &SheetColumn::heading);
        const QString name = column == sheet.columns.end() ? heading : nameOf(*column, names);
        add({DifferenceKind::Mistake, place, name, {}, reason});
    }
}

/// A new record may have only a number.
void DifferenceList::addChange(const SheetChange& change, const TableSheet& sheet, const ColumnNames& names)
{
    const auto kind = change.isNew ? DifferenceKind::New : DifferenceKind::Changed;
    const QString record = shownKey(sheet.columns.front().field, QString::fromStdString(change.number));
    if (change.isNew)
        add({kind, record, {}, {}, u"new %1"_s.arg(sheet.name)});
    for (const auto& [column, before, after] : change.fields) {
        add({kind, record, nameOf(*column, names), shownSheetValue(*column, before),
             shownSheetValue(*column, after)});
    }
}

int DifferenceList::rowCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(m_shown.size());
}

int DifferenceList::columnCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(listHeadings.size());
}

QVariant DifferenceList::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (orientation != Qt::Horizontal || role != Qt::DisplayRole)
        return {};
    return QString(listHeadings.at(static_cast<std::size_t>(section)));
}

/// Reasons are long: a tip shows what the column cuts.
QVariant DifferenceList::data(const QModelIndex& index, int role) const
{
    if (role != Qt::DisplayRole && role != Qt::ToolTipRole)
        return {};
    const Difference& line = m_lines[m_shown[static_cast<std::size_t>(index.row())]];
    const std::array texts{wordOf(line.kind), line.record, line.column, line.before, line.after};
    return texts.at(static_cast<std::size_t>(index.column()));
}

} // namespace norvane::articles
