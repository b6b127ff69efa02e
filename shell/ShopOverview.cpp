// Table of the lines and their sources; see ShopOverview.h.
#include "shell/ShopOverview.h"

#include "customers/CustomerFolders.h"
#include "customers/CustomerLog.h"
#include "customers/SafetyCopies.h"
#include "platform/RuntimeFailure.h"
#include "platform/ShownTime.h"
#include "sales/RecentTakings.h"
#include "sales/UnclearedSales.h"
#include "store/engine/Database.h"

#include <QFileInfo>

#include <algorithm>
#include <optional>

using namespace Qt::Literals::StringLiterals;

namespace norvane::shell
{
namespace
{

/// More than this is left to the log.
constexpr qsizetype mostTroubles = 3;
/// A failed exchange may name all of its boxes.
constexpr qsizetype mostLetters = 120;
/// More boxes are counted instead of named.
constexpr qsizetype mostBoxes = 4;
const QTime noon(12, 0);

/// What the sources read from. Database and sales are read when the first line asks for them.
class Sources
{
public:
    Sources(const ApplicationValues& values, QDateTime now, OverviewLine unsent)
        : m_values(ownValues(values)), m_now(std::move(now)), m_unsent(std::move(unsent))
    {
    }

    [[nodiscard]] const ApplicationValues& values() const { return m_values; }
    [[nodiscard]] const QDateTime& now() const { return m_now; }
    [[nodiscard]] const OverviewLine& unsent() const { return m_unsent; }
    store::Database& database()
    {
        if (!m_database)
            m_database.emplace(m_values.databasePath, store::IfLocked::Fail);
        return *m_database;
    }
    const sales::RecentTakings& takings()
    {
        if (!m_takings)
            m_takings = sales::recentTakings(database(), m_now.date());
        return *m_takings;
    }

private:
    ApplicationValues m_values;
    QDateTime m_now;
    OverviewLine m_unsent;
    std::optional<store::Database> m_database;
    std::optional<sales::RecentTakings> m_takings;
};

QString daysAgo(QDate day, QDate today)
{
    const qint64 days = day.daysTo(today);
    return days < 0    ? u"after today"_s
           : days == 0 ? u"today"_s
           : days == 1 ? u"yesterday"_s
                       : u"%1 days ago"_s.arg(days);
}

/// Sales that came into the database in another way have a day but no note.
void readCollection(Sources& sources, OverviewLine& line)
{
    const QDate today = sources.now().date();
    const auto last = sales::readLastCollection(sources.values());
    const QDate lastDay = sources.takings().lastCollected;
    if (last.stored.isValid() && (!lastDay.isValid() || last.stored.date() >= lastDay)) {
        line.needsAttention = sales::unclearedCollection(sources.values(), sources.database()).has_value();
        line.text = u"%1, %2; %3"_s.arg(shownTime(last.stored), daysAgo(last.stored.date(), today),
                                        line.needsAttention ? u"stored, but not cleared at all registers"_s
                                        : last.uncleared    ? u"no longer in the database"_s
                                                            : u"complete"_s);
    } else {
        line.text =
            lastDay.isValid() ? u"%1, %2"_s.arg(shownDay(lastDay), daysAgo(lastDay, today)) : u"never"_s;
    }
}

/// A day that has not ended may still be collected.
OverviewBar barOf(const sales::DayTakings& each, QDate today)
{
    OverviewBar bar{each.day.toString(u"ddd dd/MM"), each.shown, each.netSales.has_value(), 0};
    if (!bar.isCollected)
        bar.value = each.day == today ? u"not collected yet"_s : u"not collected"_s;
    return bar;
}

std::vector<OverviewBar> barsOf(const sales::RecentTakings& takings, QDate today)
{
    double best = 0;
    for (const auto& each : takings.days)
        best = std::max(best, each.netSales.value_or(Decimal()).toDouble());
    std::vector<OverviewBar> bars;
    for (const auto& each : takings.days) {
        bars.push_back(barOf(each, today));
        if (best > 0)
            bars.back().share = std::max(0.0, each.netSales.value_or(Decimal()).toDouble() / best);
    }
    return bars;
}

void readTakings(Sources& sources, OverviewLine& line)
{
    if (sources.takings().lastCollected.isValid()) {
        line.bars = barsOf(sources.takings(), sources.now().date());
    } else {
        line.text = u"none yet"_s;
    }
}

void readUnsentLine(Sources& sources, OverviewLine& line)
{
    line = sources.unsent();
}

/// "3 records not sent (PLU, Group)".
QString unsentInWords(const exchange::UnsentTotal& total)
{
    if (total.boxes.isEmpty())
        return u"nothing"_s;
    return u"%1 (%2)"_s.arg(exchange::changesInWords(total.changes),
                            total.boxes.size() > mostBoxes ? u"%1 boxes"_s.arg(total.boxes.size())
                                                           : exchange::boxNames(total.boxes));
}

void readCopies(Sources& sources, OverviewLine& line)
{
    const auto copies = customers::safetyCopies(sources.values().customerPath);
    line.text = copies.isEmpty() ? u"none yet"_s
                                 : u"%1, %2"_s.arg(shownTime(copies.front().made), copies.front().reason);
}

QString troubleInWords(const customers::LogLine& trouble)
{
    QString result = trouble.result;
    if (result.size() > mostLetters)
        result = result.first(mostLetters) + u" ..."_s;
    return u"%1, %2: %3"_s.arg(shownTime(trouble.begun), trouble.work, result);
}

void readLog(Sources& sources, OverviewLine& line)
{
    const QDateTime since(sources.now().date().addDays(-1), noon);
    const auto troubles = customers::openTroubles(sources.values().customerPath, since);
    line.needsAttention = !troubles.isEmpty();
    QStringList texts;
    for (const auto& trouble : troubles.last(std::min(troubles.size(), mostTroubles)))
        texts << troubleInWords(trouble);
    if (troubles.size() > mostTroubles)
        texts.prepend(u"%1 runs, the last ones:"_s.arg(troubles.size()));
    line.text = texts.isEmpty() ? u"nothing"_s : texts.join(u'\n');
}

constexpr auto unsentCaption = "Changes for the registers"_L1;

struct LineRow {
    Subject subject;
    QLatin1StringView caption;
    void (*read)(Sources& sources, OverviewLine& line);
};

constexpr LineRow lineRows[] = {
    {Subject::Collection, "Last collection"_L1, &readCollection},
    {Subject::Takings, "Net sales of the last 7 days"_L1, &readTakings},
    {Subject::Unsent, unsentCaption, &readUnsentLine},
    {Subject::Copies, "Latest safety copy"_L1, &readCopies},
    {Subject::Log, "Went wrong since yesterday noon"_L1, &readLog},
};

/// Without the folder, which is the same for all: the text has to fit.
QString cannotBeRead(const RuntimeFailure& failure, const QString& customerPath)
{
    if (failure.failure() == Failure::DatabaseLocked)
        return u"cannot be read now: another program is working on the database"_s;
    const QString folder = QFileInfo(customers::customerDatabase(customerPath)).path();
    return u"cannot be read: "_s + failure.text().simplified().remove(folder + u'/');
}

OverviewLine readLine(const LineRow& row, Sources& sources, ShopOverview& overview)
{
    OverviewLine line{row.subject, QString(row.caption), {}, false, {}};
    try {
        row.read(sources, line);
    } catch (const RuntimeFailure& failure) {
        line.text = cannotBeRead(failure, sources.values().customerPath);
        line.needsAttention = true;
        overview.isBusy = overview.isBusy || failure.failure() == Failure::DatabaseLocked;
    }
    return line;
}

} // namespace

ApplicationValues ownValues(const ApplicationValues& values)
{
    ApplicationValues own = values;
    own.databasePath = customers::customerDatabase(values.customerPath);
    return own;
}

ShopOverview readOverview(const ApplicationValues& values, const QDateTime& now, const OverviewLine& unsent)
{
    ShopOverview overview;
    overview.customer = values.customerName;
    if (values.customerPath.isEmpty())
        return overview;
    Sources sources(values, now, unsent);
    for (const LineRow& row : lineRows)
        overview.lines.push_back(readLine(row, sources, overview));
    return overview;
}

OverviewLine unreadUnsent()
{
    return {Subject::Unsent, QString(unsentCaption), u"being compared ..."_s, false, {}};
}

OverviewLine unsentLine(const QString& customerPath, const exchange::FoundChanges& found)
{
    OverviewLine line = unreadUnsent();
    if (found.failure) {
        line.text = cannotBeRead(*found.failure, customerPath);
        line.needsAttention = true;
        return line;
    }
    const auto total = exchange::totalOf(found.changes);
    line.text = unsentInWords(total);
    line.needsAttention = total.changes.mayBeAtSome || total.changes.isNotAtAll;
    return line;
}

} // namespace norvane::shell
