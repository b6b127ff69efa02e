// Uses of records in a customer's whole database, in words and as numbers.
#include "screens/KeyUses.h"

#include "screens/FreeNumber.h"
#include "store/catalogue/Catalogue.h"
#include "tests/platform/TestFolder.h"
#include "tests/store/Rows.h"

#include <gtest/gtest.h>

namespace norvane::screens
{
namespace
{

constexpr int keysPerLevel = 3;

class KeyUsesTest : public testing::Test
{
protected:
    KeyUsesTest()
    {
        store::Database::create(m_path, store::catalogue());
        for (const char* sql : {
                 "insert into PLUDATA (PLUNUMBER, DESCRIPTION, GROUPNO, STOCKLINK, MIXNMATCH) values "
                 "('000000000000001001', 'Cola %1', 3, 0, 7), ('000000000000001002', 'Double', 3, 1001, 0), "
                 "('000000000000001004', '', 0, 0, 8)",
                 // By place: level 1 key 2, level 5 key 3, one row past the keyboard; the function key that
                 // has the same number is not one of the PLU's.
                 "insert into KEYLINK (ID, KEYLINK) values (1, '44'), (5, '0'), (6, '44'), (7, ''), (8, ''), "
                 "(9, ''), (10, ''), (11, ''), (12, ''), (13, ''), (14, ''), (15, ''), (16, ''), (17, '44'), "
                 "(18, '0'), (19, '0')",
                 "insert into NLU (ID, NLU) select ID, '000000000000001001' from KEYLINK where ID < 18",
                 "insert into NLU (ID, NLU) values (18, '000000000000001002'), (19, '000000000000001001')",
                 "update KEYLINK set KEYLINK = '0' where ID = 16",
                 "insert into WLU (WLUno, DESCRIPTION, wlutype3, codenumber3, wlutype4, codenumber4) values "
                 "(12, 'Beers', 1, 1001, 2, 1001)",
                 "insert into RECIPE (recipeno, DESCRIPTION, item2, recipe2, item3, recipe3) values "
                 "(4, 'Mix', 1, 1001, 2, 1001)",
                 "insert into PLUSTATUS (STATUSNO, DESCRIPTION, LINKEDPLU, GROUPLINK2, GROUPLINK3) values "
                 "(5, 'Drinks', 1001, 2, 3)",
                 "insert into MIXNMATCH (MixNo, DESCRIPTION) values (7, 'Deal')",
                 "insert into GENERALFUNCTIONS (ID, EMPLOYEENO2) values (1, 6)",
             })
            test::execute(m_path, QString::fromLatin1(sql));
    }

    std::string uses(const char* table, const char* key, int atMost = 100)
    {
        const KeyUses found =
            usesOfKey(m_database(), QString::fromLatin1(table), test::text(key), keysPerLevel, atMost);
        return std::to_string(found.count) + ": " + found.first.join(u'|').toStdString();
    }
    store::Database& m_database()
    {
        if (!m_open)
            m_open = std::make_unique<store::Database>(m_path);
        return *m_open;
    }

    test::TestFolder m_folder;
    QString m_path = m_folder.path("velmar.mdb");
    std::unique_ptr<store::Database> m_open;
};

TEST_F(KeyUsesTest, NameEveryPlaceOfARecord)
{
    EXPECT_EQ(uses("PLUDATA", "000000000000001001"),
              "7: Keyboard level 1, key 2|Keyboard level 5, key 1|Window look-up 12 \"Beers\", line 3|"
              "Stock link of PLU 1002 \"Double\"|Linked PLU of status group 5 \"Drinks\"|"
              "Recipe 4 \"Mix\", part 2|Mix and match offer 7 \"Deal\"");
    EXPECT_EQ(uses("PLUDATA", "000000000000001002"), "1: Keyboard level 5, key 3");
    EXPECT_EQ(uses("pludata", "000000000000001004"), "0: ") << "its offer does not exist";
    EXPECT_EQ(uses("PLUDATA", "000000000000000000"), "0: ");
    EXPECT_EQ(uses("GROUPS", "3"),
              "3: PLU 1001 \"Cola %1\"|PLU 1002 \"Double\"|Status group 5 \"Drinks\", group 3");
    EXPECT_EQ(uses("GROUPS", "3", 1), "3: PLU 1001 \"Cola %1\"");
    EXPECT_EQ(uses("MIXNMATCH", "8"), "1: PLU 1004");
    EXPECT_EQ(uses("EMPLOYEE", "6"), "1: General options, employee no. 2");
}

TEST_F(KeyUsesTest, AreCountedForAllRecordsAtOnce)
{
    const QString first = u"000000000000001001"_s;
    const QString second = u"000000000000001002"_s;
    EXPECT_EQ(countUses(m_database(), u"PLUDATA"_s, keysPerLevel),
              (QHash<QString, int>{{first, 7}, {second, 1}}));
    EXPECT_EQ(countUses(m_database(), u"PLUDATA"_s, keysPerLevel, UseKind::Keys),
              (QHash<QString, int>{{first, 2}, {second, 1}}));
    EXPECT_EQ(countUses(m_database(), u"GROUPS"_s, keysPerLevel),
              (QHash<QString, int>{{u"2"_s, 1}, {u"3"_s, 3}}));
}

TEST_F(KeyUsesTest, TheNextFreeNumberSkipsThoseThatAreTaken)
{
    const auto after = [this](const char* number) {
        const auto free = nextFreePlu(m_database(), *PluNumber::parse(number));
        return free ? free->text() : "none";
    };
    EXPECT_EQ(after("1000"), "000000000000001003");
    EXPECT_EQ(after("1003"), "000000000000001005");
    EXPECT_EQ(after("999999999999999999"), "none");
}

} // namespace
} // namespace norvane::screens
