// What an upload and a download do with the converter, the table and the files, and what they leave when
// something is missing.
#include "records/RegisterFiles.h"
#include "tests/records/Shop.h"

#include <gtest/gtest.h>
#include <QProcess>

namespace norvane::records
{
namespace
{

using norvane::test::failureOf;
using store::Value;
using test::pluLine;
using test::Shop;
using test::text;

TEST(FileProceduresTest, WritesWholeLinesInTheOrderOfTheIndex)
{
    Shop shop;
    shop.add("GROUPS",
             {{"GROUPNO", Value::whole(10)}, {"DESCRIPTION", text("Wine")}, {"tax6", Value::yesNo(true)}});
    shop.add("GROUPS", {{"GROUPNO", Value::whole(9)},
                        {"DESCRIPTION", text("Food")},
                        {"addtogrouptotal", Value::yesNo(true)},
                        {"tax1", Value::yesNo(true)},
                        {"tax3", Value::yesNo(true)}});
    EXPECT_EQ(shop.exported(1), "Food        ,40,50\r\nWine        ,00,01\r\n");
    EXPECT_EQ(shop.commands, QStringList(QStringLiteral("convert wVelmaro f1.txt t1.dat d01")));
}

TEST(FileProceduresTest, ReplacesTheWholeTable)
{
    Shop shop;
    shop.import(1, "a,,\r\nb,,\r\nc,,\r\n");
    shop.import(1, "d,,\r\n");
    EXPECT_EQ(shop.column("GROUPS", "DESCRIPTION"), "d");
}

TEST(FileProceduresTest, LeavesThePlusWithoutATextOfTheirPoints)
{
    Shop shop;
    shop.import(67, pluLine());
    shop.converter = [] {
    };
    EXPECT_EQ(failureOf([&] { importRegisterFile(71, shop.context()); }), 53);
    EXPECT_EQ(shop.rows("PLUDATA"), 1);
}

TEST(FileProceduresTest, ConvertsWhatItWroteOverTheFileOfAnotherSpelling)
{
    Shop shop;
    shop.import(70, "3 for 2,3,199\r\n");
    QFile::remove(shop.folder.path("70.txt"));
    shop.folder.write("70.TXT", QByteArray(100000, 'x'));
    QByteArray written;
    shop.converter = [&] {
        written = shop.folder.read("70.TXT");
    };
    EXPECT_EQ(exportRegisterFile(70, shop.context()), 0);
    EXPECT_EQ(written, "3 for 2     ,03,00000199\r\n");
    EXPECT_FALSE(shop.folder.names().contains(QStringLiteral("70.txt")));
    EXPECT_EQ(shop.commands.last(), QStringLiteral("convert wVelmaro f70.txt t70.dat d70"));
}

TEST(FileProceduresTest, PassesOverOrFailsOnAnEmptyTable)
{
    for (const RegisterFile& file : registerFiles()) {
        if (!hasExporter(file.number))
            continue;
        Shop shop;
        const QByteArray name = QByteArray::number(file.number) + ".txt";
        shop.folder.write(name.constData(), "former text");
        int result = 0;
        const int failure = failureOf([&] { result = exportRegisterFile(file.number, shop.context()); });
        const bool skips = file.emptyTable == EmptyTable::Skips;
        EXPECT_EQ(result, skips ? 1 : 0) << file.number;
        EXPECT_EQ(failure, skips ? 0 : 3021) << file.number;
        EXPECT_EQ(shop.folder.read(name.constData()), skips ? "former text" : "") << file.number;
        EXPECT_TRUE(shop.commands.isEmpty()) << file.number;
    }
}

TEST(FileProceduresTest, FailsWhenTheTextCannotBeWritten)
{
    Shop shop;
    shop.import(1, "Food,40,40\r\n");
    QFile::remove(shop.folder.path("1.txt"));
    QDir(shop.folder.path()).mkdir(QStringLiteral("1.txt"));
    EXPECT_EQ(failureOf([&] { exportRegisterFile(1, shop.context()); }), 75);
    if (QFile::exists(QStringLiteral("/dev/full"))) {
        QDir(shop.folder.path()).rmdir(QStringLiteral("1.txt"));
        QFile::link(QStringLiteral("/dev/full"), shop.folder.path("1.txt"));
        EXPECT_EQ(failureOf([&] { exportRegisterFile(1, shop.context()); }), 61);
    }
}

TEST(FileProceduresTest, LeavesTheTableAsItWasWhenTheProgramIsKilled)
{
    Shop shop;
    shop.import(67, pluLine() + pluLine({{1, "000000000000000018"}}));
    QByteArray text;
    for (int number = 0; number < 100000; ++number)
        text += pluLine({{1, QByteArray::number(number).rightJustified(18, '0')}});
    shop.folder.write("67.txt", text);
    const qint64 sizeBefore = QFileInfo(shop.values.databasePath).size();

    QProcess child;
    child.setProcessChannelMode(QProcess::ForwardedChannels);
    child.start(QStringLiteral(IMPORT_PROBE), {shop.folder.path()});
    ASSERT_TRUE(child.waitForStarted());
    // Records have reached the file itself when it grows.
    while (child.state() == QProcess::Running && QFileInfo(shop.values.databasePath).size() <= sizeBefore)
        child.waitForFinished(1);
    child.kill();
    child.waitForFinished();
    ASSERT_EQ(child.exitStatus(), QProcess::CrashExit) << "the import had ended before";
    EXPECT_GT(QFileInfo(shop.values.databasePath).size(), sizeBefore);

    EXPECT_EQ(shop.column("PLUDATA", "PLUNUMBER"), "000000000000000017|000000000000000018");
}

} // namespace
} // namespace norvane::records
