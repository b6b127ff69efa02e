// What counts as not sent after real exchanges with a bank of registers.
#include "base/CustomerSettings.h"
#include "exchange/UnsentChanges.h"
#include "platform/ProfileFile.h"
#include "tests/exchange/Exchange.h"

namespace norvane::exchange
{
namespace
{

constexpr int groupBox = 2;
constexpr int functionKeyBox = 3;
constexpr int bitmapBox = 22;

BoxChanges changesOf(const Exchange& shop, int box)
{
    return unsentChanges(shop.values).at(static_cast<std::size_t>(box));
}

/// The boxes with something to send, in words.
std::string unsent(const Exchange& shop)
{
    const AllChanges changes = unsentChanges(shop.values);
    QStringList boxes;
    for (int box = 0; box < boxCount; ++box) {
        if (const BoxChanges& of = changes.at(static_cast<std::size_t>(box)); of.isUnsent())
            boxes << u"%1: %2"_s.arg(boxName(box), changesInWords(of));
    }
    return boxes.join(u'\n').toStdString();
}

void rename(const Exchange& shop, int group, const char* name)
{
    test::execute(
        shop.values.databasePath,
        u"update GROUPS set DESCRIPTION='%1' where GROUPNO=%2"_s.arg(QLatin1String(name)).arg(group));
}

QString ledgerOf(const Exchange& shop)
{
    return joinPath(shop.values.customerPath, u"norvane.sent"_s);
}

TEST(ExchangeLedger, CountsNothingAfterAFetchAndOneRecordAfterAnEdit)
{
    for (int model = 0; model <= 3; ++model) {
        SCOPED_TRACE(model);
        Exchange shop(model);
        EXPECT_EQ(unsent(shop), "") << "a new customer has nothing to send";
        shop.upload(allBoxes());
        EXPECT_EQ(unsent(shop), "");
        rename(shop, 2, "Mine");
        EXPECT_EQ(unsent(shop), "Group: 1 record not sent");
        test::execute(shop.values.databasePath, u"update PLUDATA set PRICE1='9.99' where PLUNUMBER = "
                                                u"(select max(PLUNUMBER) from PLUDATA)"_s);
        EXPECT_EQ(changesOf(shop, pluBox), BoxChanges{.records = 1});
        shop.download({pluBox, groupBox});
        EXPECT_EQ(unsent(shop), "");
        test::execute(shop.values.databasePath, u"delete from PLUDATA where PLUNUMBER = "
                                                u"(select min(PLUNUMBER) from PLUDATA)"_s);
        EXPECT_EQ(changesOf(shop, pluBox), BoxChanges{.records = 1}) << "the PLUs after it are the same";
    }
}

TEST(ExchangeLedger, NumberedRecordsThatChangePlacesAreTwoChanges)
{
    Exchange shop(2);
    shop.upload({groupBox});
    rename(shop, 1, "First");
    rename(shop, 2, "Second");
    shop.download({groupBox});
    EXPECT_EQ(changesOf(shop, groupBox), BoxChanges());
    rename(shop, 1, "Second");
    rename(shop, 2, "First");
    EXPECT_EQ(changesOf(shop, groupBox), BoxChanges{.records = 2});
}

TEST(ExchangeLedger, AKeptFileCountsWhileItDiffers)
{
    Exchange shop(2);
    shop.upload({bitmapBox});
    const QByteArray picture = readWholeFile(shop.kept(83));
    EXPECT_EQ(unsent(shop), "");
    writeWholeFile(shop.kept(83), "another picture");
    EXPECT_EQ(unsent(shop), "Bitmap: 1 file not sent");
    writeWholeFile(shop.kept(83), picture);
    shop.download({bitmapBox});
    EXPECT_EQ(unsent(shop), "");
}

/// Register 2 of 3 is off: 1 has the new name, 2 and 3 may not.
TEST(ExchangeLedger, ASendThatFailedOnTheWayCountsUntilItSucceeds)
{
    Exchange shop(2, 3);
    shop.upload({groupBox});
    rename(shop, 1, "New");
    shop.folder.setFaults("[Off]\nCommand=send\nRegister=2\nResult=8\n");
    shop.download({groupBox});
    EXPECT_EQ(unsent(shop), "Group: 1 record not sent, some registers may have it");
    shop.folder.setFaults("");

    shop.upload({groupBox});
    EXPECT_EQ(shop.firstGroup(), "New         ") << "as register 1 has it";
    EXPECT_EQ(unsent(shop), "Group: 1 record not sent, some registers may have it");
    rename(shop, 1, "GROUP 1");
    EXPECT_TRUE(changesOf(shop, groupBox).mayBeAtSome) << "the former name has to be sent, too";
    shop.download({groupBox});
    EXPECT_EQ(unsent(shop), "");
}

TEST(ExchangeLedger, WhatAFailedToolLeftIsNotTakenForSent)
{
    Exchange shop(2);
    shop.upload({groupBox});
    shop.download({groupBox});
    for (const char* const fault : {"Tool=convert\nCommand=d01\nResult=1", "Command=send\nStatus=none"}) {
        rename(shop, 1, fault);
        shop.folder.setFaults(QByteArray("[Doubt]\n") + fault + '\n');
        shop.boxes.answers.assign(5, true);
        shop.download({groupBox});
        EXPECT_TRUE(shop.ticks.ticked.empty());
        EXPECT_TRUE(changesOf(shop, groupBox).mayBeAtSome) << fault;
        shop.folder.setFaults("");
        shop.download({groupBox});
        EXPECT_EQ(unsent(shop), "");
    }
}

/// What the disk holds while the tool sends is what a killed program leaves.
TEST(ExchangeLedger, ASendThatWasKilledMayBeAtSome)
{
    Exchange shop(2, 2);
    shop.upload({groupBox, functionKeyBox});
    std::string during;
    shop.afterTool = [&](const QString& line) {
        if (line.contains(u"N1.DAT"_s))
            during = unsent(shop);
    };
    shop.download({groupBox, functionKeyBox});
    EXPECT_EQ(during, "Group: some registers may have it\nFunction Keys: some registers may have it");
    EXPECT_EQ(unsent(shop), "");
}

TEST(ExchangeLedger, AddedRegistersHaveNothing)
{
    Exchange shop(2, 2);
    shop.upload({groupBox});
    const auto setRegisters = [&shop](const char* index) {
        ProfileFile::write(settingsPath(shop.values), u"SetupOption"_s, u"NoOfECRs"_s, QLatin1String(index));
    };
    setRegisters("2");
    EXPECT_EQ(unsent(shop), "Group: not at all registers");
    setRegisters("0");
    EXPECT_EQ(unsent(shop), "");
}

TEST(ExchangeLedger, WithoutASoundLedgerOfThisShopEverythingCounts)
{
    Exchange shop(2);
    shop.upload({groupBox});
    const QByteArray sound = readWholeFile(ledgerOf(shop));
    const qint64 groups =
        std::stoll(test::rowsOf(shop.values.databasePath, u"select count(*) from GROUPS"_s));
    const BoxChanges all{.records = groups};
    for (const QByteArray& damaged : {QByteArray(), sound.chopped(1), sound + 'x', QByteArray("no ledger"),
                                      QByteArray(sound).replace(40, 1, "?")}) {
        writeWholeFile(ledgerOf(shop), damaged);
        EXPECT_EQ(changesOf(shop, groupBox), all);
    }
    EXPECT_TRUE(QFile::remove(ledgerOf(shop)));
    EXPECT_EQ(changesOf(shop, groupBox), all);

    const ApplicationValues other = shop.folder.makeCustomer(u"Bakery"_s);
    EXPECT_TRUE(QFile::remove(other.databasePath));
    EXPECT_TRUE(QFile::copy(shop.values.databasePath, other.databasePath));
    writeWholeFile(joinPath(other.customerPath, u"norvane.sent"_s), sound);
    EXPECT_EQ(unsentChanges(other).at(groupBox), all) << "a ledger of another shop";
    writeWholeFile(ledgerOf(shop), sound);
    EXPECT_EQ(unsent(shop), "");
    ProfileFile::write(settingsPath(shop.values), u"SetupOption"_s, u"ECRModel"_s, u"3"_s);
    EXPECT_EQ(changesOf(shop, groupBox), all) << "other registers";
}

/// As many lines as PLUs, but one PLU twice and another not at all.
TEST(ExchangeLedger, AFetchedTextWithOnePluTwiceCountsAsTheTableThatItLeft)
{
    Exchange shop(2);
    shop.afterTool = [](const QString& line) {
        if (!line.contains(u"t71.txt"_s))
            return;
        QByteArrayList lines = readWholeFile(u"71.txt"_s).split('\n');
        lines[1] = lines[0].replace("0000,0000", "0000,0007");
        writeWholeFile(u"71.txt"_s, lines.join('\n'));
    };
    shop.upload({pluBox});
    EXPECT_EQ(unsent(shop), "");
    EXPECT_EQ(test::rowsOf(shop.values.databasePath, u"select count(*) from PLUDATA where POINT1 is null"_s),
              "1");
}

/// Registers with cards forget the points with the PLUs.
TEST(ExchangeLedger, PointsFollowTheirPlus)
{
    Exchange shop(2);
    shop.upload({pluBox});
    EXPECT_EQ(unsent(shop), "");
    shop.folder.setFaults("[Off]\nCommand=send\nFile=71\nResult=8\n");
    shop.download({pluBox});
    EXPECT_TRUE(changesOf(shop, pluPointsBox).isUnsent());
    EXPECT_FALSE(changesOf(shop, pluBox).isUnsent());
    shop.folder.setFaults("");
    shop.uploadPlusWithoutPoints();
    EXPECT_FALSE(changesOf(shop, pluPointsBox).isUnsent()) << "the points are those of the register";
}

} // namespace
} // namespace norvane::exchange
