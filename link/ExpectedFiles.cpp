// See ExpectedFiles.h.
#include "link/ExpectedFiles.h"

#include "platform/FilePaths.h"
#include "platform/RuntimeFailure.h"
#include "platform/ShownTime.h"

#include <QDateTime>
#include <QDir>
#include <QFileInfo>

#include <algorithm>
#include <chrono>

using namespace Qt::Literals::StringLiterals;

namespace norvane::link
{
namespace
{

using FileClock = std::filesystem::file_time_type::clock;

/// The coarsest times are those of memory cards and sticks: whole steps of two seconds.
constexpr std::chrono::seconds coarsestStep{2};

std::filesystem::path pathOf(const QString& name)
{
    return existingPath(name).toStdU16String();
}

QString counted(qint64 number, const char* unit)
{
    return u"%1 %2%3"_s.arg(number).arg(QLatin1StringView(unit), number == 1 ? u""_s : u"s"_s);
}

QString ageSince(const QDateTime& written)
{
    constexpr qint64 minute = 60;
    constexpr qint64 hour = 60 * minute;
    constexpr qint64 day = 24 * hour;
    const qint64 seconds = written.secsTo(QDateTime::currentDateTime());
    if (seconds < minute)
        return u"less than a minute"_s;
    if (seconds < hour)
        return counted(seconds / minute, "minute");
    return seconds < 2 * day ? counted(seconds / hour, "hour") : counted(seconds / day, "day");
}

/// The files that a name may mean, the one written last first. Only these are looked at: asking for the times
/// of all files of the program's folder, for each of the names that a step waits for, would take longer than
/// some steps.
QFileInfoList spellingsOf(const QString& path)
{
    const QFileInfo wanted(path);
    const QDir folder = wanted.dir();
    QFileInfoList files;
    for (const QString& name : folder.entryList(QDir::Files | QDir::Hidden | QDir::System, QDir::Unsorted)) {
        if (name.compare(wanted.fileName(), Qt::CaseInsensitive) == 0)
            files << QFileInfo(folder, name);
    }
    std::ranges::stable_sort(files, std::ranges::greater(),
                             [](const QFileInfo& file) { return file.lastModified(); });
    return files;
}

} // namespace

void keepLatestSpelling(const QString& path)
{
    for (const QFileInfo& older : spellingsOf(path).mid(1)) {
        if (!QFile::remove(older.filePath())) {
            throw RuntimeFailure(Failure::PathOrFileAccess,
                                 u"Path/File access error: %1 cannot be removed"_s.arg(older.filePath()));
        }
    }
}

ExpectedFiles::ExpectedFiles(const QStringList& names)
{
    for (const QString& name : names) {
        keepLatestSpelling(name);
        setTimeBack(name);
        m_before.insert(name, stateOf(name));
    }
}

void ExpectedFiles::keepLatestSpellings() const
{
    for (const QString& name : names())
        keepLatestSpelling(name);
}

bool ExpectedFiles::wasWritten(const QString& name) const
{
    const auto now = stateOf(name);
    return now && now != m_before.value(name);
}

bool ExpectedFiles::allWritten() const
{
    const QStringList all = names();
    return std::all_of(all.begin(), all.end(), [this](const QString& name) { return wasWritten(name); });
}

std::optional<ExpectedFiles::State> ExpectedFiles::stateOf(const QString& name)
{
    std::error_code noTime;
    std::error_code noSize;
    const auto path = pathOf(name);
    const State state{std::filesystem::last_write_time(path, noTime),
                      std::filesystem::file_size(path, noSize)};
    return noTime || noSize ? std::nullopt : std::optional(state);
}

/// A time ahead of the clock counts as new too. If a time cannot be set, it is left unchanged; the clock is
/// then nearly always fine enough.
void ExpectedFiles::setTimeBack(const QString& name)
{
    std::error_code failed;
    const auto path = pathOf(name);
    const auto now = FileClock::now();
    const auto written = std::filesystem::last_write_time(path, failed);
    if (!failed && written > now - coarsestStep)
        std::filesystem::last_write_time(path, now - 2 * coarsestStep, failed);
}

QString fileAndAge(const QString& name)
{
    const QFileInfo file(existingPath(name));
    if (!file.exists())
        return u"no %1"_s.arg(name);
    const QDateTime written = file.lastModified();
    return u"%1 of %2, %3 old"_s.arg(name, shownTime(written), ageSince(written));
}

} // namespace norvane::link
