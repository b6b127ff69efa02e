// What a shop manager sees and keeps when an exchange goes wrong, through the real dialog.
#include "tests/road/Shop.h"
#include "tests/support/FormTest.h"

namespace norvane
{
namespace
{

using test::BoxNumbers;
using test::Shop;
using test::ShownBox;

const BoxNumbers nothingLeft;

ShownBox communicationsError(const char* result)
{
    return {QStringLiteral("Communications Error ") + QLatin1String(result),
            QStringLiteral("Communication result"), BoxIcon::None};
}

/// A register that does not answer in the midst of a box: what came before stays, the box and all later ones
/// are still to do.
TEST(ExchangeFaults, ARegisterThatGoesOffLeavesTheRestTicked)
{
    Shop shop(2, 1);
    shop.folder().setFaults("[off]\nTool=VELMARCOMM\nCommand=fetch\nFile=9\nResult=8\n");
    EXPECT_EQ(shop.upload({1, 4, 5, 6}), (BoxNumbers{4, 5, 6}));
    EXPECT_EQ(shop.boxes().shown, std::vector{communicationsError("8")});
    EXPECT_GT(shop.rowsOf("PLUSTATUS"), 0);
    EXPECT_TRUE(QFile::exists(shop.values().customerPath + QStringLiteral("/8.dat")));
    EXPECT_FALSE(QFile::exists(shop.values().customerPath + QStringLiteral("/10.dat")));

    shop.boxes().shown.clear();
    shop.folder().setFaults("");
    EXPECT_EQ(shop.upload({4, 5, 6}), nothingLeft);
    EXPECT_TRUE(shop.boxes().shown.empty());
}

/// The registers ahead of the silent one have the new file, the box stays ticked.
TEST(ExchangeFaults, ASilentRegisterStopsASend)
{
    Shop shop(2, 3);
    EXPECT_EQ(shop.upload({2}), nothingLeft);
    shop.execute("update GROUPS set DESCRIPTION='Renamed' where GROUPNO=1");
    shop.folder().setFaults("[third]\nTool=VELMARCOMM\nCommand=send\nFile=1\nResult=8\nRegister=3\n");
    EXPECT_EQ(shop.download({2}), BoxNumbers{2});
    EXPECT_EQ(shop.boxes().shown, std::vector{communicationsError("8")});
    EXPECT_EQ(shop.recordsOf(1, 1).first().first(), QByteArray("Renamed     "));
    EXPECT_EQ(shop.recordsOf(2, 1).first().first(), QByteArray("Renamed     "));
    EXPECT_NE(shop.recordsOf(3, 1).first().first(), QByteArray("Renamed     "));
}

/// A conversion that fails is not noticed: the text of the former upload fills the table again.
TEST(ExchangeFaults, AFailedConversionReadsTheOldText)
{
    Shop shop(2, 1);
    EXPECT_EQ(shop.upload({2}), nothingLeft);
    const QString before = shop.stored("GROUPS", "DESCRIPTION");
    shop.execute("update GROUPS set DESCRIPTION='Renamed' where GROUPNO=1");
    shop.folder().setFaults("[bad]\nTool=convert\nCommand=u01\nResult=1\n");
    EXPECT_EQ(shop.upload({2}), nothingLeft);
    EXPECT_EQ(shop.stored("GROUPS", "DESCRIPTION"), before);
    EXPECT_TRUE(shop.boxes().shown.empty());
}

/// Without any text to read the table is empty and the program ends with the missing file's failure.
TEST(ExchangeFaults, AFailedFirstConversionEndsTheRun)
{
    Shop shop(2, 1);
    shop.folder().setFaults("[bad]\nTool=convert\nCommand=u01\nResult=1\n");
    (void)shop.upload({2});
    const auto failure = test::takeFailure();
    ASSERT_TRUE(failure.has_value());
    EXPECT_EQ(failure->number(), 53);
    EXPECT_TRUE(failure->text().contains(QStringLiteral("1.txt")));
    EXPECT_EQ(shop.rowsOf("GROUPS"), 0);
}

TEST(ExchangeFaults, AnEmptyOfferTableIsPassedOver)
{
    Shop shop(2, 1);
    EXPECT_EQ(shop.upload({15}), nothingLeft);
    const auto before = shop.recordsOf(1, 70);
    shop.execute("delete * from MIXNMATCH");
    EXPECT_EQ(shop.download({15}), nothingLeft);
    EXPECT_EQ(shop.recordsOf(1, 70), before) << "nothing was sent";
}

struct PointsCase {
    const char* name;
    int model;
    bool follow;
};

/// The PLUs clear their points in a register, so the points follow them - on models that have them.
TEST(ExchangeFaults, ThePointsFollowThePlus)
{
    for (const PointsCase& c : {PointsCase{"no smart cards", 0, false}, PointsCase{"smart cards", 2, true}}) {
        SCOPED_TRACE(c.name);
        Shop shop(c.model, 1);
        EXPECT_EQ(shop.upload({0}), nothingLeft);
        EXPECT_EQ(QFile::exists(shop.values().customerPath + QStringLiteral("/71.dat")), c.follow);
        EXPECT_EQ(shop.upload({34, 35, 36}), nothingLeft) << "unticked even where nothing moves";
        EXPECT_EQ(QFile::exists(shop.values().customerPath + QStringLiteral("/86.dat")), c.follow);
    }
}

} // namespace
} // namespace norvane
