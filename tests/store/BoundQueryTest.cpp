// Selects with bound values: what a value may hold, and how a long one is given up.
#include "store/engine/BoundQuery.h"

#include "tests/store/StoreFolder.h"

#include <stdexcept>

namespace norvane::store::test
{
namespace
{

const QString work = u"The test's query."_s;
constexpr const char* endless = "WITH RECURSIVE n(i) AS (SELECT 1 UNION ALL SELECT i + 1 FROM n) "
                                "SELECT max(i) FROM n";

class BoundQueryTest : public testing::Test
{
protected:
    StoreFolder m_folder;
    Database m_database{m_folder.path()};
};

TEST_F(BoundQueryTest, ValuesNeverBecomePartOfTheStatement)
{
    auto records = m_database.openTable(u"Items"_s);
    const std::string odd = "x' OR 1=1 --";
    add(records, {{"NUMBER", Value::text(odd)}, {"COUNT1", Value::number(0.1)}});
    BoundQuery query(m_database, "SELECT NUMBER, COUNT1, GROUPNO FROM Items WHERE NUMBER = ?",
                     {Value::text(odd)}, work);
    ASSERT_TRUE(query.next());
    EXPECT_EQ(query.value(0), Value::text(odd));
    EXPECT_EQ(query.value(1), Value::number(0.1));
    EXPECT_TRUE(query.value(2).isNull());
    EXPECT_FALSE(query.next());
}

TEST_F(BoundQueryTest, OnlyReads)
{
    for (const char* const sql : {"DELETE FROM Items", "SELECT nothing FROM Items",
                                  "SELECT \"nothing\" FROM Items", "DROP TABLE Items"})
        EXPECT_EQ(failureOf([&] { BoundQuery(m_database, sql, {}, work); }), 3061) << sql;
    EXPECT_TRUE(m_database.hasTable(u"Items"_s));
}

TEST_F(BoundQueryTest, ALongStatementStopsWhenItsCallerSaysSo)
{
    int asked = 0;
    {
        BoundQuery query(m_database, endless, {}, work, [&asked] { return ++asked < 3; });
        EXPECT_EQ(failureOf([&query] { query.next(); }), 3000);
        EXPECT_TRUE(query.wasGivenUp());
        EXPECT_EQ(asked, 3);
    }
    BoundQuery thrower(m_database, endless, {}, work, []() -> bool { throw std::logic_error("asked"); });
    EXPECT_THROW(thrower.next(), std::logic_error);
}

} // namespace
} // namespace norvane::store::test
