// Compares a file with the table; see PluImport.h. PluApply.cpp stores.
#include "command/PluImport.h"

#include "command/DecimalSign.h"
#include "platform/Excerpt.h"
#include "platform/TextFields.h"
#include "platform/Windows1252.h"
#include "reports/FormulaGuard.h"
#include "store/Recordset.h"

#include <algorithm>
#include <map>
#include <unordered_map>
#include <unordered_set>
#include <utility>

using namespace Qt::Literals::StringLiterals;

namespace norvane::command
{
namespace
{

using store::Value;

/// Cells come with a decimal point or comma; thousands are not separated.
std::optional<Decimal> numberOf(std::string_view cell)
{
    if (const auto number = Decimal::plain(cell))
        return number;
    std::string pointed(cell);
    std::ranges::replace(pointed, ',', '.');
    return std::ranges::count(pointed, '.') == 1 ? Decimal::plain(pointed) : std::nullopt;
}

/// What a number with one sign may mean: the sign is the decimal sign, or it separates the thousands.
QString readingsOf(const PluColumn& column, std::string_view cell, const Decimal& decimal)
{
    std::string whole(cell);
    std::erase_if(whole, [](char letter) { return letter == '.' || letter == ','; });
    return u"\"%1\" may mean %2 or %3; write %2 or %3"_s.arg(
        excerptOfUtf8(cell), shownPluValue(column, decimal.text()), shownPluValue(column, whole));
}

/// What keeps a text off a register, empty for a good one.
QString faultOf(const QString& text)
{
    if (text.size() > longestDescription)
        return u"\"%1\" is longer than %2 characters"_s.arg(excerpt(text)).arg(longestDescription);
    if (std::ranges::any_of(text, [](QChar letter) { return letter.category() == QChar::Other_Control; }))
        return u"\"%1\" has a line end or another control character"_s.arg(text.simplified());
    if (text.contains(u','))
        return u"\"%1\" has a comma, at which the file for the registers would be parted"_s.arg(text);
    if (!fitsWindows1252(text))
        return u"\"%1\" has characters that a register does not know"_s.arg(text);
    return {};
}

QString faultOf(const Decimal& price)
{
    if (price.rounded(priceDecimals) != price)
        return u"a price has at most two decimal places"_s;
    if (price.coefficient() < 0 ||
        price.rounded(priceDecimals).shifted(priceDecimals).coefficient() > highestPrice.coefficient())
        return u"a price is from 0 to 999999.99"_s;
    return {};
}

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

class Comparison
{
public:
    Comparison(store::Database& database, const PluFile& file)
        : m_database(database), m_file(file), m_keys(database)
    {
        m_byNumber.reserve(file.lines.size());
        for (const PluLine& line : file.lines) {
            m_byNumber.emplace(line.number, &line);
            learnDecimalSign(line);
        }
    }

    PluComparison run()
    {
        m_result.mistakes = m_file.mistakes;
        compareStored();
        compareNew();
        std::ranges::stable_sort(m_result.mistakes, {}, &PluMistake::line);
        return std::move(m_result);
    }

private:
    void learnDecimalSign(const PluLine& line)
    {
        for (std::size_t place = 0; place < m_file.columns.size(); ++place) {
            const std::string_view cell = trimBlanks(std::string_view(line.cells[place]));
            if (m_file.columns[place]->content == PluContent::Price && numberOf(cell))
                m_decimalSign.learnFrom(cell);
        }
    }

    void compareStored()
    {
        auto plus = m_database.openTable(u"PLUDATA"_s);
        plus.setIndex(u"plunumber"_s);
        const int number = plus.fieldOrdinal(pluColumns().front().field);
        std::vector<int> places{number};
        for (const PluColumn* const column : m_file.columns)
            places.push_back(plus.fieldOrdinal(column->field));
        qint64 position = 0;
        for (plus.readOnly(places); !plus.atEnd(); plus.moveNext(), ++position) {
            if (const PluLine* const line = lineOf(plus.value(number).textView()))
                compare(*line, plus, places, position);
        }
    }

    /// Takes the line out, so that those of new PLUs are left.
    [[nodiscard]] const PluLine* lineOf(std::string_view number)
    {
        const auto found = number.size() == pluNumberDigits
                               ? m_byNumber.find(number)
                               : m_byNumber.find(filledPluNumber(trimBlanks(number)));
        return found == m_byNumber.end() ? nullptr : std::exchange(found->second, nullptr);
    }

    void compare(const PluLine& line, const store::Recordset& plus, const std::vector<int>& places,
                 qint64 position)
    {
        PluChange change{plus.value(places.front()).toUtf8(), false, position, {}};
        for (std::size_t column = 0; column < m_file.columns.size(); ++column)
            compareCell(line, column, plus.value(places[column + 1]), change);
        if (!change.fields.empty())
            m_result.changes.push_back(std::move(change));
    }

    void compareNew()
    {
        for (const PluLine& line : m_file.lines) {
            if (m_byNumber.at(line.number) == nullptr) // is known
                continue;
            PluChange change{line.number, true, 0, {}};
            for (std::size_t column = 0; column < m_file.columns.size(); ++column)
                compareCell(line, column, newPluValue(*m_file.columns[column]), change);
            m_result.changes.push_back(std::move(change));
        }
    }

    void compareCell(const PluLine& line, std::size_t place, const Value& stored, PluChange& change)
    {
        const PluColumn& column = *m_file.columns[place];
        const std::string& cell = line.cells[place];
        if (stored.textView() == cell)
            return;
        if (column.content == PluContent::Text) {
            compareText(line, column, QString::fromStdString(cell), stored, change);
        } else if (column.content != PluContent::Number) {
            compareNumber(line, column, trimBlanks(std::string_view(cell)), stored, change);
        }
    }

    void compareText(const PluLine& line, const PluColumn& column, const QString& cell, const Value& stored,
                     PluChange& change)
    {
        const QString before = exportedText(stored);
        const auto isBefore = [&](const QString& text) {
            return text.startsWith(before) && trimBlanks(text).size() == trimBlanks(before).size();
        };
        const QString text = reports::unguarded(cell);
        if (isBefore(cell) || isBefore(text))
            return;
        if (const QString fault = faultOf(text); !fault.isEmpty()) {
            add(line, column, fault);
        } else {
            change.fields.push_back({&column, before.toStdString(), text.toStdString()});
        }
    }

    void compareNumber(const PluLine& line, const PluColumn& column, std::string_view cell,
                       const Value& stored, PluChange& change)
    {
        if (cell.empty())
            return;
        const auto number = numberOf(cell);
        const auto before = exportedNumber(stored);
        if (number && before && *number == *before && isExported(cell, *before))
            return;
        if (const QString fault = faultOfNumber(column, cell, number); !fault.isEmpty()) {
            add(line, column, fault);
        } else {
            change.fields.push_back({&column, before ? before->text() : std::string(), number->text()});
        }
    }

    /// An export writes three places only of a price that has them.
    [[nodiscard]] bool isExported(std::string_view cell, const Decimal& before) const
    {
        return !m_decimalSign.leavesOpen(cell) || before.rounded(priceDecimals) != before;
    }

    QString faultOfNumber(const PluColumn& column, std::string_view cell,
                          const std::optional<Decimal>& number)
    {
        const bool isPrice = column.content == PluContent::Price;
        if (!number)
            return (isPrice ? u"\"%1\" is no price"_s : u"\"%1\" is no number"_s).arg(excerptOfUtf8(cell));
        if (m_decimalSign.leavesOpen(cell))
            return readingsOf(column, cell, *number);
        if (isPrice)
            return faultOf(*number);
        return m_keys.contains(column, *number)
                   ? QString()
                   : u"there is no %1 %2"_s.arg(QString(column.heading).toLower(), excerptOfUtf8(cell));
    }

    void add(const PluLine& line, const PluColumn& column, const QString& reason)
    {
        m_result.mistakes.push_back({line.line, column.heading, reason});
    }

    store::Database& m_database;
    const PluFile& m_file;
    KnownKeys m_keys;
    DecimalSign m_decimalSign;
    std::unordered_map<std::string_view, const PluLine*> m_byNumber;
    PluComparison m_result;
};

} // namespace

PluComparison comparePlus(store::Database& database, const QByteArray& content)
{
    const PluFile file = readPluFile(content);
    return Comparison(database, file).run();
}

QString shownPluValue(const PluColumn& column, const std::string& value)
{
    const auto number = column.content == PluContent::Price ? Decimal::plain(value) : std::nullopt;
    if (!number || number->scale() > priceDecimals)
        return QString::fromStdString(value);
    QString digits =
        QString::number(number->shifted(priceDecimals).coefficient()).rightJustified(priceDecimals + 1, u'0');
    return digits.insert(digits.size() - priceDecimals, u'.');
}

} // namespace norvane::command
