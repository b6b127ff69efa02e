// The chain in a browser, read as a strict parser reads it and held against plain sums.
#include "tests/chain/ChainTest.h"

#include <QtTest>
#include <QXmlStreamReader>

namespace norvane::test
{
namespace
{

class PagesTest : public ChainTest
{
protected:
    PagesTest() { QDir().mkpath(m_folder.path("site")); }

    [[nodiscard]] Ended pages(const QString& folder) const
    {
        return runCommand(m_folder.path(), {u"chain"_s, u"pages"_s, u"--to"_s,
                                            postgres().connection(m_database), u"--out"_s, folder});
    }
    [[nodiscard]] Ended pages() const { return pages(m_folder.path("site")); }

    /// The texts of a page, one after another with a bar between them.
    [[nodiscard]] QString textOf(const char* name) const
    {
        QXmlStreamReader reader(readWholeFile(joinPath(m_folder.path("site"), QLatin1StringView(name))));
        QStringList texts;
        while (!reader.atEnd()) {
            reader.readNext();
            if (reader.isCharacters() && !reader.isWhitespace())
                texts << reader.text().toString().simplified();
        }
        EXPECT_FALSE(reader.hasError()) << name << reader.errorString().toStdString();
        return texts.join(u'|');
    }

    /// @param shift in days, of all sales. Day n of thirty has takings of n times @p factor.
    void sell(const QString& shop, int shift, const char* factor) const
    {
        const QByteArray sql =
            "with recursive days(n) as (select 0 union all select n + 1 from days where n < 29) "
            "insert into PLUSALES (ID, SALESDATE, PROMO, WASTE, COUNT1, VALUE1) "
            "select '0001', date('now', 'localtime', '-' || (n + " +
            QByteArray::number(shift) + ") || ' day'), 0, 0, 1, n * " + factor + " from days";
        change(shop, sql.constData());
    }
};

TEST_F(PagesTest, ShowTheSumsOfTheChainAndOfEachShop)
{
    const QString odd = u"Tea & <b>Cakes"_s;
    makeShop(cornerShop);
    makeShop(odd);
    change(odd, "insert into PLUDATA (PLUNUMBER, DESCRIPTION, GROUPNO) values ('0001', 'Tea </td>', 1);"
                "insert into GROUPS (GROUPNO, DESCRIPTION) values (1, 'Hot \"&\"')");
    sell(odd, 0, "1.11");
    sell(odd, 364, "1");
    sell(cornerShop, 2, "2");
    ASSERT_EQ(publish({cornerShop, odd}).code, 0);
    const Ended ended = pages();
    ASSERT_EQ(ended.code, 0) << ended.err.toStdString();

    const QString all = textOf("index.html");
    // 0 + 1 + ... + 29 is 435; two days of the corner shop are before the last thirty.
    EXPECT_TRUE(all.contains(u"|Tea & <b>Cakes|482.85|435.00|11.0|"_s)) << all.toStdString();
    EXPECT_TRUE(all.contains(u"|Corner Shop|756.00|–|–|"_s)) << "no sales a year earlier: no change";
    EXPECT_TRUE(all.contains(u"Shops without a collection yesterday|Shop|Last day|Days ago|Corner Shop|"_s));
    EXPECT_FALSE(all.contains(u"yesterday|Shop|Last day|Days ago|Tea"_s));
    const QString shop = textOf("shop-2.html");
    EXPECT_TRUE(shop.startsWith(u"Tea & <b>Cakes|"_s)) << shop.toStdString();
    EXPECT_TRUE(shop.contains(u"|Hot \"&\"|482.85|30|100.0|"_s));
    EXPECT_TRUE(shop.endsWith(u"|Tea </td>|482.85|30|0001"_s));
    EXPECT_FALSE(shop.contains(cornerShop));
    EXPECT_TRUE(shop.contains(QDate::currentDate().addDays(-29).toString(Qt::ISODate) + u"|32.19|29.00|"_s));

    change(odd, "update PLUSALES set VALUE1 = VALUE1 + 1 where SALESDATE = date('now', 'localtime')");
    ASSERT_EQ(publish({odd}).code, 0);
    ASSERT_EQ(pages().code, 0);
    EXPECT_TRUE(textOf("index.html").contains(u"|483.85|435.00|"_s)) << "the pages are replaced";
}

TEST_F(PagesTest, CompareTheSameDaysAndIgnoreAWrongClock)
{
    makeShop(cornerShop);
    change(cornerShop,
           "insert into PLUSALES (ID, SALESDATE, PROMO, WASTE, COUNT1, VALUE1) values "
           "('0001', date('now', 'localtime'), 0, 0, 1, 1234567.5), ('0001', '2099-01-05', 0, 0, 1, 7), "
           "('0001', date('now', 'localtime', '-1 year'), 0, 0, 1, 1000000), "
           "('0001', date('now', 'localtime', '-1 year', '+1 day'), 0, 0, 1, 500000)");
    ASSERT_EQ(publish({cornerShop}).code, 0);
    ASSERT_EQ(pages().code, 0);
    const QString today = QDate::currentDate().toString(Qt::ISODate);
    const QString all = textOf("index.html");
    EXPECT_TRUE(all.contains(u'|' + today.left(7) + u"|1,234,567.50|1,000,000.00|23.5|"_s))
        << all.toStdString();
    EXPECT_TRUE(all.contains(u"|Days ago|Corner Shop|"_s + today + u"|0|"_s)) << all.toStdString();
    EXPECT_FALSE(all.contains(u"2099"_s));
}

TEST_F(PagesTest, AreRefusedWithASentence)
{
    const Ended empty = pages();
    EXPECT_NE(empty.code, 0);
    EXPECT_TRUE(empty.err.contains(u"No shop is published there yet"_s)) << empty.err.toStdString();
    const Ended nowhere = pages(m_folder.path("nowhere"));
    EXPECT_NE(nowhere.code, 0);
    EXPECT_TRUE(nowhere.err.contains(u"There is no folder"_s)) << nowhere.err.toStdString();
    makeShop(cornerShop);
    ASSERT_EQ(publish({cornerShop}).code, 0);
    EXPECT_EQ(pages().code, 0);
    EXPECT_TRUE(textOf("shop-1.html").startsWith(u"Corner Shop|"_s)) << "a shop without any sales";
}

} // namespace
} // namespace norvane::test
