// Changing one field of many records.
#include "store/engine/FieldWriter.h"

#include "tests/store/StoreFolder.h"

namespace norvane::store::test
{
namespace
{

class FieldWriterTest : public testing::Test
{
protected:
    FieldWriterTest()
    {
        auto items = m_database.openTable(u"ITEMS"_s);
        for (const char* number : {"01", "02"})
            add(items, {{"NUMBER", text(number)}, {"GROUPNO", Value::whole(1)}});
    }

    /// The number of the failure, 0 for none.
    int store(const QString& field, std::int64_t row, const Value& value)
    {
        const TableDefinition table = m_database.table(u"ITEMS"_s);
        FieldWriter writer(m_database, u"items"_s, *fieldNamed(table, field));
        return failureOf([&] { writer.store(row, text("before"), value); });
    }

    StoreFolder m_folder;
    Database m_database{m_folder.path()};
};

TEST_F(FieldWriterTest, ConvertsAndRefusesAsARecordsetDoes)
{
    EXPECT_EQ(store(u"groupno"_s, 2, text(" 7 ")), 0);
    EXPECT_EQ(store(u"TAX/x"_s, 2, text("1")), 0);
    EXPECT_EQ(store(u"description"_s, 2, Value::decimal({250, 2})), 0);
    EXPECT_EQ(rowsOf(m_folder.path(), u"select number, groupno, [TAX/x], description from items"_s),
              "01|1|null|null 02|7|True|2.5");
    EXPECT_EQ(store(u"groupno"_s, 1, text("seven")), 3421);
    EXPECT_EQ(store(u"description"_s, 1, text("Seventeen letters")), 3163);
    EXPECT_EQ(store(u"count1"_s, 1, Value()), 3314);
    EXPECT_EQ(store(u"number"_s, 1, text("02")), 3022);
    EXPECT_EQ(store(u"number"_s, 3, text("03")), 3167);
    EXPECT_EQ(rowsOf(m_folder.path(), u"select number, groupno, description, count1 from items"_s),
              "01|1|null|0 02|7|2.5|0");
}

} // namespace
} // namespace norvane::store::test
