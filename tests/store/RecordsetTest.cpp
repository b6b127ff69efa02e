// Walking, seeking and storing records of a table.
#include "store/engine/CommitOnExit.h"
#include "tests/store/StoreFolder.h"

#include <chrono>
#include <functional>
#include <thread>

namespace norvane::store::test
{
namespace
{

const QString itemsTable = u"ITEMS"_s;
const QString group = u"groupno"_s;
const QString bygroup = u"ByGroup"_s;

class RecordsetTest : public testing::Test
{
protected:
    /// Numbers "01" to "05", each in the group of the same number but "01", which has none.
    void fill()
    {
        for (const char* each : {"03", "01", "05", "02", "04"})
            add(m_records, {{"NUMBER", text(each)}, {"GROUPNO", text(each)}});
        m_database.execute(u"update items set groupno = null where number = '01'"_s);
    }
    std::string number() const { return m_records.value(u"number"_s).toUtf8(); }
    void change(const QString& field, const Value& value)
    {
        m_records.edit();
        m_records.setValue(field, value);
        m_records.update();
    }

    StoreFolder m_folder;
    Database m_database{m_folder.path()};
    Recordset m_records = m_database.openTable(itemsTable);
};

TEST_F(RecordsetTest, WalksBothWaysInTheOrderOfTheIndex)
{
    EXPECT_TRUE(m_records.atEnd() && m_records.atBeginning() && !m_records.hasCurrent());
    EXPECT_EQ(failureOf([&] { m_records.moveFirst(); }), 3021);
    EXPECT_EQ(failureOf([&] { m_records.moveNext(); }), 3021);
    EXPECT_EQ(failureOf([&] { (void)number(); }), 3021);
    EXPECT_EQ(failureOf([&] { m_records.edit(); }), 3021);
    EXPECT_EQ(failureOf([&] { m_records.deleteRecord(); }), 3021);
    fill();
    m_records.moveNext();
    EXPECT_EQ(number(), "05");
    add(m_records, {{"NUMBER", text("00")}});
    EXPECT_EQ(numbersOf(m_records), "00 01 02 03 04 05");
    EXPECT_EQ(failureOf([&] { m_records.moveNext(); }), 3021);
    EXPECT_EQ(numbersOf(m_records, true), "05 04 03 02 01 00");
    EXPECT_EQ(failureOf([&] { m_records.movePrevious(); }), 3021);
    m_records.moveNext();
    EXPECT_EQ(number(), "00");

    m_records.setIndex(bygroup);
    EXPECT_EQ(numbersOf(m_records), "01 00 02 03 04 05") << "records without a key come first";
    EXPECT_EQ(numbersOf(m_records, true), "05 04 03 02 00 01");
    // Step by step, so that no row is read ahead across the border.
    EXPECT_TRUE(m_records.seek(Seek::Equal, Value::whole(2)));
    m_records.movePrevious();
    EXPECT_EQ(number(), "00");
    m_records.moveNext();
    EXPECT_EQ(number(), "02");
}

TEST_F(RecordsetTest, AWalkSeesRowsAddedAndDeletedAheadOfIt)
{
    const CommitOnExit transaction(m_database);
    for (int i = 100; i < 400; ++i)
        add(m_records, {{"NUMBER", Value::whole(i)}});
    for (m_records.moveFirst(); !m_records.atEnd(); m_records.moveNext())
        change(group, Value::number(std::stoi(number()) * 2));
    EXPECT_EQ(m_database.execute(u"update items set count1 = 1 where groupno = 2 * number"_s), 300);

    auto other = m_database.openTable(itemsTable);
    int seen = 0;
    for (m_records.moveFirst(); !m_records.atEnd(); m_records.moveNext()) {
        const std::string here = number();
        // Every record but the hundreds is deleted before the walk comes to it; one comes in between.
        if (here.ends_with("00")) {
            for (int i = 1; i < 100; ++i) {
                ASSERT_TRUE(other.seek(Seek::Equal, Value::text(std::to_string(std::stoi(here) + i))));
                other.deleteRecord();
            }
            add(other, {{"NUMBER", Value::text(here + "x")}});
        }
        ++seen;
    }
    EXPECT_EQ(seen, 6);
    EXPECT_EQ(numbersOf(m_records), "100 100x 200 200x 300 300x");
}

/// A walk reads ahead, but another window of the program or another program may store in the meantime.
TEST_F(RecordsetTest, AWalkShowsWhatAnotherWindowHasStored)
{
    for (int i = 100; i < 200; ++i)
        add(m_records, {{"NUMBER", Value::whole(i)}, {"GROUPNO", Value::whole(0)}});
    auto sameProgram = m_database.openTable(itemsTable);
    Database elsewhere(m_folder.path());
    auto otherProgram = elsewhere.openTable(itemsTable);
    m_records.moveFirst();
    for (const auto pace : {std::chrono::milliseconds(0), std::chrono::milliseconds(60)}) {
        for (auto* other : {&sameProgram, &otherProgram}) {
            for (int step = 0; step < 12; ++step) {
                std::this_thread::sleep_for(pace);
                m_records.moveNext();
            }
            ASSERT_TRUE(other->seek(Seek::Equal, Value::whole(std::stoi(number()) + 1)));
            other->edit();
            other->setValue(group, Value::whole(7));
            other->update();
            // No user changes from one program to the other faster.
            std::this_thread::sleep_for(std::chrono::milliseconds(other == &otherProgram ? 60 : 0));
            m_records.moveNext();
            EXPECT_EQ(m_records.value(group), Value::whole(7)) << number();
        }
    }
}

TEST_F(RecordsetTest, KeepsItsPlaceWhereTheRecordWasDeleted)
{
    fill();
    auto other = m_database.openTable(itemsTable);
    m_records.seek(Seek::Equal, text("02"));
    other.seek(Seek::Equal, text("03"));
    m_records.deleteRecord();
    EXPECT_FALSE(m_records.hasCurrent());
    EXPECT_EQ(failureOf([&] { m_records.edit(); }), 3167);
    other.movePrevious();
    EXPECT_EQ(other.value(0), text("01"));
    m_records.moveNext();
    EXPECT_EQ(number(), "03");
    other.moveNext();
    EXPECT_EQ(other.value(0), text("03"));
    other.deleteRecord();
    EXPECT_EQ(failureOf([&] { m_records.deleteRecord(); }), 3167);
    EXPECT_EQ(failureOf([&] { m_records.edit(); }), 3167);
    m_records.movePrevious();
    EXPECT_EQ(number(), "01");
}

TEST_F(RecordsetTest, ADeletedRecordNeverBecomesALaterOne)
{
    const auto addLast = [](Recordset& records) {
        add(records, {{"NUMBER", text("06")}});
    };
    Database elsewhere(m_folder.path());
    auto other = elsewhere.openTable(itemsTable);
    const std::function<void()> replacements[] = {
        [&] {
            other.moveLast();
            other.deleteRecord();
            addLast(other);
        },
        [&] {
            elsewhere.execute(u"delete from [items] where number = '05'"_s);
            Database later(m_folder.path());
            auto records = later.openTable(itemsTable);
            addLast(records);
        },
        [&] { // as an upload does
            const CommitOnExit transaction(elsewhere);
            elsewhere.execute(u"Delete * From ITEMS"_s);
            for (int i = 0; i < 10; ++i)
                add(other, {{"NUMBER", Value::text("0" + std::to_string(i))}});
            other.deleteRecord();
            add(other, {{"NUMBER", text("0a")}});
        },
    };
    for (const auto& replace : replacements) {
        m_database.execute(u"delete * from items"_s);
        fill();
        m_records.moveLast();
        auto editing = m_database.openTable(itemsTable);
        editing.moveLast();
        editing.edit();
        editing.setValue(group, Value::whole(99));
        auto rows = m_database.openQuery(u"select NUMBER, GROUPNO from items order by NUMBER"_s);
        rows.moveLast();
        replace();
        EXPECT_EQ(failureOf([&] { editing.update(); }), 3167);
        EXPECT_EQ(failureOf([&] { m_records.edit(); }), 3167);
        EXPECT_EQ(failureOf([&] { rows.edit(); }), 3167);
        m_records.movePrevious();
        EXPECT_EQ(number(), "04");
        EXPECT_EQ(m_database.execute(u"delete * from items where groupno = 99"_s), 0);
    }
}

TEST_F(RecordsetTest, ARecordsetNeverGivesARowNumberTwice)
{
    auto watching = m_database.openTable(itemsTable);
    Database elsewhere(m_folder.path());
    int next = 10;
    const auto replaceLast = [&](Database& deleting) {
        add(m_records, {{"NUMBER", Value::whole(++next)}});
        watching.moveLast();
        deleting.execute(u"delete * from items where number = '%1'"_s.arg(next));
        add(m_records, {{"NUMBER", Value::whole(++next)}});
        EXPECT_EQ(failureOf([&] { watching.edit(); }), 3167);
    };
    replaceLast(m_database);
    replaceLast(elsewhere);
    const CommitOnExit transaction(m_database); // as an upload has
    replaceLast(m_database);
}

const struct {
    const char* index;
    Seek comparison;
    Value key;
    const char* found; ///< empty when there is none
} seeks[] = {{"PLUNUMBER", Seek::Equal, text("02A"), "02a"},
             {"primarykey", Seek::AtOrAfter, text("03"), "04a"},
             {"plunumber", Seek::AtOrAfter, text(""), "010a"},
             {"plunumber", Seek::AtOrAfter, text("05"), ""},
             {"plunumber", Seek::Equal, text("02"), ""},
             {"bygroup", Seek::Equal, text(" 10 "), "010a"},
             {"bygroup", Seek::AtOrAfter, Value::number(2.5), "04a"},
             {"bygroup", Seek::Equal, Value::number(2.5), ""},
             {"bygroup", Seek::AtOrAfter, text("99999999999"), ""},
             {"bygroup", Seek::AtOrAfter, text(""), "02a"},
             {"bygroup", Seek::Equal, text(""), ""},
             {"bylink", Seek::AtOrAfter, text("1000000000000000000003"), "04a"},
             {"bylink", Seek::Equal, text("010000000000000000000010"), "010a"},
             {"bylink", Seek::AtOrAfter, text("-99999999999"), "04b"},
             {"bylink", Seek::AtOrAfter, text("-99"), "02b"},
             {"bylink", Seek::AtOrAfter, text("0"), "02a"},
             {"bylink", Seek::AtOrAfter, text("-1"), "02a"}};

TEST_F(RecordsetTest, SeeksByTheCurrentIndex)
{
    for (const std::string each : {"2", "4", "10"}) {
        add(m_records, {{"NUMBER", Value::text("0" + each + 'a')},
                        {"GROUPNO", Value::text(each)},
                        {"#OfCondiments", Value::text("100000000000000000000" + each)}});
    }
    add(m_records, {{"NUMBER", text("02b")}, {"GROUPNO", text("20")}, {"#OfCondiments", text("-12")}});
    add(m_records, {{"NUMBER", text("04b")}, {"GROUPNO", text("20")}, {"#OfCondiments", text("-123")}});
    for (const auto& [index, comparison, key, found] : seeks) {
        m_records.setIndex(QString::fromUtf8(index));
        EXPECT_EQ(m_records.seek(comparison, key), *found != '\0') << index << ' ' << key.toUtf8();
        EXPECT_EQ(m_records.hasCurrent() ? number() : "", found) << index << ' ' << key.toUtf8();
        EXPECT_EQ(failureOf([&] { m_records.moveNext(); }), *found != '\0' ? 0 : 3021) << index;
    }
    m_records.setIndex(bygroup);
    EXPECT_EQ(failureOf([&] { m_records.seek(Seek::AtOrAfter, text("abc")); }), 3421);
    EXPECT_EQ(failureOf([&] { add(m_records, {{"NUMBER", text("02A")}}); }), 3022);
}

TEST_F(RecordsetTest, ANewRecordIsTheCurrentOne)
{
    fill();
    m_records.moveFirst();
    add(m_records, {{"NUMBER", text("02a")}});
    EXPECT_EQ(number(), "02a");
    change(group, Value::whole(7));
    EXPECT_EQ(m_database.execute(u"delete * from items where number = '02a' and groupno = 7"_s), 1);
    m_records.moveNext();
    EXPECT_EQ(number(), "03");
    add(m_records, {{"NUMBER", text("00")}});
    m_records.moveNext();
    EXPECT_EQ(number(), "01");
    m_records.movePrevious();
    m_records.deleteRecord();
    m_records.moveNext();
    EXPECT_EQ(number(), "01");
    m_records.setIndex(bygroup);
    add(m_records, {{"NUMBER", text("06")}, {"GROUPNO", text("3")}});
    m_records.movePrevious();
    EXPECT_EQ(number(), "03");

    m_database.addTable({u"Counts"_s, {{u"ID"_s, FieldType::Counter, 0, {}, false}}, {{{u"id"_s}, u"ID"_s}}});
    auto counts = m_database.openTable(u"counts"_s);
    for (int expected = 1; expected <= 2; ++expected) {
        add(counts, {});
        EXPECT_EQ(counts.value(0), Value::whole(expected));
    }
    counts.movePrevious();
    EXPECT_EQ(counts.value(0), Value::whole(1));
}

TEST_F(RecordsetTest, AChangedRecordStaysTheCurrentOne)
{
    const QString key = u"NUMBER"_s;
    fill();
    add(m_records, {{"NUMBER", text("06")}});
    m_records.moveFirst();
    EXPECT_EQ(failureOf([&] { change(key, text("02")); }), 3022);
    m_records.edit(); // continues
    EXPECT_EQ(number(), "02");
    change(key, text("07"));
    EXPECT_EQ(number(), "07") << "where its new key takes it";
    EXPECT_EQ(numbersOf(m_records), "02 03 04 05 06 07");

    m_records.setIndex(bygroup);
    m_records.seek(Seek::Equal, Value::whole(2));
    change(group, Value::whole(9));
    m_records.movePrevious();
    EXPECT_EQ(number(), "05");
    m_records.moveNext();
    EXPECT_EQ(number(), "02");

    // A move abandons what is open.
    m_records.edit();
    m_records.setValue(group, Value::whole(99));
    m_records.movePrevious();
    EXPECT_EQ(m_records.editMode(), EditMode::None);
    m_records.addNew();
    m_records.setValue(key, text("99"));
    m_records.seek(Seek::Equal, Value::whole(9));
    EXPECT_EQ(number(), "02");
    EXPECT_EQ(failureOf([&] { m_records.update(); }), 3021);
    EXPECT_EQ(failureOf([&] { m_records.setValue(group, Value::whole(1)); }), 3021);
    EXPECT_EQ(m_records.recordCount(), 6);
}

TEST_F(RecordsetTest, ANewRecordHasItsDefaultsAndNeedsItsRequiredFields)
{
    const QString count = u"count1"_s;
    m_records.addNew();
    EXPECT_EQ(m_records.value(count), Value::number(0));
    EXPECT_TRUE(m_records.value(group).isNull());
    m_records.setValue(count, Value());
    EXPECT_EQ(failureOf([&] { m_records.update(); }), 3314);
    EXPECT_EQ(failureOf([&] { (void)m_records.value(u"nothing"_s); }), 3265);
    m_records.setValue(count, text("1.5"));
    m_records.update();
    m_records.moveFirst();
    EXPECT_EQ(m_records.value(count), Value::number(1.5));
}

} // namespace
} // namespace norvane::store::test
