// The log file; see CustomerLog.h.
#include "customers/CustomerLog.h"

#include "platform/Excerpt.h"
#include "platform/FilePaths.h"
#include "platform/WholeFile.h"

#include <QFile>

#include <algorithm>

using namespace Qt::Literals::StringLiterals;

namespace norvane::customers
{
namespace
{

constexpr qint64 mostBytes = qint64{1024} * 1024;
constexpr qint64 fewBytes = qint64{16} * 1024;
const auto timeFormat = u"yyyy-MM-dd HH:mm:ss"_s;
constexpr double millisecondsPerSecond = 1000;
enum LogColumn { begunColumn, workColumn, registersColumn, resultColumn, secondsColumn };

QString logPath(const QString& customerPath)
{
    return joinPath(customerPath, u"norvane.log"_s);
}

/// A result may contain the text of a box, which is kept on one line, or bytes that a tool has written.
QString oneLine(const QString& text)
{
    return visibleControls(text.simplified());
}

QByteArray lineText(const LogLine& line)
{
    const double seconds = static_cast<double>(line.milliseconds) / millisecondsPerSecond;
    const QStringList parts{line.begun.toString(timeFormat), oneLine(line.work), oneLine(line.registers),
                            oneLine(line.result), u"%1 s"_s.arg(seconds, 0, 'f', 1)};
    return parts.join(u'\t').toUtf8() + '\n';
}

LogLine lineOf(const QByteArray& text)
{
    const QStringList parts = QString::fromUtf8(text).split(u'\t');
    const double seconds = parts.value(secondsColumn).section(u' ', 0, 0).toDouble();
    return {QDateTime::fromString(parts.value(begunColumn), timeFormat), parts.value(workColumn),
            parts.value(registersColumn), parts.value(resultColumn),
            qRound64(seconds * millisecondsPerSecond)};
}

/// The whole lines among the last @p bytes of a log.
QByteArray endOf(QFile& log, qint64 bytes)
{
    log.seek(std::max(log.size() - bytes, qint64(0)));
    if (log.pos() > 0)
        (void)log.readLine();
    return log.readAll();
}

/// The last line about one of @p works.
std::optional<LogLine> lastIn(const QByteArray& lines, const QStringList& works, const QString& result)
{
    auto all = lines.trimmed().split('\n');
    while (!all.isEmpty()) {
        LogLine line = lineOf(all.takeLast());
        if (works.contains(line.work) && (result.isEmpty() || line.result == result))
            return line;
    }
    return std::nullopt;
}

/// The lines of @p text that began at @p since or later, in their order. Reading the time of every line of a
/// long log would take a quarter of a second; as texts they have the same order.
QList<LogLine> linesSince(const QByteArray& text, const QDateTime& since)
{
    const QByteArray first = since.toString(timeFormat).toLatin1();
    QList<LogLine> lines;
    for (const QByteArray& each : text.split('\n')) {
        if (each.left(first.size()) < first)
            continue;
        if (LogLine line = lineOf(each); line.begun.isValid())
            lines.append(std::move(line));
    }
    return lines;
}

/// @throws RuntimeFailure with Failure::PathOrFileAccess.
QList<LogLine> loggedSince(const QString& customerPath, const QDateTime& since)
{
    QFile log(logPath(customerPath));
    if (!log.exists())
        return {};
    if (!log.open(QIODevice::ReadOnly)) {
        throw RuntimeFailure(Failure::PathOrFileAccess,
                             u"Path/File access error: %1 (%2)"_s.arg(log.fileName(), log.errorString()));
    }
    const QByteArray end = endOf(log, fewBytes);
    const bool isWhole = log.size() <= fewBytes;
    const QDateTime first = lineOf(end.left(end.indexOf('\n'))).begun;
    const bool reachesBack = isWhole || (first.isValid() && first < since);
    return linesSince(reachesBack ? end : endOf(log, log.size()), since);
}

void dropOlderHalf(const QString& path)
{
    QFile log(path);
    if (!log.open(QIODevice::ReadOnly) || !log.seek(log.size() / 2))
        return;
    (void)log.readLine();
    (void)replaceWholeFile(path, log.readAll());
}

} // namespace

void writeLog(const QString& customerPath, const LogLine& line)
{
    QFile log(logPath(customerPath));
    if (!log.open(QIODevice::WriteOnly | QIODevice::Append))
        return;
    log.write(lineText(line));
    const bool isLong = log.size() > mostBytes;
    log.close();
    if (isLong)
        dropOlderHalf(log.fileName());
}

std::optional<LogLine> lastLogged(const QString& customerPath, const QStringList& works,
                                  const QString& result)
{
    QFile log(logPath(customerPath));
    if (!log.open(QIODevice::ReadOnly))
        return std::nullopt;
    // What is wanted is nearly always among the last lines.
    auto found = lastIn(endOf(log, fewBytes), works, result);
    if (!found && log.size() > fewBytes)
        found = lastIn(endOf(log, log.size()), works, result);
    return found;
}

QStringList lastLogLines(const QString& customerPath, int count)
{
    QFile log(logPath(customerPath));
    if (!log.open(QIODevice::ReadOnly))
        return {};
    const QStringList lines = QString::fromUtf8(endOf(log, fewBytes)).split(u'\n', Qt::SkipEmptyParts);
    return lines.mid(std::max(qsizetype{0}, lines.size() - count));
}

bool wentWrong(const LogLine& line)
{
    static const QStringList mustBeComplete{u"upload"_s, u"download"_s, u"collection"_s};
    return mustBeComplete.contains(line.work)
               ? line.result != completeResult
               : line.result.startsWith(u"ended by "_s) || line.result.startsWith(u"stopped "_s);
}

QList<LogLine> openTroubles(const QString& customerPath, const QDateTime& since)
{
    QList<LogLine> latest;
    for (LogLine& line : loggedSince(customerPath, since)) {
        latest.removeIf([&line](const LogLine& earlier) { return earlier.work == line.work; });
        latest.append(std::move(line));
    }
    latest.removeIf([](const LogLine& line) { return !wentWrong(line); });
    return latest;
}

LoggedWork::LoggedWork(QString customerPath, const QString& work, const QString& registers,
                       std::function<qint64()> waited)
    : m_customerPath(std::move(customerPath)), m_line{QDateTime::currentDateTime(), work, registers,
                                                      u"ended by a failure"_s},
      m_waited(std::move(waited)), m_waitedBefore(m_waited())
{
    m_time.start();
}

LoggedWork::~LoggedWork()
{
    m_line.milliseconds = milliseconds();
    writeLog(m_customerPath, m_line);
}

qint64 LoggedWork::milliseconds() const
{
    return m_time.elapsed() - (m_waited() - m_waitedBefore);
}

QString LoggedWork::secondsInWords() const
{
    const double seconds = static_cast<double>(milliseconds()) / millisecondsPerSecond;
    return u"%1 s"_s.arg(std::max(qRound(seconds), 1));
}

/// Without the full stop, since more may follow. After a signal nothing has failed.
QString LoggedWork::inLog(const RuntimeFailure& failure)
{
    if (failure.failure() == Failure::UserInterrupt)
        return failure.text();
    const QString text = u"failure %1: %2"_s.arg(failure.number()).arg(failure.text());
    return text.endsWith(u'.') ? text.chopped(1) : text;
}

/// "ended by Failure::DiskFull: The disk is full", "stopped by a signal".
QString LoggedWork::ending(const QString& reason)
{
    return reason.startsWith(u"failure "_s) ? u"ended by "_s + reason : reason;
}

} // namespace norvane::customers
