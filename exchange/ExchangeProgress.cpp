// See ExchangeProgress.h.
#include "exchange/ExchangeProgress.h"

#include "link/RunNotes.h"

#include <QStringList>

#include <algorithm>
#include <utility>

using namespace Qt::Literals::StringLiterals;

namespace norvane::exchange
{
namespace
{

/// "Upload=67:1520 65:110": milliseconds by file.
constexpr auto timesSection = "Times"_L1;

/// No file takes a day. A greater number was not written by this program, and sums of such would overflow.
constexpr qint64 longestTime = std::chrono::milliseconds(std::chrono::hours(24)).count();

QLatin1StringView keyOf(Direction direction)
{
    return direction == Direction::Upload ? "Upload"_L1 : "Download"_L1;
}

QMap<int, qint64> formerTimes(const ApplicationValues& values, Direction direction)
{
    QMap<int, qint64> times;
    for (const QString& word : link::readLongNote(values, timesSection, keyOf(direction)).split(u' ')) {
        const qint64 time = word.section(u':', 1).toLongLong();
        if (time > 0 && time <= longestTime)
            times[word.section(u':', 0, 0).toInt()] = time;
    }
    return times;
}

} // namespace

void ExchangeProgress::begin(Direction direction, const QList<int>& files)
{
    m_direction = direction;
    m_files = files;
    m_former = formerTimes(m_values, direction);
    m_taken.clear();
    m_clock.start();
}

link::RunProgress ExchangeProgress::beginFile(int file)
{
    m_file = file;
    m_begun = worked();
    const qsizetype index = m_files.indexOf(file);
    return {static_cast<int>(index) + 1, static_cast<int>(m_files.size()), timeLeft(index)};
}

/// The registers may be more than last time, or slower: what this exchange has taken so far, compared with
/// former ones, counts for the rest.
std::optional<std::chrono::milliseconds> ExchangeProgress::timeLeft(qsizetype first) const
{
    constexpr qint64 comparable = 2000;
    qint64 left = 0;
    for (const int file : m_files.sliced(std::max(first, qsizetype{0}))) {
        if (!m_former.contains(file))
            return std::nullopt;
        left += m_former[file];
    }
    qint64 former = 0;
    qint64 taken = 0;
    for (const auto& [file, time] : m_taken.asKeyValueRange()) {
        former += m_former.value(file);
        taken += m_former.contains(file) ? time : 0;
    }
    return std::chrono::milliseconds(former < comparable ? left : left * taken / former);
}

void ExchangeProgress::endFile()
{
    m_taken[m_file] = std::max(worked() - m_begun, qint64{1});
}

void ExchangeProgress::end()
{
    if (m_taken.isEmpty())
        return;
    m_former.insert(std::exchange(m_taken, {}));
    QStringList words;
    for (const auto& [file, time] : m_former.asKeyValueRange())
        words << u"%1:%2"_s.arg(file).arg(time);
    link::writeNote(m_values, timesSection, keyOf(m_direction), words.join(u' '));
}

} // namespace norvane::exchange
