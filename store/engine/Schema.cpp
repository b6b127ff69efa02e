// The definitions' two tables and the SQL that makes the tables they describe; see Schema.h.
#include "store/engine/Schema.h"

#include "store/engine/FieldConversion.h"
#include "store/engine/PreparedStatement.h"
#include "store/engine/Savepoint.h"

#include <algorithm>
#include <iterator>

using namespace Qt::Literals::StringLiterals;

namespace norvane::store
{
namespace
{

struct TypeRow {
    FieldType type;
    const char* word;        ///< in the definitions
    const char* declaration; ///< of the column
};

/// Texts are compared without regard to case, as users search for them. The tables are strict: a statement
/// cannot leave a text in a number field either.
constexpr TypeRow types[] = {
    {FieldType::YesNo, "yesno", "INTEGER"},
    {FieldType::Long, "long", "INTEGER"},
    {FieldType::Double, "double", "REAL"},
    {FieldType::Digits, "digits", "TEXT COLLATE norvane_digits"},
    {FieldType::Text, "text", "TEXT COLLATE NOCASE"},
    {FieldType::Date, "date", "TEXT"},
    {FieldType::Counter, "counter", "INTEGER"},
};

const TypeRow& rowOf(FieldType type)
{
    return *std::find_if(std::begin(types), std::end(types),
                         [type](const TypeRow& row) { return row.type == type; });
}

std::string columnType(const FieldDefinition& field)
{
    return rowOf(field.type).declaration;
}

/// Whether a field stored as @p stored loses what one of the type @p wanted keeps.
bool isNarrower(FieldType stored, FieldType wanted)
{
    if (wanted == FieldType::Digits)
        return stored == FieldType::Long || stored == FieldType::Double;
    return wanted == FieldType::Long && stored == FieldType::YesNo;
}

FieldType typeOfWord(const QString& word)
{
    const auto* row = std::find_if(std::begin(types), std::end(types), [&word](const TypeRow& candidate) {
        return word == QLatin1StringView(candidate.word);
    });
    return row == std::end(types) ? FieldType::Text : row->type;
}

std::string tableDeclaration(const TableDefinition& table)
{
    std::string columns;
    for (const auto& field : table.fields)
        columns += (columns.empty() ? "" : ", ") + columnDeclaration(field);
    return "CREATE TABLE " + quotedName(table.name) + " (" + columns + ") STRICT";
}

std::string indexDeclaration(const QString& table, int number, const IndexDefinition& index)
{
    const QString name = u"%1 index %2"_s.arg(table).arg(number);
    return std::string("CREATE ") + (index.unique ? "UNIQUE " : "") + "INDEX " + quotedName(name) + " ON " +
           quotedName(table) + " (" + quotedName(index.field) + ')';
}

std::vector<Value> defaultsOf(const TableDefinition& table)
{
    std::vector<Value> values;
    for (const auto& field : table.fields) {
        Value value = field.defaultText.isEmpty() ? Value() : Value::text(field.defaultText);
        // A default longer than its field is cut to it: it is the register's own word, not the user's.
        if (field.type == FieldType::Text && field.size > 0)
            value = value.isNull() ? value : Value::text(field.defaultText.left(field.size));
        convertToField(value, field, table.name);
        values.push_back(std::move(value));
    }
    return values;
}

constexpr const char* definitionTables[] = {
    "CREATE TABLE norvane_field (table_name TEXT COLLATE NOCASE, ordinal INTEGER, name TEXT, type TEXT, "
    "size INTEGER, default_text TEXT, required INTEGER, PRIMARY KEY (table_name, ordinal)) STRICT, WITHOUT "
    "ROWID",
    "CREATE TABLE norvane_index (table_name TEXT COLLATE NOCASE, number INTEGER, name_number INTEGER, "
    "name TEXT, field TEXT, is_unique INTEGER, PRIMARY KEY (table_name, number, name_number)) STRICT, "
    "WITHOUT "
    "ROWID",
};

const char* dropWord(Companion::Kind kind)
{
    switch (kind) {
    case Companion::Kind::Table:
        return "TABLE";
    case Companion::Kind::Index:
        return "INDEX";
    case Companion::Kind::Trigger:
        return "TRIGGER";
    }
    return "";
}

} // namespace

std::string columnDeclaration(const FieldDefinition& field)
{
    return quotedName(field.name) + ' ' + columnType(field);
}

TableShape::TableShape(TableDefinition definition)
    : m_definition(std::move(definition)), m_defaults(defaultsOf(m_definition))
{
    for (int i = 0; i < m_definition.fields.size(); ++i)
        m_ordinals.insert(m_definition.fields.at(i).name.toCaseFolded(), i);
    for (std::size_t i = 0; i < m_defaults.size(); ++i) {
        if (!m_defaults[i].isNull())
            m_withDefault.push_back(i);
    }
}

void TableShape::fillNew(std::vector<Value>& values) const
{
    values.resize(m_defaults.size());
    for (Value& value : values)
        value.data() = std::monostate();
    for (const std::size_t ordinal : m_withDefault)
        values[ordinal] = m_defaults[ordinal];
}

std::optional<int> TableShape::ordinal(const QString& field) const
{
    const auto found = m_ordinals.constFind(field.toCaseFolded());
    return found == m_ordinals.cend() ? std::nullopt : std::optional(*found);
}

const IndexDefinition* TableShape::index(const QString& name) const
{
    const auto found =
        std::find_if(m_definition.indexes.cbegin(), m_definition.indexes.cend(),
                     [&name](const auto& index) { return index.names.contains(name, Qt::CaseInsensitive); });
    return found == m_definition.indexes.cend() ? nullptr : &*found;
}

void Schema::run(const std::string& sql, const QString& what)
{
    PreparedStatement(m_handle, sql, what).run();
}

void Schema::prepareFile()
{
    const QString what = u"Definitions."_s;
    run("PRAGMA application_id = " + std::to_string(applicationId), what);
    run("PRAGMA user_version = " + std::to_string(formatVersion), what);
    for (const char* sql : definitionTables)
        run(sql, what);
}

QStringList Schema::tableNames() const
{
    QStringList names;
    PreparedStatement select(m_handle, "SELECT table_name FROM norvane_field WHERE ordinal = 0",
                             u"Definitions."_s);
    while (select.step())
        names.append(select.text(0));
    return names;
}

QVector<FieldDefinition> Schema::readFields(const QString& table, QString& storedName) const
{
    PreparedStatement select(m_handle,
                             "SELECT table_name, name, type, size, default_text, required FROM norvane_field "
                             "WHERE table_name = ? ORDER BY ordinal",
                             u"Definitions."_s);
    const Value key = Value::text(table);
    select.bind(1, key);
    QVector<FieldDefinition> fields;
    while (select.step()) {
        if (fields.isEmpty())
            storedName = select.text(0);
        fields.append({select.text(1), typeOfWord(select.text(2)), static_cast<int>(select.whole(3)),
                       select.text(4), select.whole(5) != 0});
    }
    return fields;
}

QVector<IndexDefinition> Schema::readIndexes(const QString& table) const
{
    PreparedStatement select(m_handle,
                             "SELECT number, name, field, is_unique FROM norvane_index WHERE table_name = ? "
                             "ORDER BY number, name_number",
                             u"Definitions."_s);
    const Value key = Value::text(table);
    select.bind(1, key);
    QVector<IndexDefinition> indexes;
    while (select.step()) {
        if (select.whole(0) == indexes.size())
            indexes.append({{}, select.text(2), select.whole(3) != 0});
        indexes.last().names.append(select.text(1));
    }
    return indexes;
}

std::optional<TableDefinition> Schema::read(const QString& table) const
{
    TableDefinition definition;
    definition.fields = readFields(table, definition.name);
    if (definition.fields.isEmpty())
        return std::nullopt;
    definition.indexes = readIndexes(table);
    return definition;
}

void Schema::writeField(const QString& table, int ordinal, const FieldDefinition& field)
{
    PreparedStatement insert(m_handle, "INSERT INTO norvane_field VALUES (?, ?, ?, ?, ?, ?, ?)",
                             u"Definitions."_s);
    const Value values[] = {Value::text(table),
                            Value::whole(ordinal),
                            Value::text(field.name),
                            Value::text(std::string(rowOf(field.type).word)),
                            Value::whole(field.size),
                            Value::text(field.defaultText),
                            Value::whole(field.required ? 1 : 0)};
    for (int i = 0; i < static_cast<int>(std::size(values)); ++i)
        insert.bind(i + 1, values[i]);
    insert.run();
}

void Schema::writeIndex(const QString& table, int number, const IndexDefinition& index)
{
    PreparedStatement insert(m_handle, "INSERT INTO norvane_index VALUES (?, ?, ?, ?, ?, ?)",
                             u"Definitions."_s);
    for (int i = 0; i < index.names.size(); ++i) {
        const Value values[] = {Value::text(table),       Value::whole(number),
                                Value::whole(i),          Value::text(index.names.at(i)),
                                Value::text(index.field), Value::whole(index.unique ? 1 : 0)};
        for (int k = 0; k < static_cast<int>(std::size(values)); ++k)
            insert.bind(k + 1, values[k]);
        insert.run();
    }
}

void Schema::addTable(const TableDefinition& table)
{
    Savepoint savepoint(m_handle);
    const QString what = u"Table %1."_s.arg(table.name);
    run(tableDeclaration(table), what);
    for (int i = 0; i < table.fields.size(); ++i)
        writeField(table.name, i, table.fields.at(i));
    for (int i = 0; i < table.indexes.size(); ++i) {
        run(indexDeclaration(table.name, i, table.indexes.at(i)), what);
        writeIndex(table.name, i, table.indexes.at(i));
    }
    addCompanions(table);
    savepoint.keep();
}

std::optional<QString> Schema::declarationOf(const QString& name) const
{
    PreparedStatement select(m_handle, "SELECT sql FROM sqlite_schema WHERE name = ? COLLATE NOCASE",
                             u"Definitions."_s);
    const Value key = Value::text(name);
    select.bind(1, key);
    return select.step() ? std::optional(select.text(0)) : std::nullopt;
}

bool Schema::hasAll(const std::vector<Companion>& companions) const
{
    return std::all_of(companions.begin(), companions.end(), [this](const Companion& each) {
        const auto declaration = declarationOf(each.name);
        return declaration &&
               QString::fromStdString(each.declaration).compare(*declaration, Qt::CaseInsensitive) == 0;
    });
}

void Schema::completeTable(const TableDefinition& table)
{
    addCompanions(table);
    widenFields(table);
}

void Schema::addCompanions(const TableDefinition& table)
{
    auto existing = read(table.name);
    if (!existing || table.searchedField.isEmpty())
        return;
    existing->name = table.name;
    existing->searchedField = table.searchedField;
    const Companion index = searchIndexOf(*existing);
    if (!declarationOf(index.name))
        run(index.declaration, u"Table %1."_s.arg(table.name));
    for (const auto& companions :
         {monthCompanionsOf(*existing), yearCompanionsOf(*existing), dayCompanionsOf(*existing)}) {
        if (!hasAll(companions))
            makeAnew(companions);
    }
}

void Schema::makeAnew(const std::vector<Companion>& companions)
{
    Savepoint savepoint(m_handle);
    for (const Companion& each : companions)
        run(std::string("DROP ") + dropWord(each.kind) + " IF EXISTS " + quotedName(each.name), each.name);
    for (const Companion& each : companions)
        run(each.declaration, each.name);
    savepoint.keep();
}

void Schema::widenFields(const TableDefinition& table)
{
    const auto stored = read(table.name);
    for (const auto& field : stored ? stored->fields : QVector<FieldDefinition>()) {
        const auto* const wanted = fieldNamed(table, field.name);
        if (wanted != nullptr && isNarrower(field.type, wanted->type))
            widenField(stored->name, field, *wanted);
    }
}

void Schema::widenField(const QString& table, const FieldDefinition& former, const FieldDefinition& wanted)
{
    Savepoint savepoint(m_handle);
    if (columnType(former) != columnType(wanted))
        replaceColumn(table, {former.name, wanted.type, wanted.size, {}, false});
    PreparedStatement update(m_handle,
                             "UPDATE norvane_field SET type = ?, size = ? WHERE table_name = ? AND name = ?",
                             u"Table %1."_s.arg(table));
    const Value values[] = {Value::text(std::string(rowOf(wanted.type).word)), Value::whole(wanted.size),
                            Value::text(table), Value::text(former.name)};
    for (int i = 0; i < static_cast<int>(std::size(values)); ++i)
        update.bind(i + 1, values[i]);
    update.run();
    savepoint.keep();
}

/// SQLite cannot change the type of a column, so a new one takes its name.
void Schema::replaceColumn(const QString& table, const FieldDefinition& field)
{
    FieldDefinition column = field;
    column.name += u" wide"_s;
    const std::string alter = "ALTER TABLE " + quotedName(table);
    const std::string former = quotedName(field.name);
    const std::string wide = quotedName(column.name);
    const QString what = u"Table %1."_s.arg(table);
    run(alter + " ADD COLUMN " + columnDeclaration(column), what);
    run("UPDATE " + quotedName(table) + " SET " + wide + " = printf('%.0f', " + former + ") WHERE " + former +
            " IS NOT NULL",
        what);
    run(alter + " DROP COLUMN " + former, what);
    run(alter + " RENAME COLUMN " + wide + " TO " + former, what);
}

void Schema::addField(const TableDefinition& table, const FieldDefinition& field)
{
    Savepoint savepoint(m_handle);
    // No default is declared, so that the rows that are there hold null.
    run("ALTER TABLE " + quotedName(table.name) + " ADD COLUMN " + columnDeclaration(field),
        u"Table %1."_s.arg(table.name));
    writeField(table.name, static_cast<int>(table.fields.size()), field);
    savepoint.keep();
}

} // namespace norvane::store
