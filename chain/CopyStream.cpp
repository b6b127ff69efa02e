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

} // namespace

CopyStream::CopyStream(const Server& server, pqxx::work& work, const char* table,
                       const std::vector<std::string>& columns)
    : m_handle(server.handle())
{
    std::string names;
    for (const std::string& column : columns)
        names.append(names.empty() ? "" : ",").append(column);
    work.exec("COPY " + std::string(table) + '(' + names + ") FROM STDIN");
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
    if (PQresultStatus(result.get()) == PGRES_COMMAND_OK)
        return;
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

void CopyStream::failBroken() const
{
    throw pqxx::broken_connection(PQerrorMessage(m_handle));
}

} // namespace norvane::chain
