// Lists of planned changes: their files, what is stored of them on their day, and lists that build on each
// other.
#include "articles/PlannedChanges.h"

#include "articles/SpreadsheetError.h"
#include "store/catalogue/Catalogue.h"
#include "tests/platform/TestFolder.h"
#include "tests/store/Rows.h"

#include <algorithm>
#include <optional>

namespace norvane::articles
{
namespace
{

const QDate newYear{2027, 1, 1};
constexpr int messageWidth = 24;

/// The group 7 and the PLUs 1, 2 and 3 at 1.20.
class PlannedShop
{
public:
    PlannedShop()
    {
        store::Database::create(m_folder.path("velmar.mdb"), store::catalogue());
        m_database.emplace(m_folder.path("velmar.mdb"));
        test::addRecord(*m_database, "GROUPS", {{"GROUPNO", test::whole(7)}});
        for (const char* const number : {"000000000000000001", "000000000000000002", "000000000000000003"}) {
            test::addRecord(*m_database, "PLUDATA",
                            {{"PLUNUMBER", test::text(number)}, {"PRICE1", test::text("1.2")}});
        }
    }

    void execute(const QString& sql) { m_database->execute(sql); }
    [[nodiscard]] std::string prices() const
    {
        return test::rowsOf(m_folder.path("velmar.mdb"), u"select PRICE1 from PLUDATA order by PLUNUMBER"_s);
    }
    /// What the file @p csv would change on @p day.
    [[nodiscard]] PlannedList listOf(const QByteArray& csv, const QDate& day)
    {
        const ExpectedDay expected(*m_database, m_folder.path(), day, messageWidth);
        const TableSheet sheet = pluSheet();
        const SheetComparison comparison(*m_database, sheet, csv);
        EXPECT_TRUE(comparison.mistakes().isEmpty());
        return plannedListFrom(comparison, day, u"V3"_s, u"prices, of Müller.csv"_s);
    }
    int plan(const QByteArray& csv, const QDate& day)
    {
        return addPlannedList(m_folder.path(), listOf(csv, day));
    }
    [[nodiscard]] PlannedFile file(int number) const
    {
        const auto files = plannedFiles(m_folder.path());
        return *std::ranges::find(files, number, &PlannedFile::number);
    }
    void cancel(int number) { cancelPlannedList(m_folder.path(), file(number)); }
    void planAgain(int number) { replanList(m_folder.path(), file(number)); }
    PlannedResult store(const PlannedList& list)
    {
        return storePlannedList(*m_database, sheetOfPlanned(list, messageWidth), list);
    }
    /// Stores all lists in their order. @return what was left out, a line for each.
    std::string storeAll()
    {
        std::string left;
        for (auto& [listFile, list] : readLists(m_folder.path(), PlannedState::Planned)) {
            for (const auto& each : store(list).leftOut)
                left += each.inWords(u"PLU"_s).toStdString() + '\n';
            setPlannedState(listFile, PlannedState::Done);
        }
        return left;
    }

private:
    test::TestFolder m_folder;
    std::optional<store::Database> m_database;
};

bool isSound(const QByteArray& text)
{
    try {
        (void)plannedListOf(text);
        return true;
    } catch (const SpreadsheetError&) {
        return false;
    }
}

TEST(PlannedList, IsReadAsWrittenAndNotAtAllOnceDamaged)
{
    PlannedShop shop;
    PlannedList list = shop.listOf("Number,Description,Price 1\n1,\"=Cola \"\"0.5\",1.3\n9,New,1\n", newYear);
    list.records[0].fields[0].before = u" a, b\nä"_s;
    const QByteArray text = plannedText(list);
    EXPECT_EQ(plannedListOf(text), list) << text.toStdString();
    EXPECT_TRUE(text.contains("Store on,2027-01-01\r\n") && text.contains("001,Price 1,1.20,1.30\r\n"))
        << text.toStdString();
    for (qsizetype place = 0; place < text.size(); ++place) {
        QByteArray damaged = text;
        damaged[place] = static_cast<char>(damaged[place] ^ 1);
        EXPECT_FALSE(isSound(damaged)) << place;
        EXPECT_FALSE(isSound(text.first(place))) << place;
    }
}

TEST(PlannedUpdate, LeavesOutWhatNoLongerApplies)
{
    PlannedShop shop;
    const PlannedList list =
        shop.listOf("Number,Price 1,Group\n1,1.3,7\n2,1.3,\n3,1.3,\n8,8,\n9,9,7\n", newYear);
    shop.execute(u"update PLUDATA set PRICE1 = '1.4' where PLUNUMBER like '%1'"_s);
    shop.execute(u"delete from PLUDATA where PLUNUMBER like '%2'"_s);
    shop.execute(u"insert into PLUDATA (PLUNUMBER, PRICE1) values ('000000000000000008', '5')"_s);
    shop.execute(u"delete from GROUPS"_s);
    const PlannedResult result = shop.store(list);
    QStringList left;
    for (const auto& each : result.leftOut)
        left << each.inWords(u"PLU"_s);
    EXPECT_EQ(left.join(u'\n').toStdString(),
              "PLU 1, Price 1: it is \"1.40\", not \"1.20\" any more; \"1.30\" was planned\n"
              "PLU 8, Price 1: the record was added meanwhile; it has \"5.00\", \"8.00\" was planned\n"
              "PLU 2: the record was deleted\n"
              "PLU 1, Group: there is no group 7\n"
              "PLU 9, Group: there is no group 7");
    EXPECT_EQ(result.inWords(u"PLU"_s), u"1 PLU changed, 5 not stored"_s);
    EXPECT_EQ(shop.prices(), "1.4 1.3 5");
}

/// As after a power cut between storing and renaming the file.
TEST(PlannedUpdate, AsksNothingOfWhatIsStoredAlready)
{
    PlannedShop shop;
    const PlannedList list = shop.listOf("Number,Price 1,Description\n1,1.3,Tea \n9,9,New\n", newYear);
    EXPECT_EQ(shop.store(list).inWords(u"PLU"_s), u"1 PLU changed, 1 new"_s);
    const PlannedResult again = shop.store(list);
    EXPECT_EQ(again.inWords(u"PLU"_s), u"0 PLUs changed"_s);
    EXPECT_TRUE(again.isStored());
}

/// A lower price for a month, then the former one: the second file has today's prices.
TEST(PlannedChanges, BuildOnTheListsBefore)
{
    PlannedShop shop;
    EXPECT_EQ(shop.plan("Number,Price 1\n1,0.99\n9,9\n", newYear), 1);
    EXPECT_EQ(shop.plan("Number,Price 1\n1,1.2\n2,1.2\n9,10\n", newYear.addMonths(1)), 2);
    EXPECT_EQ(shop.prices(), "1.2 1.2 1.2") << "planning stores nothing";
    const PlannedList second = shop.file(2).read();
    ASSERT_EQ(second.records.size(), 2);
    EXPECT_EQ(second.records[0].fields, (QList<PlannedField>{{u"Price 1"_s, u"0.99"_s, u"1.20"_s}}));
    EXPECT_EQ(shop.storeAll(), "");
    EXPECT_EQ(shop.prices(), "1.2 1.2 1.2 10");
}

TEST(PlannedChanges, PassOnWhatIsPlannedOrCancelledBefore)
{
    PlannedShop shop;
    shop.plan("Number,Price 1\n1,1.5\n", newYear.addMonths(1));
    shop.plan("Number,Price 1\n1,1.3\n2,1.3\n", newYear);
    const auto beforeOfLater = [&shop] {
        return shop.file(1).read().records[0].fields[0].before.toStdString();
    };
    EXPECT_EQ(beforeOfLater(), "1.30");
    shop.cancel(2);
    EXPECT_EQ(beforeOfLater(), "1.20");
    EXPECT_EQ(shop.plan("Number,Price 1\n3,3\n", newYear), 3) << "the number of a cancelled list is not used";
    shop.planAgain(2);
    EXPECT_EQ(beforeOfLater(), "1.30");
    EXPECT_EQ(shop.storeAll(), "");
    EXPECT_EQ(shop.prices(), "1.5 1.3 3");
}

} // namespace
} // namespace norvane::articles
