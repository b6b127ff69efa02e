// See PluExport.h.
#include "articles/PluExport.h"

#include "articles/PluColumns.h"
#include "register/PluNumber.h"
#include "store/engine/Recordset.h"

#include <algorithm>

using namespace Qt::Literals::StringLiterals;

namespace norvane::articles
{
namespace
{

using reports::ReportCell;

reports::ReportColumn layoutOf(const PluColumn& column, int mostDecimals)
{
    const bool isNumber = column.content == PluContent::Key || column.content == PluContent::Price;
    const bool isPrice = column.content == PluContent::Price;
    return {.heading = column.heading,
            .width = paper::millimetres(isNumber ? 18 : 36),
            .alignment = isNumber ? reports::Alignment::Right : reports::Alignment::Left,
            .kind = isNumber ? reports::ColumnKind::Number : reports::ColumnKind::Text,
            .leastDecimals = isPrice ? priceDecimals : 0,
            .mostDecimals = isPrice ? mostDecimals : 0};
}

ReportCell cellOf(const PluColumn& column, const store::Value& value)
{
    switch (column.content) {
    case PluContent::Number:
        return shownKey(column.field, value.toText());
    case PluContent::Text:
        return exportedText(value);
    default:
        const auto number = exportedNumber(value);
        return number ? ReportCell(*number) : ReportCell();
    }
}

std::vector<ReportCell> lineOf(const store::Recordset& plus, const std::vector<int>& places)
{
    std::vector<ReportCell> cells;
    cells.reserve(places.size());
    for (std::size_t column = 0; column < places.size(); ++column)
        cells.push_back(cellOf(pluColumns()[column], plus.value(places[column])));
    return cells;
}

std::vector<std::vector<ReportCell>> allLines(store::Database& database)
{
    auto plus = database.openTable(u"PLUDATA"_s);
    plus.setIndex(u"plunumber"_s);
    std::vector<int> places;
    for (const PluColumn& column : pluColumns())
        places.push_back(plus.fieldOrdinal(column.field));
    std::vector<std::vector<ReportCell>> lines;
    for (plus.readOnly(places); !plus.atEnd(); plus.moveNext())
        lines.push_back(lineOf(plus, places));
    return lines;
}

/// Prices are never rounded: importing the file again must restore the stored values.
int mostDecimals(const std::vector<std::vector<ReportCell>>& lines)
{
    int most = priceDecimals;
    for (const auto& line : lines) {
        for (const ReportCell& cell : line) {
            if (const auto* const number = std::get_if<Decimal>(&cell))
                most = std::max(most, number->scale());
        }
    }
    return most;
}

} // namespace

reports::ReportData exportedPlus(store::Database& database)
{
    auto lines = allLines(database);
    const int decimals = mostDecimals(lines);
    std::vector<reports::ReportColumn> columns;
    for (const PluColumn& column : pluColumns())
        columns.push_back(layoutOf(column, decimals));
    reports::ReportData data(std::move(columns));
    for (auto& line : lines)
        data.addLine(reports::LineKind::Detail, std::move(line));
    return data;
}

} // namespace norvane::articles
