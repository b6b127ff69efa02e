// A print server that nobody else sees, with queues that keep what they get.
#pragma once

#include "tests/platform/TestFolder.h"
#include "tests/support/OtherPrograms.h"

#include <QStandardPaths>
#include <QtTest>

namespace norvane::test
{

/// Replaces the system's print server during its lifetime.
class PrintServer
{
public:
    [[nodiscard]] static bool isInstalled()
    {
        return !program().isEmpty() && !QStandardPaths::findExecutable(QStringLiteral("lpadmin")).isEmpty();
    }
    PrintServer()
    {
        for (const char* part : {"root", "spool", "cache", "state"})
            QDir().mkpath(m_folder.path(part));
        m_folder.write("root/cupsd.conf",
                       "Listen " + m_folder.path("socket").toUtf8() +
                           "\nDirtyCleanInterval 0\nWebInterface No\nBrowsing No\n<Location />\nAllow all\n"
                           "</Location>\n<Policy default>\n<Limit All>\n</Limit>\n</Policy>\n");
        m_folder.write("root/files.conf",
                       QByteArray("FileDevice Yes\nServerRoot @/root\nRequestRoot @/spool\n"
                                  "CacheDir @/cache\nStateDir @/state\nAccessLog @/access\n"
                                  "ErrorLog @/errors\nPageLog @/pages\n")
                           .replace("@", m_folder.path().toUtf8()));
        m_server.start(program(),
                       {QStringLiteral("-f"), QStringLiteral("-c"), m_folder.path("root/cupsd.conf"),
                        QStringLiteral("-s"), m_folder.path("root/files.conf")});
        qputenv("CUPS_SERVER", m_folder.path("socket").toUtf8());
    }
    ~PrintServer()
    {
        qunsetenv("CUPS_SERVER");
        m_server.kill();
        m_server.waitForFinished();
    }
    [[nodiscard]] bool isUp() const
    {
        return QTest::qWaitFor([this] { return QFile::exists(m_folder.path("socket")); }, 10000);
    }
    /// @param description of a printer, which reports its margins.
    void addDefaultQueue(const QString& name, const QByteArray& description) const
    {
        m_folder.write("queue.ppd", description);
        outputOf(QStringLiteral("lpadmin"),
                 {QStringLiteral("-p"), name, QStringLiteral("-v"), QStringLiteral("file:/dev/null"),
                  QStringLiteral("-E"), QStringLiteral("-P"), m_folder.path("queue.ppd")});
        outputOf(QStringLiteral("lpadmin"), {QStringLiteral("-d"), name});
    }
    void removeQueue(const QString& name) const
    {
        outputOf(QStringLiteral("lpadmin"), {QStringLiteral("-x"), name});
    }
    /// What a job brought; the first is number 1.
    [[nodiscard]] QString job(int number) const
    {
        return m_folder.path("spool/d%1-001").arg(number, 5, 10, QLatin1Char('0'));
    }
    /// What the server keeps of a job besides: names and values as they came over the wire.
    [[nodiscard]] QByteArray attributesOf(int number) const
    {
        return m_folder.read(QStringLiteral("spool/c%1").arg(number, 5, 10, QLatin1Char('0')).toUtf8());
    }

private:
    [[nodiscard]] static QString program()
    {
        return QStandardPaths::findExecutable(
            QStringLiteral("cupsd"), {QStringLiteral("/usr/sbin"), QStringLiteral("/usr/local/sbin")});
    }

    TestFolder m_folder;
    QProcess m_server;
};

} // namespace norvane::test
