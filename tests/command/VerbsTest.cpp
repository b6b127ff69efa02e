// What commands write that need no register: reports of a day, copies, findings.
#include "tests/command/CommandTest.h"
#include "tests/exchange/TemporaryPlace.h"
#include "tests/store/Rows.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

namespace norvane::test
{
namespace
{

class Verbs : public CommandTest
{
protected:
    [[nodiscard]] QJsonArray listed(const QStringList& words, int code = 0) const
    {
        const Ended ended = run(words + QStringList{u"--json"_s});
        EXPECT_EQ(ended.code, code) << ended.err.toStdString();
        return QJsonDocument::fromJson(ended.out.toUtf8()).array();
    }
    void sell(const QString& day, const QString& value) const
    {
        execute(
            m_shop.databasePath,
            u"insert into FINANCIALSALES (ID, SALESDATE, QUANTITY, VALUE) values (2, '%1', 1, '%2')"_s.arg(
                day, value));
    }

    ApplicationValues m_shop = m_folder.makeCustomer(u"SHOP"_s);
};

TEST_F(Verbs, AReportOfADayHasTheSalesOfThatDayInEveryFormat)
{
    sell(u"2026-11-24"_s, u"24.25"_s);
    sell(u"2026-11-25"_s, u"25.75"_s);
    const QStringList report{u"report"_s, u"SHOP"_s, u"finsales"_s};
    const TestFolder started;
    QProcess command;
    command.setWorkingDirectory(started.path());
    command.start(QString::fromUtf8(COMMAND),
                  report + QStringList{u"--day"_s, u"2026-11-24"_s, u"--csv"_s, u"day.csv"_s, u"--pdf"_s,
                                       u"day.pdf"_s, u"--xlsx"_s, u"day.xlsx"_s, u"--folder"_s,
                                       m_folder.appPath()});
    EXPECT_TRUE(command.waitForFinished(-1));
    EXPECT_EQ(command.exitCode(), 0) << command.readAllStandardError().toStdString();
    const QByteArray csv = started.read("day.csv");
    EXPECT_TRUE(csv.contains("24.25") && !csv.contains("25.75")) << csv.toStdString();
    EXPECT_TRUE(started.read("day.pdf").startsWith("%PDF-"));
    EXPECT_TRUE(started.read("day.xlsx").startsWith("PK"));

    const auto withDay = [&report](const QString& day) {
        return report + QStringList{u"--csv"_s, u"-"_s, u"--day"_s, day};
    };
    expectUsage(withDay(u"24.11.2026"_s), u"\"24.11.2026\" is not a day such as 2026-11-25."_s);
    expectUsage(withDay(u"2026-11-24"_s) + QStringList{u"--period"_s, u"week"_s},
                u"Either --day or --period or --from and --to."_s);
}

TEST_F(Verbs, AComparisonListsWhatDiffersAndHasACodeForIt)
{
    ASSERT_EQ(run({u"fetch"_s, u"SHOP"_s, u"group"_s, u"vat"_s}).code, 0);
    EXPECT_EQ(listed({u"compare"_s, u"SHOP"_s, u"groups"_s, u"taxes"_s}), QJsonArray());
    execute(m_shop.databasePath, u"update TAXRATES set notax=77 where ID=2"_s);
    EXPECT_EQ(listed({u"compare"_s, u"SHOP"_s, u"TAXRATES"_s})[0][u"oneWay"_s], true);
    execute(m_shop.databasePath, u"update GROUPS set DESCRIPTION='OTHER' where GROUPNO=3"_s);
    const QJsonObject line = listed({u"compare"_s, u"SHOP"_s, u"3"_s}, 22)[0].toObject();
    EXPECT_EQ(line[u"here"_s], u"OTHER"_s);
    EXPECT_EQ(line[u"register"_s], u"Beer & Cider"_s);
    m_folder.setFaults("[Off]\nCommand=fetch\nFile=29\nResult=8\n");
    const Ended stopped = run({u"compare"_s, u"SHOP"_s, u"group"_s, u"vat"_s});
    EXPECT_EQ(stopped.code, 6);
    EXPECT_TRUE(stopped.out.contains(u"Beer & Cider"_s));
    EXPECT_TRUE(stopped.err.contains(u"Not compared, or only in part: Vat Rates."_s))
        << stopped.err.toStdString();
    expectRefusal(4, {u"compare"_s, u"SHOP"_s, u"nothing"_s}, u"There is no box \"nothing\""_s);
}

TEST_F(Verbs, AComparisonRemovesTheFolderOfOneThatWasKilled)
{
    const TemporaryPlace place;
    m_folder.precede("VELMARCOMM", "cd \"${0%/*}\"; if rm kill; then kill -9 $PPID; exit; fi; cd -");
    writeWholeFile(m_folder.appFile(u"kill"_s), "");
    (void)run({u"compare"_s, u"SHOP"_s, u"group"_s});
    const QStringList left = place.scratchFolders();
    EXPECT_EQ(left.size(), 1);
    (void)run({u"compare"_s, u"SHOP"_s, u"group"_s});
    EXPECT_EQ(place.scratchFolders(), QStringList());
}

TEST_F(Verbs, AStatusThatATerminalWouldObeyIsShownInTerminalAndLog)
{
    m_folder.precede("VELMARCOMM", "printf '\\033[2J' > status.out; exit");
    const Ended ended = run({u"send"_s, u"SHOP"_s, u"group"_s});
    EXPECT_EQ(ended.code, 1);
    for (const QString& text :
         {ended.err, QString::fromUtf8(readWholeFile(m_folder.appFile(u"SHOP/norvane.log"_s)))}) {
        EXPECT_TRUE(text.contains(u"status.out contains \"\\x1b[2J\""_s)) << text.toStdString();
        EXPECT_FALSE(text.contains(u'\x1b'));
    }
}

TEST_F(Verbs, AReportOfAnyPeriodIsComparedWithAnother)
{
    const QDate lastMonth = QDate::currentDate().addMonths(-1);
    sell(QDate(lastMonth.year(), lastMonth.month(), 1).toString(Qt::ISODate), u"24.25"_s);
    sell(u"2025-02-28"_s, u"50"_s);
    sell(u"2025-03-01"_s, u"40"_s);
    sell(u"2025-04-01"_s, u"7"_s);
    const QStringList report{u"report"_s, u"SHOP"_s, u"finsales"_s, u"--csv"_s, u"-"_s};
    const auto reported = [&](const QStringList& options) {
        return run(report + options).out;
    };
    EXPECT_TRUE(reported({u"--period"_s, u"lastmonth"_s}).contains(u",24.25"_s));
    QStringList outsideTheMenu = report;
    outsideTheMenu[2] = u"groupsales"_s;
    EXPECT_EQ(run(outsideTheMenu + QStringList{u"--period"_s, u"lastmonth"_s}).code, 0);
    const QString march =
        reported({u"--from"_s, u"2025-03-01"_s, u"--to"_s, u"2025-03-31"_s, u"--compare"_s, u"before"_s});
    EXPECT_TRUE(march.contains(u",40.00,50.00,-10.00,-20.0"_s)) << march.toStdString();

    expectUsage(report + QStringList{u"--from"_s, u"2025-03-01"_s}, u"Name both --from and --to."_s);
    expectUsage(report + QStringList{u"--from"_s, u"2025-03-02"_s, u"--to"_s, u"2025-03-01"_s},
                u"The first day is after the last one."_s);
    expectUsage(report + QStringList{u"--compare"_s, u"year"_s}, u"--compare needs a period."_s);
    expectUsage(report + QStringList{u"--period"_s, u"week"_s, u"--compare"_s, u"month"_s},
                u"\"month\" is neither before nor year."_s);
}

/// On a terminal the locale's spreadsheet is the reader, elsewhere a script.
TEST_F(Verbs, ATerminalGetsTheSignsOfItsLocale)
{
    sell(u"2026-11-24"_s, u"24.25"_s);
    const QString words = u"report SHOP finsales --day 2026-11-24 --csv - --folder "_s + m_folder.appPath();
    QProcess terminal;
    auto environment = QProcessEnvironment::systemEnvironment();
    environment.insert(u"LC_ALL"_s, u"de_DE.UTF-8"_s);
    terminal.setProcessEnvironment(environment);
    terminal.start(u"script"_s, {u"-qec"_s, QString::fromUtf8(COMMAND) + u' ' + words, u"/dev/null"_s});
    EXPECT_TRUE(terminal.waitForFinished(-1));
    const QByteArray shown = terminal.readAllStandardOutput();
    EXPECT_TRUE(shown.contains(";24,25")) << shown.toStdString();
    EXPECT_TRUE(runCommand(m_folder.appPath(), words.split(u' ').first(7), u"de_DE.UTF-8"_s)
                    .out.contains(u",24.25"_s));
}

TEST_F(Verbs, ACopyIsNamedByWhatNoOtherBeginsWith)
{
    for (const char* const price : {"1", "2"}) {
        writeWholeFile(m_folder.appFile(u"plus.csv"_s), QByteArray("Number,Price 1\n7,") + price + '\n');
        EXPECT_EQ(run({u"plus"_s, u"SHOP"_s, u"import"_s, m_folder.appFile(u"plus.csv"_s)}).code, 0);
    }
    const QJsonArray copies = listed({u"copies"_s, u"SHOP"_s});
    ASSERT_EQ(copies.size(), 2);
    EXPECT_TRUE(copies[0][u"reason"_s].toString().startsWith(u"before PLU import"_s));
    expectRefusal(4, {u"restore"_s, u"SHOP"_s, u"20"_s}, u"Several copies begin with \"20\"."_s);
    expectRefusal(4, {u"restore"_s, u"SHOP"_s, {}}, u"There is no copy \"\"."_s);
    EXPECT_EQ(run({u"restore"_s, u"SHOP"_s, copies[0][u"name"_s].toString()}).code, 0);
    EXPECT_EQ(rowsOf(m_shop.databasePath, u"select price1 from pludata"_s), "1");
}

TEST_F(Verbs, CheckListsWhatIsWrongWithSettingsAndInstallation)
{
    EXPECT_EQ(listed({u"check"_s, u"SHOP"_s}), QJsonArray());
    writeWholeFile(m_folder.appFile(u"bad.rpt"_s), "[Report]\r\nTable=NOTABLE\r\n");
    writeWholeFile(joinPath(m_shop.customerPath, u"setup.ini"_s), "[SetupOption]\r\nBaud=x\r\n");
    const QJsonArray findings = listed({u"check"_s, u"SHOP"_s}, 8);
    ASSERT_EQ(findings.size(), 2);
    EXPECT_EQ(findings[0][u"part"_s], u"settings"_s);
    EXPECT_TRUE(findings[0][u"finding"_s].toString().contains(u"Baud=x"_s));
    EXPECT_EQ(findings[1][u"part"_s], u"installation"_s);
    EXPECT_TRUE(findings[1][u"finding"_s].toString().contains(u"bad.rpt"_s));
}

} // namespace
} // namespace norvane::test
