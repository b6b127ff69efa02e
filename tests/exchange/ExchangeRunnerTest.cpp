// Whole sequences with the real tools and a bank of registers: the lines that the tool gets, what is left in
// the folders, the ticks that stay, the boxes that the user sees.
#include "exchange/ExchangeRunner.h"

#include "platform/FilePaths.h"
#include "platform/ProfileFile.h"
#include "shell/CustomerSettings.h"
#include "shell/SharedRoutines.h"
#include "store/Database.h"
#include "store/Recordset.h"
#include "tests/support/ProgramFolder.h"
#include "tests/support/RecordingBoxes.h"

#include <gtest/gtest.h>

#include <set>

namespace norvane::exchange
{
namespace
{

using Boxset = std::set<int>;

class Ticks : public TickBoxes
{
public:
    Boxset ticked;
    [[nodiscard]] bool isTicked(int box) const override { return ticked.contains(box); }
    void setTicked(int box, bool on) override
    {
        if (on) {
            ticked.insert(box);
        } else {
            ticked.erase(box);
        }
    }
};

/// A customer whose registers are one model, and all that an exchange with them does.
class Exchange
{
public:
    explicit Exchange(int model, int registers = 1)
        : folder(model, registers), values(folder.makeCustomer(QStringLiteral("Corner Shop")))
    {
    }
    void upload(const Boxset& wanted) { run(wanted, &ExchangeRunner::UploadData); }
    void download(const Boxset& wanted) { run(wanted, &ExchangeRunner::downloaddata); }
    /// Numbers of the files that the transfer tool was asked for, behind the opening exchanges.
    [[nodiscard]] QList<int> files() const
    {
        QList<int> numbers;
        for (const QString& line : transfers.mid(2)) {
            numbers << line.section(QStringLiteral(" N"), 1).section(u'.', 0, 0).toInt();
        }
        return numbers;
    }
    [[nodiscard]] QString kept(const char* name) const
    {
        return joinPath(values.customerPath, QLatin1String(name));
    }
    [[nodiscard]] bool showsOnly(const char* text) const
    {
        return boxes.shown ==
               std::vector{test::ShownBox{QLatin1String(text), QStringLiteral("Communication result")}};
    }

    test::ProgramFolder folder;
    ApplicationValues values;
    test::RecordingBoxes boxes;
    Ticks ticks;
    QStringList transfers; ///< lines of the transfer tool
    QStringList notices;

private:
    void run(const Boxset& wanted, void (ExchangeRunner::*sequence)())
    {
        transfers.clear();
        notices.clear();
        boxes.shown.clear();
        ticks.ticked = wanted;
        const link::LinkSettings link = link::readLinkSettings(values);
        ExchangeRunner runner(values, link, ticks,
                              {.runAndWait =
                                   [this](const QString& line) {
                                       if (line.startsWith(QLatin1String("VELMARCOMM"))) {
                                           transfers << line;
                                       }
                                       return RunAndWait(values, line);
                                   },
                               .readStatus = ReadStatusOut,
                               .showStep = [](const QString&) {},
                               .showNotice = [this](const QString& text) { notices << text; },
                               .goOn = [] { return true; },
                               .boxes = boxes});
        (runner.*sequence)();
    }
};

Boxset allBoxes()
{
    Boxset all;
    for (int box = 0; box < boxCount; ++box) {
        all.insert(box);
    }
    return all;
}

/// A run of lines that differ in the file's number alone, which stands at each %1.
struct Run {
    const char* literal;
    const char* files;
};

QStringList linesOf(const QString& prefix, std::initializer_list<Run> runs)
{
    QStringList lines;
    for (const Run& run : runs) {
        for (const QString& file : QString::fromLatin1(run.files).split(u' ')) {
            lines << prefix + QString::fromLatin1(run.literal).replace(QLatin1String("%1"), file);
        }
    }
    return lines;
}

void expectLines(const QStringList& lines, const QStringList& expected)
{
    EXPECT_EQ(lines.size(), expected.size());
    for (qsizetype i = 0; i < std::min(lines.size(), expected.size()); ++i) {
        EXPECT_EQ(lines[i].toStdString(), expected[i].toStdString());
    }
}

TEST(ExchangeRunner, FetchesEveryFileFromOneRegisterAndSendsItToAll)
{
    Exchange shop(2, 3);
    shop.upload(allBoxes());
    expectLines(
        shop.transfers,
        linesOf(QStringLiteral("VELMARCOMM s9 c1"),
                {{"  -U 250", "-"},
                 {" Nmem.DAT -U 52", "-"},
                 {"  N%1.DAT -U %1", "67"},
                 {" N%1.DAT -U %1", "65"},
                 {"  N%1.DAT -U %1", "1 2 3 4 5 6 7 8 9 10 11 12 13 14 36 15 29 23 20 21 22 24 25 26"},
                 {"  N%1.DAT -u %1", "57 64 63 32 43 46 47 48 49 61 18 37 38 39 40 42 58 59 70 41 28 "
                                     "81 68 30 17 83"},
                 {" N%1.DAT -u %1", "44 16 27 33 34 35 45 50 51 69 60 62 85 86 71"}}));
    EXPECT_TRUE(shop.ticks.ticked.empty());

    for (const int file : {1, 43, 67, 71, 83}) {
        QFile::remove(shop.folder.registerFile(1, file));
        QFile::remove(shop.folder.registerFile(3, file));
    }
    shop.download(allBoxes());
    expectLines(
        shop.transfers,
        linesOf(QStringLiteral("VELMARCOMM s9  c1"), {{" Nmem.DAT -U 52", "-"}, {"  -U 250", "-"}}) +
            linesOf(QStringLiteral("VELMARCOMM s9  F1 3T c1"),
                    {{"  N%1.DAT -a", "67"},
                     {"  N%1.DAT -d %1", "65"},
                     {"  N%1.DAT -D %1", "1 2"},
                     {"  N%1.DAT -d %1", "15"},
                     {"  N%1.DAT -D %1", "3"},
                     {"  N%1.DAT -d %1", "4 5 6 7 8 9 10 11 12 13 14 36 29 23"},
                     {"  N%1.DAT -D %1", "20 21 22 24 25 26 57 64 63 32 43 46 47 48 49 61 18 37 38 39 "
                                         "40 42 58 59 70 41 28 81 68 30 17 83 44 16 27 33 34 35 45 50 "
                                         "51 69 60 62 85 86 71"}}));
    EXPECT_TRUE(shop.ticks.ticked.empty());
    EXPECT_TRUE(shop.boxes.shown.empty());
    for (const int file : {1, 43, 67, 71, 83}) {
        SCOPED_TRACE(file);
        const QByteArray untouched = readWholeFile(shop.folder.registerFile(2, file));
        EXPECT_EQ(readWholeFile(shop.folder.registerFile(1, file)), untouched);
        EXPECT_EQ(readWholeFile(shop.folder.registerFile(3, file)), untouched);
    }
}

TEST(ExchangeRunner, StopsAtAFailingOpening)
{
    Exchange shop(2);
    shop.folder.setFaults("[Off]\nTool=VELMARCOMM\nCommand=open\nResult=8\n");
    shop.upload({2});
    EXPECT_EQ(shop.transfers.size(), 1);
    EXPECT_TRUE(shop.showsOnly("Communications Error 8"));
    shop.download({2});
    EXPECT_EQ(shop.transfers.size(), 2) << "the memory file comes first on the way down";
    EXPECT_TRUE(shop.showsOnly("Communications Error 8"));
    EXPECT_EQ(shop.ticks.ticked, Boxset{2});
}

TEST(ExchangeRunner, SendsNothingOfAnEmptyTableThatIsPassedOver)
{
    Exchange shop(2);
    shop.upload({15});
    store::Database(shop.values.databasePath).execute(QStringLiteral("delete * from MIXNMATCH"));
    shop.download({15});
    EXPECT_EQ(shop.files(), QList<int>());
    EXPECT_TRUE(shop.ticks.ticked.empty());
}

TEST(ExchangeRunner, SendsTheKeptBitmapOnlyWhenItHasBytes)
{
    Exchange shop(2);
    writeWholeFile(shop.folder.appFile(QStringLiteral("83.dat")), "another customer's");
    EXPECT_EQ(test::failureOf([&] { shop.download({22}); }), 53);
    EXPECT_EQ(shop.ticks.ticked, Boxset{22});
    writeWholeFile(shop.kept("83.DAT"), "");
    shop.download({22});
    EXPECT_EQ(shop.files(), QList<int>());
    EXPECT_TRUE(shop.ticks.ticked.empty());
    shop.upload({22});
    shop.download({22});
    EXPECT_EQ(shop.files(), QList<int>{83});
    EXPECT_TRUE(shop.boxes.shown.empty());
}

/// Which copies stand in the folders after a download that was refused by the register.
TEST(ExchangeRunner, CopiesARowBeforeItsResultIsRead)
{
    Exchange shop(2);
    shop.upload({0, 2, 14});
    const QByteArray sent = readWholeFile(shop.kept("1.dat"));
    for (const char* name : {"1.dat", "58.dat", "71.dat"}) {
        writeWholeFile(shop.kept(name), "older");
    }
    shop.folder.setFaults("[Groups]\nFile=1\nCommand=send\nResult=8\nNth=1\n"
                          "[Points]\nFile=71\nCommand=send\nResult=8\n");
    shop.download({2});
    EXPECT_TRUE(shop.showsOnly("Communications Error 8"));
    EXPECT_EQ(readWholeFile(shop.kept("1.dat")), sent);
    shop.download({14});
    EXPECT_EQ(readWholeFile(shop.kept("58.dat")), QByteArray("older")) << "keeps no copy on the way down";
    shop.download({36});
    EXPECT_EQ(shop.ticks.ticked, Boxset{36});
    EXPECT_EQ(readWholeFile(shop.folder.appFile(QStringLiteral("71.dat"))), QByteArray("older"));
}

TEST(ExchangeRunner, ReadsWhatStandsInStatusOut)
{
    Exchange shop(2);
    shop.folder.setFaults("[Garbage]\nTool=VELMARCOMM\nFile=1\nStatus=garbage\n");
    EXPECT_EQ(test::failureOf([&] { shop.upload({2}); }), 13);
    QFile::remove(shop.folder.appFile(QStringLiteral("status.out")));
    shop.folder.setFaults("[None]\nTool=VELMARCOMM\nStatus=none\n");
    EXPECT_EQ(test::failureOf([&] { shop.upload({}); }), 53);
    writeWholeFile(shop.folder.appFile(QStringLiteral("status.out")), "0,8\r\n");
    shop.upload({});
    EXPECT_TRUE(shop.showsOnly("Communications Error 8"));
}

TEST(ExchangeRunner, GoesByTheFormerResultWithoutTheTool)
{
    Exchange shop(2);
    shop.upload({11});
    const QByteArray kept = readWholeFile(shop.kept("43.dat"));
    QFile::remove(shop.folder.appFile(QStringLiteral("43.dat")));
    shop.folder.removeTool("VELMARCOMM");
    shop.upload({11});
    EXPECT_TRUE(shop.notices.contains(QStringLiteral("The program VELMARCOMM was not found.")));
    EXPECT_EQ(readWholeFile(shop.kept("43.dat")), kept) << "the only copy stays when nothing came";
    EXPECT_TRUE(shop.boxes.shown.empty());
}

TEST(ExchangeRunner, NeverSendsAFileOfAnotherCustomer)
{
    Exchange shop(2);
    const QByteArray own = readWholeFile(shop.folder.registerFile(1, 43));
    writeWholeFile(shop.folder.appFile(QStringLiteral("43.dat")), "another customer's");
    shop.download({11});
    EXPECT_TRUE(shop.notices.value(0).contains(QLatin1String("43.dat")));
    EXPECT_TRUE(shop.showsOnly("Communications Error 2"));
    EXPECT_EQ(readWholeFile(shop.folder.registerFile(1, 43)), own);
}

} // namespace
} // namespace norvane::exchange
