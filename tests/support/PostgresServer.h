// A PostgreSQL that nobody else sees, on a socket in a folder of its own.
#pragma once

#include <QProcess>
#include <QStringList>
#include <QTemporaryDir>

namespace norvane::test
{

/// Runs from start() to its end. Its superuser is "postgres" and needs no password. It does not touch a
/// server that the system runs. It will not run as root, so there it runs as the user of the Debian package.
class PostgresServer
{
public:
    [[nodiscard]] static bool isInstalled();

    /// Makes the files. @param settings as "fsync=off".
    explicit PostgresServer(QStringList settings = {QStringLiteral("fsync=off")});
    ~PostgresServer();
    PostgresServer(const PostgresServer&) = delete;
    PostgresServer& operator=(const PostgresServer&) = delete;

    /// @return whether it answers.
    [[nodiscard]] bool start();
    /// Ends it as a power cut would: every connection breaks, and what was not committed is lost.
    void cutPower();
    /// Ends it in good order.
    void stop();

    /// Of the server's own process; 0 when there is none.
    [[nodiscard]] int processId() const;
    /// For whoever connects to @p database.
    [[nodiscard]] QString connection(const QString& database,
                                     const QString& user = QStringLiteral("postgres")) const;
    /// @p options of CREATE DATABASE, such as "ENCODING 'LATIN1'".
    void makeDatabase(const QString& database, const QString& options = {}) const;
    /// What psql prints for @p sql: a line for each row, "|" between columns; its message when it fails.
    [[nodiscard]] QString query(const QString& database, const QString& sql) const;
    /// The same on a connection of its own that goes on while this returns. Its owner ends it.
    void queryMeanwhile(QProcess& psql, const QString& database, const QString& sql) const;

private:
    void run(const QString& tool, const QStringList& arguments, QProcess& process) const;
    void endServer(int signal);
    [[nodiscard]] QString folder() const { return m_folder.path(); }

    QTemporaryDir m_folder;
    QStringList m_settings;
    QProcess m_server;
};

} // namespace norvane::test
