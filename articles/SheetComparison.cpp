// See SheetComparison.h.
#include "articles/SheetComparison.h"

#include "articles/CellFaults.h"
#include "platform/Excerpt.h"
#include "platform/Trimming.h"
#include "reports/files/FormulaGuard.h"
#include "store/engine/FieldConversion.h"
#include "store/engine/Recordset.h"

#include <algorithm>
#include <map>
#include <unordered_set>

using namespace Qt::Literals::StringLiterals;

namespace norvane::articles
{
namespace
{

using store::Value;

/// Both meanings of a number with one sign: the sign is the decimal sign, or it separates the thousands.
QString readingsOf(const SheetColumn& column, std::string_view cell, const Decimal& decimal)
{
    std::string whole(cell);
    std::erase_if(whole, [](char letter) { return letter == '.' || letter == ','; });
    return u"\"%1\" may mean %2 or %3; write %2 or %3"_s.arg(
        excerptOfUtf8(cell), shownSheetValue(column, decimal.text()), shownSheetValue(column, whole));
}

/// As a field holds it.
std::string storedYesNo(bool yes)
{
    return yes ? "-1" : "0";
}

} // namespace

/// The numbers of the records in the tables that keys point to.
class KnownKeys
{
public:
    explicit KnownKeys(store::Database& database) : m_database(database) {}

    [[nodiscard]] bool contains(const SheetColumn& column, const Decimal& key)
    {
        if (column.mayBeNone && key == Decimal())
            return true;
        auto [keys, isNew] = m_keys.try_emplace(column.table);
        if (isNew)
            read(column, keys->second);
        return keys->second.contains(key.text());
    }

private:
    void read(const SheetColumn& column, std::unordered_set<std::string>& keys)
    {
        auto records = m_database.openTable(column.table);
        const int place = records.fieldOrdinal(column.tableKey);
        for (records.readOnly({place}); !records.atEnd(); records.moveNext())
            keys.insert(records.value(place).toUtf8());
    }

    store::Database& m_database;
    std::map<QString, std::unordered_set<std::string>> m_keys; ///< by table
};

namespace
{

/// What will be stored of a cell that is a change.
std::string valueOf(const SheetColumn& column, const std::string& cell)
{
    const std::string_view trimmed = trimBlanks(std::string_view(cell));
    switch (column.content) {
    case CellContent::Text:
        return reports::unguarded(QString::fromStdString(cell)).toStdString();
    case CellContent::Digits: {
        const auto missing = static_cast<std::size_t>(column.longest) - trimmed.size();
        return std::string(column.isFilled && !trimmed.empty() ? missing : 0, '0').append(trimmed);
    }
    case CellContent::Hexadecimal:
        return std::string(trimmed);
    case CellContent::YesNo:
        return storedYesNo(*yesNoOf(trimmed));
    default:
        return numberOf(trimmed)->text();
    }
}

/// The next of the texts that a zero byte ends; @p texts goes to the one after it.
std::string takeText(const char*& texts)
{
    std::string text(texts);
    texts += text.size() + 1;
    return text;
}

} // namespace

class SheetComparer
{
public:
    SheetComparer(store::Database& database, SheetComparison& result, const KeepGoing& keepGoing)
        : m_database(database), m_sheet(result.m_sheet), m_file(result.m_file), m_result(result),
          m_keepGoing(keepGoing), m_keys(database)
    {
    }

    void run()
    {
        m_result.m_mistakes = m_file.mistakes();
        m_result.m_changes.reserve(m_file.lines().size());
        compareStored();
        compareNew();
    }

private:
    void compareStored()
    {
        auto records = m_database.openTable(m_sheet.table);
        records.setIndex(m_sheet.index);
        // A column that is skipped reads the number once more.
        std::vector<int> places{records.fieldOrdinal(m_sheet.columns.front().field)};
        for (const SheetColumn* const column : m_file.columns())
            places.push_back(column ? records.fieldOrdinal(column->field) : places.front());
        std::uint32_t position = 0;
        for (records.readOnly(places); !records.atEnd(); records.moveNext(), ++position) {
            stopUnless(m_keepGoing);
            const Value& number = records.value(places.front());
            const auto key =
                number.isText() ? PluNumber::parse(number.textView()) : PluNumber::parse(number.toUtf8());
            if (const auto line = key ? m_file.take(*key) : std::nullopt)
                compare(*line, records, places, position);
        }
    }

    void compare(std::uint32_t line, const store::Recordset& records, const std::vector<int>& places,
                 std::uint32_t position)
    {
        m_change = {line, position, 0, false};
        m_former = records.value(places.front()).toUtf8();
        if (m_former == storedNumber(m_sheet.columns.front(), m_file.lines()[line].number))
            m_former.clear();
        m_former += '\0';
        m_cells = m_file.cells(line);
        for (std::size_t column = 0; column < m_cells.size(); ++column)
            compareCell(column, records.value(places[column + 1]));
        if (m_change.columns != 0)
            keepChange();
    }

    void compareNew()
    {
        std::vector<Value> newValues;
        for (const SheetColumn* const column : m_file.columns())
            newValues.push_back(column ? newCellValue(*column) : Value());
        for (std::uint32_t line = 0; line < m_file.lines().size(); ++line) {
            if (m_file.lines()[line].isTaken)
                continue;
            stopUnless(m_keepGoing);
            if (m_sheet.takesNew) {
                addNew(line, newValues);
            } else {
                refuseNew(m_file.lines()[line]);
            }
        }
    }

    void addNew(std::uint32_t line, const std::vector<Value>& newValues)
    {
        m_change = {line, 0, 0, true};
        m_former.assign(1, '\0');
        m_cells = m_file.cells(line);
        for (std::size_t column = 0; column < m_cells.size(); ++column)
            compareCell(column, newValues[column]);
        keepChange();
        ++m_result.m_newCount;
    }

    void refuseNew(const SheetLine& line)
    {
        const QString number = QString::number(line.number.value());
        m_result.m_mistakes.add(
            {line.line, m_sheet.columns.front().heading,
             u"there is no record %1, and the registers take no further ones"_s.arg(number),
             m_file.placeOf(line.line, {})});
    }

    void keepChange()
    {
        m_result.m_changes.push_back(m_change);
        m_result.m_former += m_former;
    }

    void compareCell(std::size_t place, const Value& stored)
    {
        const SheetColumn* const column = m_file.columns()[place];
        const std::string& cell = m_cells[place];
        if (column == nullptr || stored.textView() == cell)
            return;
        const std::string_view trimmed = trimBlanks(std::string_view(cell));
        switch (column->content) {
        case CellContent::Text:
            return compareText(place, QString::fromStdString(cell), stored);
        case CellContent::Digits:
            return compareDigits(place, trimmed, stored);
        case CellContent::Hexadecimal:
            return compareHexadecimal(place, trimmed, stored);
        case CellContent::YesNo:
            return compareYesNo(place, trimmed, stored);
        case CellContent::Key:
        case CellContent::Number:
            return compareNumber(place, trimmed, stored);
        default:
            return;
        }
    }

    void compareText(std::size_t place, const QString& cell, const Value& stored)
    {
        const QString before = exportedText(stored);
        const auto isBefore = [&](const QString& text) {
            return text.startsWith(before) && trimBlanks(text).size() == trimBlanks(before).size();
        };
        const QString text = reports::unguarded(cell);
        if (isBefore(cell) || isBefore(text))
            return;
        note(place, faultOf(*m_file.columns()[place], text), stored);
    }

    void compareDigits(std::size_t place, std::string_view cell, const Value& stored)
    {
        const SheetColumn& column = *m_file.columns()[place];
        const std::string before = exportedText(stored).toStdString();
        const bool isSame = isDigits(before) && isDigits(cell) && store::compareDigits(before, cell) == 0;
        if (isSame || cell == before || (cell.empty() && !column.mayBeNone))
            return;
        note(place, faultOfDigits(column, cell), stored);
    }

    void compareHexadecimal(std::size_t place, std::string_view cell, const Value& stored)
    {
        const std::string before = exportedText(stored).toStdString();
        if (cell != before)
            note(place, faultOfHexadecimal(*m_file.columns()[place], cell), stored);
    }

    void compareYesNo(std::size_t place, std::string_view cell, const Value& stored)
    {
        const auto yes = yesNoOf(cell);
        if (cell.empty() || yes == stored.isTrue())
            return;
        note(place, yes ? QString() : u"\"%1\" is neither Yes nor No"_s.arg(excerptOfUtf8(cell)), stored);
    }

    void compareNumber(std::size_t place, std::string_view cell, const Value& stored)
    {
        if (cell.empty())
            return;
        const SheetColumn& column = *m_file.columns()[place];
        const auto number = numberOf(cell);
        const auto before = exportedNumber(stored);
        if (number && before && *number == *before && isExported(column, cell, *before))
            return;
        note(place, faultOfNumber(column, cell, number), stored);
    }

    /// Notes that a cell changes a field, or what is wrong with it.
    void note(std::size_t place, const QString& fault, const Value& stored)
    {
        if (!fault.isEmpty()) {
            const SheetLine& line = m_file.lines()[m_change.line];
            m_result.m_mistakes.add(
                {line.line, m_file.columns()[place]->heading, fault, m_file.placeOf(line.line, place)});
            return;
        }
        ++m_change.columns;
        m_former += static_cast<char>(place + 1);
        // Without zero bytes. NOLINTNEXTLINE(readability-redundant-string-cstr)
        m_former += comparedValue(*m_file.columns()[place], stored).c_str();
        m_former += '\0';
    }

    /// Whether "1,000" may mean one or a thousand. Where three places are usual it is one.
    [[nodiscard]] bool isOpen(const SheetColumn& column, std::string_view cell) const
    {
        constexpr int placesOfThousand = 3;
        return column.decimals < placesOfThousand && m_file.decimalSign().leavesOpen(cell);
    }

    /// An export writes three places only for a price that has them.
    [[nodiscard]] bool isExported(const SheetColumn& column, std::string_view cell,
                                  const Decimal& before) const
    {
        return !isOpen(column, cell) || before.rounded(column.decimals) != before;
    }

    QString faultOfNumber(const SheetColumn& column, std::string_view cell,
                          const std::optional<Decimal>& number)
    {
        const bool isKey = column.content == CellContent::Key;
        if (!number)
            return u"\"%1\" is not a %2"_s.arg(excerptOfUtf8(cell), isKey ? u"number"_s : column.word);
        if (isOpen(column, cell))
            return readingsOf(column, cell, *number);
        if (!isKey)
            return faultOf(column, *number);
        return m_keys.contains(column, *number)
                   ? QString()
                   : u"there is no %1 %2"_s.arg(column.word, excerptOfUtf8(cell));
    }

    store::Database& m_database;
    const TableSheet& m_sheet;
    SheetFile& m_file;
    SheetComparison& m_result;
    const KeepGoing& m_keepGoing;
    KnownKeys m_keys;
    SheetComparison::Change m_change{}; ///< of the line that is compared
    std::string m_former;
    std::span<const std::string> m_cells;
};

SheetComparison::SheetComparison(store::Database& database, const TableSheet& sheet,
                                 const QByteArray& content, const SheetReading& reading,
                                 const KeepGoing& keepGoing)
    : m_sheet(sheet), m_file(sheet, content, reading)
{
    SheetComparer(database, *this, keepGoing).run();
}

bool SheetComparison::changesTheSame(const SheetComparison& other) const
{
    return m_changes == other.m_changes && m_former == other.m_former &&
           m_mistakes.count() == other.m_mistakes.count();
}

void SheetComparison::forEach(const std::function<void(const SheetChange& change)>& take) const
{
    const char* former = m_former.c_str();
    SheetChange change;
    for (const auto& [line, position, columns, isNew] : m_changes) {
        change.number = takeText(former);
        if (change.number.empty())
            change.number = storedNumber(m_sheet.columns.front(), m_file.lines()[line].number);
        change.isNew = isNew;
        change.position = position;
        change.fields.clear();
        const auto cells = m_file.cells(line);
        for (int left = columns; left > 0; --left) {
            const std::size_t place = static_cast<unsigned char>(*former++) - 1U;
            const SheetColumn& column = *m_file.columns()[place];
            change.fields.push_back({&column, takeText(former), valueOf(column, cells[place])});
        }
        take(change);
    }
}

std::string comparedValue(const SheetColumn& column, const store::Value& stored)
{
    switch (column.content) {
    case CellContent::YesNo:
        return stored.isNull() ? std::string() : storedYesNo(stored.isTrue());
    case CellContent::Key:
    case CellContent::Number: {
        const auto number = exportedNumber(stored);
        return number ? number->text() : std::string();
    }
    default:
        return exportedText(stored).toStdString();
    }
}

QString shownSheetValue(const SheetColumn& column, const std::string& value)
{
    if (column.content == CellContent::YesNo && !value.empty())
        return value == storedYesNo(true) ? u"Yes"_s : u"No"_s;
    const auto number = column.content == CellContent::Number ? Decimal::plain(value) : std::nullopt;
    if (!number || number->scale() > column.decimals)
        return QString::fromStdString(value);
    return QString::fromStdString(number->text(column.decimals));
}

} // namespace norvane::articles
