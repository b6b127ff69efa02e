// The engine's progress is watched through its own handler; see BoundQuery.h.
#include "store/engine/BoundQuery.h"

#include "platform/RuntimeFailure.h"
#include "store/engine/Connection.h"
#include "store/engine/ExactSum.h"
#include "store/engine/PreparedStatement.h"

#include <sqlite3.h>

#include <chrono>

using namespace Qt::Literals::StringLiterals;

namespace norvane::store
{
namespace
{

/// A few dozen microseconds of work.
constexpr int stepsBetweenLooks = 2000;
constexpr std::int64_t millisecondsBetweenQuestions = 50;

std::int64_t now()
{
    using namespace std::chrono;
    return duration_cast<milliseconds>(steady_clock::now().time_since_epoch()).count();
}

} // namespace

BoundQuery::BoundQuery(Database& database, const std::string& sql, std::vector<Value> values,
                       const QString& what, KeepGoing keepGoing)
    : m_connection(connectionOf(database)), m_values(std::move(values)), m_keepGoing(std::move(keepGoing)),
      m_statement(std::make_unique<PreparedStatement>(m_connection.handle(), sql, what)), m_askedAt(now())
{
    if (!m_statement->onlyReads()) {
        throw RuntimeFailure(Failure::UnknownNameInQuery,
                             u"The statement would change records. %1"_s.arg(what));
    }
    for (std::size_t i = 0; i < m_values.size(); ++i)
        m_statement->bind(static_cast<int>(i) + 1, m_values[i]);
    m_row.resize(static_cast<std::size_t>(m_statement->columnCount()));
    if (m_keepGoing) {
        const auto handler = [](void* query) {
            return static_cast<BoundQuery*>(query)->mayGoOn() ? 0 : 1;
        };
        sqlite3_progress_handler(m_connection.handle(), stepsBetweenLooks, handler, this);
    }
}

BoundQuery::~BoundQuery()
{
    sqlite3_progress_handler(m_connection.handle(), 0, nullptr, nullptr);
}

bool BoundQuery::mayGoOn() noexcept
{
    const auto time = now();
    if (time - m_askedAt < millisecondsBetweenQuestions)
        return true;
    try {
        m_givenUp = !m_keepGoing();
    } catch (...) {
        m_thrown = std::current_exception();
        return false;
    }
    m_askedAt = now();
    return !m_givenUp;
}

bool BoundQuery::next()
{
    try {
        return m_statement->step();
    } catch (const RuntimeFailure&) {
        if (m_thrown)
            std::rethrow_exception(m_thrown);
        throw;
    }
}

int BoundQuery::columnCount() const
{
    return m_statement->columnCount();
}

const Value& BoundQuery::value(int column)
{
    Value& value = m_row[static_cast<std::size_t>(column)];
    m_statement->read(column, std::nullopt, value);
    return value;
}

void BoundQuery::addTo(int column, DecimalTotal& total)
{
    addExactly(total, m_statement->stored(column));
}

} // namespace norvane::store
