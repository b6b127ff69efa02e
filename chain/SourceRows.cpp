// See SourceRows.h.
#include "chain/SourceRows.h"

#include "platform/Dates.h"
#include "platform/Decimal.h"
#include "platform/RuntimeFailure.h"
#include "store/catalogue/SalesTables.h"
#include "store/engine/BoundQuery.h"
#include "store/engine/QuotedName.h"

#include <QCryptographicHash>

#include <optional>

using namespace Qt::Literals::StringLiterals;

namespace norvane::chain
{
namespace
{

using store::Value;

/// Prefix of a digest. Change it with anything that changes what is read.
constexpr const char* digestForm = "2:";

/// PostgreSQL has no character 0.
std::string withoutNulls(const Value& value)
{
    std::string text = value.toUtf8();
    std::erase(text, '\0');
    return text;
}

QString trimmed(const Value& value)
{
    return QString::fromStdString(withoutNulls(value)).trimmed();
}

/// Nothing for a price that was never set.
std::optional<std::string> textOf(const Value& value, Content content)
{
    switch (content) {
    case Content::Number: {
        const auto number = Decimal::parse(value.toUtf8());
        return number ? std::optional(number->text()) : std::nullopt;
    }
    case Content::Time:
        return clockTime(trimmed(value)).toStdString();
    case Content::Text: // filled with blanks by a register
        return trimmed(value).toStdString();
    case Content::Key:
        return withoutNulls(value);
    case Content::Whole:
        break;
    }
    return value.toUtf8();
}

void appendEscaped(std::string& line, const std::string& text)
{
    static constexpr std::string_view special = "\\\t\n\r";
    static constexpr std::string_view letters = "\\tnr";
    for (const char c : text) {
        if (const auto at = special.find(c); at != std::string_view::npos) {
            line += '\\';
            line += letters[at];
        } else {
            line += c;
        }
    }
}

void appendValue(std::string& line, const Value& value, Content content)
{
    if (const auto text = value.isNull() ? std::nullopt : textOf(value, content)) {
        appendEscaped(line, *text);
    } else {
        line += "\\N";
    }
}

void appendSum(std::string& line, std::string_view sum, int places)
{
    if (places == 0) {
        line += sum;
        return;
    }
    const auto number = Decimal::parse(sum);
    if (!number)
        throw RuntimeFailure(Failure::Overflow, u"Overflow"_s);
    line += number->shifted(-places).text();
}

/// Reads a query whose first columns are @p columns and whose other columns are sums, as texts and multiplied
/// by ten to the power of @p places.
RowsDigest readAll(store::BoundQuery& query, std::span<const ChainColumn> columns, int places,
                   const RowSink& sink)
{
    RowsDigest read;
    QCryptographicHash hash(QCryptographicHash::Blake2b_160);
    for (std::string line; query.next(); ++read.rows) {
        line.clear();
        for (int at = 0; at < query.columnCount(); ++at) {
            line.append(at == 0 ? 0 : 1, '\t');
            if (const auto column = static_cast<std::size_t>(at); column < columns.size()) {
                appendValue(line, query.value(at), columns[column].content);
            } else {
                appendSum(line, query.value(at).textView(), places);
            }
        }
        hash.addData(QByteArrayView(line));
        hash.addData(QByteArrayView("\n"));
        if (sink)
            sink(line);
    }
    read.digest = digestForm + hash.result().toHex().toStdString();
    return read;
}

std::string dayStatement(const SalesTable& table)
{
    std::string items;
    std::string sums;
    for (const auto& item : table.items)
        items += (items.empty() ? "" : ", ") + store::quotedName(item.field) + " COLLATE BINARY";
    for (const std::string& field : addedFields(table))
        sums += ", exact_sum(" + store::quotedName(field) + ')';
    return "SELECT " + items + sums + " FROM " + store::quotedName(table.source) + " WHERE " +
           store::quotedName(store::salestable::day) + " = ? GROUP BY " + items + " ORDER BY " + items;
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
    store::BoundQuery query(database, dayStatement(table), {Value::date(day)},
                            QLatin1StringView(table.source));
    return readAll(query, table.items, table.places, sink);
}

RowsDigest readNames(store::Database& database, const NameTable& table, const RowSink& sink)
{
    store::BoundQuery query(database, nameStatement(table), {}, QLatin1StringView(table.source));
    return readAll(query, table.columns, 0, sink);
}

bool isCurrentDigest(const std::string& digest)
{
    return digest.starts_with(digestForm);
}

} // namespace norvane::chain
