// Copies of register files between two folders, as they stand on disk afterwards.
#include "exchange/MoveDataFile.h"

#include "tests/platform/TestFolder.h"

namespace norvane::exchange
{
namespace
{

TEST(MoveDataFile, CopiesWithoutRegardToCaseOrLeavesNoTarget)
{
    const test::TestFolder source;
    const test::TestFolder target;
    source.write("N67.DAT", "other");
    source.write("67.DAT", "new");
    target.write("67.Dat", "old");
    target.write("68.dat", "kept");
    MoveDataFile(source.path(), target.path(), QStringLiteral("\\67.dat"));
    EXPECT_EQ(target.names(), (QStringList{QStringLiteral("67.Dat"), QStringLiteral("68.dat")}));
    EXPECT_EQ(target.read("67.Dat"), "new");
    EXPECT_EQ(source.names().size(), 2);

    QFile::remove(source.path("67.DAT"));
    MoveDataFile(source.path(), target.path(), QStringLiteral("67.dat"));
    EXPECT_EQ(target.names(), QStringList{QStringLiteral("68.dat")});
    EXPECT_EQ(test::failureOf(
                  [&] { MoveDataFile(source.path(), target.path("absent"), QStringLiteral("N67.dat")); }),
              75);
}

} // namespace
} // namespace norvane::exchange
