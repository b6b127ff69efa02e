// The SQL of storing one record; see RowWriter.h.
#include "store/engine/RowWriter.h"

#include "platform/RuntimeFailure.h"
#include "store/engine/RowIds.h"
#include "store/engine/Savepoint.h"

#include <sqlite3.h>

#include <algorithm>

using namespace Qt::Literals::StringLiterals;

namespace norvane::store
{
namespace
{

/// Each set of changed fields has its own statement. Keeps this many.
constexpr std::size_t mostUpdates = 16;

/// A counter that was given no value becomes the highest one plus 1.
std::string insertedValue(const TableShape& shape, const FieldDefinition& field)
{
    if (field.type != FieldType::Counter)
        return "?";
    const std::string name = quotedName(field.name);
    return "COALESCE(?, (SELECT COALESCE(MAX(" + name + "), 0) + 1 FROM " + quotedName(shape.name()) + "))";
}

} // namespace

RowWriter::RowWriter(Connection& connection, std::shared_ptr<const TableShape> shape)
    : m_connection(connection), m_shape(std::move(shape))
{
    const auto& fields = m_shape->definition().fields;
    for (int i = 0; i < fields.size(); ++i) {
        if (fields.at(i).required && fields.at(i).type != FieldType::Counter)
            m_required.push_back(i);
    }
}

std::unique_ptr<PreparedStatement> RowWriter::prepare(const std::string& sql) const
{
    return std::make_unique<PreparedStatement>(m_connection.handle(), sql,
                                               u"%1, table %2."_s.arg(m_connection.path(), m_shape->name()));
}

RowWriter::Stage RowWriter::stage() const
{
    return {m_connection.transactionNumber(), m_connection.retirements()};
}

std::string RowWriter::insertSql(const std::string& rowId) const
{
    std::string names = rowId.empty() ? "" : "_rowid_";
    std::string values = rowId;
    for (const auto& field : m_shape->definition().fields) {
        names += (names.empty() ? "" : ", ") + quotedName(field.name);
        values += (values.empty() ? "" : ", ") + insertedValue(*m_shape, field);
    }
    return "INSERT INTO " + quotedName(m_shape->name()) + " (" + names + ") VALUES (" + values + ')';
}

std::string RowWriter::updateSql(const std::vector<int>& fields) const
{
    std::string changes;
    for (const int field : fields) {
        changes += changes.empty() ? "" : ", ";
        changes += quotedName(m_shape->definition().fields.at(field).name) + " = ?";
    }
    return "UPDATE " + quotedName(m_shape->name()) + " SET " + changes + " WHERE _rowid_ = ?";
}

/// Rows that a transaction adds one after the other get rising row ids from the engine. Only the first needs
/// the search for an unused one, which saves an import much time.
PreparedStatement& RowWriter::insertStatement()
{
    const bool follows = stage().transaction != 0 && stage() == m_added;
    auto& statement = follows ? m_insertBehind : m_insert;
    if (!statement)
        statement = prepare(insertSql(follows ? std::string() : unusedRowId(m_connection, *m_shape)));
    return *statement;
}

PreparedStatement& RowWriter::updateOf(const std::vector<int>& fields)
{
    if (m_updates.size() >= mostUpdates && !m_updates.contains(fields))
        m_updates.clear();
    auto& statement = m_updates[fields];
    if (!statement)
        statement = prepare(updateSql(fields));
    return *statement;
}

void RowWriter::checkRequired(const std::vector<Value>& values) const
{
    for (const int field : m_required) {
        if (values[static_cast<std::size_t>(field)].isNull()) {
            throw RuntimeFailure(Failure::RequiredFieldIsNull,
                                 u"Field %1 of table %2 must have a value."_s.arg(
                                     m_shape->definition().fields.at(field).name, m_shape->name()));
        }
    }
}

void RowWriter::failGone() const
{
    throw RuntimeFailure(Failure::RecordDeleted, u"Record is deleted. (%1)"_s.arg(m_shape->name()));
}

std::int64_t RowWriter::insert(const std::vector<Value>& values)
{
    checkRequired(values);
    auto& statement = insertStatement();
    int parameter = 0;
    for (const auto& value : values)
        statement.bind(++parameter, value);
    statement.run();
    m_added = stage();
    return sqlite3_last_insert_rowid(m_connection.handle());
}

void RowWriter::update(std::int64_t rowId, const std::vector<Value>& before, const std::vector<Value>& after)
{
    checkRequired(after);
    std::vector<int> changed;
    for (std::size_t i = 0; i < after.size(); ++i) {
        if (!(before[i] == after[i]))
            changed.push_back(static_cast<int>(i));
    }
    if (changed.empty())
        return;
    auto& statement = updateOf(changed);
    int parameter = 0;
    for (const int field : changed)
        statement.bind(++parameter, after[static_cast<std::size_t>(field)]);
    statement.bind(++parameter, rowId);
    if (statement.run() == 0)
        failGone();
}

void RowWriter::remove(std::int64_t rowId)
{
    if (!m_remove)
        m_remove = prepare("DELETE FROM " + quotedName(m_shape->name()) + " WHERE _rowid_ = ?");
    Savepoint savepoint(m_connection.handle());
    retireRowIds(m_connection, *m_shape, rowId);
    m_remove->bind(1, rowId);
    if (m_remove->run() == 0)
        failGone();
    savepoint.keep();
}

} // namespace norvane::store
