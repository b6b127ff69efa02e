// A connection of libpqxx that keeps the handle of libpq beside it.
#pragma once

#include <pqxx/pqxx>
#include <string>

namespace norvane::chain
{

/// Connects at once, as pqxx::connection does. The handle is for what libpqxx has no function for.
class Connection : public pqxx::connection_base
{
public:
    using Handle = pqxx::connectionpolicy::handle;

    /// @param options as for Server. @throws pqxx::broken_connection
    explicit Connection(const std::string& options);
    ~Connection() noexcept;
    Connection(const Connection&) = delete;
    Connection& operator=(const Connection&) = delete;

    /// Owned by the connection; null while there is none.
    [[nodiscard]] Handle handle() const { return m_policy.handle(); }

private:
    class Policy : public pqxx::connect_direct
    {
    public:
        using pqxx::connect_direct::connect_direct;
        [[nodiscard]] Handle handle() const { return m_handle; }
        Handle do_startconnect(Handle former) override;
        Handle do_disconnect(Handle former) noexcept override;

    private:
        Handle m_handle = nullptr;
    };

    Policy m_policy;
};

} // namespace norvane::chain
