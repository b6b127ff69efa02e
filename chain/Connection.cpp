// See Connection.h.
#include "chain/Connection.h"

namespace norvane::chain
{

// The base keeps a reference to the policy and uses it from init() on.
Connection::Connection(const std::string& options) : pqxx::connection_base(m_policy), m_policy(options)
{
    init();
}

Connection::~Connection() noexcept
{
    close();
}

Connection::Handle Connection::Policy::do_startconnect(Handle former)
{
    m_handle = pqxx::connect_direct::do_startconnect(former);
    return m_handle;
}

Connection::Handle Connection::Policy::do_disconnect(Handle former) noexcept
{
    m_handle = nullptr;
    return pqxx::connect_direct::do_disconnect(former);
}

} // namespace norvane::chain
