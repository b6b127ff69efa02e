// See SheetExport.h.
#include "articles/SheetExport.h"

#include "register/PluNumber.h"
#include "store/engine/Recordset.h"

#include <algorithm>
#include <functional>

using namespace Qt::Literals::StringLiterals;

namespace norvane::articles
{
namespace
{

using reports::ReportCell;

bool isNumber(const SheetColumn& column)
{
    switch (column.content) {
    case CellContent::RecordNumber:
        return !column.isFilled;
    case CellContent::Key:
    case CellContent::Number:
        return true;
    default:
        return false;
    }
}

reports::ReportColumn layoutOf(const SheetColumn& column, int mostDecimals)
{
    const bool isNarrow = isNumber(column) || column.content == CellContent::YesNo;
    reports::ReportColumn layout{.heading = column.heading, .width = paper::millimetres(isNarrow ? 18 : 36)};
    if (column.content == CellContent::Day)
        layout.kind = reports::ColumnKind::Date;
    if (isNumber(column)) {
        layout.alignment = reports::Alignment::Right;
        layout.kind = reports::ColumnKind::Number;
        layout.leastDecimals = column.decimals;
        layout.mostDecimals = mostDecimals;
    }
    return layout;
}

ReportCell cellOf(const SheetColumn& column, const store::Value& value)
{
    switch (column.content) {
    case CellContent::YesNo:
        return value.isTrue() ? u"Yes"_s : u"No"_s;
    case CellContent::Day:
        return value.isNull() ? ReportCell() : ReportCell(value.toDate());
    case CellContent::RecordNumber:
        if (column.isFilled)
            return shownKey(column.field, value.toText());
        break;
    case CellContent::Text:
    case CellContent::Digits:
    case CellContent::Hexadecimal:
        return exportedText(value);
    default:
        break;
    }
    const auto number = exportedNumber(value);
    return number ? ReportCell(*number) : ReportCell();
}

/// Goes through the records; their fields are the columns of the sheet.
void forEachRecord(store::Recordset& records, const std::function<void()>& take)
{
    if (records.recordCount() == 0)
        return;
    for (records.moveFirst(); !records.atEnd(); records.moveNext())
        take();
}

/// Places of a number. It is never rounded: importing the file again must restore the stored value.
int decimalsOf(const SheetColumn& column, const store::Value& value)
{
    const auto number = column.content == CellContent::Number ? exportedNumber(value) : std::nullopt;
    return number ? number->scale() : 0;
}

/// For each column.
std::vector<int> mostDecimals(const TableSheet& sheet, store::Recordset& records)
{
    std::vector<int> most;
    for (const SheetColumn& column : sheet.columns)
        most.push_back(column.decimals);
    forEachRecord(records, [&] {
        for (std::size_t place = 0; place < most.size(); ++place) {
            const store::Value& value = records.value(static_cast<int>(place));
            most[place] = std::max(most[place], decimalsOf(sheet.columns[place], value));
        }
    });
    return most;
}

} // namespace

reports::ReportData exportedSheet(store::Database& database, const TableSheet& sheet)
{
    auto records = database.openQuery(recordsOf(sheet));
    const auto decimals = mostDecimals(sheet, records);
    std::vector<reports::ReportColumn> columns;
    for (std::size_t place = 0; place < decimals.size(); ++place)
        columns.push_back(layoutOf(sheet.columns[place], decimals[place]));
    reports::ReportData data(std::move(columns));
    forEachRecord(records, [&] {
        std::vector<ReportCell> cells;
        for (std::size_t place = 0; place < sheet.columns.size(); ++place)
            cells.push_back(cellOf(sheet.columns[place], records.value(static_cast<int>(place))));
        data.addLine(reports::LineKind::Detail, std::move(cells));
    });
    return data;
}

reports::ReportData
exportedRows(const std::vector<ExportedColumn>& columns, int rows,
             const std::function<const store::Value&(int row, std::size_t column)>& valueAt)
{
    std::vector<int> decimals;
    decimals.reserve(columns.size());
    for (const ExportedColumn& each : columns)
        decimals.push_back(each.column.decimals);
    for (int row = 0; row < rows; ++row) {
        for (std::size_t place = 0; place < columns.size(); ++place) {
            decimals[place] =
                std::max(decimals[place], decimalsOf(columns[place].column, valueAt(row, place)));
        }
    }
    std::vector<reports::ReportColumn> layouts;
    for (std::size_t place = 0; place < columns.size(); ++place) {
        layouts.push_back(layoutOf(columns[place].column, decimals[place]));
        layouts.back().heading = columns[place].heading;
    }
    reports::ReportData data(std::move(layouts));
    for (int row = 0; row < rows; ++row) {
        std::vector<ReportCell> cells;
        for (std::size_t place = 0; place < columns.size(); ++place)
            cells.push_back(cellOf(columns[place].column, valueAt(row, place)));
        data.addLine(reports::LineKind::Detail, std::move(cells));
    }
    return data;
}

} // namespace norvane::articles
