// Whole sequences with the real tools and a bank of registers: the lines that the tool gets, the files in the
// folders, the remaining ticks, the boxes shown.
#include "exchange/ExchangeRunner.h"

#include "customers/CustomerLog.h"
#include "platform/FilePaths.h"
#include "tests/exchange/Exchange.h"
#include "tests/support/AskedFirst.h"

#include <map>

namespace norvane::exchange
{
namespace
{

/// Lines of the tool: the literal of each run with every %1 replaced by each of its file numbers in turn.
std::string linesOf(const QString& prefix, std::initializer_list<std::pair<const char*, const char*>> runs)
{
    QStringList lines;
    for (const auto& [literal, files] : runs) {
        for (const QString& file : QString::fromLatin1(files).split(u' '))
            lines << prefix + QString::fromLatin1(literal).replace("%1"_L1, file);
    }
    return lines.join(u'\n').toStdString();
}

const std::string linesUp =
    linesOf(u"VELMARCOMM s9 c1"_s,
            {{"  -U 250", "-"},
             {" Nmem.DAT -U 52", "-"},
             {"  N%1.DAT -U %1", "67"},
             {" N%1.DAT -U %1", "65"},
             {"  N%1.DAT -U %1", "1 2 3 4 5 6 7 8 9 10 11 12 13 14 36 15 29 23 20 21 22 24 25 26"},
             {"  N%1.DAT -u %1", "57 64 63 32 43 46 47 48 49 61 18 37 38 39 40 42 58 59 70 41 28 "
                                 "81 68 30 17 83"},
             {" N%1.DAT -u %1", "44 16 27 33 34 35 45 50 51 69 60 62 85 86 71"}});

const std::string linesDown =
    linesOf(u"VELMARCOMM s9  c1"_s, {{" Nmem.DAT -U 52", "-"}, {"  -U 250", "-"}}) + '\n' +
    linesOf(u"VELMARCOMM s9  F1 3T c1"_s,
            {{"  N%1.DAT -a", "67"},
             {"  N%1.DAT -d %1", "65"},
             {"  N%1.DAT -D %1", "1 2"},
             {"  N%1.DAT -d %1", "15"},
             {"  N%1.DAT -D %1", "3"},
             {"  N%1.DAT -d %1", "4 5 6 7 8 9 10 11 12 13 14 36 29 23"},
             {"  N%1.DAT -D %1", "20 21 22 24 25 26 57 64 63 32 43 46 47 48 49 61 18 37 38 39 "
                                 "40 42 58 59 70 41 28 81 68 30 17 83 44 16 27 33 34 35 45 50 "
                                 "51 69 60 62 85 86 71"}});

/// Sends all files. The program's folder holds none, the customer's an older copy of each that has a table.
void downloadOverOlderCopies(Exchange& shop)
{
    for (const DownloadRow& row : downloadPlan()) {
        QFile::remove(existingPath(shop.made(row.file)));
        if (records::hasExporter(row.file))
            writeWholeFile(shop.kept(row.file), "older");
    }
    shop.download(allBoxes());
}

void expectCopies(const Exchange& shop)
{
    std::set<int> comesBack;
    std::set<int> onlyStays;
    for (const DownloadRow& row : downloadPlan()) {
        if (readWholeFile(shop.made(row.file)) == "older") {
            comesBack.insert(row.file);
        } else if (readWholeFile(shop.kept(row.file)) == "older") {
            onlyStays.insert(row.file);
        }
    }
    EXPECT_EQ(comesBack, (std::set<int>{15, 16, 17, 29, 32, 33, 34, 64, 71, 85, 86}));
    EXPECT_EQ(onlyStays, std::set<int>{58});
}

TEST(ExchangeRunner, ABoxMovesTheSameFilesBothWays)
{
    std::multimap<int, int> up;
    std::multimap<int, int> down;
    for (const UploadRow& row : uploadPlan())
        up.emplace(row.file, row.box);
    for (const DownloadRow& row : downloadPlan())
        down.emplace(row.file, row.box);
    EXPECT_EQ(up, down);
}

/// One shop for all three runs: the tools start some two hundred times.
TEST(ExchangeRunner, FetchesEveryFileFromOneRegisterAndSendsItToAll)
{
    Exchange shop(2, 3);
    shop.upload(allBoxes());
    EXPECT_EQ(shop.transfers.join(u'\n').toStdString(), linesUp);
    EXPECT_TRUE(shop.ticks.ticked.empty());

    downloadOverOlderCopies(shop);
    EXPECT_EQ(shop.transfers.join(u'\n').toStdString(), linesDown);
    EXPECT_TRUE(shop.ticks.ticked.empty());
    expectCopies(shop);

    QList<int> files = shop.files();
    files.removeOne(23);
    test::execute(shop.values.databasePath, u"delete from LOGOMESSAGE"_s);
    shop.download(allBoxes());
    EXPECT_EQ(shop.files(), files);
    EXPECT_TRUE(shop.ticks.ticked.empty());
    EXPECT_TRUE(shop.boxes.shown.empty());

    shop.folder.setFaults("[Off]\nTool=VELMARCOMM\nFile=67\nRegister=2\nResult=8\n");
    shop.download({0});
    const QString start = u"Result 8 at file 67 (PLU): a register did not answer.\n"_s;
    EXPECT_TRUE(shop.explained.startsWith(start + u"The registers before this one have done the step"_s));
    shop.folder.setFaults("[Off]\nTool=VELMARCOMM\nFile=67\nResult=8\n");
    shop.upload({0});
    EXPECT_TRUE(shop.explained.startsWith(start + u"Switch it on"_s)) << "there is one register";
}

/// A run that stops, and how its result in the log begins.
constexpr struct {
    std::initializer_list<int> ticked;
    const char* fault;
    const char* logged;
} stops[] = {
    {{}, "Command=open\nResult=8", "stopped at the opening exchange: result 8: Time Out"},
    {{2}, "Status=none", "stopped at the opening exchange: result 8: Time Out; still to do: Group"},
    {{0, 2}, "File=67\nResult=12", "stopped at file 67: result 12: Machine Busy; still to do: PLU, Group"},
    {{0}, "File=67\nResult=77", "stopped at file 67: result 77: unknown; still to do: PLU"},
    {{2}, "File=1\nCrash=1", "stopped at file 1: answered No; still to do: Group"},
    {{2}, "File=1\nStatus=garbage", "stopped at file 1: failure 13: status.out contains "},
    {{2}, "Status=none", "stopped at the opening exchange: failure 13: status.out contains "},
    {{2}, "File=2", "complete"},
};

TEST(ExchangeRunner, LogsWhereAndWhyItStoppedAndWhatIsLeftToDo)
{
    Exchange shop(2);
    shop.upload({2});
    for (const auto& [ticked, fault, logged] : stops) {
        shop.folder.setFaults(QByteArray("[Stop]\nTool=VELMARCOMM\n") + fault + '\n');
        (void)test::failureOf([&shop, &ticked = ticked] { shop.upload(ticked); });
        const QString result = customers::lastLogged(shop.values.customerPath, {u"upload"_s})->result;
        EXPECT_TRUE(result.startsWith(QLatin1StringView(logged))) << result.toStdString();
        EXPECT_EQ(result.endsWith(u"Group"_s), shop.ticks.ticked.contains(2));
    }
}

/// A step whose tool failed in silence.
struct Doubt {
    void (Exchange::*move)(const std::set<int>& wanted);
    const char* fault;
    const char* message; ///< what the question has to name
};

constexpr Doubt doubts[] = {
    {&Exchange::upload, "Tool=convert\nCommand=u01\nResult=1", "convert did not write"},
    {&Exchange::upload, "Tool=convert\nCommand=u01\nCrash=1", "convert crashed. Found:\r\r1.txt of "},
    {&Exchange::upload, "Tool=convert\nCommand=u352\nResult=1", "52.txt of "},
    {&Exchange::upload, "Command=fetch\nFile=1\nCrash=1", "1.dat of "},
    {&Exchange::upload, "Command=fetch\nFile=1\nStatus=none", "status.out of "},
    {&Exchange::upload, "Command=open\nCrash=1", "VELMARCOMM crashed"},
    {&Exchange::download, "Tool=convert\nCommand=d01\nResult=1", "1.dat of "},
    {&Exchange::download, "Command=send\nFile=1\nCrash=1", "VELMARCOMM crashed"},
    {&Exchange::download, "Command=send\nFile=1\nStatus=none", "the registers may not have it"},
};

TEST(ExchangeRunner, AsksBeforeItUsesFilesThatAFailedToolLeft)
{
    Exchange shop(2);
    shop.upload({2});
    shop.download({2});
    EXPECT_TRUE(shop.boxes.shown.empty()) << "nothing is asked in a good run";
    const QByteArray groups = readWholeFile(shop.made(1));
    for (const auto& [move, fault, message] : doubts) {
        SCOPED_TRACE(fault);
        test::execute(shop.values.databasePath, u"update GROUPS set DESCRIPTION='Mine' where GROUPNO=1"_s);
        shop.folder.setFaults(QByteArray("[Doubt]\n") + fault + '\n');
        shop.boxes.answers.clear();
        (shop.*move)({2});
        ASSERT_EQ(shop.boxes.shown.size(), 1U);
        for (const char* part : {message, " old\r"})
            test::expectAskedFirst(shop.boxes.shown[0], QString::fromLatin1(part));
        EXPECT_EQ(shop.ticks.ticked, std::set<int>{2});
        EXPECT_EQ(shop.firstGroup(), "Mine") << "nothing was imported";

        shop.folder.setFaults(QByteArray("[Doubt]\n") + fault + '\n');
        shop.boxes.answers.assign(5, true);
        (shop.*move)({2});
        EXPECT_TRUE(shop.ticks.ticked.empty()) << "Yes goes on";
        EXPECT_EQ(shop.firstGroup() == "Mine", move == &Exchange::download);
        shop.folder.setFaults("");
        writeWholeFile(shop.folder.registerFile(1, 1), groups);
    }
}

/// The points of PLUs that were fetched without them are lost at the registers when they are sent.
TEST(ExchangeRunner, AsksBeforeItSendsPlusWhosePointsWait)
{
    Exchange shop(2);
    const QByteArray points = readWholeFile(shop.folder.registerFile(1, 71));
    shop.uploadPlusWithoutPoints();
    EXPECT_EQ(shop.ticks.ticked, std::set<int>{36});
    for (const int box : {pluBox, pluPointsBox}) {
        shop.download({box});
        EXPECT_EQ(shop.ticks.ticked, std::set<int>{box});
        EXPECT_EQ(shop.boxes.shown.size(), 1U);
        EXPECT_EQ(readWholeFile(shop.folder.registerFile(1, 71)), points);
    }
    shop.folder.setFaults("[Off]\nCommand=send\nFile=67\nResult=8\n");
    shop.boxes.answers = {true};
    shop.download({pluBox});
    shop.folder.setFaults("");
    shop.boxes.answers = {true};
    shop.download({pluBox});
    EXPECT_EQ(shop.boxes.shown.size(), 1U) << "asked again, since nothing was sent, but once for both files";
    EXPECT_TRUE(shop.ticks.ticked.empty());
    EXPECT_NE(readWholeFile(shop.folder.registerFile(1, 71)), points);

    shop.upload({0});
    shop.download({0});
    EXPECT_TRUE(shop.boxes.shown.empty());
}

/// The second PLU of the text comes twice.
void spoilPlus(const QString& line)
{
    if (!line.contains("t67.txt"_L1))
        return;
    const QByteArray text = readWholeFile(u"67.txt"_s);
    writeWholeFile(u"67.txt"_s, text.sliced(text.indexOf('\n') + 1) + text);
}

TEST(ExchangeRunner, KnowsWhetherPointsWaitAfterAFailedImportAndARestore)
{
    Exchange shop(2);
    shop.uploadPlusWithoutPoints();
    const customers::SafetyCopy copyWithoutPoints =
        customers::makeSafetyCopy(shop.values.customerPath, u"without points"_s, store::CopyOf::Programme);
    shop.upload({0});
    for (const bool keeps : {false, true}) {
        shop.afterTool = spoilPlus;
        shop.boxes.answers = {keeps};
        EXPECT_EQ(test::failureOf([&] { shop.upload({0}); }), 3022);
        shop.afterTool = {};
        shop.download({0});
        EXPECT_EQ(shop.boxes.shown.size(), keeps ? 1U : 0U) << "of a table that was put back no points wait";
    }
    shop.restore(customers::safetyCopies(shop.values.customerPath).front());
    shop.download({0});
    EXPECT_TRUE(shop.boxes.shown.empty());
    shop.upload({0});
    shop.restore(copyWithoutPoints);
    shop.download({0});
    EXPECT_EQ(shop.boxes.shown.size(), 1U);
}

TEST(ExchangeRunner, SendsNoFileOfAnotherCustomer)
{
    Exchange shop(2);
    const QByteArray own = readWholeFile(shop.folder.registerFile(1, 43));
    for (const int file : {43, 83})
        writeWholeFile(shop.made(file), "another customer's");
    shop.download({11});
    EXPECT_TRUE(shop.notices.value(0).contains("43.dat"_L1));
    EXPECT_TRUE(shop.showsOnly("Communications Error 2"));
    EXPECT_EQ(readWholeFile(shop.folder.registerFile(1, 43)), own);
    EXPECT_EQ(test::failureOf([&] { shop.download({22}); }), 53) << "no bitmap";
    EXPECT_EQ(shop.ticks.ticked, std::set<int>{22});
}

TEST(ExchangeRunner, KeepsWhatItSendsAlsoWhenARegisterRefusesIt)
{
    Exchange shop(2);
    shop.upload({2});
    const QByteArray sent = readWholeFile(shop.kept(1));
    writeWholeFile(shop.kept(1), "older");
    shop.folder.setFaults("[Groups]\nFile=1\nCommand=send\nResult=8\n");
    shop.download({2});
    EXPECT_TRUE(shop.showsOnly("Communications Error 8"));
    EXPECT_EQ(readWholeFile(shop.kept(1)), sent);
    EXPECT_EQ(shop.ticks.ticked, std::set<int>{2});
}

} // namespace
} // namespace norvane::exchange
