// See Server.h.
#include "chain/Server.h"

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

QString placeOf(const Options& options)
{
    const QString host = valueOf(options, {"host"_L1, "hostaddr"_L1});
    return u"database %1 at %2"_s.arg(valueOf(options, {"dbname"_L1, "user"_L1}),
                                      host.isEmpty() ? u"the local socket"_s : host);
}

void setUnlessSet(const char* variable, const char* value)
{
    if (!qEnvironmentVariableIsSet(variable))
        qputenv(variable, value);
}

/// The server reported that it is shutting down or closing the connection.
bool isFarewell(const pqxx::sql_error& error)
{
    return error.sqlstate().starts_with("57P") || error.sqlstate().starts_with("08");
}

/// The rows are at fault, not the server.
bool isOfRows(const pqxx::sql_error& error)
{
    return error.sqlstate().starts_with("22") || error.sqlstate().starts_with("23");
}

} // namespace

Server::Server(const QString& connection)
{
    connect(connection);
    checkEncoding();
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
        m_connection = std::make_unique<Connection>(connection.toStdString());
        m_connection->set_client_encoding("UTF8");
        m_connection->set_variable("search_path", std::string(schemaName) + ", pg_temp");
        m_connection->set_variable("client_min_messages", "warning");
    } catch (const pqxx::failure& failure) {
        fail(ChainFailure::Unreachable, u"PostgreSQL cannot be reached"_s, failure.what());
    }
}

/// A register's text has characters that other encodings lack, and SQL_ASCII stores any bytes unchecked.
void Server::checkEncoding()
{
    std::string encoding;
    transact([&](pqxx::work& work) { encoding = work.exec1("SHOW server_encoding")[0].as<std::string>(); });
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
    } catch (const pqxx::insufficient_privilege& error) {
        fail(ChainFailure::NoRights, u"The rights are insufficient"_s, error.what());
    } catch (const pqxx::sql_error& error) {
        if (isFarewell(error))
            failGone(error.what());
        if (isOfRows(error))
            fail(ChainFailure::BadRows, u"PostgreSQL does not take what the shop holds"_s, error.what());
        fail(ChainFailure::Refused, u"PostgreSQL refused"_s, error.what());
    } catch (const pqxx::in_doubt_error&) {
        // The library's own sentence asks for a check by hand.
        failGone("the connection was lost while rows were being committed; the next publication finds out "
                 "whether they were.");
    } catch (const pqxx::failure& failure) {
        // The message is the library's: the connection has failed.
        failGone(failure.what());
    }
}

QString Server::user() const
{
    return QString::fromUtf8(m_connection->username());
}

void Server::failGone(const char* what) const
{
    fail(ChainFailure::ConnectionLost, u"The connection to PostgreSQL was lost"_s, what);
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
