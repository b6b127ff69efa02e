// See SourceRows.h.
#include "chain/SourceRows.h"

#include "chain/ChainError.h"
#include "chain/RowText.h"
#include "platform/Dates.h"
#include "platform/DecimalTotal.h"
#include "platform/RuntimeFailure.h"
#include "store/catalogue/SalesTables.h"
#include "store/engine/BoundQuery.h"
#include "store/engine/QuotedName.h"

#include <QCryptographicHash>

#include <vector>

using namespace Qt::Literals::StringLiterals;

namespace norvane::chain
{
namespace
{

using store::Value;

/// Prefix of a digest. Change it with anything that changes what is read.
constexpr const char* digestForm = "2:";

/// As exact_sums() writes it.
constexpr std::string_view zero = "0";

/// Calls @p use with the place and the text of each sum of exact_sums().
template <typename Use>
void eachSum(std::string_view sums, Use use)
{
    for (std::size_t place = 0;; ++place) {
        const auto end = sums.find('\t');
        use(place, sums.substr(0, end));
        if (end == std::string_view::npos)
            return;
        sums.remove_prefix(end + 1);
    }
}

/// Digest and number of rows while they are read.
class Reading
{
public:
    explicit Reading(const RowSink& sink) : m_sink(sink) {}

    void add(const std::string& line, bool isPassedOn)
    {
        m_hash.addData(QByteArrayView(line));
        m_hash.addData(QByteArrayView("\n"));
        m_read.rows += isPassedOn ? 1 : 0;
        if (m_sink && isPassedOn)
            m_sink(line);
    }
    [[nodiscard]] RowsDigest result()
    {
        m_read.digest = digestForm + m_hash.result().toHex().toStdString();
        return m_read;
    }

private:
    const RowSink& m_sink;
    QCryptographicHash m_hash{QCryptographicHash::Blake2b_160};
    RowsDigest m_read;
};

[[noreturn]] void failUnsound(const SalesTable& table, QDate day, const QString& what)
{
    throw ChainError(ChainFailure::BadRows,
                     u"%1 of %2 %3"_s.arg(QLatin1StringView(table.source), day.toString(Qt::ISODate), what));
}

/// "PLU 0007" of a table whose item is the PLU.
QString itemText(const ChainColumn& item, const Value& value)
{
    return u"%1 \"%2\""_s.arg(QLatin1StringView(item.name), QString::fromStdString(value.toUtf8()));
}

bool isWholeNumber(const Value& value)
{
    const auto* const number = std::get_if<std::int64_t>(&value.data());
    if (number != nullptr)
        return *number == static_cast<std::int32_t>(*number);
    bool isNumber = false;
    (void)QString::fromStdString(value.toUtf8()).toInt(&isNumber);
    return isNumber;
}

/// Reads the rows of a day: its items, then the sums.
class DayReader
{
public:
    DayReader(store::BoundQuery& query, const SalesTable& table, QDate day)
        : m_query(query), m_table(table), m_day(day)
    {
        for (const std::string& column : summedColumnsOf(table)) {
            m_totals.push_back(totalOf(column));
            m_zeros.append(m_zeros.empty() ? 0 : 1, '\t').append(zero);
        }
    }

    RowsDigest read(const RowSink& sink)
    {
        Reading reading(sink);
        bool isEmpty = true;
        for (; m_query.next(); isEmpty = false) {
            m_line.clear();
            appendItems();
            reading.add(m_line, appendSums());
        }
        RowsDigest read = reading.result();
        if (!isEmpty && m_table.totalled != Totalled::No)
            read.totals = {m_quantity.text(), m_value.text()};
        return read;
    }

private:
    void appendItems()
    {
        for (std::size_t at = 0; at < m_table.items.size(); ++at) {
            const Value& value = m_query.value(static_cast<int>(at));
            check(m_table.items[at], value);
            m_line.append(at == 0 ? 0 : 1, '\t');
            appendValue(m_line, value, m_table.items[at].content);
        }
    }
    void check(const ChainColumn& item, const Value& value) const
    {
        if (value.isNull())
            failUnsound(m_table, m_day, u"has a row without %1."_s.arg(QLatin1StringView(item.name)));
        if (item.content == Content::Whole && !isWholeNumber(value))
            failUnsound(m_table, m_day, u"has %1, which is not a whole number."_s.arg(itemText(item, value)));
    }
    /// @return whether any is not 0.
    bool appendSums()
    {
        const auto sums = m_query.value(static_cast<int>(m_table.items.size())).textView();
        m_line += '\t';
        if (sums == m_zeros) {
            m_line += sums;
            return false;
        }
        const bool isTotalled = isOfTotals();
        eachSum(sums, [&](std::size_t place, std::string_view sum) {
            m_line.append(place == 0 ? 0 : 1, '\t');
            appendSum(m_line, sum, m_table.places);
            if (isTotalled && m_totals[place] != nullptr && sum != zero)
                m_totals[place]->add(sum);
        });
        return true;
    }
    /// Promotions and waste are part of the counts.
    DecimalTotal* totalOf(const std::string& column)
    {
        if (column.starts_with("value"))
            return &m_value;
        return column.starts_with("count") || column == "quantity" ? &m_quantity : nullptr;
    }
    [[nodiscard]] bool isOfTotals()
    {
        return m_table.totalled == Totalled::EveryRow ||
               (m_table.totalled == Totalled::NetSales &&
                m_query.value(0).toUtf8() == std::to_string(store::salestable::netSalesLine));
    }
    store::BoundQuery& m_query;
    const SalesTable& m_table;
    QDate m_day;
    DecimalTotal m_quantity;
    DecimalTotal m_value;
    std::vector<DecimalTotal*> m_totals; ///< by column; null for one that no total has
    std::string m_zeros;                 ///< the sums of an item that was not sold
    std::string m_line;
};

std::string itemsOf(const SalesTable& table)
{
    std::string items;
    for (const auto& item : table.items)
        items += (items.empty() ? "" : ", ") + store::quotedName(item.field) + " COLLATE BINARY";
    return items;
}

std::string ofDay(const SalesTable& table)
{
    return " FROM " + store::quotedName(table.source) + " WHERE " +
           store::quotedName(store::salestable::day) + " = ?";
}

std::string sumsOf(const SalesTable& table)
{
    std::string fields;
    for (const std::string& field : addedFields(table))
        fields += (fields.empty() ? "" : ", ") + store::quotedName(field);
    return ", exact_sums(" + fields + ')';
}

std::string dayStatement(const SalesTable& table, const std::string& condition = {})
{
    const std::string items = itemsOf(table);
    return "SELECT " + items + sumsOf(table) + ofDay(table) + condition + " GROUP BY " + items +
           " ORDER BY " + items;
}

/// The items of a day, each as the values of its columns.
std::vector<std::vector<Value>> itemsOf(store::Database& database, const SalesTable& table, QDate day)
{
    std::vector<std::vector<Value>> all;
    store::BoundQuery query(database, "SELECT DISTINCT " + itemsOf(table) + ofDay(table), {Value::date(day)},
                            QLatin1StringView(table.source));
    while (query.next()) {
        auto& item = all.emplace_back();
        for (std::size_t at = 0; at < table.items.size(); ++at)
            item.push_back(query.value(static_cast<int>(at)));
    }
    return all;
}

bool canBeAdded(store::Database& database, const SalesTable& table, QDate day, std::vector<Value> item)
{
    std::string condition;
    for (const auto& column : table.items)
        condition += " AND " + store::quotedName(column.field) + " IS ?";
    item.insert(item.begin(), Value::date(day));
    try {
        store::BoundQuery query(database, dayStatement(table, condition), std::move(item),
                                QLatin1StringView(table.source));
        query.next();
        return true;
    } catch (const RuntimeFailure&) {
        return false;
    }
}

/// After the sums of a day could not be read: the engine does not say which.
void failForInfiniteItem(store::Database& database, const SalesTable& table, QDate day)
{
    for (const auto& item : itemsOf(database, table, day)) {
        if (canBeAdded(database, table, day, item))
            continue;
        QStringList texts;
        for (std::size_t at = 0; at < item.size(); ++at)
            texts << itemText(table.items[at], item[at]);
        failUnsound(table, day, u"has %1, whose sum is not a finite number."_s.arg(texts.join(u", "_s)));
    }
}

std::string nameStatement(const NameTable& table)
{
    std::string columns;
    for (const auto& column : table.columns)
        columns += (columns.empty() ? "" : ", ") + store::quotedName(column.field);
    const std::string key = store::quotedName(table.columns.front().field);
    return "SELECT " + columns + " FROM " + store::quotedName(table.source) + " WHERE " + key +
           " IS NOT NULL ORDER BY " + key;
}

/// Jumps from day to day through the index: a walk over all rows would take seconds.
std::string daysStatement(const SalesTable& table)
{
    const std::string day = store::quotedName(store::salestable::day);
    const std::string next = "SELECT min(" + day + ") FROM " + store::quotedName(table.source);
    return "WITH RECURSIVE days(day) AS (" + next + " UNION ALL SELECT (" + next + " WHERE " + day +
           " > days.day) FROM days WHERE days.day IS NOT NULL) SELECT day FROM days WHERE day IS NOT NULL";
}

} // namespace

std::set<QDate> daysOf(store::Database& database, const SalesTable& table)
{
    std::set<QDate> days;
    store::BoundQuery query(database, daysStatement(table), {}, QLatin1StringView(table.source));
    while (query.next()) {
        if (const QDate day = query.value(0).toDate(); day.isValid())
            days.insert(day);
    }
    return days;
}

RowsDigest readDay(store::Database& database, const SalesTable& table, QDate day, const RowSink& sink)
{
    try {
        store::BoundQuery query(database, dayStatement(table), {Value::date(day)},
                                QLatin1StringView(table.source));
        return DayReader(query, table, day).read(sink);
    } catch (const RuntimeFailure& failure) {
        if (failure.failure() == Failure::UnknownNameInQuery || failure.failure() == Failure::Overflow)
            failForInfiniteItem(database, table, day);
        throw;
    }
}

DaySums sumsByDay(store::Database& database, const SalesTable& table)
{
    const std::string day = store::quotedName(store::salestable::day);
    store::BoundQuery query(database,
                            "SELECT " + day + sumsOf(table) + " FROM " + store::quotedName(table.source) +
                                " GROUP BY " + day,
                            {}, QLatin1StringView(table.source));
    DaySums all;
    while (query.next()) {
        auto& sums = all[query.value(0).toDate()];
        eachSum(query.value(1).textView(), [&](std::size_t, std::string_view sum) {
            appendSum(sums.emplace_back(), sum, table.places);
        });
    }
    return all;
}

RowsDigest readNames(store::Database& database, const NameTable& table, const RowSink& sink)
{
    store::BoundQuery query(database, nameStatement(table), {}, QLatin1StringView(table.source));
    Reading reading(sink);
    for (std::string line; query.next(); reading.add(line, true)) {
        line.clear();
        for (std::size_t at = 0; at < table.columns.size(); ++at) {
            line.append(at == 0 ? 0 : 1, '\t');
            appendValue(line, query.value(static_cast<int>(at)), table.columns[at].content);
        }
    }
    return reading.result();
}

bool isCurrentDigest(const std::string& digest)
{
    return digest.starts_with(digestForm);
}

} // namespace norvane::chain
