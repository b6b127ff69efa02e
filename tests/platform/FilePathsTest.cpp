// Case-blind file names, whole files read and replaced, and what a full disk leaves behind.
#include "platform/FilePaths.h"

#include "tests/platform/TestFolder.h"

#ifdef Q_OS_UNIX
#include <csignal>
#include <sys/resource.h>
#endif

namespace norvane
{
namespace
{

using test::failureOf;
using test::TestFolder;
using test::WorkingDirectory;

TEST(FilePaths, JoinsWithOneSeparatorWhateverTheNameBeginsWith)
{
    const QString wanted = QDir::toNativeSeparators(QStringLiteral("/app/Cafe/setup.ini"));
    for (const auto* name : {u"Cafe/setup.ini", u"/Cafe/setup.ini", u"\\Cafe\\setup.ini"}) {
        EXPECT_EQ(joinPath(QStringLiteral("/app"), QString::fromUtf16(name)), wanted);
        EXPECT_EQ(joinPath(QStringLiteral("/app/"), QString::fromUtf16(name)), wanted);
    }
    EXPECT_EQ(joinPath(QString(), QStringLiteral("mem.dat")), QStringLiteral("mem.dat"));
}

TEST(FilePaths, NamesMeetWithoutRegardToCaseInEveryPart)
{
    const TestFolder folder;
    folder.write("Cafe Müller/MEM.dat", "m");
    const QString real = folder.path("Cafe Müller/MEM.dat");
    for (const char* name : {"Cafe Müller/MEM.dat", "CAFE MÜLLER/mem.DAT", "cafe müller\\Mem.dat"}) {
        EXPECT_EQ(existingPath(folder.path(name)), QDir::toNativeSeparators(real)) << name;
        EXPECT_TRUE(pathExists(folder.path(name))) << name;
    }
    EXPECT_FALSE(pathExists(folder.path("cafe müller/mem.da")));
    EXPECT_EQ(existingPath(folder.path("no\\such")), QDir::toNativeSeparators(folder.path("no/such")));

    const WorkingDirectory here(folder.path());
    EXPECT_EQ(existingPath(QStringLiteral("CAFE MÜLLER")), QStringLiteral("Cafe Müller"));
    EXPECT_EQ(readWholeFile(QStringLiteral("./cafe müller/../CAFE müller/MEM.DAT")), "m");
}

TEST(FilePaths, AnExactNameWinsOverItsSisters)
{
    const TestFolder folder;
    folder.write("mem.dat", "small");
    folder.write("MEM.DAT", "capital");
    folder.write("Mem.dat", "mixed");
    if (folder.names().size() < 3) {
        GTEST_SKIP() << "this file system does not tell case apart";
    }
    EXPECT_EQ(readWholeFile(folder.path("mem.dat")), "small");
    EXPECT_EQ(readWholeFile(folder.path("MEM.DAT")), "capital");
    EXPECT_EQ(readWholeFile(folder.path("mEM.dAT")), "capital"); // the first by name, always the same
}

TEST(FilePaths, WritingReplacesTheFileThatIsThere)
{
    const TestFolder folder;
    folder.write("Cafe/N67.DAT", "a long old content");
    writeWholeFile(folder.path("CAFE/n67.dat"), "new");
    writeWholeFile(folder.path("cafe/58.txt"), QByteArray("\0\r\n", 3));
    EXPECT_EQ(folder.names(), QStringList{QStringLiteral("Cafe")});
    EXPECT_EQ(folder.read("Cafe/N67.DAT"), "new");
    EXPECT_EQ(readWholeFile(folder.path("Cafe/58.TXT")), QByteArray("\0\r\n", 3));
}

TEST(FilePaths, FailuresCarryTheirNumbers)
{
    const TestFolder folder;
    folder.write("sub/x", "");
    EXPECT_EQ(failureOf([&] { (void)readWholeFile(folder.path("none")); }), 53);
    EXPECT_EQ(failureOf([&] { (void)readWholeFile(folder.path("sub")); }), 75);
    EXPECT_EQ(failureOf([&] { writeWholeFile(folder.path("sub"), "x"); }), 75);
    EXPECT_EQ(failureOf([&] { writeWholeFile(folder.path("none/x"), "x"); }), 75);
}

#ifdef Q_OS_UNIX
TEST(FilePaths, AFullDiskLeavesTheFormerFileWhole)
{
    const TestFolder folder;
    folder.write("67.dat", "former");
    // No file may grow beyond 4096 bytes for a while, as on a disk that has just filled up.
    rlimit before{};
    getrlimit(RLIMIT_FSIZE, &before);
    const rlimit full{4096, before.rlim_max};
    const auto handler = std::signal(SIGXFSZ, SIG_IGN);
    setrlimit(RLIMIT_FSIZE, &full);
    const int direct = failureOf([&] { writeWholeFile(folder.path("67.dat"), QByteArray(100'000, 'x')); });
    const int buffered = failureOf([&] { writeWholeFile(folder.path("67.dat"), QByteArray(5000, 'x')); });
    setrlimit(RLIMIT_FSIZE, &before);
    (void)std::signal(SIGXFSZ, handler);
    EXPECT_EQ(direct, 61);
    EXPECT_EQ(buffered, 61);
    EXPECT_EQ(folder.read("67.dat"), "former");
    EXPECT_EQ(folder.names(), QStringList{QStringLiteral("67.dat")});
}
#endif

} // namespace
} // namespace norvane
