// Runs the command line as a script does.
#pragma once

#include <QProcess>
#include <QProcessEnvironment>
#include <QStringList>

namespace norvane::test
{

struct Ended {
    int code;
    QString out;
    QString err;
};

/// @p locale such as "de_DE.UTF-8"; the machine's own when empty.
inline Ended runCommand(const QString& appPath, const QStringList& words, const QString& locale = {})
{
    QProcess command;
    auto environment = QProcessEnvironment::systemEnvironment();
    if (!locale.isEmpty())
        environment.insert(QStringLiteral("LC_ALL"), locale);
    command.setProcessEnvironment(environment);
    command.start(QString::fromUtf8(COMMAND), words + QStringList{QStringLiteral("--folder"), appPath});
    if (!command.waitForFinished(-1))
        return {-1, {}, command.errorString()};
    return {command.exitCode(), QString::fromLocal8Bit(command.readAllStandardOutput()),
            QString::fromLocal8Bit(command.readAllStandardError())};
}

} // namespace norvane::test
