// See CopyStream.h.
#include "chain/CopyStream.h"

#include <libpq-fe.h>
#include <memory>

namespace norvane::chain
{
namespace
{

constexpr std::size_t bytesAtOnce = std::size_t{32} * 1024;

using Result = std::unique_ptr<PGresult, decltype(&PQclear)>;

/// Takes what the server still reports, until it is ready for the next statement.
Result lastOf(PGconn* connection)
{
    Result last(nullptr, &PQclear);
    while (PGresult* const next = PQgetResult(connection)) {
        if (last == nullptr || PQresultStatus(last.get()) != PGRES_FATAL_ERROR) {
            last.reset(next);
        } else {
            PQclear(next);
        }
    }
    return last;
}

std::string joinedNames(const std::vector<std::string>& columns)
{
    std::string all;
    for (const std::string& column : columns)
        all.append(all.empty() ? "" : ",").append(column);
    return all;
}

/// It has the name of the table, as messages about its rows do.
std::string stagedName(const std::string& table)
{
    return "pg_temp." + table;
}

} // namespace

CopyStream::CopyStream(Server& server, pqxx::work& work, const char* table,
                       const std::vector<std::string>& columns)
    : m_handle(server.handle()), m_work(work), m_table(table), m_columns(joinedNames(columns)),
      m_isStaged(server.isHeldToOwnRows(work))
{
    if (m_isStaged)
        work.exec0("CREATE TEMPORARY TABLE " + m_table + " (LIKE " + m_table + ") ON COMMIT DROP");
    work.exec("COPY " + (m_isStaged ? stagedName(m_table) : m_table) + '(' + m_columns + ") FROM STDIN");
}

CopyStream::~CopyStream()
{
    if (!m_isOpen)
        return;
    (void)PQputCopyEnd(m_handle, "abandoned");
    (void)lastOf(m_handle);
}

void CopyStream::add(const std::string& rest)
{
    m_rows.append(m_leading).append(rest).append(1, '\n');
    if (m_rows.size() > bytesAtOnce)
        send();
}

void CopyStream::complete()
{
    send();
    m_isOpen = false;
    if (PQputCopyEnd(m_handle, nullptr) != 1)
        failBroken();
    const Result result = lastOf(m_handle);
    if (PQresultStatus(result.get()) == PGRES_COMMAND_OK) {
        insertStaged();
        return;
    }
    const char* const state = PQresultErrorField(result.get(), PG_DIAG_SQLSTATE);
    if (state == nullptr)
        failBroken();
    throw pqxx::sql_error(PQresultErrorMessage(result.get()), "COPY", state);
}

void CopyStream::send()
{
    if (!m_rows.empty() && PQputCopyData(m_handle, m_rows.data(), static_cast<int>(m_rows.size())) != 1)
        failBroken();
    m_rows.clear();
}

void CopyStream::insertStaged()
{
    if (!m_isStaged)
        return;
    m_work.exec0("INSERT INTO " + m_table + '(' + m_columns + ") SELECT " + m_columns + " FROM " +
                 stagedName(m_table));
    m_work.exec0("DROP TABLE " + stagedName(m_table));
}

void CopyStream::failBroken() const
{
    throw pqxx::broken_connection(PQerrorMessage(m_handle));
}

} // namespace norvane::chain
