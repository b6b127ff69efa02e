// Taking back what a piece of work has changed.
#include "store/engine/ChangeRecorder.h"
#include "store/engine/CommitOnExit.h"
#include "tests/store/Elsewhere.h"
#include "tests/store/StoreFolder.h"

#include <functional>

namespace norvane::store::test
{
namespace
{

using norvane::test::runElsewhere;

class RowChangesTest : public testing::Test
{
protected:
    RowChangesTest()
    {
        auto items = m_database.openTable(u"ITEMS"_s);
        add(items, {{"NUMBER", text("01")},
                    {"DESCRIPTION", text("Käse")},
                    {"GROUPNO", Value::whole(-7)},
                    {"ROUNDON%", Value::number(0.1)},
                    {"#OfCondiments", text("123456789012345678")},
                    {"TAX/x", Value::yesNo(true)},
                    {"OPENEURO&LOCALDRAWER", Value::date({2028, 2, 29})}});
        add(items, {{"NUMBER", text("02")}, {"GROUPNO", Value::whole(300)}});
        add(items, {{"NUMBER", text("03")}});
        m_before = rows();
    }

    [[nodiscard]] std::string rows() const
    {
        return rowsOf(m_folder.path(), u"select * from items order by number"_s);
    }
    RowChanges recorded(const std::function<void()>& act)
    {
        ChangeRecorder recorder(m_database, {u"items"_s});
        act();
        return recorder.finish();
    }
    RowChanges ranSql(const QString& sql)
    {
        return recorded([&] { m_database.execute(sql); });
    }
    void changeDeleteAndAdd()
    {
        m_database.execute(u"update items set [ROUNDON%] = 2, [TAX/x] = False where number = '01'"_s);
        m_database.execute(u"update items set groupno = 4 where number = '01'"_s);
        auto items = m_database.openTable(u"items"_s);
        items.seek(Seek::Equal, text("02"));
        items.deleteRecord();
        add(items, {{"NUMBER", text("04")}});
        add(items, {{"NUMBER", text("05")}});
        items.seek(Seek::Equal, text("05"));
        items.deleteRecord();
    }

    StoreFolder m_folder;
    Database m_database{m_folder.path()};
    std::string m_before;
};

TEST_F(RowChangesTest, TakesBackChangesDeletionsAndAdditions)
{
    const RowChanges recording = recorded([this] { changeDeleteAndAdd(); });
    EXPECT_EQ(recording.count(), 3U) << "what was added and deleted again is no change";
    EXPECT_EQ(recording.changedSince(m_database), 0U);
    EXPECT_EQ(recording.takeBack(m_database), 3U);
    EXPECT_EQ(rows(), m_before);

    const RowChanges emptied = ranSql(u"delete * from items"_s);
    EXPECT_EQ(rows(), "");
    EXPECT_EQ(emptied.takeBack(m_database), 3U);
    EXPECT_EQ(rows(), m_before);
}

TEST_F(RowChangesTest, KnowsFieldsThatStatementsOfBeforeChangeAgain)
{
    auto items = m_database.openTable(u"items"_s);
    const auto setGroup = [&items](const char* number, int newGroup) {
        items.seek(Seek::Equal, text(number));
        items.edit();
        items.setValue(u"GROUPNO"_s, Value::whole(newGroup));
        items.update();
    };
    setGroup("01", 5);
    const std::string before = rows();
    const RowChanges recording = recorded([&] {
        for (const char* const number : {"03", "01", "02", "01"})
            setGroup(number, 8);
        m_database.execute(u"update items set [ROUNDON%] = 7, description = 'x' where number = '01'"_s);
        setGroup("02", 300);
    });
    EXPECT_EQ(recording.count(), 2U) << "02 is what it was";
    EXPECT_EQ(recording.changedSince(m_database), 0U);
    EXPECT_EQ(recording.takeBack(m_database), 2U);
    EXPECT_EQ(rows(), before);
}

TEST_F(RowChangesTest, KnowsAllFieldsOfARowThatWasReplacedUnderItsId)
{
    const RowChanges recording = recorded([this] {
        m_database.execute(u"update items set groupno = 4 where number = '01'"_s);
        m_database.execute(u"insert or replace into items (_rowid_, number, groupno, description) "
                           "select _rowid_, number, groupno, 'new' from items where number = '02'"_s);
    });
    EXPECT_EQ(recording.takeBack(m_database), 2U);
    EXPECT_EQ(rows(), m_before);
}

TEST_F(RowChangesTest, ARecordsetAtARowSeesItAgain)
{
    auto items = m_database.openTable(u"items"_s);
    items.seek(Seek::Equal, text("02"));
    const RowChanges recording = ranSql(u"delete * from items where number = '02'"_s);
    EXPECT_EQ(failureOf([&] { items.edit(); }), 3167);
    recording.takeBack(m_database);
    items.seek(Seek::Equal, text("02"));
    items.edit();
    EXPECT_EQ(items.value(u"groupno"_s).toText(), u"300");
}

TEST_F(RowChangesTest, LeavesRowsThatSomebodyChangedSince)
{
    const RowChanges recording = ranSql(u"update items set groupno = 9"_s);
    runElsewhere(m_folder.path(), "update items set DESCRIPTION = 'x' where number = '01'");
    m_database.execute(u"delete * from items where number = '03'"_s);
    auto items = m_database.openTable(u"items"_s);
    add(items, {{"NUMBER", text("03")}});
    EXPECT_EQ(recording.changedSince(m_database), 2U);
    EXPECT_EQ(recording.takeBack(m_database), 1U);
    EXPECT_EQ(rowsOf(m_folder.path(), u"select number, groupno from items order by number"_s),
              "01|9 02|300 03|null");
    EXPECT_EQ(recording.takeBack(m_database), 0U) << "once only";
}

TEST_F(RowChangesTest, TakesBackEverythingOrNothing)
{
    const RowChanges recording = ranSql(u"delete * from items where number <> '01'"_s);
    auto items = m_database.openTable(u"items"_s);
    add(items, {{"NUMBER", text("02")}});
    const std::string before = rows();
    EXPECT_EQ(failureOf([&] { (void)recording.takeBack(m_database); }), 3022);
    EXPECT_EQ(rows(), before);
}

TEST_F(RowChangesTest, WorkThatWasRolledBackHasChangedNothing)
{
    const RowChanges recording = recorded([this] {
        CommitOnExit transaction(m_database);
        m_database.execute(u"update items set groupno = 9"_s);
        transaction.rollBack();
    });
    EXPECT_TRUE(recording.isEmpty());
}

TEST_F(RowChangesTest, NamesWhatWouldBeDifferent)
{
    const RowChanges recording = recorded([this] { changeDeleteAndAdd(); });
    std::string found;
    for (const auto& [table, record, field, now, then, unset] : recording.differences(m_database, 10))
        found += u"%1 %2 %3: %4 -> %5\n"_s.arg(table, record, field, now, then).toStdString();
    EXPECT_EQ(found, "Items 01 GROUPNO: 4 -> -7\nItems 01 ROUNDON%: 2 -> 0.1\nItems 01 TAX/x: no -> yes\n"
                     "Items 02 :  -> 02\nItems 04 : 04 -> \n");
    EXPECT_EQ(recording.differences(m_database, 2).size(), 2U);
}

} // namespace
} // namespace norvane::store::test
