// See PlannedUpdate.h. The changes that still apply are written as a spreadsheet and imported: an import
// knows what registers accept.
#include "articles/PlannedUpdate.h"

#include "articles/SheetComparison.h"
#include "articles/SheetUpdate.h"
#include "articles/SpreadsheetError.h"
#include "articles/XlsxReader.h"
#include "reports/files/FormulaGuard.h"
#include "store/catalogue/Catalogue.h"
#include "store/engine/AllOrNothing.h"
#include "store/engine/Recordset.h"

#include <algorithm>
#include <map>
#include <vector>

using namespace Qt::Literals::StringLiterals;

namespace norvane::articles
{
namespace
{

const SheetColumn* columnWith(const TableSheet& sheet, const QString& heading)
{
    const auto column = std::ranges::find(sheet.columns, heading, &SheetColumn::heading);
    return column == sheet.columns.end() ? nullptr : &*column;
}

/// A heading of the list that the sheet does not have; empty if it has all.
QString unknownHeading(const TableSheet& sheet, const PlannedList& list)
{
    for (const PlannedRecord& record : list.records) {
        for (const PlannedField& field : record.fields) {
            if (columnWith(sheet, field.heading) == nullptr)
                return field.heading;
        }
    }
    return {};
}

/// Texts of registers are filled with blanks.
bool isSameValue(QStringView one, QStringView other)
{
    const auto withoutBlanks = [](QStringView text) {
        while (text.endsWith(u' '))
            text.chop(1);
        return text;
    };
    return withoutBlanks(one) == withoutBlanks(other);
}

/// A cell that leaves the stored value as it is.
QString cellOfStored(const SheetColumn& column, const store::Value& stored)
{
    switch (column.content) {
    case CellContent::Text:
    case CellContent::Digits:
    case CellContent::Hexadecimal:
        return exportedText(stored);
    default:
        return {};
    }
}

QString cellOfPlanned(const SheetColumn& column, const QString& value)
{
    return column.content == CellContent::Text ? reports::guarded(value) : value;
}

void addSpreadsheetCell(QByteArray& text, const QString& cell)
{
    text += spreadsheetSeparator;
    text += '"' + cell.toUtf8().replace('"', "\"\"") + '"';
}

class PlannedComparer
{
public:
    PlannedComparer(store::Database& database, const TableSheet& sheet, const PlannedList& list,
                    const KeepGoing& keepGoing)
        : m_database(database), m_sheet(sheet), m_keepGoing(keepGoing)
    {
        chooseColumns(list);
        for (const PlannedRecord& record : list.records)
            addLine(record);
    }

    [[nodiscard]] PlannedResult store()
    {
        readRecords();
        for (auto& [number, line] : m_lines) {
            if (!line.isFound && !line.record->isNew)
                leaveOut(line, {}, u"the record was deleted"_s);
        }
        while (!stored()) {
        }
        return m_result;
    }

private:
    struct Cell {
        const PlannedField* planned = nullptr; ///< nothing for one that remains as it is
        QString stored;
    };
    struct Line {
        const PlannedRecord* record = nullptr;
        std::vector<Cell> cells; ///< one for each of m_columns
        bool isFound = false;
        bool isLeftOut = false;
    };

    void chooseColumns(const PlannedList& list)
    {
        std::vector<bool> isUsed(m_sheet.columns.size());
        for (const PlannedRecord& record : list.records) {
            for (const PlannedField& field : record.fields) {
                isUsed[static_cast<std::size_t>(columnWith(m_sheet, field.heading) -
                                                m_sheet.columns.data())] = true;
            }
        }
        for (std::size_t place = 1; place < isUsed.size(); ++place) {
            if (isUsed[place])
                m_columns.push_back(&m_sheet.columns[place]);
        }
    }

    [[nodiscard]] std::size_t placeOf(const QString& heading) const
    {
        return static_cast<std::size_t>(std::ranges::find(m_columns, heading, &SheetColumn::heading) -
                                        m_columns.begin());
    }

    void addLine(const PlannedRecord& record)
    {
        Line& line = m_lines[*PluNumber::parse(record.number.toStdString())];
        line.record = &record;
        line.cells.resize(m_columns.size());
        for (const PlannedField& field : record.fields)
            line.cells[placeOf(field.heading)].planned = &field;
    }

    void readRecords()
    {
        auto records = m_database.openTable(m_sheet.table);
        records.setIndex(m_sheet.index);
        std::vector<int> places{records.fieldOrdinal(m_sheet.columns.front().field)};
        for (const SheetColumn* const column : m_columns)
            places.push_back(records.fieldOrdinal(column->field));
        for (records.readOnly(places); !records.atEnd(); records.moveNext()) {
            stopUnless(m_keepGoing);
            const auto number = PluNumber::parse(records.value(places.front()).toUtf8());
            const auto line = number ? m_lines.find(*number) : m_lines.end();
            if (line == m_lines.end() || line->second.isFound)
                continue;
            line->second.isFound = true;
            for (std::size_t place = 0; place < m_columns.size(); ++place)
                compareCell(line->second, place, records.value(places[place + 1]));
        }
    }

    void compareCell(Line& line, std::size_t place, const store::Value& stored)
    {
        const SheetColumn& column = *m_columns[place];
        Cell& cell = line.cells[place];
        cell.stored = cellOfStored(column, stored);
        if (cell.planned == nullptr)
            return;
        const auto& [heading, before, after] = *cell.planned;
        const QString now = shownSheetValue(column, comparedValue(column, stored));
        if (!isSameValue(now, after) && (line.record->isNew || !isSameValue(now, before))) {
            const QString reason =
                line.record->isNew
                    ? u"the record was added meanwhile; it has \"%1\", \"%2\" was planned"_s.arg(now, after)
                    : u"it is \"%1\", not \"%2\" any more; \"%3\" was planned"_s.arg(now, before, after);
            leaveOut(line, heading, reason);
        } else if (isSameValue(now, after)) {
            cell.planned = nullptr;
            ++m_result.same;
        }
    }

    /// A heading leaves out its field only, except of a record that is not complete without it.
    void leaveOut(Line& line, const QString& heading, const QString& reason)
    {
        m_result.leftOut.append(
            {shownKey(m_sheet.columns.front().field, line.record->number), heading, reason});
        const std::size_t place = placeOf(heading);
        if (place < line.cells.size() && (line.isFound || !line.record->isNew) &&
            line.cells[place].planned != nullptr) {
            line.cells[place].planned = nullptr;
        } else {
            line.isLeftOut = true;
        }
    }

    [[nodiscard]] static bool hasChanges(const Line& line)
    {
        if (line.isLeftOut)
            return false;
        return !line.isFound ||
               std::ranges::any_of(line.cells, [](const Cell& cell) { return cell.planned != nullptr; });
    }

    /// Stores what the import accepts. @return false after leaving out what it did not.
    [[nodiscard]] bool stored()
    {
        const QByteArray content = spreadsheet();
        const SheetComparison comparison(m_database, m_sheet, content, {spreadsheetSeparator, {}, true},
                                         m_keepGoing);
        for (const SheetMistake& mistake : comparison.mistakes().first()) {
            // The headings are in the first row.
            leaveOut(*m_rows[static_cast<std::size_t>(mistake.line) - 2], mistake.column, mistake.reason);
        }
        if (!comparison.mistakes().isEmpty())
            return false;
        storeSheetChanges(m_database, comparison, m_keepGoing);
        m_result.added = static_cast<qsizetype>(comparison.newCount());
        m_result.changed = static_cast<qsizetype>(comparison.changeCount()) - m_result.added;
        return true;
    }

    /// As spreadsheetText() makes one.
    [[nodiscard]] QByteArray spreadsheet()
    {
        QByteArray text = "1";
        addSpreadsheetCell(text, m_sheet.columns.front().heading);
        for (const SheetColumn* const column : m_columns)
            addSpreadsheetCell(text, column->heading);
        text += '\n';
        m_rows.clear();
        for (auto& [number, line] : m_lines) {
            if (!hasChanges(line))
                continue;
            m_rows.push_back(&line);
            addRow(text, line);
        }
        return text;
    }

    void addRow(QByteArray& text, const Line& line) const
    {
        text += QByteArray::number(static_cast<qint64>(m_rows.size()) + 1);
        addSpreadsheetCell(text, line.record->number);
        for (std::size_t place = 0; place < m_columns.size(); ++place) {
            const auto& [planned, stored] = line.cells[place];
            addSpreadsheetCell(text, planned != nullptr ? cellOfPlanned(*m_columns[place], planned->after)
                                                        : stored);
        }
        text += '\n';
    }

    store::Database& m_database;
    const TableSheet& m_sheet;
    const KeepGoing& m_keepGoing;
    std::vector<const SheetColumn*> m_columns; ///< of the list's fields
    std::map<PluNumber, Line> m_lines;
    std::vector<Line*> m_rows; ///< of the spreadsheet
    PlannedResult m_result;
};

} // namespace

QString LeftOutChange::inWords(const QString& recordName) const
{
    const QString field = heading.isEmpty() ? QString() : u", "_s + heading;
    return u"%1 %2%3: %4"_s.arg(recordName, number, field, reason);
}

QString PlannedResult::inWords(const QString& recordName) const
{
    const QString records = recordName == "PLU"_L1
                                ? (changed == 1 ? u"PLU"_s : u"PLUs"_s)
                                : (changed == 1 ? u"record of "_s : u"records of "_s) + recordName;
    QString words = u"%1 %2 changed"_s.arg(changed).arg(records);
    if (added > 0)
        words += u", %1 new"_s.arg(added);
    if (!leftOut.isEmpty())
        words += u", %1 not stored"_s.arg(leftOut.size());
    return words;
}

TableSheet sheetOfPlanned(const PlannedList& list, int messageWidth)
{
    const store::TableDefinition* const table = store::catalogueTable(list.table);
    if (table == nullptr)
        throw SpreadsheetError(u"is for a table %1, which does not exist"_s.arg(list.table));
    TableSheet sheet = pluSheet();
    // A new PLU then gets what an import of PLUs gives it.
    if (table->name != sheet.table || !unknownHeading(sheet, list).isEmpty())
        sheet = tableSheet(*table, messageWidth);
    if (const QString heading = unknownHeading(sheet, list); !heading.isEmpty())
        throw SpreadsheetError(u"is for a field %1, which %2 does not have"_s.arg(heading, table->name));
    if (sheet.index.isEmpty())
        throw SpreadsheetError(u"is for the table %1, which is only exported"_s.arg(table->name));
    return sheet;
}

PlannedResult storePlannedList(store::Database& database, const TableSheet& sheet, const PlannedList& list,
                               const KeepGoing& keepGoing)
{
    PlannedResult result;
    store::allOrNothing(database, [&] { result = storePlannedListWithin(database, sheet, list, keepGoing); });
    return result;
}

PlannedResult storePlannedListWithin(store::Database& database, const TableSheet& sheet,
                                     const PlannedList& list, const KeepGoing& keepGoing)
{
    return PlannedComparer(database, sheet, list, keepGoing).store();
}

} // namespace norvane::articles
