// See TableBack.h.
#include "store/engine/TableBack.h"

#include "store/engine/RowIds.h"
#include "store/engine/RowImage.h"

using namespace Qt::Literals::StringLiterals;

namespace norvane::store
{
namespace
{

/// Each set of fields has a statement of its own. Keeps this many.
constexpr int mostStatements = 16;

std::string listOf(const QStringList& fields, const char* after)
{
    std::string list;
    for (const QString& field : fields)
        list.append(list.empty() ? "" : ", ").append(quotedName(field)).append(after);
    return list;
}

std::string insertOf(const QString& table, const QStringList& fields)
{
    std::string marks;
    for (qsizetype i = 0; i < fields.size(); ++i)
        marks += "?, ";
    return "INSERT INTO " + quotedName(table) + " (" + listOf(fields, "") + ", _rowid_) VALUES (" + marks +
           "?)";
}

std::string updateOf(const QString& table, const QStringList& fields)
{
    return "UPDATE " + quotedName(table) + " SET " + listOf(fields, " = ?") + " WHERE _rowid_ = ?";
}

} // namespace

PreparedStatement TableBack::prepare(const std::string& sql) const
{
    return {m_connection.handle(), sql, u"%1, table %2."_s.arg(m_connection.path(), m_table)};
}

TableBack::Update& TableBack::updateFor(std::string_view now, std::string_view before)
{
    splitImage(now, m_now);
    splitImage(before, m_then);
    m_different.clear();
    for (std::size_t place = 0; place < m_then.size(); ++place) {
        if (m_now[place] != m_then[place])
            m_different.push_back(place);
    }
    return *m_updates.try_emplace(m_different).first;
}

PreparedStatement& TableBack::prepared(Update& update)
{
    auto& [places, statement] = update;
    if (statement)
        return *statement;
    if (++m_preparedUpdates > mostStatements) {
        for (auto& [others, other] : m_updates)
            other.reset();
        m_preparedUpdates = 1;
    }
    QStringList fields;
    for (const std::size_t place : places)
        fields += m_fields[static_cast<qsizetype>(place)];
    return statement.emplace(prepare(updateOf(m_table, fields)));
}

void TableBack::update(std::int64_t rowId, Update& update, std::string_view before)
{
    splitImage(before, m_then);
    m_now.clear();
    for (const std::size_t place : update.first)
        m_now.push_back(m_then[place]);
    run(prepared(update), m_now, rowId);
}

void TableBack::insert(std::int64_t rowId, std::string_view before)
{
    if (!m_insert)
        m_insert.emplace(prepare(insertOf(m_table, m_fields)));
    splitImage(before, m_then);
    run(*m_insert, m_then, rowId);
}

void TableBack::remove(std::int64_t rowId)
{
    if (!m_delete) {
        retireAllRowIds(m_connection, *m_connection.shape(m_table));
        m_delete.emplace(prepare("DELETE FROM " + quotedName(m_table) + " WHERE _rowid_ = ?"));
    }
    m_delete->bind(1, rowId);
    m_delete->run();
}

/// The values must live until the statement has run.
void TableBack::run(PreparedStatement& statement, const std::vector<std::string_view>& values,
                    std::int64_t rowId)
{
    m_values.clear();
    for (const std::string_view bytes : values)
        m_values.push_back(valueOf(bytes));
    int parameter = 0;
    for (const Value& value : m_values)
        statement.bind(++parameter, value);
    statement.bind(++parameter, rowId);
    statement.run();
}

} // namespace norvane::store
