// What was done with a customer, when and how it ended: a text that its dealer can read.
#pragma once

#include "platform/RuntimeFailure.h"

#include <QDateTime>
#include <QElapsedTimer>
#include <QList>
#include <QString>
#include <QStringList>

#include <functional>
#include <optional>
#include <utility>

namespace norvane::customers
{

/// A line of norvane.log in the customer's folder; its parts are separated by tabs.
struct LogLine {
    QDateTime begun;
    QString work;      ///< "upload", "Transfer Current Price to Euro, rate 0.68"
    QString registers; ///< "register 1", "registers 1 to 3"; empty for work on the database alone
    QString result;
    qint64 milliseconds = 0;
};

/// Adds a line. Beyond 1 MB the older half of the log is removed. A log that cannot be written is ignored:
/// the work matters more.
void writeLog(const QString& customerPath, const LogLine& line);

/// The result of an exchange or a collection that did all of its work.
inline constexpr QLatin1StringView completeResult("complete");

/// The latest line of any of these @p works, with @p result if one is given; nothing when the log holds none.
[[nodiscard]] std::optional<LogLine> lastLogged(const QString& customerPath, const QStringList& works,
                                                const QString& result = {});

/// The last @p count lines of the log as they are in the file, or all that it has; empty without a log.
[[nodiscard]] QStringList lastLogLines(const QString& customerPath, int count);

/// Whether @p line is of work that did not do all that it should: an exchange or a collection that is not
/// complete, or any work that a failure or a signal ended.
[[nodiscard]] bool wentWrong(const LogLine& line);

/// What went wrong since @p since and was not done since then: of each work the latest line, if that went
/// wrong. The earliest first; empty without a log.
/// @throws RuntimeFailure with Failure::PathOrFileAccess for a log that cannot be read.
[[nodiscard]] QList<LogLine> openTroubles(const QString& customerPath, const QDateTime& since);

/// Work in progress. It is logged when this ends, as failed unless a result was set before.
class LoggedWork
{
public:
    /// @param waited milliseconds spent so far on waiting for answers of the user, which do not count as work
    LoggedWork(
        QString customerPath, const QString& work, const QString& registers = {},
        std::function<qint64()> waited = [] { return qint64{0}; });
    ~LoggedWork();
    LoggedWork(const LoggedWork&) = delete;
    LoggedWork& operator=(const LoggedWork&) = delete;

    void setResult(const QString& result) { m_line.result = result; }
    /// The work so far in seconds, for the user: "12 s".
    [[nodiscard]] QString secondsInWords() const;

    /// Does @p work. When it fails, @p describe makes the result from "failure 53: 67.txt is
    /// missing" or "stopped by a signal", and the failure is rethrown. @return what @p work returns.
    template <typename Work, typename Describe>
    decltype(auto) during(Work&& work, Describe&& describe)
    {
        try {
            return std::forward<Work>(work)();
        } catch (const RuntimeFailure& failure) {
            setResult(std::forward<Describe>(describe)(inLog(failure)));
            throw;
        }
    }
    template <typename Work>
    decltype(auto) during(Work&& work)
    {
        return during(std::forward<Work>(work), ending);
    }

private:
    [[nodiscard]] qint64 milliseconds() const;
    [[nodiscard]] static QString inLog(const RuntimeFailure& failure);
    [[nodiscard]] static QString ending(const QString& reason);

    QString m_customerPath;
    LogLine m_line;
    QElapsedTimer m_time;
    std::function<qint64()> m_waited;
    qint64 m_waitedBefore;
};

} // namespace norvane::customers
