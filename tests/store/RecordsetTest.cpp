// Walking, seeking and storing records of a table.
#include "tests/store/StoreFolder.h"

namespace norvane::store::test
{
namespace
{

const QString items = QStringLiteral("ITEMS");
const QString number = QStringLiteral("number");
const QString group = QStringLiteral("groupno");
const QString bygroup = QStringLiteral("ByGroup");

class RecordsetTest : public testing::Test
{
protected:
    /// Numbers "01" to "05", each in the group of the same number; "01" stands in a group of its own as null.
    void fill(Recordset& records)
    {
        for (const char* each : {"03", "01", "05", "02", "04"})
            addItem(records, each, std::string(each) == "01" ? Value() : text(each));
    }

    StoreFolder m_folder;
    Database m_database{m_folder.path()};
    Recordset m_records = m_database.openTable(items);
};

TEST_F(RecordsetTest, AnEmptyTableHasNoRecordAtEitherEnd)
{
    EXPECT_TRUE(m_records.atEnd() && m_records.atBeginning());
    EXPECT_FALSE(m_records.hasCurrent());
    EXPECT_EQ(m_records.recordCount(), 0);
    EXPECT_EQ(failureOf([&] { m_records.moveFirst(); }), 3021);
    EXPECT_EQ(failureOf([&] { m_records.moveNext(); }), 3021);
    EXPECT_EQ(failureOf([&] { static_cast<void>(m_records.value(number)); }), 3021);
    EXPECT_EQ(failureOf([&] { m_records.edit(); }), 3021);
    EXPECT_EQ(failureOf([&] { m_records.deleteRecord(); }), 3021);
    addItem(m_records, "1");
    m_records.moveNext();
    EXPECT_EQ(m_records.value(number), text("1"));
}

TEST_F(RecordsetTest, WalksBothWaysInTheOrderOfTheIndex)
{
    fill(m_records);
    EXPECT_EQ(numbersOf(m_records), "01 02 03 04 05");
    EXPECT_EQ(failureOf([&] { m_records.moveNext(); }), 3021);
    std::string backwards;
    for (m_records.movePrevious(); !m_records.atBeginning(); m_records.movePrevious())
        backwards += m_records.value(number).toUtf8();
    EXPECT_EQ(backwards, "0504030201");
    EXPECT_EQ(failureOf([&] { m_records.movePrevious(); }), 3021);
    m_records.moveNext();
    EXPECT_EQ(m_records.value(number), text("01"));
}

TEST_F(RecordsetTest, RecordsWithoutAKeyComeFirst)
{
    fill(m_records);
    addItem(m_records, "00");
    m_records.setIndex(bygroup);
    EXPECT_EQ(numbersOf(m_records), "01 00 02 03 04 05");
    std::string backwards;
    for (m_records.moveLast(); !m_records.atBeginning(); m_records.movePrevious())
        backwards += m_records.value(number).toUtf8();
    EXPECT_EQ(backwards, "050403020001");
    // Step by step, so that no row is read ahead across the border.
    EXPECT_TRUE(m_records.seek(Seek::Equal, Value::whole(2)));
    m_records.movePrevious();
    EXPECT_EQ(m_records.value(number), text("00"));
    m_records.moveNext();
    EXPECT_EQ(m_records.value(number), text("02"));
}

TEST_F(RecordsetTest, AWalkSeesWhatComesAndGoesAheadOfIt)
{
    const Transaction transaction(m_database);
    for (int i = 100; i < 400; ++i)
        addItem(m_records, std::to_string(i).c_str());
    auto other = m_database.openTable(items);
    int seen = 0;
    for (m_records.moveFirst(); !m_records.atEnd(); m_records.moveNext()) {
        const std::string here = m_records.value(number).toUtf8();
        // Every record but the hundreds is deleted before the walk comes to it; one comes in between.
        if (here.ends_with("00")) {
            for (int i = 1; i < 100; ++i) {
                ASSERT_TRUE(other.seek(Seek::Equal, Value::text(std::to_string(std::stoi(here) + i))));
                other.deleteRecord();
            }
            addItem(other, (here + "x").c_str());
        }
        ++seen;
    }
    EXPECT_EQ(seen, 6);
    EXPECT_EQ(numbersOf(m_records), "100 100x 200 200x 300 300x");
}

TEST_F(RecordsetTest, HoldsItsPlaceWhereTheRecordWasDeleted)
{
    fill(m_records);
    auto other = m_database.openTable(items);
    m_records.seek(Seek::Equal, text("02"));
    other.seek(Seek::Equal, text("03"));
    m_records.deleteRecord();
    EXPECT_FALSE(m_records.hasCurrent());
    EXPECT_EQ(failureOf([&] { m_records.edit(); }), 3021);
    other.movePrevious();
    EXPECT_EQ(other.value(number), text("01"));
    m_records.moveNext();
    EXPECT_EQ(m_records.value(number), text("03"));
    other.moveNext();
    EXPECT_EQ(other.value(number), text("03"));
    other.deleteRecord();
    EXPECT_EQ(failureOf([&] { m_records.edit(); }), 3021);
    m_records.movePrevious();
    EXPECT_EQ(m_records.value(number), text("01"));
}

TEST_F(RecordsetTest, SeeksByTheCurrentIndex)
{
    for (const char* each : {"2", "4", "10"}) {
        m_records.addNew();
        m_records.setValue(number, Value::text("0" + std::string(each)));
        m_records.setValue(group, text(each));
        m_records.setValue(QStringLiteral("#ofcondiments"),
                           Value::text("100000000000000000000" + std::string(each)));
        m_records.update();
    }
    const struct {
        const char* index;
        Seek comparison;
        Value key;
        const char* found; ///< empty when there is none
    } rows[] = {{"PLUNUMBER", Seek::Equal, text("02"), "02"},
                {"primarykey", Seek::AtOrAfter, text("03"), "04"},
                {"plunumber", Seek::AtOrAfter, text(""), "010"},
                {"plunumber", Seek::AtOrAfter, text("05"), ""},
                {"plunumber", Seek::Equal, text("2"), ""},
                {"bygroup", Seek::Equal, text(" 10 "), "010"},
                {"bygroup", Seek::AtOrAfter, Value::number(2.5), "04"},
                {"bygroup", Seek::Equal, Value::number(2.5), ""},
                {"bygroup", Seek::AtOrAfter, text("99999999999"), ""},
                {"bygroup", Seek::AtOrAfter, text(""), "02"},
                {"bygroup", Seek::Equal, text(""), ""},
                {"bylink", Seek::AtOrAfter, text("1000000000000000000003"), "04"},
                {"bylink", Seek::Equal, text("010000000000000000000010"), "010"}};
    for (const auto& [index, comparison, key, found] : rows) {
        m_records.setIndex(QString::fromUtf8(index));
        EXPECT_EQ(m_records.seek(comparison, key), *found != '\0') << index << ' ' << key.toUtf8();
        EXPECT_EQ(m_records.hasCurrent() ? m_records.value(number).toUtf8() : "", found)
            << index << ' ' << key.toUtf8();
        if (*found == '\0') {
            EXPECT_EQ(failureOf([&] { m_records.moveNext(); }), 3021);
        }
    }
    m_records.setIndex(bygroup);
    EXPECT_EQ(failureOf([&] { m_records.seek(Seek::AtOrAfter, text("abc")); }), 3421);
}

TEST_F(RecordsetTest, TextsMeetWithoutRegardToCase)
{
    addItem(m_records, "cola");
    EXPECT_TRUE(m_records.seek(Seek::Equal, text("COLA")));
    EXPECT_EQ(failureOf([&] { addItem(m_records, "Cola"); }), 3022);
}

TEST_F(RecordsetTest, ANewRecordIsNotTheCurrentOneButAChangedOneStays)
{
    fill(m_records);
    m_records.moveFirst();
    addItem(m_records, "06");
    EXPECT_EQ(m_records.value(number), text("01"));
    m_records.edit();
    m_records.setValue(number, text("02"));
    EXPECT_EQ(failureOf([&] { m_records.update(); }), 3022);
    m_records.edit(); // goes on
    EXPECT_EQ(m_records.value(number), text("02"));
    m_records.setValue(number, text("07"));
    m_records.update();
    EXPECT_EQ(m_records.value(number), text("07")); // where its new key takes it
    EXPECT_EQ(numbersOf(m_records), "02 03 04 05 06 07");
}

TEST_F(RecordsetTest, MovesAbandonWhatIsOpen)
{
    fill(m_records);
    m_records.moveFirst();
    m_records.edit();
    m_records.setValue(group, Value::whole(99));
    m_records.moveNext();
    EXPECT_EQ(m_records.editMode(), EditMode::None);
    m_records.addNew();
    m_records.setValue(number, text("99"));
    m_records.seek(Seek::Equal, text("01"));
    EXPECT_EQ(failureOf([&] { m_records.update(); }), 3021);
    EXPECT_TRUE(m_records.value(group).isNull());
    EXPECT_EQ(m_records.recordCount(), 5);
    EXPECT_EQ(failureOf([&] { m_records.setValue(group, Value::whole(1)); }), 3021);
}

TEST_F(RecordsetTest, ANewRecordHasItsDefaultsAndNeedsItsRequiredFields)
{
    const QString count = QStringLiteral("count1");
    m_records.addNew();
    EXPECT_EQ(m_records.value(count), Value::number(0));
    EXPECT_TRUE(m_records.value(group).isNull());
    m_records.setValue(count, Value());
    EXPECT_EQ(failureOf([&] { m_records.update(); }), 3314);
    EXPECT_EQ(failureOf([&] { static_cast<void>(m_records.value(QStringLiteral("nothing"))); }), 3265);
    m_records.setValue(count, text("1.5"));
    m_records.update();
    m_records.moveFirst();
    EXPECT_EQ(m_records.value(count), Value::number(1.5));
}

TEST_F(RecordsetTest, AnEditBeginsWithWhatTheFileHoldsNow)
{
    fill(m_records);
    m_records.moveFirst();
    Database elsewhere(m_folder.path());
    auto other = elsewhere.openTable(items);
    other.edit();
    other.setValue(group, Value::whole(77));
    other.update();
    const Transaction transaction(m_database); // nothing read before it counts any more
    m_records.edit();
    EXPECT_EQ(m_records.value(group), Value::whole(77));
}

TEST_F(RecordsetTest, AWalkMayStoreIntoEveryRecord)
{
    const Transaction transaction(m_database);
    for (int i = 100; i < 400; ++i)
        addItem(m_records, std::to_string(i).c_str(), Value::whole(i));
    for (m_records.moveFirst(); !m_records.atEnd(); m_records.moveNext()) {
        m_records.edit();
        m_records.setValue(group, Value::number(m_records.value(number).toNumber() * 2));
        m_records.update();
    }
    EXPECT_EQ(m_database.execute(QStringLiteral("delete * from items where groupno = 2 * number")), 300);
}

TEST_F(RecordsetTest, AMovedRecordIsMetAgainAtItsNewPlace)
{
    fill(m_records);
    m_records.setIndex(bygroup);
    m_records.seek(Seek::Equal, Value::whole(2));
    m_records.edit();
    m_records.setValue(group, Value::whole(9));
    m_records.update();
    m_records.movePrevious();
    EXPECT_EQ(m_records.value(number), text("05"));
    m_records.moveNext();
    EXPECT_EQ(m_records.value(number), text("02"));
}

} // namespace
} // namespace norvane::store::test
