// Safety copies: when one is made, what comes back from it, and what happens when there is no room.
#include "customers/SafetyCopies.h"

#include "customers/CustomerLog.h"
#include "store/Recordset.h"
#include "tests/platform/FullDisk.h"
#include "tests/shell/ShellFixture.h"

namespace norvane::customers
{
namespace
{

class SafetyCopiesTest : public shell::ShellFixture
{
protected:
    SafetyCopiesTest()
    {
        makeCustomerDatabase();
        m_folder.write("app/Cafe/73.dat", "logo");
    }
    void setPlu(const char* number) const
    {
        store::Database database(m_values.databasePath);
        (void)database.execute(u"delete * from pludata"_s);
        auto plus = database.openTable(u"pludata"_s);
        plus.addNew();
        plus.setValue(u"plunumber"_s, store::Value::text(std::string(number)));
        plus.update();
    }
    [[nodiscard]] QString plu() const
    {
        store::Database database(m_values.databasePath);
        return database.openTable(u"pludata"_s).value(u"plunumber"_s).toText();
    }
    [[nodiscard]] QStringList names() const
    {
        QStringList names;
        for (const auto& copy : safetyCopies(m_values.customerPath))
            names << copy.name;
        return names;
    }
};

TEST_F(SafetyCopiesTest, ARestoreBringsBackTablesSettingsAndFilesAndCanBeTakenBackItself)
{
    setPlu("1");
    const auto copy = makeSafetyCopy(m_values.customerPath, u"before upload"_s, store::CopyOf::Programme,
                                     QDateTime({2026, 11, 25}, {18, 30, 12}));
    EXPECT_EQ(copy.name, u"2026-11-25 18.30.12 before upload"_s);
    setPlu("2");
    setModel("3");
    m_folder.write("app/Cafe/73.dat", "");
    restoreSafetyCopy(m_values.customerPath, copy);
    EXPECT_EQ(plu(), u"1"_s);
    EXPECT_TRUE(m_folder.read("app/Cafe/setup.ini").contains("ECRModel= 0"));
    EXPECT_EQ(m_folder.read("app/Cafe/73.dat"), "logo");
    EXPECT_EQ(lastLogged(m_values.customerPath, {u"restore"_s})->result, u"restored "_s + copy.name);
    const auto copies = safetyCopies(m_values.customerPath);
    ASSERT_EQ(copies.size(), 2);
    const auto& undo = copies.front().reason == u"before restore"_s ? copies.front() : copies.back();
    restoreSafetyCopy(m_values.customerPath, undo);
    EXPECT_EQ(plu(), u"2"_s);
}

TEST_F(SafetyCopiesTest, TheLastTenStayAndThoseOfAWeek)
{
    const QDateTime today({2026, 11, 25}, {12, 0});
    for (int day = 20; day >= 6; --day)
        makeSafetyCopy(m_values.customerPath, u"x"_s, store::CopyOf::Programme, today.addDays(-day));
    EXPECT_EQ(names().size(), 10);
    EXPECT_EQ(names().back(), u"2026-11-10 12.00.00 x"_s);
    for (int hour = 0; hour < 12; ++hour)
        makeSafetyCopy(m_values.customerPath, u"x"_s, store::CopyOf::Programme, today.addSecs(hour));
    EXPECT_EQ(names().size(), 14) << "twelve of today and the two of the last seven days";
    EXPECT_EQ(names().back(), u"2026-11-18 12.00.00 x"_s);
}

TEST_F(SafetyCopiesTest, WithoutRoomNothingIsLeftAndTheJobDoesNotStart)
{
    {
        const test::FullDisk disk(8192);
        EXPECT_FALSE(copyBeforeJob(m_values, m_boxes, u"before upload"_s));
    }
    ASSERT_EQ(m_boxes.shown.size(), 1U);
    EXPECT_TRUE(m_boxes.shown[0].text.startsWith(u"No safety copy could be made, so nothing was started."_s));
    EXPECT_EQ(QDir(m_folder.path("app/Cafe/copies")).entryList(QDir::AllEntries | QDir::NoDotAndDotDot),
              QStringList());
    EXPECT_TRUE(copyBeforeJob(m_values, m_boxes, u"before upload"_s));
}

TEST_F(SafetyCopiesTest, ADamagedCopyIsRefusedBeforeAnythingChanges)
{
    setPlu("1");
    const auto copy = makeSafetyCopy(m_values.customerPath, u"x"_s, store::CopyOf::Everything);
    QFile file(copy.path + u"/velmar.mdb"_s);
    ASSERT_TRUE(file.resize(file.size() - 100));
    setPlu("2");
    EXPECT_EQ(test::failureOf([&] { restoreSafetyCopy(m_values.customerPath, copy); }), 3343);
    EXPECT_EQ(plu(), u"2"_s);
    EXPECT_EQ(names().size(), 1);
}

} // namespace
} // namespace norvane::customers
