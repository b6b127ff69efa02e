// Rows on their way into a table of PostgreSQL.
#pragma once

#include "chain/Server.h"

#include <string>
#include <vector>

namespace norvane::chain
{

/// One COPY by the calls of libpq: libpqxx's own stream formats each value and sends every row as a separate
/// message, and years of sales would take twice as long. Nothing else can be done in the transaction until
/// complete(); without it, the destructor abandons the rows.
///
/// A table whose row security applies to the user takes no COPY. Then a temporary table receives the rows,
/// and complete() inserts them.
class CopyStream
{
public:
    /// @param work a transaction of @p server. @throws pqxx::failure as the server refuses.
    CopyStream(Server& server, pqxx::work& work, const char* table, const std::vector<std::string>& columns);
    ~CopyStream();
    CopyStream(const CopyStream&) = delete;
    CopyStream& operator=(const CopyStream&) = delete;

    /// Every row that follows begins with these values: the shop, or shop and day.
    void setLeading(const std::string& values) { m_leading = values; }
    /// @param rest of a row in the format that COPY reads, without line end, as readDay() and readNames()
    /// pass it on.
    /// @throws pqxx::broken_connection
    void add(const std::string& rest);
    /// Sends the remaining rows. @throws pqxx::sql_error if the server refuses the rows,
    /// pqxx::broken_connection
    void complete();

private:
    void send();
    void insertStaged();
    [[noreturn]] void failBroken() const;

    Connection::Handle m_handle;
    pqxx::work& m_work;
    std::string m_table;
    std::string m_columns; ///< "shop,day,plu"
    bool m_isStaged;
    bool m_isOpen = true;
    std::string m_leading;
    std::string m_rows; ///< not sent yet
};

} // namespace norvane::chain
