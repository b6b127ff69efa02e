// See NightReports.h.
#include "command/NightReports.h"

#include "command/StopSignals.h"
#include "link/RunNotes.h"
#include "platform/FilePaths.h"
#include "reports/lines/SalesDays.h"
#include "sales/LastCollection.h"
#include "store/engine/Database.h"

#include <QDir>
#include <QFileInfo>
#include <QUrl>

#include <algorithm>
#include <set>

using namespace Qt::Literals::StringLiterals;

namespace norvane::command
{
namespace
{

/// Of a report that was never written, this many periods are looked at for one with sales; of one that was,
/// this many are made up for.
constexpr int firstLook = 31;
constexpr int mostMadeUp = 400;

/// The last period of a report that was written: its last day, and how many rows this had.
struct Written {
    QDate end;
    qint64 rows = -1;
};

/// The key has the period, so the note of one period says nothing about another.
class WrittenNote
{
public:
    WrittenNote(const ApplicationValues& values, const NightReport& report)
        : m_values(values),
          m_key(QUrl::toPercentEncoding(u"Report %1 %2"_s.arg(report.period->word, report.section), " ")
                    .trimmed())
    {
    }
    [[nodiscard]] Written read() const
    {
        const QStringList words = link::readNote(m_values, nightNotes, key()).split(u' ');
        return {QDate::fromString(words.value(0), Qt::ISODate), words.value(1).toLongLong()};
    }
    void write(const Written& written) const
    {
        link::writeNote(m_values, nightNotes, key(),
                        u"%1 %2"_s.arg(written.end.toString(Qt::ISODate)).arg(written.rows));
    }

private:
    [[nodiscard]] QLatin1StringView key() const { return QLatin1StringView(m_key); }

    const ApplicationValues& m_values;
    QByteArray m_key;
};

/// The periods that are over at @p closed, the latest first, back to the one that was written last.
std::vector<reports::Period> candidates(const NightPeriod& kind, QDate closed, const Written& written)
{
    std::vector<reports::Period> found;
    QDate after = closed.addDays(1);
    const int most = written.end.isValid() ? mostMadeUp : firstLook;
    for (int count = 0; count < most; ++count) {
        reports::Period period = *reports::namedPeriod(QString(kind.inFormula), after);
        if (written.end.isValid() && period.to < written.end)
            break;
        after = period.from;
        period.name.clear();
        found.push_back(std::move(period));
    }
    return found;
}

/// Those that have sales and are not written as they are now, the earliest first.
std::vector<reports::Period> duePeriods(const NightPeriod& kind, QDate closed, const Written& written,
                                        store::Database& database)
{
    auto periods = candidates(kind, closed, written);
    std::erase_if(periods, [&](const reports::Period& period) {
        return period.to == written.end && sales::rowsOfDay(database, period.to) == written.rows;
    });
    if (periods.empty())
        return periods;
    const std::set<QDate> days =
        reports::collectedDays(database, {periods.back().from, periods.front().to, {}});
    std::erase_if(periods, [&](const reports::Period& period) {
        const auto day = days.lower_bound(period.from);
        return day == days.end() || *day > period.to;
    });
    if (!written.end.isValid() && periods.size() > 1)
        periods.resize(1);
    std::ranges::reverse(periods);
    return periods;
}

/// A layout of the customer's folder comes before one of the program's.
QString layoutOf(const ApplicationValues& values, const QString& name)
{
    for (const QString& folder : {values.customerPath, values.appPath}) {
        QString path = joinPath(folder, name + u".rpt"_s);
        if (pathExists(path))
            return path;
    }
    throw CommandError(ExitCode::NoSuchName, u"There is no report \"%1\" in %2."_s.arg(name, values.appPath));
}

ReportSelection selectionOfClosed(const QString& path, const reports::Period& period)
{
    return period.from == period.to ? selectionOfPeriod(path, u"day"_s, period.from)
                                    : selectionOfDays(path, period);
}

/// "SHOP Daily 2026-11-26" in the folder of the report.
QString fileOf(const Workplace& workplace, const ApplicationValues& values, const NightReport& report,
               const reports::Period& period)
{
    const QString folder = QDir::cleanPath(QDir(workplace.appPath).absoluteFilePath(report.folder));
    if (!QDir().mkpath(folder))
        throw CommandError(ExitCode::Unwritable, u"The folder %1 cannot be made."_s.arg(folder));
    QStringList words{QFileInfo(values.customerPath).fileName()};
    if (!report.section.isEmpty())
        words << report.section;
    words << period.to.toString(QString(report.period->label));
    return joinPath(folder, words.join(u' '));
}

/// @return how many files.
int writeReport(const Workplace& workplace, const ApplicationValues& values, const NightReport& report,
                const QString& path, const reports::Period& period, const QDateTime& now)
{
    reports::ReportRequest request = reportRequest(values, path, now, selectionOfClosed(path, period));
    request.comparedWith = report.comparedWith;
    const QString file = fileOf(workplace, values, report, period);
    const reports::ReportData data = reports::runReport(request, untilSignalled);
    for (const FileFormat* const format : report.formats)
        format->write(data, u"%1.%2"_s.arg(file, format->name), {});
    return static_cast<int>(report.formats.size());
}

} // namespace

int writeDueReports(const Workplace& workplace, const ApplicationValues& values, const NightReport& report,
                    const NightDays& days)
{
    // A wrong name is reported from the first night on, not at the end of the first quarter.
    const QString path = layoutOf(values, report.report);
    const WrittenNote note(values, report);
    Written written = note.read();
    // By a clock that was ahead; there would be no report until that day comes.
    if (written.end > days.now.date())
        written = {};
    store::Database database(values.databasePath);
    int files = 0;
    for (const auto& period : duePeriods(*report.period, days.closed, written, database)) {
        files += writeReport(workplace, values, report, path, period, days.now);
        note.write({period.to, sales::rowsOfDay(database, period.to)});
    }
    return files;
}

} // namespace norvane::command
