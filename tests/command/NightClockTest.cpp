// The days and times of nights: midnight and the clock.
#include "command/NightRun.h"
#include "command/TerminalBoxes.h"
#include "tests/command/NightOfShops.h"

#include <QTimeZone>

namespace norvane::test
{
namespace
{

/// A night in this process, whose clock passes midnight when a tool's line says so.
class NightAtMidnight : public NightOfShops
{
protected:
    using ShopNight = command::ShopNight;
    using NightOptions = command::NightOptions;

    NightAtMidnight()
    {
        writeApp(u"reports.ini"_s,
                 "[Daily]\nReport=finsales\nPeriod=day\nFormat=csv\nFolder=out\n"
                 "[Monthly]\nReport=finsales\nPeriod=month\nFormat=csv, xlsx\nFolder=out\n");
    }
    [[nodiscard]] QDateTime now() const
    {
        if (m_now.isValid())
            return m_now;
        return pathExists(m_folder.appFile(u"midnight"_s)) ? QDateTime(QDate(2026, 12, 1), QTime(0, 5))
                                                           : QDateTime(QDate(2026, 11, 30), QTime(23, 50));
    }
    std::map<QString, ShopNight> runAll(const NightOptions& options,
                                        const std::function<void()>& betweenRounds = {}) const
    {
        command::TerminalBoxes boxes({});
        const command::Workplace workplace{m_folder.appPath(), m_folder.appPath(), false, boxes, {}};
        QStringList names;
        for (const auto& [name, values] : m_shops)
            names << name;
        const command::NightClock clock{[this] { return now(); },
                                        [&](auto) {
                                            if (betweenRounds)
                                                betweenRounds();
                                        }};
        std::vector<ShopNight> results;
        command::runNight(
            workplace, names, options, clock, [](const auto&, bool) {}, results);
        std::map<QString, ShopNight> byName;
        for (const auto& result : results)
            byName[result.shop] = result;
        return byName;
    }

    QDateTime m_now; ///< in place of the last minutes of November
};

TEST_F(NightAtMidnight, EachShopIsBookedAndReportedUnderTheDayOfItsOwnCollection)
{
    for (const auto& name : {u"ALE"_s, u"BAR"_s, u"CAFE"_s})
        makeShop(name);
    std::map<QString, QString> rung;
    for (const auto& [name, values] : m_shops)
        rung[name] = QString::number(ring(name));
    setFaults(u"CAFE"_s, "[Off]\nCommand=consolidate\nResult=8\n");
    // The collection of the second shop has begun when midnight comes.
    writeApp(u"midnight-at"_s, "2400 F1 1T -P");
    NightOptions options;
    options.retries = 1;
    const auto first = runAll(options, [this] { setFaults(u"CAFE"_s, {}); });
    for (const auto& [name, day] :
         {std::pair(u"ALE"_s, u"2026-11-30"_s), {u"BAR"_s, u"2026-12-01"_s}, {u"CAFE"_s, u"2026-12-01"_s}}) {
        EXPECT_EQ(first.at(name).code(), command::ExitCode::Done) << first.at(name).inWords().toStdString();
        const auto booked = QDate::fromString(day, Qt::ISODate).toString(u"dd/MM/yyyy|"_s) + rung[name];
        EXPECT_EQ(takings(name), booked.toStdString());
        EXPECT_EQ(first.at(name).day.toString(Qt::ISODate).toStdString(), day.toStdString());
    }
    const QStringList written{u"ALE Daily 2026-11-30.csv"_s, u"ALE Monthly 2026-11.csv"_s,
                              u"ALE Monthly 2026-11.xlsx"_s, u"BAR Daily 2026-12-01.csv"_s,
                              u"CAFE Daily 2026-12-01.csv"_s};
    EXPECT_EQ(reports().join(u'\n').toStdString(), written.join(u'\n').toStdString());
    EXPECT_TRUE(readWholeFile(m_folder.appFile(u"out/BAR Daily 2026-12-01.csv"_s))
                    .contains(rung[u"BAR"_s].toLatin1()));

    const std::string before = takings(u"ALE"_s) + takings(u"BAR"_s);
    for (const QString& file : written)
        EXPECT_TRUE(QFile::remove(m_folder.appFile(u"out/"_s + file)));
    for (const auto& [name, again] : runAll({}))
        EXPECT_TRUE(again.inWords().endsWith(u": nothing to do"_s)) << again.inWords().toStdString();
    EXPECT_EQ(takings(u"ALE"_s) + takings(u"BAR"_s), before);
    EXPECT_EQ(reports(), QStringList()) << "written once";
}

/// Sales of a shop that closes at three belong to the day before; a month that a missed timer left out is
/// made up for by a later night, once.
TEST_F(NightAtMidnight, ADayCanBeginLateAndMissedReportsAreMadeUpFor)
{
    makeShop(u"BAR"_s);
    writeApp(u"BAR/night.ini"_s, "[Night]\nDayBegins=3:00\n");
    writeApp(u"midnight"_s, {});
    const double rung = ring(u"BAR"_s);
    EXPECT_EQ(runAll({}).at(u"BAR"_s).day, QDate(2026, 11, 30));
    EXPECT_EQ(reports().size(), 3) << reports().join(u' ').toStdString();
    for (const char* const day : {"2026-09-30", "2026-10-02", "2026-11-28"}) {
        execute(m_shops[u"BAR"_s].databasePath,
                u"insert into FINANCIALSALES (ID, SALESDATE, QUANTITY, VALUE) values (2, '%1', 1, 10)"_s.arg(
                    QLatin1StringView(day)));
    }
    const QString notes = m_folder.appFile(u"BAR/exchange.ini"_s);
    ProfileFile::write(notes, u"Night"_s, u"Report month Monthly"_s, u"2026-08-31 0"_s);
    ProfileFile::write(notes, u"Night"_s, u"Report day Daily"_s, u"2026-10-01 0"_s);
    QDir(m_folder.appFile(u"out"_s)).removeRecursively();
    EXPECT_EQ(runAll({}).at(u"BAR"_s).steps.at(3).words, u"9 reports written"_s);
    EXPECT_EQ(reports().filter(u"csv"_s),
              (QStringList{u"BAR Daily 2026-10-02.csv"_s, u"BAR Daily 2026-11-28.csv"_s,
                           u"BAR Daily 2026-11-30.csv"_s, u"BAR Monthly 2026-09.csv"_s,
                           u"BAR Monthly 2026-10.csv"_s, u"BAR Monthly 2026-11.csv"_s}));
    const QByteArray month = readWholeFile(m_folder.appFile(u"out/BAR Monthly 2026-11.csv"_s));
    EXPECT_TRUE(month.contains(QByteArray::number(rung + 10, 'f', 2))) << month.toStdString();
}

/// On the days on which summer time ends and begins, too.
TEST_F(NightAtMidnight, TheDayBeginsAtItsTimeOnTheWall)
{
    makeShop(u"BAR"_s);
    writeApp(u"BAR/night.ini"_s, "[Night]\nDayBegins=4:00\n");
    const QTimeZone berlin("Europe/Berlin");
    int seed = 0;
    for (const auto& [now, day] : {std::pair(QDateTime({2026, 10, 25}, {3, 30}, berlin), QDate(2026, 10, 24)),
                                   {QDateTime({2026, 10, 25}, {4, 30}, berlin), QDate(2026, 10, 25)},
                                   {QDateTime({2027, 3, 28}, {4, 30}, berlin), QDate(2027, 3, 28)}}) {
        m_now = now;
        ring(u"BAR"_s, ++seed);
        NightOptions options;
        options.again = true;
        const ShopNight shop = runAll(options).at(u"BAR"_s);
        EXPECT_EQ(shop.code(), command::ExitCode::Done) << shop.inWords().toStdString();
        EXPECT_EQ(shop.day, day) << now.toString().toStdString();
    }
}

TEST_F(NightAtMidnight, ALaterRoundRepeatsOnlyWhatFailed)
{
    makeShop(u"BAR"_s);
    setFaults(u"BAR"_s, "[Off]\nCommand=consolidate\nResult=8\n");
    NightOptions options;
    options.again = true;
    options.retries = 1;
    options.copies = m_folder.appFile(u"elsewhere"_s);
    EXPECT_TRUE(QDir().mkpath(options.copies));
    const auto shop = runAll(options).at(u"BAR"_s);
    EXPECT_EQ(shop.leftToDo(), u"sales"_s);
    EXPECT_TRUE(shop.steps.at(5).words.endsWith(u"23.50.00.zip"_s)) << shop.steps.at(5).words.toStdString();
}

TEST_F(NightAtMidnight, AClockThatWasAheadStopsNoReports)
{
    makeShop(u"BAR"_s);
    int seed = 0;
    for (const QDate& day : {QDate(2036, 11, 30), QDate(2026, 11, 30), QDate(2026, 12, 1)}) {
        m_now = QDateTime(day, QTime(23, 50));
        ring(u"BAR"_s, ++seed);
        const ShopNight shop = runAll({}).at(u"BAR"_s);
        EXPECT_EQ(shop.code(), command::ExitCode::Done) << shop.inWords().toStdString();
        EXPECT_EQ(shop.day, day);
        EXPECT_TRUE(reports().contains(u"BAR Daily %1.csv"_s.arg(day.toString(Qt::ISODate))))
            << reports().join(u'\n').toStdString();
    }
}

} // namespace
} // namespace norvane::test
