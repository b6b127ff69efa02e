// What a command line may look like, what help it gives, and where its output goes.
#include "platform/FilePaths.h"
#include "tests/command/CommandTest.h"

#include <QRegularExpression>

namespace norvane::test
{
namespace
{

class CommandWords : public CommandTest
{
};

TEST_F(CommandWords, HelpIsGivenInEveryUsualWay)
{
    const QString all = run({u"--help"_s}).out;
    EXPECT_TRUE(all.contains("norvane-shop collect CUSTOMER\n"_L1));
    EXPECT_TRUE(all.contains("Exit codes:"_L1));
    EXPECT_EQ(run({u"-h"_s}).out, all);
    EXPECT_EQ(run({u"help"_s}).out, all);

    const QString ofReport = run({u"help"_s, u"report"_s}).out;
    EXPECT_TRUE(ofReport.startsWith("norvane-shop report CUSTOMER NAME\n"_L1));
    EXPECT_TRUE(ofReport.contains("--period"_L1) && ofReport.contains("--folder"_L1));
    EXPECT_FALSE(ofReport.contains("collect"_L1));
    EXPECT_EQ(run({u"report"_s, u"-h"_s}).out, ofReport);

    EXPECT_TRUE(run({u"--version"_s}).out.startsWith("norvane-shop 1."_L1));
    expectUsage({u"help"_s, u"sell"_s}, u"There is no command \"sell\"."_s);
    expectUsage({}, all);
}

/// The help is made from the table of commands, the manual is written by hand.
TEST_F(CommandWords, TheManualHasEveryOptionAndExitCode)
{
    const QString manual =
        QString::fromUtf8(readWholeFile(QString::fromUtf8(MANUAL))).replace(u"\\-"_s, u"-"_s);
    const QStringList sections = manual.split(u"\n.TP\n"_s);
    QStringList ofCommand;
    QString command;
    int options = 0;
    for (const QString& line : run({u"--help"_s}).out.split(u'\n')) {
        if (line.startsWith(u"norvane-shop "_s)) {
            command = line.section(u' ', 1, 1);
            ofCommand = sections.filter(
                QRegularExpression(u"\\A\\.BI? \"?([a-z]+\\\\fR and \\\\fP)?%1(?![a-z-])"_s.arg(command)));
        } else if (line.startsWith("    --"_L1)) {
            const QString option = line.trimmed().section(u' ', 0, 0);
            const QStringList& places = command.isEmpty() ? sections : ofCommand;
            EXPECT_FALSE(places.filter(option).isEmpty())
                << command.toStdString() << ' ' << option.toStdString();
            ++options;
        } else if (line == "With every command:"_L1) {
            command.clear();
        } else if (const QString code = line.trimmed().section(u' ', 0, 0);
                   command.isEmpty() && code.toInt() > 0) {
            EXPECT_TRUE(sections.filter(line.trimmed().replace(u"  "_s, u"\n"_s)).size() == 1)
                << line.toStdString();
        }
    }
    EXPECT_GT(options, 40);
}

TEST_F(CommandWords, CommonOptionsMayComeBeforeTheCommand)
{
    const ApplicationValues shop = m_folder.makeCustomer(u"SHOP"_s);
    const QString listed = run({u"customers"_s, u"--json"_s}).out;
    EXPECT_TRUE(listed.contains("\"name\": \"SHOP\""_L1));
    EXPECT_EQ(run({u"--json"_s, u"customers"_s}).out, listed);
    expectUsage({u"--jsn"_s, u"customers"_s}, u"Unknown option 'jsn'."_s);
    expectUsage({u"--json"_s}, u"norvane-shop customers"_s);
}

TEST_F(CommandWords, ListedCustomersThatNoCommandTakesHaveANote)
{
    for (const QString& name : {u"LOST"_s, u"A:B"_s, u"BELL\a\nTWO"_s})
        (void)m_folder.makeCustomer(name);
    ASSERT_TRUE(QFile::remove(m_folder.appFile(u"LOST/velmar.mdb"_s)));
    const QStringList lines = run({u"customers"_s}).out.split(u'\n');
    const auto has = [&lines](const QString& pattern) {
        return !lines.filter(QRegularExpression(pattern)).isEmpty();
    };
    EXPECT_TRUE(has(u"^LOST .* no database$"_s)) << lines.join(u'\n').toStdString();
    EXPECT_TRUE(has(u"^A:B .* rename the folder: no command takes its name$"_s));
    EXPECT_TRUE(has(u"^BELL\\\\x07\\\\nTWO "_s)) << lines.join(u'\n').toStdString();
}

TEST_F(CommandWords, NamesThatOtherCommandsTakeAreListed)
{
    const QString boxes = run({u"boxes"_s}).out;
    EXPECT_TRUE(boxes.contains("\n1       PLU\n"_L1)) << boxes.toStdString();
    const QString reports = run({u"reports"_s}).out;
    EXPECT_TRUE(reports.contains("day, week, month, year"_L1)) << reports.toStdString();

    (void)m_folder.makeCustomer(u"SHOP"_s);
    const auto withPeriod = [](const QString& name, const QString& period) {
        return QStringList{u"report"_s, u"SHOP"_s, name, u"--csv"_s, u"-"_s, u"--period"_s, period};
    };
    expectUsage(withPeriod(u"plusales"_s, u"decade"_s), u"It has: day, week, month, year, yesterday,"_s);
    expectUsage(withPeriod(u"pluprice"_s, u"day"_s), u"The report pluprice has no period \"day\"."_s);
}

TEST_F(CommandWords, ADashIsStandardOutput)
{
    (void)m_folder.makeCustomer(u"SHOP"_s);
    const QStringList toOutput{u"report"_s, u"SHOP"_s, u"pluprice"_s, u"--csv"_s, u"-"_s};
    const QString path = m_folder.appFile(u"prices.csv"_s);
    QStringList toFile = toOutput;
    toFile.last() = path;
    EXPECT_EQ(run(toFile).code, 0);
    const Ended ended = run(toOutput);
    EXPECT_EQ(ended.code, 0) << ended.err.toStdString();
    EXPECT_FALSE(ended.out.isEmpty());
    EXPECT_EQ(ended.out, QString::fromUtf8(readWholeFile(path)));
}

TEST_F(CommandWords, OutputThatCannotBeWrittenIsAFailure)
{
    (void)m_folder.makeCustomer(u"SHOP"_s);
    for (const char* const words : {"customers", "--help", "report SHOP pluprice --csv -"}) {
        QProcess command;
        command.setStandardOutputFile(u"/dev/full"_s);
        command.start(QString::fromUtf8(COMMAND),
                      QString::fromUtf8(words).split(u' ') + QStringList{u"--folder"_s, m_folder.appPath()});
        EXPECT_TRUE(command.waitForFinished(-1));
        EXPECT_EQ(command.exitCode(), 7) << words;
        EXPECT_TRUE(command.readAllStandardError().startsWith("Standard output could not be written"));
    }
}

} // namespace
} // namespace norvane::test
