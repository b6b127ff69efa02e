// The publication of a night: one connection for all shops.
#pragma once

#include "base/ApplicationValues.h"
#include "chain/Server.h"
#include "command/Night.h"

#include <optional>

namespace norvane::command
{

class NightChain
{
public:
    /// @param connection empty to publish nothing.
    explicit NightChain(QString connection) : m_connection(std::move(connection)) {}

    [[nodiscard]] bool isWanted() const { return !m_connection.isEmpty(); }
    /// Tries a server again that could not be reached.
    void beginRound() { m_failure.reset(); }

    /// Publishes what is new of a shop. The caller holds the lock of its folder. A server that cannot be
    /// reached is asked once in a round, since each attempt can take minutes.
    [[nodiscard]] NightEnd publish(const ApplicationValues& values);

private:
    [[nodiscard]] chain::Server& server();

    QString m_connection;
    std::unique_ptr<chain::Server> m_server;
    std::optional<NightEnd> m_failure; ///< of the server, not of a shop
};

} // namespace norvane::command
