// See ReportData.h.
#include "reports/data/ReportData.h"

#include "platform/ShownTime.h"

#include <algorithm>

namespace norvane::reports
{
namespace
{

enum Tag : std::uint8_t { emptyTag, textTag, dayTag, firstNumberTag };
/// Places of decimals that a cell keeps; no column shows more.
constexpr int mostScale = 200;
/// The content of a text cell: its length in the lower bits, above them its place in m_texts.
constexpr int lengthBits = 16;
constexpr std::int64_t longestText = (1 << lengthBits) - 1;

struct PlainCell {
    const ReportColumn& column;

    QString operator()(std::monostate) const { return {}; }
    QString operator()(const QString& text) const { return text; }
    QString operator()(const QDate& day) const { return shownDay(day); }
    QString operator()(const Decimal& number) const
    {
        return shownNumber(number, column.leastDecimals, column.mostDecimals);
    }
};

bool isNumberCell(const ReportColumn& column, const ReportCell& cell)
{
    return std::holds_alternative<Decimal>(cell) ||
           (column.kind == ColumnKind::Number && std::holds_alternative<QString>(cell));
}

} // namespace

ReportData::ReportData(std::vector<ReportColumn> columns)
    : m_columns(std::move(columns)), m_cells(m_columns.size())
{
}

void ReportData::addLine(LineKind kind, std::vector<ReportCell> cells)
{
    Q_ASSERT(cells.size() <= m_columns.size());
    cells.resize(m_columns.size());
    m_kinds.push_back(kind);
    for (std::size_t column = 0; column < cells.size(); ++column)
        addCell(m_cells[column], cells[column]);
}

void ReportData::setLinkValue(const QString& value)
{
    m_linkValues.resize(m_kinds.size());
    m_linkValues.back() = value;
}

std::optional<QString> ReportData::linkValue(qsizetype line) const
{
    const auto place = static_cast<std::size_t>(line);
    return line >= 0 && place < m_linkValues.size() ? m_linkValues[place] : std::nullopt;
}

int ReportData::namingColumns() const
{
    const auto number = std::ranges::find(m_columns, ColumnKind::Number, &ReportColumn::kind);
    return static_cast<int>(number - m_columns.begin());
}

void ReportData::addCell(Cells& cells, const ReportCell& cell)
{
    if (const auto* text = std::get_if<QString>(&cell)) {
        addText(cells, *text);
    } else if (const auto* number = std::get_if<Decimal>(&cell)) {
        const Decimal kept = number->rounded(mostScale).shifted(0);
        cells.tags.push_back(static_cast<std::uint8_t>(firstNumberTag + kept.scale()));
        cells.contents.push_back(kept.coefficient());
    } else if (const auto* day = std::get_if<QDate>(&cell)) {
        cells.tags.push_back(dayTag);
        cells.contents.push_back(day->toJulianDay());
    } else {
        cells.tags.push_back(emptyTag);
        cells.contents.push_back(0);
    }
}

void ReportData::addText(Cells& cells, const QString& text)
{
    const QByteArray utf8 = text.toUtf8();
    cells.tags.push_back(textTag);
    cells.contents.push_back(static_cast<std::int64_t>(m_texts.size() << lengthBits) |
                             std::min<std::int64_t>(utf8.size(), longestText));
    m_texts.append(utf8.data(), static_cast<std::size_t>(std::min<std::int64_t>(utf8.size(), longestText)));
}

void ReportData::keepColumns(const std::vector<bool>& isKept)
{
    std::vector<ReportColumn> columns;
    std::vector<Cells> cells;
    for (std::size_t column = 0; column < m_columns.size(); ++column) {
        if (isKept.at(column)) {
            columns.push_back(std::move(m_columns[column]));
            cells.push_back(std::move(m_cells[column]));
        }
    }
    m_columns = std::move(columns);
    m_cells = std::move(cells);
}

LineKind ReportData::lineKind(qsizetype line) const
{
    return m_kinds.at(static_cast<std::size_t>(line));
}

ReportCell ReportData::cell(qsizetype line, int column) const
{
    const Cells& cells = m_cells.at(static_cast<std::size_t>(column));
    const auto tag = cells.tags.at(static_cast<std::size_t>(line));
    const auto content = cells.contents.at(static_cast<std::size_t>(line));
    switch (tag) {
    case emptyTag:
        return {};
    case textTag:
        return QString::fromUtf8(m_texts.data() + (content >> lengthBits), content & longestText);
    case dayTag:
        return QDate::fromJulianDay(content);
    default:
        return Decimal(content, tag - firstNumberTag);
    }
}

QString ReportData::text(qsizetype line, int column) const
{
    const ReportColumn& shown = m_columns.at(static_cast<std::size_t>(column));
    const ReportCell own = cell(line, column);
    const QString plain = std::visit(PlainCell{shown}, own);
    return isNumberCell(shown, own) ? dressed(plain, shown.dress) : plain;
}

QString ReportData::plainText(qsizetype line, int column) const
{
    return std::visit(PlainCell{m_columns.at(static_cast<std::size_t>(column))}, cell(line, column));
}

} // namespace norvane::reports
