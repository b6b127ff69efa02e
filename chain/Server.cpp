// See Server.h.
#include "chain/Server.h"

#include <QStringList>

#include <algorithm>
#include <array>
#include <libpq-fe.h>

using namespace Qt::Literals::StringLiterals;

namespace norvane::chain
{
namespace
{

using Options = std::unique_ptr<PQconninfoOption, decltype(&PQconninfoFree)>;

/// Text of an option, empty when it is not set.
QString optionOf(const Options& options, QLatin1StringView keyword)
{
    for (const auto* option = options.get(); option != nullptr && option->keyword != nullptr; ++option) {
        if (keyword == QLatin1StringView(option->keyword))
            return QString::fromUtf8(option->val);
    }
    return {};
}

Options parsed(const QString& connection)
{
    char* error = nullptr;
    Options options(PQconninfoParse(connection.toUtf8().constData(), &error), &PQconninfoFree);
    // The library's own sentence quotes the text, and with it a password.
    PQfreemem(error);
    if (options == nullptr) {
        throw ChainError(
            ChainFailure::BadConnection,
            u"The value of --to is not a connection string such as \"host=db.example dbname=chain\" or "
            "\"postgresql://db.example/chain\"."_s);
    }
    return options;
}

/// The value from the connection text or, if it has none, from the environment.
QString valueOf(const Options& options, std::initializer_list<QLatin1StringView> keywords)
{
    const Options defaults(PQconndefaults(), &PQconninfoFree);
    for (const Options* const each : {&options, &defaults}) {
        for (const QLatin1StringView keyword : keywords) {
            if (QString value = optionOf(*each, keyword); !value.isEmpty())
                return value;
        }
    }
    return {};
}

/// As the user named it.
QString placeOf(const Options& options)
{
    const QString service = valueOf(options, {"service"_L1});
    if (!service.isEmpty() && optionOf(options, "host"_L1).isEmpty() &&
        optionOf(options, "dbname"_L1).isEmpty())
        return u"service=%1"_s.arg(service);
    const QString host = valueOf(options, {"host"_L1, "hostaddr"_L1});
    return u"database %1 at %2"_s.arg(valueOf(options, {"dbname"_L1, "user"_L1}),
                                      host.isEmpty() ? u"the local socket"_s : host);
}

void setUnlessSet(const char* variable, const char* value)
{
    if (!qEnvironmentVariableIsSet(variable))
        qputenv(variable, value);
}

struct Setting {
    QLatin1StringView name;
    QLatin1StringView value;
};

/// Of the client's end of the line, which libpq takes from the connection string only: a line that is dead
/// ends in 30 s, not in hours.
constexpr auto lineSettings = std::to_array<Setting>({
    {"keepalives_idle"_L1, "10"_L1},
    {"keepalives_interval"_L1, "5"_L1},
    {"keepalives_count"_L1, "4"_L1},
    {"tcp_user_timeout"_L1, "30000"_L1}, // milliseconds
});

/// Of the connection. The server's end of the line ends as soon, so that the next publication finds the shop
/// free. Settings of the user, the database or the connection string win.
constexpr const char* connectionSettings =
    "SELECT set_config(s.name, v.value, false) FROM pg_catalog.pg_settings s JOIN (VALUES "
    "('lock_timeout', '20s'), ('statement_timeout', '10min'), ('client_connection_check_interval', '5s'), "
    "('tcp_keepalives_idle', '10'), ('tcp_keepalives_interval', '5'), ('tcp_keepalives_count', '4'), "
    "('tcp_user_timeout', '30s')) v (name, value) ON v.name = s.name WHERE s.source = 'default'";

QString quoted(QString value)
{
    return u'\'' + value.replace(u'\\', u"\\\\"_s).replace(u'\'', u"\\'"_s) + u'\'';
}

/// The connection string with the settings of the line that it leaves open.
std::string withLineSettings(const Options& options)
{
    QStringList all;
    for (const auto* option = options.get(); option->keyword != nullptr; ++option) {
        if (option->val != nullptr)
            all << QLatin1StringView(option->keyword) + u'=' + quoted(QString::fromUtf8(option->val));
    }
    for (const auto& [name, value] : lineSettings) {
        if (optionOf(options, name).isEmpty())
            all << name + u'=' + value;
    }
    return all.join(u' ').toStdString();
}

/// What an answer of the server means, by the beginning of its state.
struct Answer {
    const char* state;
    ChainFailure failure;
    QLatin1StringView sentence;
};
constexpr auto lost = "The connection to PostgreSQL was lost"_L1;
constexpr auto answers = std::to_array<Answer>({
    {"57P", ChainFailure::ConnectionLost, lost}, // it is shutting down
    {"08", ChainFailure::ConnectionLost, lost},
    {"22", ChainFailure::BadRows, "PostgreSQL does not accept a value of the shop"_L1},
    {"23", ChainFailure::BadRows, "PostgreSQL does not accept a value of the shop"_L1},
    {"42501", ChainFailure::NoRights, "The rights are insufficient"_L1},
    {"53100", ChainFailure::Refused, "The disk of PostgreSQL is full"_L1},
    {"55P03", ChainFailure::Busy,
     "Another program holds a lock in PostgreSQL for too long; the next publication continues here"_L1},
    {"57014", ChainFailure::Busy,
     "PostgreSQL takes too long for one step, which was given up; the next publication continues here"_L1},
    {"40", ChainFailure::Busy,
     "Another program did the same in PostgreSQL at the same time; the next publication continues here"_L1},
    {"", ChainFailure::Refused, "PostgreSQL refused"_L1},
});

const Answer& answerOf(std::string_view state)
{
    return *std::ranges::find_if(answers,
                                 [state](const Answer& each) { return state.starts_with(each.state); });
}

} // namespace

Server::Server(const QString& connection)
{
    connect(connection);
    std::string encoding;
    transact([&](pqxx::work& work) {
        encoding = work.exec1("SHOW server_encoding")[0].as<std::string>();
        work.exec(connectionSettings);
    });
    checkEncoding(encoding);
}

void Server::connect(const QString& connection)
{
    const Options options = parsed(connection);
    m_where = placeOf(options);
    m_password = valueOf(options, {"password"_L1});
    // A server that does not answer must not block the nightly run.
    setUnlessSet("PGCONNECT_TIMEOUT", "10");
    setUnlessSet("PGAPPNAME", "norvane-shop");
    try {
        m_connection = std::make_unique<Connection>(withLineSettings(options));
        m_connection->set_client_encoding("UTF8");
        m_connection->set_variable("search_path", std::string(schemaName) + ", pg_temp");
        m_connection->set_variable("client_min_messages", "warning");
    } catch (const pqxx::failure& failure) {
        fail(ChainFailure::Unreachable, u"PostgreSQL cannot be reached"_s, failure.what());
    }
}

/// A register's text has characters that other encodings lack, and SQL_ASCII stores any bytes unchecked.
void Server::checkEncoding(const std::string& encoding) const
{
    if (encoding != "UTF8") {
        throw ChainError(ChainFailure::Unfit,
                         u"The encoding %1 cannot hold the names of all PLUs (%2): create the database with "
                         "ENCODING 'UTF8'."_s.arg(QString::fromStdString(encoding), m_where));
    }
}

void Server::transact(const std::function<void(pqxx::work&)>& work)
{
    try {
        pqxx::work transaction(*m_connection);
        work(transaction);
        transaction.commit();
    } catch (const pqxx::insufficient_privilege& error) { // these two come without a state
        failAsAnswered("42501", error.what());
    } catch (const pqxx::transaction_rollback& error) {
        failAsAnswered("40", error.what());
    } catch (const pqxx::sql_error& error) {
        failAsAnswered(error.sqlstate(), error.what());
    } catch (const pqxx::in_doubt_error&) {
        // The library's own sentence asks for a check by hand.
        failGone("the connection was lost while rows were being committed; the next publication finds out "
                 "whether they were.");
    } catch (const pqxx::failure& failure) {
        // The message is the library's: the connection has failed. It cannot quote a line that is dead.
        const bool isDead = std::string_view(failure.what()).starts_with("Could not obtain client encoding");
        failGone(isDead ? "the line or the server no longer answers." : failure.what());
    }
}

bool Server::isHeldToOwnRows(pqxx::work& work)
{
    // Policies are made for all tables at once.
    if (!m_isHeldToOwnRows)
        m_isHeldToOwnRows = work.exec1("SELECT row_security_active('published_days')")[0].as<bool>();
    return *m_isHeldToOwnRows;
}

QString Server::user() const
{
    return QString::fromUtf8(m_connection->username());
}

void Server::failAsAnswered(std::string_view state, const char* what) const
{
    const Answer& answer = answerOf(state);
    fail(answer.failure, answer.sentence, what);
}

void Server::failGone(const char* what) const
{
    fail(ChainFailure::ConnectionLost, lost, what);
}

void Server::fail(ChainFailure failure, const QString& sentence, const char* what) const
{
    throw ChainError(failure, u"%1 (%2): %3"_s.arg(sentence, m_where, plain(what)));
}

/// The first line of what the server or the library says.
QString Server::plain(const char* what) const
{
    QString text = QString::fromUtf8(what).section(u'\n', 0, 0).simplified();
    if (!m_password.isEmpty())
        text.replace(m_password, u"***"_s);
    return text;
}

} // namespace norvane::chain
