// Parts of a programme copied to another shop: what is listed first, what is stored, what each shop keeps.
#include "programme/PartCopy.h"

#include "store/catalogue/Catalogue.h"
#include "tests/platform/TestFolder.h"
#include "tests/store/Rows.h"

#include <optional>

namespace norvane::programme
{
namespace
{

using test::addRecord;
using test::text;
using test::whole;

class PartCopyTest : public testing::Test
{
protected:
    PartCopyTest()
    {
        for (const char* shop : {"from.mdb", "to.mdb"})
            store::Database::create(m_folder.path(shop), store::catalogue());
        m_from.emplace(m_folder.path("from.mdb"));
        m_to.emplace(m_folder.path("to.mdb"));
    }
    static void addPlu(store::Database& shop, const char* number, const char* name, const char* price,
                       int points = 0)
    {
        addRecord(shop, "PLUDATA",
                  {{"PLUNUMBER", text(number)},
                   {"DESCRIPTION", text(name)},
                   {"PRICE1", text(price)},
                   {"POINT1", whole(points)}});
    }
    [[nodiscard]] PartComparison compare(const QStringList& tables, const QStringList& records = {})
    {
        return PartComparison({*m_from, modelOfText(m_fromModel)}, {*m_to, modelOfText(m_toModel)},
                              {tables, records});
    }
    static QString listed(const PartComparison& comparison)
    {
        constexpr const char* kinds[] = {"new", "changed", "gone"};
        QStringList lines;
        comparison.forEach([&](const RecordChange& change) {
            lines << u"%1 %2 %3"_s.arg(change.record, QLatin1StringView(kinds[static_cast<int>(change.kind)]),
                                       change.text);
            for (const FieldChange& field : change.fields)
                lines << u"%1 %2>%3"_s.arg(field.field, field.before, field.after);
            return true;
        });
        return lines.join(u"; "_s);
    }
    static QString leftOut(const PartComparison& comparison)
    {
        QStringList lines;
        for (const LeftOut& what : comparison.leftOut())
            lines << what.inWords();
        return lines.join(u'\n');
    }
    [[nodiscard]] std::string rows(const char* sql) const
    {
        return test::rowsOf(m_folder.path("to.mdb"), QLatin1StringView(sql));
    }

    test::TestFolder m_folder;
    std::optional<store::Database> m_from;
    std::optional<store::Database> m_to;
    QString m_fromModel = u"2"_s;
    QString m_toModel = u"2"_s;
};

const QStringList plus{u"PLUDATA"_s};
constexpr const char* allPlus =
    "select plunumber, description, price1, point1 from pludata order by plunumber";

TEST_F(PartCopyTest, WholeTablesBecomeThoseOfTheOtherShopExceptForItsPoints)
{
    addPlu(*m_from, "1", "Tea", "2.50", 7);
    addPlu(*m_from, "2", "Same  ", "1.50", 7);
    addPlu(*m_from, "4", "Cake", "3.00", 7);
    addPlu(*m_to, "1", "Tea", "2", 9);
    addPlu(*m_to, "2", "Same", " 1.5", 9);
    addPlu(*m_to, "3", "Old", "1.00", 9);
    const auto comparison = compare(plus);
    EXPECT_EQ(listed(comparison), u"1 changed Tea; PRICE1 2.00>2.50; 3 gone Old; 4 new Cake"_s);
    EXPECT_EQ(comparison.counts().inWords(), u"1 new, 1 changed, 1 gone"_s);
    applyParts(comparison);
    EXPECT_EQ(rows(allPlus), "1|Tea|2.50|9 2|Same| 1.5|9 4|Cake|3.00|0");
    EXPECT_EQ(rows("select _rowid_ from pludata where plunumber = '4'"), "4")
        << "3 was that of the removed one";
    EXPECT_EQ(compare(plus).counts().all(), 0);
}

TEST_F(PartCopyTest, OfChosenRecordsNothingIsGone)
{
    addPlu(*m_from, "1", "Tea", "2.50");
    addPlu(*m_from, "2", "Cake", "3.00");
    addPlu(*m_from, "5", "Milk", "1.00");
    addPlu(*m_to, "2", "Pie", "3.00");
    addPlu(*m_to, "3", "Old", "1.00");
    applyParts(compare(plus, {u"2"_s, u"5"_s}));
    EXPECT_EQ(rows(allPlus), "2|Cake|3.00|0 3|Old|1.00|0 5|Milk|1.00|0");
    EXPECT_EQ(test::failureOf([&] { static_cast<void>(compare(plus, {u"8"_s})); }), 3167);
}

/// The second table fails after the first was stored.
TEST_F(PartCopyTest, AFailureOrAShopThatChangedMeanwhileLeavesEverythingAsItWas)
{
    addPlu(*m_from, "1", "Tea", "2.50");
    addRecord(*m_from, "GROUPS", {{"GROUPNO", whole(1)}, {"DESCRIPTION", text("Drinks")}});
    const QStringList both{u"PLUDATA"_s, u"GROUPS"_s};
    const auto comparison = compare(both);
    int asked = 0;
    EXPECT_EQ(test::failureOf([&] { applyParts(comparison, [&] { return ++asked < 2; }); }), 18);
    EXPECT_EQ(rows(allPlus), "");
    addRecord(*m_to, "GROUPS", {{"GROUPNO", whole(1)}, {"DESCRIPTION", text("Food")}});
    EXPECT_TRUE(test::failureTextOf([&] { applyParts(comparison); }).contains("Nothing was copied"_L1));
    EXPECT_EQ(rows(allPlus), "");
    applyParts(compare(both));
    EXPECT_EQ(rows("select description from groups"), "Drinks");
}

/// Their one record is matched by its place: its key counts on with every upload.
TEST_F(PartCopyTest, TheServiceModeKeepsTheNumberOfTheShop)
{
    addRecord(*m_from, "smode", {{"storenumber", whole(1)}});
    m_from->execute(u"delete from smode"_s);
    addRecord(*m_from, "smode", {{"storenumber", whole(1)}, {"xpass", whole(1234)}});
    addRecord(*m_to, "smode", {{"storenumber", whole(2)}, {"xpass", whole(0)}});
    const auto comparison = compare({u"smode"_s});
    EXPECT_EQ(listed(comparison), u"1 changed ; xpass 0>1234"_s);
    applyParts(comparison);
    EXPECT_EQ(rows("select id, storenumber, xpass from smode"), "1|2|1234");
}

TEST_F(PartCopyTest, AnotherModelGetsWhatItsRegistersHold)
{
    m_fromModel = u"2"_s;
    m_toModel = u"3"_s;
    const QByteArray longLine(33, 'x');
    addRecord(*m_from, "LOGOMESSAGE",
              {{"ID", whole(1)},
               {"PREAMBLE1", text(longLine.constData())},
               {"PREAMBLE2", text("Hello            "
                                  "                ")}});
    addRecord(*m_to, "LOGOMESSAGE", {{"ID", whole(1)}, {"PREAMBLE1", text("ours")}});
    addRecord(*m_to, "NLU", {{"ID", whole(1)}, {"NLU", text("5")}});
    const auto comparison = compare({u"NLU"_s, u"LOGOMESSAGE"_s});
    EXPECT_EQ(leftOut(comparison), u"NLU: The keyboards of the two models have different keys.\n"
                                   "LOGOMESSAGE, record 1, PREAMBLE1: The printer of this shop has 32 "
                                   "characters in a line."_s);
    applyParts(comparison);
    EXPECT_EQ(rows("select preamble1, trim(preamble2) from logomessage"), "ours|Hello");
    EXPECT_EQ(rows("select nlu from nlu"), "5");
}

TEST_F(PartCopyTest, CardsAreCopiedOnlyBetweenModelsThatKnowThem)
{
    const auto addKeys = [](store::Database& shop, int flags) {
        for (const int key : {17, 18, 257}) {
            addRecord(shop, "FUNCTIONKEY",
                      {{"id", whole(key)}, {"HALO", whole(flags)}, {"flag2", whole(flags)}});
        }
    };
    addKeys(*m_from, 11);
    addKeys(*m_to, 0);
    addRecord(*m_to, "HOTLIST", {{"id", whole(1)}});
    for (const char* models : {"20", "02"}) {
        m_fromModel = QLatin1StringView(models).first(1);
        m_toModel = QLatin1StringView(models).last(1);
        EXPECT_EQ(listed(compare({u"FUNCTIONKEY"_s, u"HOTLIST"_s})),
                  u"17 changed ; HALO 0>11; flag2 0>11; 18 changed ; HALO 0>11; flag2 0>11"_s);
    }
    applyParts(compare({u"FUNCTIONKEY"_s, u"HOTLIST"_s}));
    EXPECT_EQ(rows("select id, halo, flag2 from functionkey"), "17|11|11 18|11|0 257|0|0");
    EXPECT_EQ(rows("select id from hotlist"), "1")
        << "an empty list of a model without cards removes nothing";
    m_fromModel = m_toModel;
    applyParts(compare({u"FUNCTIONKEY"_s, u"HOTLIST"_s}));
    EXPECT_EQ(rows("select id, flag2 from functionkey"), "17|11 18|11 257|11");
    EXPECT_EQ(rows("select id from hotlist"), "");
}

} // namespace
} // namespace norvane::programme
