// Case-insensitive file names, failures of reading and writing, and the files after a full disk.
#include "platform/FilePaths.h"

#include "tests/platform/FullDisk.h"
#include "tests/platform/TestFolder.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace norvane
{
namespace
{

using test::failureOf, test::TestFolder;

TEST(FilePaths, NamesAreFoundWithoutRegardToCaseInEveryPart)
{
    const TestFolder folder;
    folder.write("Cafe Müller/MEM.dat", "m");
    const QString real = folder.path("Cafe Müller/MEM.dat");
    for (const char* name : {"Cafe Müller/MEM.dat", "CAFE MÜLLER/mem.DAT", "cafe müller\\Mem.dat"}) {
        EXPECT_EQ(existingPath(folder.path(name)), QDir::toNativeSeparators(real)) << name;
        EXPECT_TRUE(pathExists(folder.path(name))) << name;
    }
    writeWholeFile(folder.path("cafe müller/mem.DAT"), "new");
    EXPECT_EQ(folder.read("Cafe Müller/MEM.dat"), "new") << "no second spelling beside it";
    EXPECT_FALSE(pathExists(folder.path("cafe müller/mem.da")));
    EXPECT_EQ(existingPath(folder.path("no\\such")), QDir::toNativeSeparators(folder.path("no/such")));

    const test::WorkingDirectory here(folder.path());
    EXPECT_EQ(existingPath(QStringLiteral("CAFE MÜLLER")), QStringLiteral("Cafe Müller"));
    EXPECT_EQ(readWholeFile(QStringLiteral("./cafe müller/../CAFE müller/MEM.DAT")), "new");

    folder.write("Cafe Müller/mem.dat", "small");
    if (folder.read("Cafe Müller/MEM.dat") == "new") { // this file system is case-sensitive
        EXPECT_EQ(readWholeFile(folder.path("CAFE Müller/mem.dat")), "small") << "an exact name wins";
        EXPECT_EQ(readWholeFile(folder.path("CAFE Müller/Mem.Dat")), "new") << "else the first by name";
    }
}

TEST(FilePaths, FailuresHaveTheirNumbers)
{
    const TestFolder folder;
    folder.write("sub/x", "");
    EXPECT_EQ(failureOf([&] { (void)readWholeFile(folder.path("none")); }), 53);
    EXPECT_EQ(failureOf([&] { (void)readWholeFile(folder.path("sub")); }), 75);
    EXPECT_EQ(failureOf([&] { writeWholeFile(folder.path("sub"), "x"); }), 75);
    EXPECT_EQ(failureOf([&] { writeWholeFile(folder.path("none/x"), "x"); }), 75);
}

TEST(FilePaths, AFullDiskLeavesTheFormerFileUnchanged)
{
    const TestFolder folder;
    folder.write("67.dat", "former");
    const test::FullDisk disk(4096);
    for (const int size : {100'000, 5000}) { // written at once, and held back in a buffer
        const QByteArray content(size, 'x');
        EXPECT_EQ(failureOf([&] { writeWholeFile(folder.path("67.dat"), content); }), 61) << size;
    }
    EXPECT_EQ(folder.read("67.dat"), "former");
    EXPECT_EQ(folder.names(), QStringList{QStringLiteral("67.dat")});
}

TEST(FilePaths, APipeOrDeviceIsWrittenInPlace)
{
    const TestFolder folder;
    const QByteArray pipe = folder.path("pipe").toLocal8Bit();
    ASSERT_EQ(mkfifo(pipe, 0600), 0);
    const int reader = open(pipe, O_RDONLY | O_NONBLOCK); // NOLINT(cppcoreguidelines-pro-type-vararg)
    writeWholeFile(folder.path("pipe"), "abc");
    char written[4]{};
    ASSERT_EQ(read(reader, written, sizeof written), 3);
    close(reader);
    EXPECT_EQ(failureOf([] { writeWholeFile(u"/dev/full"_s, "x"); }), 61);
}

} // namespace
} // namespace norvane
