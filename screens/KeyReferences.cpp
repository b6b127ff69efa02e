// See KeyReferences.h.
#include "screens/KeyReferences.h"

#include "store/engine/BoundQuery.h"

#include <QStringList>

#include <algorithm>
#include <utility>
#include <vector>

using namespace Qt::Literals::StringLiterals;

namespace norvane::screens
{
namespace
{

std::string countOf(const store::RecordReference& reference)
{
    QStringList fields;
    for (int number = reference.first; number <= reference.last; ++number)
        fields += numbered(u"(%1 = ?1 AND %2)"_s.arg(reference.field, reference.condition), number);
    return u"SELECT count(*) FROM %1 WHERE %2"_s.arg(reference.table, fields.join(u" OR "_s)).toStdString();
}

int holders(store::Database& database, const store::RecordReference& reference, const store::Value& key)
{
    store::BoundQuery query(database, countOf(reference), {key}, reference.table);
    return query.next() ? static_cast<int>(query.value(0).toNumber()) : 0;
}

using Counts = std::vector<std::pair<QLatin1StringView, int>>;

/// The links of all tables are counted together.
Counts counts(store::Database& database, const QString& table, const store::Value& key)
{
    Counts counted;
    for (const store::RecordReference& reference : store::recordReferences()) {
        if (table.compare(reference.to, Qt::CaseInsensitive) != 0 || !isIn(database, reference))
            continue;
        if (counted.empty() || counted.back().first != reference.holder)
            counted.emplace_back(reference.holder, 0);
        if (key.toNumber() != 0)
            counted.back().second += holders(database, reference, key);
    }
    return counted;
}

QString listed(QStringList words, QLatin1StringView lastWord)
{
    if (words.size() < 2)
        return words.join(QString());
    const QString last = words.takeLast();
    return u"%1 %2 %3"_s.arg(words.join(u", "_s), lastWord, last);
}

QString wordsOf(const Counts& counted)
{
    QStringList some;
    QStringList kinds;
    for (const auto& [holder, count] : counted) {
        kinds += holder;
        if (count > 0)
            some += u"%1 %2%3"_s.arg(count).arg(holder, count == 1 ? ""_L1 : "s"_L1);
    }
    if (kinds.isEmpty() || !some.isEmpty())
        return listed(some, "and"_L1);
    return u"no "_s + listed(kinds, "or"_L1);
}

} // namespace

QString numbered(QString text, int number)
{
    return text.replace(u'*', QString::number(number));
}

bool isIn(const store::Database& database, const store::RecordReference& reference)
{
    if (!database.hasTable(reference.table))
        return false;
    const store::TableDefinition table = database.table(reference.table);
    return fieldNamed(table, numbered(reference.field, reference.first)) != nullptr;
}

KeyHolders holdersOfKey(store::Database& database, const QString& table, const store::Value& key)
{
    const Counts counted = counts(database, table, key);
    KeyHolders found{0, wordsOf(counted)};
    for (const auto& [holder, count] : counted)
        found.count += count;
    return found;
}

QString withoutKeySql(const store::Database& database, const QString& table, const QString& keyField)
{
    for (const store::RecordReference& reference : store::recordReferences()) {
        if (reference.holder == "key"_L1 && table.compare(reference.to, Qt::CaseInsensitive) == 0 &&
            isIn(database, reference)) {
            const QString sql = u"%1 NOT IN (SELECT %2 FROM %3 WHERE %2 IS NOT NULL AND %4)"_s;
            return sql.arg(keyField, reference.field, reference.table, reference.condition);
        }
    }
    return {};
}

} // namespace norvane::screens
