// See ReportData.h.
#include "reports/lines/ReportData.h"

#include "platform/DecimalTotal.h"
#include "platform/ShownTime.h"
#include "reports/formula/ExactNumbers.h"

#include <QLocale>

#include <algorithm>

using namespace Qt::Literals::StringLiterals;

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

Decimal sumOf(std::span<const ChartPoint> points)
{
    DecimalTotal total;
    for (const ChartPoint& point : points)
        total.add(std::string_view(point.value.text()));
    return decimalOf(total.text());
}

QString shownDigits(QString plain, int leastDecimals)
{
    const qsizetype point = plain.indexOf(u'.');
    const qsizetype places = point < 0 ? 0 : plain.size() - point - 1;
    if (places < leastDecimals) {
        if (point < 0)
            plain += u'.';
        plain += QString(leastDecimals - places, u'0');
    }
    return plain.replace(u"."_s, QLocale().decimalPoint());
}

QString shownNumber(const Decimal& number, int leastDecimals, int mostDecimals)
{
    return shownDigits(QString::fromStdString(number.rounded(mostDecimals).text()), leastDecimals);
}

/// Words in place of a number, as for a sum of too many digits, are left as they are.
QString dressed(QString number, const NumberDress& dress)
{
    constexpr qsizetype thousands = 3;
    const qsizetype first = number.startsWith(u'-') ? 1 : 0;
    qsizetype end = first;
    while (end < number.size() && number.at(end).isDigit())
        ++end;
    if (end == first)
        return number;
    for (qsizetype at = end - thousands; dress.isGrouped && at > first; at -= thousands)
        number.insert(at, QLocale().groupSeparator());
    return number.insert(first, dress.currency);
}

QString shownValue(const Chart& chart, const Decimal& value)
{
    return dressed(shownNumber(value, chart.leastDecimals, chart.mostDecimals), chart.dress);
}

} // namespace norvane::reports
