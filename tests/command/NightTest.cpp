// Nights of several shops with registers of their own: one is dead, one locked, one damaged, the night is
// killed and repeated.
#include "platform/FolderLock.h"
#include "tests/command/NightOfShops.h"
#include "tests/support/RecordingBoxes.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

namespace norvane::test
{
namespace
{

TEST_F(NightOfShops, OutputThatNobodyTakesStopsNoShop)
{
    makeShop(u"ALE"_s);
    makeShop(u"BAR"_s);
    double rung = 0;
    int seed = 0;
    for (const char* const output : {">/dev/full", ">&-", "| true"}) {
        for (const auto& [name, values] : m_shops)
            rung += ring(name, ++seed);
        const QString line = u"{ \"$0\" night --again --html night.html --folder \"$1\"; echo $? >code; } "_s;
        (void)outputOf(u"sh"_s, {u"-c"_s, line + QString::fromLatin1(output), QString::fromUtf8(COMMAND),
                                 m_folder.appPath()});
        EXPECT_EQ(qRound((total(u"ALE"_s) + total(u"BAR"_s)) * 100), qRound(rung * 100)) << output;
        EXPECT_TRUE(readWholeFile(u"night.html"_s).contains("2 of 2 shops are complete."));
        EXPECT_EQ(readWholeFile(u"code"_s).trimmed(), "7") << output;
    }
}

TEST_F(NightOfShops, ANightOfNoShopOrWithAnEmptyOptionIsAMistake)
{
    expectRefusal(3, {u"night"_s}, u"No customers were found in "_s);
    makeShop(u"ALE"_s);
    for (const QString& option : {u"--to"_s, u"--copies"_s, u"--reports"_s, u"--html"_s})
        expectUsage({u"night"_s, option, {}}, option + u" needs a value."_s);
}

TEST_F(NightOfShops, WhatCannotBeDoneIsInSummaryAndExitCodeAndStopsNothingElse)
{
    for (const auto& name : {u"ALE"_s, u"BAR"_s, u"CAFE"_s, u"DELI"_s})
        makeShop(name);
    (void)m_folder.makeCustomer(u"LOST"_s);
    EXPECT_TRUE(QFile::remove(m_folder.appFile(u"LOST/velmar.mdb"_s)));
    const double rung = ring(u"DELI"_s);
    writeApp(u"ALE/velmar.mdb"_s, QByteArray(8192, 'x'));
    setFaults(u"BAR"_s, "[Off]\nCommand=consolidate\nResult=8\n");
    writeApp(u"reports.ini"_s, "[Daily]\nReport=finsales\nPeriod=day\nFormat=csv\nFolder=out\n"
                               "[Bad]\nReport=finsales\nPeroid=day\nFormat=doc\n");
    RecordingBoxes boxes;
    auto lock = FolderLock::take(m_shops[u"CAFE"_s].customerPath, boxes);
    QProcess script;
    script.start(u"sh"_s, {u"-c"_s, u"\"$0\" night --json --html night.html --folder \"$1\"; echo $?; cat"_s,
                           QString::fromUtf8(COMMAND), m_folder.appPath()});
    script.write("the rest of a list");
    script.closeWriteChannel();
    EXPECT_TRUE(script.waitForFinished(-1));
    QByteArray out = script.readAllStandardOutput();
    EXPECT_TRUE(out.endsWith("8\nthe rest of a list")) << out.toStdString();
    out.truncate(out.lastIndexOf(']') + 1);
    std::map<QString, QJsonObject> rows;
    for (const QJsonValue row : QJsonDocument::fromJson(out).array())
        rows[row[u"shop"_s].toString()] = row.toObject();
    ASSERT_EQ(rows.size(), 5U) << out.toStdString();
    for (const auto& [name, code] :
         {std::pair(u"ALE"_s, 8), {u"BAR"_s, 9}, {u"CAFE"_s, 9}, {u"DELI"_s, 9}, {u"LOST"_s, 3}})
        EXPECT_EQ(rows[name][u"code"_s].toInt(), code) << name.toStdString();
    EXPECT_EQ(rows[u"BAR"_s][u"leftToDo"_s], u"folder, sales"_s);
    EXPECT_EQ(rows[u"CAFE"_s][u"leftToDo"_s], u"folder, sales"_s);
    EXPECT_EQ(rows[u"DELI"_s][u"leftToDo"_s], u"folder"_s);
    EXPECT_EQ(rows[u"DELI"_s][u"folder"_s].toString(),
              u"reports.ini, line 8: Unknown key \"Peroid\". The keys are: Report, Period, Format, Folder, "
              "Compare.\nreports.ini, line 9: Format is \"doc\"; it must be pdf, csv or xlsx, or several "
              "of them with commas between."_s);
    EXPECT_DOUBLE_EQ(total(u"DELI"_s), rung);
    EXPECT_EQ(reports().size(), 1);
    const QByteArray page = readWholeFile(m_folder.appFile(u"night.html"_s));
    EXPECT_TRUE(page.contains("0 of 5 shops are complete, 5 left.")) << page.toStdString();
    EXPECT_TRUE(page.contains("&quot;Peroid&quot;"));

    // A lock that is given back in time is waited for.
    writeApp(u"reports.ini"_s, {});
    QProcess waiting;
    waiting.start(QString::fromUtf8(COMMAND), {u"night"_s, u"cafe"_s, u"CAFE"_s, u"--wait"_s, u"1m"_s,
                                               u"--folder"_s, m_folder.appPath()});
    EXPECT_FALSE(waiting.waitForFinished(1500));
    lock.reset();
    EXPECT_TRUE(waiting.waitForFinished(-1));
    EXPECT_EQ(waiting.exitCode(), 0) << waiting.readAllStandardError().toStdString();
    EXPECT_EQ(waiting.readAllStandardOutput().count("CAFE: "), 1);
}

/// Each moment: a day is rung, the night dies there, and the next one makes up for it.
TEST_F(NightOfShops, AKilledNightLosesNothingAndCountsNothingTwice)
{
    makeShop(u"ALE"_s);
    double rung = 0;
    int seed = 0;
    for (const char* const moment : {"before -U 52", "after -U 250", "before -Z", "after -Z", "before -P",
                                     "after -P", "before -C", "after -C"}) {
        rung += ring(u"ALE"_s, ++seed);
        writeApp(u"kill"_s, moment + QByteArray("\n"));
        EXPECT_EQ(run({u"night"_s, u"--again"_s}).code, 9) << moment << " (the signal)";
        EXPECT_FALSE(pathExists(m_folder.appFile(u"kill"_s)));
        const Ended again = run({u"night"_s, u"--again"_s});
        EXPECT_EQ(again.code, 0) << moment << ' ' << again.err.toStdString();
        EXPECT_EQ(qRound(total(u"ALE"_s) * 100), qRound(rung * 100)) << moment;
    }
    EXPECT_EQ(run({u"night"_s}).out, u"ALE: nothing to do\n1 of 1 shops are complete.\n"_s);
}

/// A copy that was cut off has no name yet; the next one takes its place.
TEST_F(NightOfShops, CopiesAreMadeOnceANightAndNeverHalf)
{
    makeShop(u"ALE"_s);
    const QString elsewhere = m_folder.appFile(u"../elsewhere"_s);
    writeApp(u"night.ini"_s, "[Night]\nCopies=../elsewhere\n");
    EXPECT_EQ(run({u"night"_s}).code, 7) << "the disk is not connected";
    EXPECT_TRUE(QDir().mkpath(elsewhere));
    // Large enough to be caught while it is written.
    QByteArray large(qsizetype{40} * 1024 * 1024, '\0');
    for (qsizetype at = 0; at < large.size(); ++at)
        large[at] = static_cast<char>((at * at) >> 7U);
    writeApp(u"ALE/large.Velmar"_s, large);
    QProcess killed;
    killed.start(QString::fromUtf8(COMMAND), {u"night"_s, u"--folder"_s, m_folder.appPath()});
    while (!pathExists(elsewhere + u"/ALE/unfinished/copy.zip"_s) && !killed.waitForFinished(1)) {
    }
    killed.kill();
    EXPECT_TRUE(killed.waitForFinished(-1));
    EXPECT_EQ(killed.exitStatus(), QProcess::CrashExit);
    const auto copies = [&elsewhere] {
        return QDir(elsewhere + u"/ALE"_s).entryList(QDir::AllEntries | QDir::NoDotAndDotDot);
    };
    EXPECT_EQ(copies(), QStringList{u"unfinished"_s});

    const Ended made = run({u"night"_s});
    EXPECT_TRUE(made.out.contains(u"ALE: copied to "_s)) << made.out.toStdString() << made.err.toStdString();
    EXPECT_EQ(copies().size(), 1);
    EXPECT_TRUE(run({u"night"_s}).out.contains(u"ALE: nothing to do"_s));
    EXPECT_EQ(run({u"verify"_s, elsewhere}).code, 0);

    const QString copy = elsewhere + u"/ALE/"_s + copies().front();
    EXPECT_EQ(run({u"restore"_s, u"NEW"_s, copy}).code, 0);
    EXPECT_EQ(readWholeFile(m_folder.appFile(u"NEW/large.Velmar"_s)), large);
    EXPECT_TRUE(QFile::remove(m_folder.appFile(u"ALE/velmar.mdb"_s)));
    EXPECT_EQ(run({u"restore"_s, u"ale"_s, copy}).code, 0);
    EXPECT_EQ(run({u"check"_s, u"ALE"_s}).code, 0);
    writeWholeFile(copy, readWholeFile(copy).chopped(100));
    EXPECT_EQ(run({u"verify"_s, elsewhere}).code, 8);
    EXPECT_EQ(run({u"restore"_s, u"NEWER"_s, copy}).code, 8);
    expectRefusal(3, {u"copy"_s, u"NOBODY"_s, u"NEW"_s, u"--to"_s, elsewhere},
                  u"NOBODY: not copied. Customer \"NOBODY\" was not found"_s);
    EXPECT_TRUE(pathExists(elsewhere + u"/NEW"_s)) << "the other one is copied";
}

/// What is set in a shop's folder counts for it; where the day may be wrong, nothing is collected.
TEST_F(NightOfShops, AShopsOwnSettingsTakeThePlaceOfTheProgramsOnes)
{
    makeShop(u"ALE"_s);
    makeShop(u"BAR"_s);
    writeApp(u"reports.ini"_s, "; all shops\n[Daily]\nReport=finsales\nPeriod=day\nFormat=csv\nFolder=out\n"
                               "[Weekly]\nReport=nothing\nPeriod=week\nFormat=csv\nFolder=out\n");
    writeApp(u"BAR/reports.ini"_s,
             "[daily]\nReport=mine\nPeriod=day\nFormat=CSV\nFolder=own\n"
             "Compare=year\n[a/b]\nno key\n[Short]\nReport=mine\n[DAILY]\nReport=mine\n");
    writeApp(u"BAR/mine.rpt"_s, readWholeFile(m_folder.appFile(u"finsales.rpt"_s)));
    writeApp(u"ALE/night.ini"_s, "[Night]\nDayBegins=25:00\n[Other]\n");
    ring(u"BAR"_s);
    const Ended ended = run({u"night"_s});
    EXPECT_EQ(ended.code, 9);
    for (const QString& text :
         {u"night.ini, line 2: DayBegins is \"25:00\"; it must be a time before noon, such as 4:00."_s,
          u"night.ini, line 3: There is no section [Other], only [Night]."_s,
          u"sales not complete: not collected: night.ini may say for which day"_s,
          u"reports.ini, line 7: [a/b] cannot be a part of a file's name."_s,
          u"reports.ini, line 8: \"no key\" is neither a [section] nor Key=Value."_s,
          u"reports.ini, line 9: [Short] has no key Period."_s,
          u"reports.ini, line 11: [DAILY] is already in line 1."_s, u"ALE: folder not in order: night.ini"_s,
          u"reports not complete: There is no report \"nothing\""_s})
        EXPECT_TRUE(ended.err.contains(text)) << text.toStdString() << ended.err.toStdString();
    EXPECT_EQ(takings(u"ALE"_s), "");
    EXPECT_EQ(reports(), QStringList());
    const QString own = u"own/BAR daily %1.csv"_s.arg(QDate::currentDate().toString(Qt::ISODate));
    const QByteArray written = readWholeFile(m_folder.appFile(own));
    EXPECT_EQ(written.left(written.indexOf('\n')).count(','), 9)
        << "beside the year before: " << written.toStdString();
}

TEST_F(NightOfShops, AStoppedNightSaysWhatItHasNotDone)
{
    for (const auto& name : {u"ALE"_s, u"BAR"_s, u"CAFE"_s})
        makeShop(name);
    m_folder.precede("convert", "case $(cat registers.ini) in *2400*) kill -TERM $PPID ;; esac");
    const Ended stopped = run({u"night"_s});
    EXPECT_EQ(stopped.code, 143) << stopped.err.toStdString();
    EXPECT_TRUE(stopped.out.endsWith(u"1 of 3 shops are complete, 2 left.\n  BAR: sales\n  CAFE: folder\n"_s))
        << stopped.out.toStdString();
}

TEST_F(NightOfShops, SalesCanBeBookedForADayBefore)
{
    makeShop(u"ALE"_s);
    ring(u"ALE"_s);
    const QDate today = QDate::currentDate();
    const auto collect = [this](const QDate& day) {
        return run({u"collect"_s, u"ALE"_s, u"--day"_s, day.toString(Qt::ISODate)});
    };
    EXPECT_EQ(collect(today.addDays(1)).code, 2);
    EXPECT_EQ(collect(today.addDays(-8)).code, 2);
    EXPECT_EQ(takings(u"ALE"_s), "");
    EXPECT_EQ(collect(today.addDays(-1)).code, 0);
    EXPECT_TRUE(takings(u"ALE"_s).starts_with(today.addDays(-1).toString(u"dd/MM/yyyy|"_s).toStdString()))
        << takings(u"ALE"_s);
    for (const char* const words : {"--wait 5", "--retry x", "--every", "--day 2020-01-01"})
        EXPECT_EQ(run(QStringList{u"night"_s} + QString::fromLatin1(words).split(u' ')).code, 2) << words;
}

} // namespace
} // namespace norvane::test
