// The connection to the PostgreSQL in which the shops of a chain come together.
#pragma once

#include "chain/ChainError.h"
#include "chain/Connection.h"

#include <functional>
#include <memory>
#include <optional>
#include <string_view>

namespace norvane::chain
{

/// Where the tables are.
inline constexpr const char* schemaName = "norvane";
/// First key of the advisory locks; the second is the shop's number, 0 for the schema itself.
inline constexpr int lockFamily = 0x4E76;

/// A connection to the chain's PostgreSQL.
class Server
{
public:
    /// @param connection as PostgreSQL reads it: "host=... dbname=... user=..." or "postgresql://...".
    /// @throws ChainError BadConnection, Unreachable; Unfit for a database that cannot hold every name.
    explicit Server(const QString& connection);

    /// Does @p work in one transaction: completely or not at all. @throws ChainError.
    void transact(const std::function<void(pqxx::work&)>& work);

    /// Whether row security restricts the user to the rows of one shop. The server is asked once.
    [[nodiscard]] bool isHeldToOwnRows(pqxx::work& work);

    /// "database chain at db.example", for sentences.
    [[nodiscard]] const QString& where() const { return m_where; }
    [[nodiscard]] QString user() const;
    /// For calls of libpq in a transaction of transact().
    [[nodiscard]] Connection::Handle handle() const { return m_connection->handle(); }

private:
    void connect(const QString& connection);
    void checkEncoding(const std::string& encoding) const;
    [[noreturn]] void failAsAnswered(std::string_view state, const char* what) const;
    [[noreturn]] void failGone(const char* what) const;
    [[noreturn]] void fail(ChainFailure failure, const QString& sentence, const char* what) const;
    [[nodiscard]] QString plain(const char* what) const;

    QString m_where;
    QString m_password; ///< never shown
    std::unique_ptr<Connection> m_connection;
    std::optional<bool> m_isHeldToOwnRows;
};

} // namespace norvane::chain
