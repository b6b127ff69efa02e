// What an upload and a download do with the converter, the table and the files, and what they leave when
// something is missing.
#include "records/RegisterFiles.h"
#include "tests/platform/FullDisk.h"
#include "tests/records/Shop.h"
#include "tests/support/AskedFirst.h"

#include <csignal>
#include <set>
#include <sys/wait.h>
#include <unistd.h>

namespace norvane::records
{
namespace
{

using norvane::test::expectAskedFirst, norvane::test::failureOf, norvane::test::failureTextOf, store::Value,
    test::plu, test::Shop, test::text;

TEST(FileProceduresTest, WritesOverTheFileOfAnotherSpellingInTheOrderOfTheIndex)
{
    Shop shop;
    shop.add("GROUPS",
             {{"GROUPNO", Value::whole(10)}, {"DESCRIPTION", text("Wine")}, {"tax6", Value::yesNo(true)}});
    shop.add("GROUPS", {{"GROUPNO", Value::whole(9)},
                        {"DESCRIPTION", text("Food")},
                        {"addtogrouptotal", Value::yesNo(true)},
                        {"tax1", Value::yesNo(true)},
                        {"tax3", Value::yesNo(true)}});
    shop.folder.write("1.TXT", QByteArray(100000, 'x'));
    QByteArray written;
    shop.converter = [&] {
        written = shop.folder.read("1.TXT");
    };
    EXPECT_EQ(exportRegisterFile(1, shop.context()), Exported::File);
    EXPECT_EQ(written, "Food        ,40,50\r\nWine        ,00,01\r\n");
    EXPECT_FALSE(shop.folder.names().contains(QStringLiteral("1.txt")));
    EXPECT_EQ(shop.commands, QStringList(QStringLiteral("convert wVelmaro f1.txt t1.dat d01")));
}

/// Text after a comma would reach the register in the next column.
TEST(FileProceduresTest, AsksBeforeACommaInATextSeparatesColumns)
{
    Shop shop;
    shop.add("GROUPS", {{"GROUPNO", Value::whole(1)}, {"DESCRIPTION", text("Cola 0,2 l")}});
    shop.add("LOGOMESSAGE", {{"ID", Value::whole(1)}, {"PREAMBLE1", text("Cola 0,2 l")}});
    for (const int file : {1, 23}) {
        shop.commands.clear();
        shop.boxes.answers = {false, true};
        EXPECT_EQ(exportRegisterFile(file, shop.context()), Exported::Refused);
        EXPECT_TRUE(shop.commands.isEmpty()) << file;
        EXPECT_TRUE(shop.boxes.shown.back().text.startsWith(u"The text \"Cola 0,2 l\" contains a comma."));
        EXPECT_EQ(exportRegisterFile(file, shop.context()), Exported::File);
        EXPECT_EQ(shop.commands.size(), 1) << file;
    }
}

/// The points go with the records that hold them, but not before there are others.
TEST(FileProceduresTest, SetsThePointsOfExistingPlus)
{
    Shop shop;
    shop.import(67, plu(17) + ",,,,,,,,,,,,00000250\r\n" + plu(18));
    shop.import(71, plu(18) +
                        ",0001,0002,0003,0004,0050\r\n"
                        "18,9,9,9,9,9\r\n"
                        "\r\n" +
                        plu(99) + ",0009,0009,0009,0009,0009\r\n" + plu(17) + ",7");
    QFile::remove(shop.folder.path("71.txt"));
    shop.converter = [] {
    };
    EXPECT_EQ(failureOf([&] { importRegisterFile(71, shop.context()); }), 53);
    EXPECT_EQ(shop.column("PLUDATA", "PLUNUMBER"), (plu(17) + '|' + plu(18)).toStdString());
    EXPECT_EQ(shop.column("PLUDATA", "POINT1"), "7|1");
    EXPECT_EQ(shop.column("PLUDATA", "POINT5"), "0|50");
    EXPECT_EQ(shop.column("PLUDATA", "PRICE1"), "2.5|0");

    shop.import(67, plu(17));
    EXPECT_EQ(shop.column("PLUDATA", "POINT1"), "null");
}

const struct {
    QByteArray line;
    int failure;
    const char* place;
} badLines[] = {{plu(18) + ",,,,,,,  ", 13, "67.txt, line 2, column 8: "},
                {plu(18) + ",,,,,,,-4", 13, "67.txt, line 2, column 8: "},
                {plu(17), 3022, "67.txt, line 2: "}};

/// Of a table of three records the first two would be left, or none.
TEST(FileProceduresTest, AsksWhatBecomesOfATextThatIsBadInTheMiddle)
{
    for (const auto& [line, number, place] : badLines) {
        Shop shop;
        shop.import(67, plu(1) + "\r\n" + plu(2) + "\r\n" + plu(3));
        const QByteArray bad = plu(17) + "\r\n" + line + "\r\n" + plu(19);
        for (const bool keeps : {false, true}) {
            shop.boxes.answers = {keeps};
            const QString message = failureTextOf([&] { shop.import(67, bad); });
            EXPECT_TRUE(message.startsWith(QString::number(number) + u' ' + QLatin1String(place)))
                << message.toStdString();
            for (const char* part : {place, "1 records", "with 3 records"})
                expectAskedFirst(shop.boxes.shown.back(), QString::fromLatin1(part));
            const auto former = (plu(1) + '|' + plu(2) + '|' + plu(3)).toStdString();
            EXPECT_EQ(shop.column("PLUDATA", "PLUNUMBER"), keeps ? plu(17).toStdString() : former);
        }
    }
}

const struct {
    const char* name;
    int former;
    int lines;
    QByteArray end;      ///< of the last line
    const char* message; ///< nullptr: nothing is asked
} extents[] = {
    {"none", 20, 0, "", "67.txt has no records. It would replace the table PLUDATA, which has 20.\r"},
    {"fewer than half", 21, 10, "\r\n",
     "67.txt has 10 records. It would replace the table PLUDATA, which has 21.\r"},
    {"half", 20, 10, "\r\n", nullptr},
    {"cut off", 20, 19, "", "67.txt has 19 records, and its last line is cut off."},
    {"a small table", 19, 0, "", nullptr},
};

QByteArray plus(int count, const QByteArray& end)
{
    QByteArrayList lines;
    for (int number = 1; number <= count; ++number)
        lines << plu(number);
    return lines.join("\r\n") + end;
}

TEST(FileProceduresTest, AsksBeforeAShortTextReplacesAFullTable)
{
    for (const auto& [name, former, lines, end, message] : extents) {
        SCOPED_TRACE(name);
        Shop shop;
        shop.import(67, plus(former, "\r\n"));
        const QByteArray text = plus(lines, end);
        shop.import(67, text);
        EXPECT_EQ(shop.boxes.shown.size(), message ? 1U : 0U);
        EXPECT_EQ(shop.rows("PLUDATA"), message ? former : lines);
        if (message) {
            expectAskedFirst(shop.boxes.shown.back(), QString::fromLatin1(message));
            shop.boxes.answers = {true};
            shop.import(67, text);
            EXPECT_EQ(shop.rows("PLUDATA"), lines);
        }
    }
}

TEST(FileProceduresTest, SkipsAnEmptyTableOrFailsOnIt)
{
    const std::set<int> passedOver{23, 24, 25, 26, 70, 71, 85, 86};
    for (const RegisterFile& file : registerFiles()) {
        if (!hasExporter(file.number))
            continue;
        Shop shop;
        const QByteArray name = QByteArray::number(file.number) + ".txt";
        shop.folder.write(name.constData(), "former text");
        auto result = Exported::File;
        const int failure = failureOf([&] { result = exportRegisterFile(file.number, shop.context()); });
        const bool skips = passedOver.contains(file.number);
        EXPECT_EQ(result, skips ? Exported::Nothing : Exported::File) << file.number;
        EXPECT_EQ(failure, skips ? 0 : 3021) << file.number;
        EXPECT_EQ(shop.folder.read(name.constData()), skips ? "former text" : "") << file.number;
        EXPECT_TRUE(shop.commands.isEmpty()) << file.number;
    }
}

TEST(FileProceduresTest, FailsWhenTheDiskIsFull)
{
    Shop shop;
    shop.import(1, "Food,40,40\r\n");
    QFile::remove(shop.folder.path("1.txt"));
    ASSERT_TRUE(QFile::link(QStringLiteral("/dev/full"), shop.folder.path("1.txt")));
    EXPECT_EQ(failureOf([&] { exportRegisterFile(1, shop.context()); }), 61);
    QFile::remove(shop.folder.path("1.txt"));
    const norvane::test::FullDisk disk(5);
    const QString text = failureTextOf([&] { exportRegisterFile(1, shop.context()); });
    EXPECT_TRUE(text.endsWith("1.txt (File too large)"_L1))
        << "a part of it was written: " << text.toStdString();
}

TEST(FileProceduresTest, LeavesTheTableAsItWasWhenTheProgramIsKilled)
{
    Shop shop;
    shop.import(67, plu(17) + "\r\n" + plu(18));
    QByteArray text;
    for (int number = 0; number < 100000; ++number)
        text += plu(number) + ",Lager 0.5 l     ,03,0002\r\n";
    const qint64 sizeBefore = QFileInfo(shop.values.databasePath).size();
    const auto hasGrown = [&] {
        return QFileInfo(shop.values.databasePath).size() > sizeBefore;
    };

    const pid_t child = fork();
    if (child == 0) {
        shop.import(67, text);
        _exit(0);
    }
    // Records have reached the file itself when it grows.
    int state = 0;
    while (!hasGrown() && waitpid(child, &state, WNOHANG) == 0)
        usleep(1000);
    kill(child, SIGKILL);
    waitpid(child, &state, 0);
    ASSERT_TRUE(WIFSIGNALED(state)) << "the import had ended before";
    EXPECT_TRUE(hasGrown());

    EXPECT_EQ(shop.column("PLUDATA", "PLUNUMBER"), (plu(17) + '|' + plu(18)).toStdString());
}

} // namespace
} // namespace norvane::records
