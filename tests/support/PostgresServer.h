// A private PostgreSQL, on a socket in a separate folder.
#pragma once

#include <gtest/gtest.h>
#include <QtTest>

#include <csignal>
#include <unistd.h>

namespace norvane::test
{

using namespace Qt::Literals::StringLiterals;

/// Runs from start() to its end. Its superuser is "postgres" and needs no password. It does not touch a
/// server that the system runs. It will not run as root, so there it runs as the user of the Debian package.
class PostgresServer
{
public:
    [[nodiscard]] static bool isInstalled()
    {
        return !toolPath(u"initdb"_s).isEmpty() && !toolPath(u"psql"_s).isEmpty();
    }

    /// Makes the files. @param settings as "fsync=off".
    explicit PostgresServer(QStringList settings = {QStringLiteral("fsync=off")})
        : m_settings(std::move(settings))
    {
        if (isRoot()) {
            EXPECT_EQ(QProcess::execute(u"chown"_s, {serverUser, folder()}), 0);
        }
        QProcess initdb;
        run(u"initdb"_s,
            {u"-D"_s, folder() + u"/data"_s, u"-U"_s, u"postgres"_s, u"-A"_s, u"trust"_s, u"-E"_s, u"UTF8"_s,
             u"--locale=C.UTF-8"_s, u"--no-sync"_s},
            initdb);
        EXPECT_TRUE(initdb.waitForFinished(patience) && initdb.exitCode() == 0)
            << initdb.readAllStandardError().toStdString();
    }
    ~PostgresServer() { stop(); }
    PostgresServer(const PostgresServer&) = delete;
    PostgresServer& operator=(const PostgresServer&) = delete;

    /// @return whether it answers.
    [[nodiscard]] bool start()
    {
        QStringList arguments{u"-D"_s, folder() + u"/data"_s, u"-k"_s, folder(),
                              u"-c"_s, u"listen_addresses="_s};
        for (const QString& setting : m_settings)
            arguments << u"-c"_s << setting;
        m_server.setStandardErrorFile(folder() + u"/log"_s);
        run(u"postgres"_s, arguments, m_server);
        return QTest::qWaitFor([this] { return query(u"postgres"_s, u"select 1"_s) == "1"_L1; }, patience);
    }
    /// Ends it as a power cut would: every connection breaks, and what was not committed is lost.
    void cutPower() { endServer(SIGQUIT); }
    /// Stops it in an orderly way.
    void stop() { endServer(SIGINT); }

    /// Of the server's own process, which is not the one that was started when that changed the user first;
    /// 0 when there is none.
    [[nodiscard]] int processId() const
    {
        QFile file(folder() + u"/data/postmaster.pid"_s);
        return file.open(QIODevice::ReadOnly) ? file.readLine().trimmed().toInt() : 0;
    }
    /// The connection string of @p database.
    [[nodiscard]] QString connection(const QString& database,
                                     const QString& user = QStringLiteral("postgres")) const
    {
        return u"host=%1 dbname=%2 user=%3"_s.arg(folder(), database, user);
    }
    /// @p options of CREATE DATABASE, such as "ENCODING 'LATIN1'".
    void makeDatabase(const QString& database, const QString& options = {}) const
    {
        EXPECT_EQ(query(u"postgres"_s, u"CREATE DATABASE %1 %2"_s.arg(database, options)), QString());
    }
    /// What psql prints for @p sql: a line for each row, "|" between columns; its message when it fails.
    [[nodiscard]] QString query(const QString& database, const QString& sql) const
    {
        QProcess psql;
        queryMeanwhile(psql, database, sql);
        EXPECT_TRUE(psql.waitForFinished(patience)) << sql.toStdString();
        return QString::fromUtf8(psql.readAllStandardOutput() + psql.readAllStandardError()).trimmed();
    }
    /// The same on a separate connection that continues after this returns. Its owner ends it.
    void queryMeanwhile(QProcess& psql, const QString& database, const QString& sql) const
    {
        psql.start(toolPath(u"psql"_s), {u"-X"_s, u"-q"_s, u"-A"_s, u"-t"_s, u"-v"_s, u"ON_ERROR_STOP=1"_s,
                                         u"-c"_s, sql, u"-d"_s, connection(database)});
    }

private:
    static constexpr int patience = 60000; // milliseconds, on a machine that builds meanwhile
    inline static const QString serverUser = u"postgres"_s;

    /// The package keeps the server's programs out of the way of other versions.
    static QString toolPath(const QString& tool)
    {
        const QDir versions(u"/usr/lib/postgresql"_s);
        for (const QString& version :
             versions.entryList(QDir::Dirs | QDir::NoDotAndDotDot, QDir::Name | QDir::Reversed)) {
            QString path = versions.filePath(version + u"/bin/"_s + tool);
            if (QFile::exists(path))
                return path;
        }
        return QStandardPaths::findExecutable(tool);
    }

    [[nodiscard]] static bool isRoot() { return geteuid() == 0; }

    void run(const QString& tool, const QStringList& arguments, QProcess& process) const
    {
        process.setWorkingDirectory(folder());
        if (isRoot()) {
            process.start(u"runuser"_s,
                          QStringList{u"-u"_s, serverUser, u"--"_s, toolPath(tool)} + arguments);
        } else {
            process.start(toolPath(tool), arguments);
        }
    }
    void endServer(int signal)
    {
        if (m_server.state() == QProcess::NotRunning)
            return;
        if (const int process = processId(); process > 0)
            kill(process, signal);
        EXPECT_TRUE(m_server.waitForFinished(patience));
    }
    [[nodiscard]] QString folder() const { return m_folder.path(); }

    QTemporaryDir m_folder;
    QStringList m_settings;
    QProcess m_server;
};

} // namespace norvane::test
