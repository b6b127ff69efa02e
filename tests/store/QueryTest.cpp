// Queries and statements in the words that screens and utilities use.
#include "tests/store/StoreFolder.h"

namespace norvane::store::test
{
namespace
{

class QueryTest : public testing::Test
{
protected:
    QueryTest()
    {
        auto records = m_database.openTable(u"items"_s);
        for (const std::string each : {"1", "2", "3"}) {
            add(records, {{"NUMBER", Value::text(each)},
                          {"DESCRIPTION", Value::text("It's \"" + each + '"')},
                          {"GROUPNO", Value::text(each)},
                          {"TAX/x", Value::whole(each == "2" ? 0 : 1)},
                          {"OPENEURO&LOCALDRAWER", Value::text("0" + each + "/12/2003")},
                          {"#OfCondiments", Value::text(each == "1" ? "100" : each)}});
        }
    }

    std::string found(const QString& sql) { return rowsOf(m_folder.path(), sql); }

    StoreFolder m_folder;
    Database m_database{m_folder.path()};
};

constexpr std::pair<const char*, const char*> screenWords[] = {
    {"select number, groupno from items", "1|1 2|2 3|3"},
    {"SELECT [Number] FROM [ITEMS] WHERE [tax/X] = True ORDER BY [number] DESC;", "3 1"},
    {"select number from items where [TAX/x]=False", "2"},
    {"select number from items where description = \"It's \"\"2\"\"\"", "2"},
    {"select number from items where description = 'it''s \"3\"'", "3"},
    {"select number from items where description like '*2*'", "2"},
    {"select number from items where number like \"?\" and groupno > 2", "3"},
    {"select top 2 number from items order by number desc", "3 2"},
    {"select number from items where [OPENEURO&LOCALDRAWER] >= #12/02/2003#", "2 3"},
    {"select number & '-' & groupno as both from items where items!groupno = 1", "1-1"},
    {"select [#OfCondiments] from items order by [#OfCondiments]", "2 3 100"},
    {"select count(*), sum(groupno) from items", "3|6"},
    {"select distinct [TAX/x] from items order by 1 desc", "False True"},
    {"select number from items where number = 'True'", ""},
};

TEST_F(QueryTest, TakesTheWordsOfTheScreens)
{
    for (const auto& [sql, rows] : screenWords)
        EXPECT_EQ(found(QString::fromUtf8(sql)), rows) << sql;
}

TEST_F(QueryTest, UnknownNamesAndFaultyStatementsFail)
{
    for (const char* sql :
         {"nothing", "select number from nothing", "select nothing from items", "select [nothing] from items",
          "select number from items where nothing = 1", "selekt", "delete * from items", "", "  "}) {
        EXPECT_EQ(failureOf([&] { static_cast<void>(m_database.openQuery(QString::fromUtf8(sql))); }), 3061)
            << sql;
    }
    for (const char* sql : {"delete * from nothing", "update items set nothing = 1", "drop table items", ""})
        EXPECT_EQ(failureOf([&] { m_database.execute(QString::fromUtf8(sql)); }), 3061) << sql;
    EXPECT_EQ(failureOf([&] { m_database.execute(u"update items set groupno = 'x'"_s); }), 3421);
    EXPECT_EQ(m_database.openTable(u"items"_s).recordCount(), 3);
}

TEST_F(QueryTest, RowsOfOneTableCanBeChangedAndComputedOnesCannot)
{
    auto rows = m_database.openQuery(
        u"select number, description, groupno from items where groupno > 1 order by number desc"_s);
    EXPECT_EQ(rows.field(1).size, 16);
    EXPECT_EQ(rows.recordCount(), 2);
    ASSERT_TRUE(rows.moveTo(1));
    rows.edit();
    rows.setValue(u"Description"_s, text("Cola"));
    EXPECT_EQ(failureOf([&] { rows.setValue(2, text("x")); }), 3421);
    rows.update();
    EXPECT_EQ(rows.value(1), text("Cola"));
    EXPECT_EQ(found(u"select description from items where number = '2'"_s), "Cola");

    m_database.execute(u"delete * from items where number = '3'"_s);
    EXPECT_FALSE(rows.moveTo(0));
    EXPECT_FALSE(rows.moveTo(2));
    rows.moveFirst();
    EXPECT_EQ(rows.value(0), text("2")); // the deleted row is skipped
    rows.deleteRecord();
    EXPECT_EQ(rows.recordCount(), 1);
    EXPECT_EQ(found(u"items"_s).substr(0, 2), "1|");
    EXPECT_EQ(failureOf([&] { rows.addNew(); }), 3027);

    for (const char* sql : {"select groupno + 1 from items", "select distinct groupno from items",
                            "select count(*) from items", "select a.number from items a, items b",
                            "select number as n from items", "select groupno from items group by groupno",
                            "select number from items union select number from items",
                            "select number from (select number from items)"}) {
        auto computed = m_database.openQuery(QString::fromUtf8(sql));
        EXPECT_FALSE(computed.isUpdatable()) << sql;
        EXPECT_EQ(failureOf([&] { computed.edit(); }), 3027) << sql;
    }
}

} // namespace
} // namespace norvane::store::test
