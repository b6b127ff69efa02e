// Binding and reading of values; see PreparedStatement.h.
#include "store/engine/PreparedStatement.h"

#include "platform/Dates.h"
#include "platform/RuntimeFailure.h"
#include "store/engine/SqliteFailures.h"

#include <sqlite3.h>

#include <utility>

using namespace Qt::Literals::StringLiterals;

namespace norvane::store
{
namespace
{

QString fromColumn(const char* text)
{
    return QString::fromUtf8(text);
}

void readText(sqlite3_stmt* statement, int column, Value& value)
{
    const auto* text = reinterpret_cast<const char*>(sqlite3_column_text(statement, column));
    const auto length = static_cast<std::size_t>(sqlite3_column_bytes(statement, column));
    if (text == nullptr) {
        value.data() = std::monostate();
    } else if (auto* held = std::get_if<std::string>(&value.data())) {
        held->assign(text, length);
    } else {
        value.data().emplace<std::string>(text, length);
    }
}

/// The engine reads a null as 0, so only for a 0 the type has to be asked.
template <typename Number>
void setUnlessNull(Value& value, Number read, sqlite3_stmt* statement, int column)
{
    if (read == Number{} && sqlite3_column_type(statement, column) == SQLITE_NULL) {
        value.data() = std::monostate();
    } else {
        value.data() = read;
    }
}

void readYesNo(sqlite3_stmt* statement, int column, Value& value)
{
    setUnlessNull(value, sqlite3_column_int(statement, column) != 0, statement, column);
}

void readWhole(sqlite3_stmt* statement, int column, Value& value)
{
    setUnlessNull(value, std::int64_t{sqlite3_column_int64(statement, column)}, statement, column);
}

void readNumber(sqlite3_stmt* statement, int column, Value& value)
{
    setUnlessNull(value, sqlite3_column_double(statement, column), statement, column);
}

void readDay(sqlite3_stmt* statement, int column, Value& value)
{
    readText(statement, column, value);
    if (!value.isNull())
        value = Value::date(value.toDate());
}

void readAsStored(sqlite3_stmt* statement, int column, Value& value)
{
    switch (sqlite3_column_type(statement, column)) {
    case SQLITE_INTEGER:
        return readWhole(statement, column, value);
    case SQLITE_FLOAT:
        return readNumber(statement, column, value);
    default:
        return readText(statement, column, value);
    }
}

void readAs(sqlite3_stmt* statement, int column, FieldType type, Value& value)
{
    switch (type) {
    case FieldType::YesNo:
        return readYesNo(statement, column, value);
    case FieldType::Long:
    case FieldType::Counter:
        return readWhole(statement, column, value);
    case FieldType::Double:
        return readNumber(statement, column, value);
    case FieldType::Digits:
    case FieldType::Text:
        return readText(statement, column, value);
    case FieldType::Date:
        return readDay(statement, column, value);
    }
}

} // namespace

void PreparedStatement::Finalize::operator()(sqlite3_stmt* statement) const noexcept
{
    sqlite3_finalize(statement);
}

PreparedStatement::PreparedStatement(sqlite3* handle, const std::string& sql, QString what)
    : m_handle(handle), m_what(std::move(what))
{
    sqlite3_stmt* statement = nullptr;
    check(sqlite3_prepare_v3(handle, sql.data(), static_cast<int>(sql.size()), SQLITE_PREPARE_PERSISTENT,
                             &statement, nullptr));
    m_statement.reset(statement);
    if (!statement) {
        throw RuntimeFailure(Failure::UnknownNameInQuery, u"The statement is empty. %1"_s.arg(m_what));
    }
}

void PreparedStatement::fail()
{
    failWithSqlite(m_handle, m_what);
}

void PreparedStatement::check(int result)
{
    if (result != SQLITE_OK)
        fail();
}

void PreparedStatement::bind(int parameter, const Value& value)
{
    auto* statement = m_statement.get();
    if (const auto* text = std::get_if<std::string>(&value.data())) {
        check(sqlite3_bind_text(statement, parameter, text->data(), static_cast<int>(text->size()),
                                SQLITE_STATIC));
    } else if (const auto* whole = std::get_if<std::int64_t>(&value.data())) {
        check(sqlite3_bind_int64(statement, parameter, *whole));
    } else if (const auto* yes = std::get_if<bool>(&value.data())) {
        check(sqlite3_bind_int(statement, parameter, *yes ? -1 : 0));
    } else if (const auto* number = std::get_if<double>(&value.data())) {
        check(sqlite3_bind_double(statement, parameter, *number));
    } else if (const auto* date = std::get_if<QDate>(&value.data())) {
        bindDay(parameter, *date);
    } else if (const auto* decimal = std::get_if<Decimal>(&value.data())) {
        check(sqlite3_bind_double(statement, parameter, decimal->toDouble()));
    } else {
        check(sqlite3_bind_null(statement, parameter));
    }
}

/// All rows of a collection carry the same day, so its text is made once.
void PreparedStatement::bindDay(int parameter, QDate day)
{
    if (m_dayText.empty() || day != m_day) {
        m_day = day;
        m_dayText = isoDay(day);
    }
    check(sqlite3_bind_text(m_statement.get(), parameter, m_dayText.data(),
                            static_cast<int>(m_dayText.size()), SQLITE_TRANSIENT));
}

void PreparedStatement::bind(int parameter, std::int64_t value)
{
    check(sqlite3_bind_int64(m_statement.get(), parameter, value));
}

int PreparedStatement::parameterCount() const
{
    return sqlite3_bind_parameter_count(m_statement.get());
}

bool PreparedStatement::step()
{
    const int result = sqlite3_step(m_statement.get());
    if (result != SQLITE_ROW && result != SQLITE_DONE)
        fail();
    return result == SQLITE_ROW;
}

void PreparedStatement::reset() noexcept
{
    sqlite3_reset(m_statement.get());
}

qint64 PreparedStatement::run()
{
    const StatementRun run(*this);
    // A statement is let run to its end: only then are all rows done.
    while (step()) {
    }
    return sqlite3_changes64(m_handle);
}

void PreparedStatement::read(int column, std::optional<FieldType> type, Value& value)
{
    auto* statement = m_statement.get();
    type ? readAs(statement, column, *type, value) : readAsStored(statement, column, value);
}

std::int64_t PreparedStatement::whole(int column)
{
    return sqlite3_column_int64(m_statement.get(), column);
}

QString PreparedStatement::text(int column)
{
    const auto* text = reinterpret_cast<const char*>(sqlite3_column_text(m_statement.get(), column));
    return QString::fromUtf8(text, sqlite3_column_bytes(m_statement.get(), column));
}

sqlite3_value* PreparedStatement::stored(int column)
{
    return sqlite3_column_value(m_statement.get(), column);
}

int PreparedStatement::columnCount() const
{
    return sqlite3_column_count(m_statement.get());
}

QString PreparedStatement::columnName(int column) const
{
    return fromColumn(sqlite3_column_name(m_statement.get(), column));
}

QString PreparedStatement::originTable(int column) const
{
    return fromColumn(sqlite3_column_table_name(m_statement.get(), column));
}

QString PreparedStatement::originField(int column) const
{
    return fromColumn(sqlite3_column_origin_name(m_statement.get(), column));
}

bool PreparedStatement::onlyReads() const
{
    return sqlite3_stmt_readonly(m_statement.get()) != 0;
}

} // namespace norvane::store
