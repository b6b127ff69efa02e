// See PluComparison.h.
#include "articles/PluComparison.h"

#include "platform/Excerpt.h"
#include "platform/Trimming.h"
#include "platform/Windows1252.h"
#include "reports/files/FormulaGuard.h"
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
QString readingsOf(const PluColumn& column, std::string_view cell, const Decimal& decimal)
{
    std::string whole(cell);
    std::erase_if(whole, [](char letter) { return letter == '.' || letter == ','; });
    return u"\"%1\" may mean %2 or %3; write %2 or %3"_s.arg(
        excerptOfUtf8(cell), shownPluValue(column, decimal.text()), shownPluValue(column, whole));
}

/// Why a register cannot take a text; empty if it can.
QString faultOf(const QString& text)
{
    if (text.size() > longestDescription)
        return u"\"%1\" is longer than %2 characters"_s.arg(excerpt(text)).arg(longestDescription);
    if (std::ranges::any_of(text, [](QChar letter) { return letter.category() == QChar::Other_Control; }))
        return u"\"%1\" has a line end or another control character"_s.arg(text.simplified());
    if (text.contains(u','))
        return u"\"%1\" has a comma, which would split it in the file for the registers"_s.arg(text);
    if (!fitsWindows1252(text))
        return u"\"%1\" has characters that a register does not know"_s.arg(text);
    return {};
}

QString faultOf(const Decimal& price)
{
    if (price.rounded(priceDecimals) != price)
        return u"a price has at most two decimal places"_s;
    if (price < Decimal() || price.rounded(priceDecimals) > highestPrice)
        return u"a price is from 0 to 999999.99"_s;
    return {};
}

} // namespace

/// The numbers of the records in the tables that keys point to.
class KnownKeys
{
public:
    explicit KnownKeys(store::Database& database) : m_database(database) {}

    [[nodiscard]] bool contains(const PluColumn& column, const Decimal& key)
    {
        auto [keys, isNew] = m_keys.try_emplace(&column);
        if (isNew)
            read(column, keys->second);
        return keys->second.contains(key.text());
    }

private:
    void read(const PluColumn& column, std::unordered_set<std::string>& keys)
    {
        auto records = m_database.openTable(column.table);
        const int place = records.fieldOrdinal(column.tableKey);
        for (records.readOnly({place}); !records.atEnd(); records.moveNext())
            keys.insert(records.value(place).toUtf8());
    }

    store::Database& m_database;
    std::map<const PluColumn*, std::unordered_set<std::string>> m_keys;
};

namespace
{

/// What will be stored of a cell that is a change.
std::string valueOf(const PluColumn& column, const std::string& cell)
{
    if (column.content == PluContent::Text)
        return reports::unguarded(QString::fromStdString(cell)).toStdString();
    return numberOf(trimBlanks(std::string_view(cell)))->text();
}

/// The next of the texts that a zero byte ends; @p texts goes to the one after it.
std::string takeText(const char*& texts)
{
    std::string text(texts);
    texts += text.size() + 1;
    return text;
}

} // namespace

class PluComparer
{
public:
    PluComparer(store::Database& database, PluComparison& result, const KeepGoing& keepGoing)
        : m_database(database), m_file(result.m_file), m_result(result), m_keepGoing(keepGoing),
          m_keys(database)
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
        auto plus = m_database.openTable(u"PLUDATA"_s);
        plus.setIndex(u"plunumber"_s);
        const int number = plus.fieldOrdinal(pluColumns().front().field);
        std::vector<int> places{number};
        for (const PluColumn* const column : m_file.columns())
            places.push_back(plus.fieldOrdinal(column->field));
        std::uint32_t position = 0;
        for (plus.readOnly(places); !plus.atEnd(); plus.moveNext(), ++position) {
            stopUnless(m_keepGoing);
            const auto key = PluNumber::parse(plus.value(number).textView());
            if (const auto line = key ? m_file.take(*key) : std::nullopt)
                compare(*line, plus, places, position);
        }
    }

    void compare(std::uint32_t line, const store::Recordset& plus, const std::vector<int>& places,
                 std::uint32_t position)
    {
        m_change = {line, position, 0, false};
        m_former = plus.value(places.front()).toUtf8();
        if (m_former == m_file.lines()[line].number.text())
            m_former.clear();
        m_former += '\0';
        m_cells = m_file.cells(line);
        for (std::size_t column = 0; column < m_cells.size(); ++column)
            compareCell(column, plus.value(places[column + 1]));
        if (m_change.columns != 0)
            keepChange();
    }

    void compareNew()
    {
        std::vector<Value> newValues;
        for (const PluColumn* const column : m_file.columns())
            newValues.push_back(newPluValue(*column));
        for (std::uint32_t line = 0; line < m_file.lines().size(); ++line) {
            if (m_file.lines()[line].isTaken)
                continue;
            stopUnless(m_keepGoing);
            m_change = {line, 0, 0, true};
            m_former.assign(1, '\0');
            m_cells = m_file.cells(line);
            for (std::size_t column = 0; column < m_cells.size(); ++column)
                compareCell(column, newValues[column]);
            keepChange();
            ++m_result.m_newCount;
        }
    }

    void keepChange()
    {
        m_result.m_changes.push_back(m_change);
        m_result.m_former += m_former;
    }

    void compareCell(std::size_t place, const Value& stored)
    {
        const PluColumn& column = *m_file.columns()[place];
        const std::string& cell = m_cells[place];
        if (stored.textView() == cell)
            return;
        if (column.content == PluContent::Text) {
            compareText(place, QString::fromStdString(cell), stored);
        } else if (column.content != PluContent::Number) {
            compareNumber(place, trimBlanks(std::string_view(cell)), stored);
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
        note(place, faultOf(text), before.toStdString());
    }

    void compareNumber(std::size_t place, std::string_view cell, const Value& stored)
    {
        if (cell.empty())
            return;
        const auto number = numberOf(cell);
        const auto before = exportedNumber(stored);
        if (number && before && *number == *before && isExported(cell, *before))
            return;
        note(place, faultOfNumber(*m_file.columns()[place], cell, number),
             before ? before->text() : std::string());
    }

    /// Notes that a cell changes a field, or what is wrong with it.
    void note(std::size_t place, const QString& fault, const std::string& before)
    {
        if (!fault.isEmpty()) {
            const PluLine& line = m_file.lines()[m_change.line];
            m_result.m_mistakes.add({line.line, m_file.columns()[place]->heading, fault});
            return;
        }
        m_change.columns |= static_cast<std::uint16_t>(1U << place);
        m_former += before.c_str(); // NOLINT(readability-redundant-string-cstr): without zero bytes
        m_former += '\0';
    }

    /// An export writes three places only for a price that has them.
    [[nodiscard]] bool isExported(std::string_view cell, const Decimal& before) const
    {
        return !m_file.decimalSign().leavesOpen(cell) || before.rounded(priceDecimals) != before;
    }

    QString faultOfNumber(const PluColumn& column, std::string_view cell,
                          const std::optional<Decimal>& number)
    {
        const bool isPrice = column.content == PluContent::Price;
        if (!number) {
            return (isPrice ? u"\"%1\" is not a price"_s : u"\"%1\" is not a number"_s)
                .arg(excerptOfUtf8(cell));
        }
        if (m_file.decimalSign().leavesOpen(cell))
            return readingsOf(column, cell, *number);
        if (isPrice)
            return faultOf(*number);
        return m_keys.contains(column, *number)
                   ? QString()
                   : u"there is no %1 %2"_s.arg(QString(column.heading).toLower(), excerptOfUtf8(cell));
    }

    store::Database& m_database;
    PluFile& m_file;
    PluComparison& m_result;
    const KeepGoing& m_keepGoing;
    KnownKeys m_keys;
    PluComparison::Change m_change{}; ///< of the line that is compared
    std::string m_former;
    std::span<const std::string> m_cells;
};

PluComparison::PluComparison(store::Database& database, const QByteArray& content,
                             std::optional<char> separator, const KeepGoing& keepGoing)
    : m_file(content, separator)
{
    PluComparer(database, *this, keepGoing).run();
}

void PluComparison::forEach(const std::function<void(const PluChange& change)>& take) const
{
    const char* former = m_former.c_str();
    PluChange change;
    for (const auto& [line, position, columns, isNew] : m_changes) {
        change.number = takeText(former);
        if (change.number.empty())
            change.number = m_file.lines()[line].number.text();
        change.isNew = isNew;
        change.position = position;
        change.fields.clear();
        const auto cells = m_file.cells(line);
        for (std::size_t place = 0; place < cells.size(); ++place) {
            if ((unsigned{columns} >> place & 1U) == 0)
                continue;
            const PluColumn& column = *m_file.columns()[place];
            change.fields.push_back({&column, takeText(former), valueOf(column, cells[place])});
        }
        take(change);
    }
}

QString shownPluValue(const PluColumn& column, const std::string& value)
{
    const auto number = column.content == PluContent::Price ? Decimal::plain(value) : std::nullopt;
    if (!number || number->scale() > priceDecimals)
        return QString::fromStdString(value);
    return QString::fromStdString(number->text(priceDecimals));
}

} // namespace norvane::articles
