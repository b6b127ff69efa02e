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

/// A field with the number of a record of table @p to. "*" in the field and the condition means the numbers
/// from first to last: a record with several such fields counts once.
struct Reference {
    QLatin1StringView to;
    QLatin1StringView holder; ///< what the user calls a record with this field; several take an "s"
    QLatin1StringView table;
    QLatin1StringView field;
    int first = 1;
    int last = 1;
    QLatin1StringView condition = "1"_L1; ///< in the engine's words: when the field is such a number
};

/// NLU holds the number of a PLU where KEYLINK holds 0 at the same place of its order; ids do not count.
constexpr QLatin1StringView keyOfPlu{
    "rowid IN (SELECT at FROM"
    " (SELECT rowid AS at, row_number() OVER (ORDER BY id, rowid) AS place FROM nlu) JOIN"
    " (SELECT keylink, row_number() OVER (ORDER BY id, rowid) AS place FROM keylink) USING (place)"
    " WHERE keylink = '0')"};

constexpr Reference references[] = {
    {"PLUDATA"_L1, "key"_L1, "NLU"_L1, "nlu"_L1, 1, 1, keyOfPlu},
    // Lines of the types PLU and condiment; the others are function keys.
    {"PLUDATA"_L1, "look-up"_L1, "WLU"_L1, "codenumber*"_L1, 1, 50, "wlutype* IN (0, 1)"_L1},
    {"PLUDATA"_L1, "link"_L1, "PLUDATA"_L1, "STOCKLINK"_L1},
    {"PLUDATA"_L1, "link"_L1, "PLUSTATUS"_L1, "LINKEDPLU"_L1},
    {"GROUPS"_L1, "PLU"_L1, "PLUDATA"_L1, "GROUPNO"_L1},
    {"GROUPS"_L1, "status group"_L1, "PLUSTATUS"_L1, "GROUPLINK*"_L1, 2, 3},
    {"PLUSTATUS"_L1, "PLU"_L1, "PLUDATA"_L1, "PLUSTATUS"_L1},
    {"MIXNMATCH"_L1, "PLU"_L1, "PLUDATA"_L1, "MIXNMATCH"_L1},
    {"PRODUCTMIX"_L1, "PLU"_L1, "PLUDATA"_L1, "PRODUCTMIX"_L1},
    {"RECIPE"_L1, "PLU"_L1, "PLUDATA"_L1, "RECIPENO"_L1},
    {"AUTHORITYLEVEL"_L1, "employee"_L1, "EMPLOYEE"_L1, "AUTHORITYLEVEL"_L1},
    {"JOBCODE"_L1, "employee"_L1, "EMPLOYEE"_L1, "JOB*CODE"_L1, 1, 6},
    {"PAYRATE"_L1, "employee"_L1, "EMPLOYEE"_L1, "PAYRATE*"_L1, 1, 6},
    {"EMPLOYEE"_L1, "system option"_L1, "GENERALFUNCTIONS"_L1, "EMPLOYEENO*"_L1, 1, 10},
    {"EMPLOYEE"_L1, "system option"_L1, "TRAININGMODEOPTIONS"_L1, "trainingemployee"_L1},
};

QString numbered(QString text, int number)
{
    return text.replace(u'*', QString::number(number));
}

/// A database of a former version may lack a table or a field.
bool isIn(const store::Database& database, const Reference& reference)
{
    if (!database.hasTable(reference.table))
        return false;
    const auto fields = database.table(reference.table).fields;
    const QString first = numbered(reference.field, reference.first);
    return std::ranges::any_of(fields, [&first](const store::FieldDefinition& field) {
        return field.name.compare(first, Qt::CaseInsensitive) == 0;
    });
}

std::string countOf(const Reference& reference)
{
    QStringList fields;
    for (int number = reference.first; number <= reference.last; ++number)
        fields += numbered(u"(%1 = ?1 AND %2)"_s.arg(reference.field, reference.condition), number);
    return u"SELECT count(*) FROM %1 WHERE %2"_s.arg(reference.table, fields.join(u" OR "_s)).toStdString();
}

int holders(store::Database& database, const Reference& reference, const store::Value& key)
{
    store::BoundQuery query(database, countOf(reference), {key}, reference.table);
    return query.next() ? static_cast<int>(query.value(0).toNumber()) : 0;
}

using Counts = std::vector<std::pair<QLatin1StringView, int>>;

/// The links of all tables are counted together.
Counts counts(store::Database& database, const QString& table, const store::Value& key)
{
    Counts counted;
    for (const Reference& reference : references) {
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

KeyHolders holdersOfKey(store::Database& database, const QString& table, const store::Value& key)
{
    const Counts counted = counts(database, table, key);
    KeyHolders found{0, wordsOf(counted)};
    for (const auto& [holder, count] : counted)
        found.count += count;
    return found;
}

} // namespace norvane::screens
