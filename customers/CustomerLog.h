// What was done with a customer, when and how it ended: a text that its dealer can read.
#pragma once

#include <QDateTime>
#include <QElapsedTimer>
#include <QString>
#include <QStringList>

#include <optional>

namespace norvane::customers
{

/// A line of norvane.log in the customer's folder; its parts stand between tabs.
struct LogLine {
    QDateTime begun;
    QString work;      ///< "upload", "price run"
    QString registers; ///< "register 1", "registers 1 to 3"; empty for work on the database alone
    QString result;
    qint64 milliseconds = 0;
};

/// Adds a line. Beyond 1 MB the older half of the log goes. A log that cannot be written is passed over: the
/// work matters more.
void writeLog(const QString& customerPath, const LogLine& line);

/// The latest line of any of these @p works; nothing when the log holds none.
[[nodiscard]] std::optional<LogLine> lastLogged(const QString& customerPath, const QStringList& works);

/// Work in hand. It is logged when this ends, as failed unless a result was set before.
class LoggedWork
{
public:
    LoggedWork(QString customerPath, const QString& work, const QString& registers = {});
    ~LoggedWork();
    LoggedWork(const LoggedWork&) = delete;
    LoggedWork& operator=(const LoggedWork&) = delete;

    void setResult(const QString& result) { m_line.result = result; }

private:
    QString m_customerPath;
    LogLine m_line;
    QElapsedTimer m_time;
};

} // namespace norvane::customers
