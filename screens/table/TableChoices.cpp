// See TableChoices.h.
#include "screens/table/TableChoices.h"

#include "screens/KeyReferences.h"
#include "store/catalogue/SalesTables.h"
#include "store/engine/QuotedName.h"

#include <QJsonArray>
#include <QJsonDocument>

using namespace Qt::Literals::StringLiterals;

namespace norvane::screens
{
namespace
{

constexpr int daysWithoutSale = 90;

/// What both halves of a column with two choices are called, and the SQL of the first. A "?" is the field.
struct TwoChoices {
    QLatin1StringView with;
    QLatin1StringView without;
    QLatin1StringView sql;
};

constexpr TwoChoices ofPrice{"has a price"_L1, "no price"_L1, "CAST(coalesce(?, 0) AS REAL) <> 0"_L1};
constexpr TwoChoices ofNumber{"not 0"_L1, "0"_L1, "CAST(coalesce(?, 0) AS REAL) <> 0"_L1};
constexpr TwoChoices ofCheck{"Yes"_L1, "No"_L1, "coalesce(?, 0) = -1"_L1};
constexpr TwoChoices ofText{"not empty"_L1, "empty"_L1, "trim(coalesce(?, '')) <> ''"_L1};

const TwoChoices& halvesOf(const TableColumn& column)
{
    if (column.kind() == ControlKind::Check)
        return ofCheck;
    if (!column.isNumber())
        return ofText;
    return column.field.name.contains(u"price"_s, Qt::CaseInsensitive) && column.decimals() > 0 ? ofPrice
                                                                                                : ofNumber;
}

QVector<TableChoice> choicesOf(const TableColumn& column)
{
    const std::string field = store::quotedName(column.field.name);
    QVector<TableChoice> choices;
    for (const ListEntry& entry : column.entries)
        choices += {entry.shown, "coalesce(" + field + ", 0) = ?", {entry.value}};
    if (!choices.isEmpty() || column.isKey)
        return choices;
    const TwoChoices& halves = halvesOf(column);
    const std::string with = QString(halves.sql).replace(u'?', QString::fromStdString(field)).toStdString();
    return {{halves.with, with, {}}, {halves.without, "NOT (" + with + ")", {}}};
}

bool hasPluSales(const store::Database& database, const TableSource& source)
{
    return source.table.compare("PLUDATA"_L1, Qt::CaseInsensitive) == 0 &&
           database.hasTable(QLatin1StringView(store::salestable::plus));
}

/// A register may report PLUs that it did not sell.
TableChoice notSoldSince(const QString& keyField, QDate day)
{
    QStringList counts;
    for (int level = 1; level <= 5; ++level)
        counts += u"COUNT%1 <> 0"_s.arg(level);
    const QString sql = u"%1 NOT IN (SELECT ID FROM %2 WHERE %3 >= ? AND (%4))"_s.arg(
        QString::fromStdString(store::quotedName(keyField)), QLatin1StringView(store::salestable::plus),
        QString::fromStdString(store::quotedName(store::salestable::day)), counts.join(u" OR "_s));
    return {u"sold nothing for %1 days"_s.arg(daysWithoutSale), sql.toStdString(), {store::Value::date(day)}};
}

} // namespace

QVector<ColumnChoices> choicesOf(const store::Database& database, const TableSource& source, QDate today)
{
    QVector<ColumnChoices> all;
    ColumnChoices uses{u"Keys and sales"_s, {}};
    if (const QString sql = withoutKeySql(database, source.table, source.keyField); !sql.isEmpty())
        uses.choices += {u"on no key"_s, sql.toStdString(), {}};
    if (hasPluSales(database, source))
        uses.choices += notSoldSince(source.keyField, today.addDays(-daysWithoutSale));
    if (!uses.choices.isEmpty())
        all += uses;
    for (const TableColumn& column : source.columns) {
        if (ColumnChoices choices{column.label, choicesOf(column)}; !choices.choices.isEmpty())
            all += choices;
    }
    return all;
}

ColumnChoices choiceOfUnsent(const TableSource& source, std::function<std::vector<store::Value>()> keys)
{
    const std::string sql = store::quotedName(source.keyField) + " IN (SELECT value FROM json_each(?))";
    return {u"Registers"_s, {{u"changed since the last download"_s, sql, {}, std::move(keys)}}};
}

store::Value keysAsJson(const std::vector<store::Value>& keys)
{
    QJsonArray list;
    for (const store::Value& key : keys)
        list.append(key.isText() ? QJsonValue(key.toText()) : QJsonValue(key.toNumber()));
    return store::Value::text(QString::fromUtf8(QJsonDocument(list).toJson(QJsonDocument::Compact)));
}

} // namespace norvane::screens
