// One select for each kind of reference gives its uses as rows; see KeyUses.h.
#include "screens/KeyUses.h"

#include "register/PluNumber.h"
#include "register/RegisterModel.h"
#include "screens/KeyReferences.h"
#include "store/catalogue/RecordReferences.h"
#include "store/engine/BoundQuery.h"

#include <algorithm>
#include <vector>

using namespace Qt::Literals::StringLiterals;

namespace norvane::screens
{
namespace
{

/// How a use is described. "%1" is the record that refers to another: its number and, in quotation marks, its
/// text. "%2" is the number in the field's name.
struct UseText {
    QLatin1StringView table;
    QLatin1StringView field;
    QLatin1StringView text;
};

/// Other references are described by the word for the holder: "PLU 1001 "Espresso"".
constexpr UseText useTexts[] = {
    {"NLU"_L1, "nlu"_L1, "Keyboard level %1, key %2"_L1},
    {"WLU"_L1, "codenumber*"_L1, "Window look-up %1, line %2"_L1},
    {"RECIPE"_L1, "recipe*"_L1, "Recipe %1, part %2"_L1},
    {"PLUDATA"_L1, "STOCKLINK"_L1, "Stock link of PLU %1"_L1},
    {"PLUSTATUS"_L1, "LINKEDPLU"_L1, "Linked PLU of status group %1"_L1},
    {"PLUSTATUS"_L1, "GROUPLINK*"_L1, "Status group %1, group %2"_L1},
    {"EMPLOYEE"_L1, "JOB*CODE"_L1, "Employee %1, job %2"_L1},
    {"EMPLOYEE"_L1, "PAYRATE*"_L1, "Employee %1, pay rate %2"_L1},
    {"GENERALFUNCTIONS"_L1, "EMPLOYEENO*"_L1, "General options, employee no. %2"_L1},
    {"TRAININGMODEOPTIONS"_L1, "trainingemployee"_L1, "Training mode options"_L1},
};

/// A table whose records use those that name them in @c field.
struct Members {
    QLatin1StringView table;
    QLatin1StringView field;
    QLatin1StringView user;
    QLatin1StringView text;
};

constexpr Members members[] = {
    {"PLUDATA"_L1, "MIXNMATCH"_L1, "MIXNMATCH"_L1, "Mix and match offer %1"_L1},
};

constexpr QLatin1StringView keysTable{"NLU"};

/// Both tables of the keyboard belong together by the place of a row, not by its id. "#" is replaced by the
/// keys of a level.
const QString keyRows = u"SELECT nlu AS used, (place - 1) / # + 1 AS number, '' AS name, "
                        "(place - 1) % # + 1 AS line FROM "
                        "(SELECT nlu, row_number() OVER (ORDER BY id, rowid) AS place FROM nlu) JOIN "
                        "(SELECT keylink, row_number() OVER (ORDER BY id, rowid) AS place FROM keylink) "
                        "USING (place) WHERE keylink = '0' AND place <= # * %1"_s.arg(keyboardLevels);

/// Uses of one kind. @c rows selects them with the columns used, number, name and line.
struct UseSource {
    QString table;
    QString numberField;
    QString text;
    QString rows;
};

bool areEqual(QStringView one, QLatin1StringView other)
{
    return one.compare(other, Qt::CaseInsensitive) == 0;
}

QString numberFieldOf(const store::TableDefinition& table)
{
    return table.indexes.isEmpty() ? u"rowid"_s : table.indexes.constFirst().field;
}

QString nameOf(const store::TableDefinition& table)
{
    const auto* const field = fieldNamed(table, u"DESCRIPTION");
    return field == nullptr ? u"''"_s : table.name + u'.' + field->name;
}

QString textOf(const store::RecordReference& reference)
{
    const auto* const row = std::ranges::find_if(useTexts, [&](const UseText& known) {
        return known.table == reference.table && known.field == reference.field;
    });
    if (row != std::end(useTexts))
        return row->text;
    QString text = reference.holder + u" %1"_s;
    text[0] = text[0].toUpper();
    return text;
}

QString rowsOf(const store::TableDefinition& table, const store::RecordReference& reference)
{
    QStringList selects;
    for (int number = reference.first; number <= reference.last; ++number) {
        selects += numbered(
            u"SELECT %1 AS used, %2 AS number, %3 AS name, * AS line FROM %4 WHERE %5"_s.arg(
                reference.field, numberFieldOf(table), nameOf(table), table.name, reference.condition),
            number);
    }
    return selects.join(u" UNION ALL "_s);
}

UseSource sourceOf(const store::Database& database, const store::RecordReference& reference, int keysPerLevel)
{
    const store::TableDefinition table = database.table(reference.table);
    UseSource source{table.name, numberFieldOf(table), textOf(reference), rowsOf(table, reference)};
    if (reference.table == keysTable)
        source.rows = QString(keyRows).replace(u'#', QString::number(keysPerLevel));
    return source;
}

UseSource sourceOf(const store::Database& database, const Members& kind)
{
    const store::TableDefinition table = database.table(kind.table);
    const store::TableDefinition user = database.table(kind.user);
    return {
        user.name, numberFieldOf(user), kind.text,
        u"SELECT %1.%2 AS used, %3.%4 AS number, %5 AS name, 0 AS line FROM %1 JOIN %3 ON %3.%4 = %1.%6"_s
            .arg(table.name, numberFieldOf(table), user.name, numberFieldOf(user), nameOf(user), kind.field)};
}

/// A database of a former version may lack some.
std::vector<UseSource> sourcesOf(const store::Database& database, const QString& table, int keysPerLevel)
{
    std::vector<UseSource> sources;
    for (const store::RecordReference& reference : store::recordReferences()) {
        if (areEqual(table, reference.to) && isIn(database, reference))
            sources.push_back(sourceOf(database, reference, keysPerLevel));
    }
    for (const Members& kind : members) {
        if (areEqual(table, kind.table) && database.hasTable(kind.user) &&
            fieldNamed(database.table(kind.table), QString(kind.field)) != nullptr)
            sources.push_back(sourceOf(database, kind));
    }
    return sources;
}

/// @param row columns number, name and line.
QString described(const UseSource& source, store::BoundQuery& row)
{
    QString holder = shownKey(source.numberField, row.value(0).toText());
    const QString name = row.value(1).toText().trimmed();
    if (!name.isEmpty())
        holder += u" \"%1\""_s.arg(name);
    // The name last: it may contain a "%2".
    return QString(source.text).replace(u"%2"_s, row.value(2).toText()).replace(u"%1"_s, holder);
}

void addUses(store::Database& database, const UseSource& source, const store::Value& key, int atMost,
             KeyUses& uses)
{
    const QString sql =
        u"SELECT number, name, line FROM (%1) WHERE used = ?1 ORDER BY number, line"_s.arg(source.rows);
    store::BoundQuery rows(database, sql.toStdString(), {key}, source.table);
    for (; rows.next(); ++uses.count) {
        if (uses.count < atMost)
            uses.first += described(source, rows);
    }
}

void addCounts(store::Database& database, const UseSource& source, bool isPlu, QHash<QString, int>& counts)
{
    const QString sql = u"SELECT used, count(*) FROM (%1) GROUP BY used"_s.arg(source.rows);
    store::BoundQuery rows(database, sql.toStdString(), {}, source.table);
    while (rows.next()) {
        const QString number = rows.value(0).toText();
        if (rows.value(0).toNumber() != 0)
            counts[isPlu ? fittedPluNumber(number) : number] += static_cast<int>(rows.value(1).toNumber());
    }
}

} // namespace

bool canBeUsed(const QString& table)
{
    return std::ranges::any_of(store::recordReferences(), [&](const store::RecordReference& reference) {
        return areEqual(table, reference.to);
    });
}

KeyUses usesOfKey(store::Database& database, const QString& table, const store::Value& key, int keysPerLevel,
                  int atMost)
{
    KeyUses uses;
    if (key.toNumber() == 0)
        return uses;
    for (const UseSource& source : sourcesOf(database, table, keysPerLevel))
        addUses(database, source, key, atMost, uses);
    return uses;
}

QHash<QString, int> countUses(store::Database& database, const QString& table, int keysPerLevel, UseKind kind)
{
    QHash<QString, int> counts;
    const bool isPlu = database.hasTable(table) && isPluNumberField(numberFieldOf(database.table(table)));
    for (const UseSource& source : sourcesOf(database, table, keysPerLevel)) {
        if (kind == UseKind::All || areEqual(source.table, keysTable))
            addCounts(database, source, isPlu, counts);
    }
    return counts;
}

} // namespace norvane::screens
