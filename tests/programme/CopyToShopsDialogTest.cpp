// The dialog that copies to other customers, with keys and clicks.
#include "programme/CopyToShopsDialog.h"

#include "platform/FolderLock.h"
#include "store/catalogue/Catalogue.h"
#include "tests/platform/TestFolder.h"
#include "tests/store/Rows.h"
#include "tests/support/FormTest.h"

namespace norvane::programme
{
namespace
{

using test::addRecord, test::child, test::text, test::whole;

class CopyToShopsDialogTest : public testing::Test
{
protected:
    CopyToShopsDialogTest()
    {
        for (const char* name : {"FROM", "ONE", "TWO"}) {
            m_folder.write((QByteArray(name) + "/setup.ini").constData(), "[SetupOption]\r\nECRModel= 2\r\n");
            store::Database::create(database(name), store::catalogue());
            setGroup(name, 1, "Food");
        }
        m_folder.write("BROKEN/velmar.mdb", "no database");
        test::execute(database("FROM"), u"update GROUPS set DESCRIPTION = 'Drinks'"_s);
        setGroup("TWO", 9, "Old");
        const ApplicationValues values{
            m_folder.path(), u"FROM"_s, m_folder.path("FROM"), database("FROM"), {}};
        m_dialog.emplace(values, ScreenContents{u"GROUPS"_s, u"Group"_s, u"1"_s, u"Group 1"_s, true, {}},
                         m_boxes);
        m_dialog->show();
        EXPECT_TRUE(QTest::qWaitForWindowActive(&*m_dialog));
    }
    [[nodiscard]] QString database(const char* shop) const
    {
        return m_folder.path((QByteArray(shop) + "/velmar.mdb").constData());
    }
    void setGroup(const char* shop, int number, const char* name) const
    {
        store::Database opened(database(shop));
        addRecord(opened, "GROUPS", {{"GROUPNO", whole(number)}, {"DESCRIPTION", text(name)}});
    }
    [[nodiscard]] std::string groups(const char* shop) const
    {
        return test::columnOf(database(shop), "GROUPS", "DESCRIPTION");
    }
    QListWidget& customers() { return child<QListWidget>(*m_dialog, "CustomerList"); }
    QPushButton& copyButton() { return child<QPushButton>(*m_dialog, "CopyButton"); }
    /// Checks every customer by the keyboard.
    void checkAll()
    {
        QTest::keyClick(&customers(), Qt::Key_Home);
        for (int row = 0; row < customers().count(); ++row) {
            QTest::keyClick(&customers(), Qt::Key_Space);
            QTest::keyClick(&customers(), Qt::Key_Down);
        }
    }
    [[nodiscard]] bool becomesReady()
    {
        return QTest::qWaitFor([this] { return copyButton().isEnabled(); });
    }
    QString changes()
    {
        const auto& rows = *child<QTableView>(*m_dialog, "Changes").model();
        QStringList lines;
        for (int row = 0; row < rows.rowCount(); ++row) {
            QStringList cells;
            for (int column = 0; column < rows.columnCount(); ++column)
                cells << rows.index(row, column).data().toString();
            lines << cells.join(u'|');
        }
        return lines.join(u'\n');
    }
    QString notes()
    {
        QStringList lines;
        const auto& list = child<QListWidget>(*m_dialog, "NoteList");
        for (int row = 0; row < list.count(); ++row)
            lines << list.item(row)->text();
        return lines.join(u'\n');
    }

    test::TestFolder m_folder;
    test::RecordingBoxes m_boxes;
    std::optional<CopyToShopsDialog> m_dialog;
};

TEST_F(CopyToShopsDialogTest, ListsTheRecordForEachCustomerAndCopiesItOnRequestOnly)
{
    EXPECT_EQ(customers().count(), 2) << "neither itself nor a damaged one";
    checkAll();
    ASSERT_TRUE(becomesReady());
    EXPECT_EQ(changes(), u"ONE|1|DESCRIPTION|Food|Drinks\nTWO|1|DESCRIPTION|Food|Drinks"_s);
    EXPECT_TRUE(notes().contains(u"unsaved changes"_s)) << notes().toStdString();
    EXPECT_EQ(groups("ONE"), "Food");
    test::RecordingBoxes others;
    const auto lock = FolderLock::take(m_folder.path("ONE"), others);
    copyButton().click();
    EXPECT_TRUE(notes().startsWith(u"ONE: nothing was copied. "_s)) << notes().toStdString();
    EXPECT_TRUE(notes().endsWith(u"TWO: copied, 0 new, 1 changed, 0 gone"_s)) << notes().toStdString();
    EXPECT_EQ(groups("ONE") + ' ' + groups("TWO"), "Food Drinks|Old");
    EXPECT_FALSE(copyButton().isEnabled());
}

TEST_F(CopyToShopsDialogTest, AsksBeforeRecordsAreRemoved)
{
    QTest::mouseClick(&child<QRadioButton>(*m_dialog, "WholeTable"), Qt::LeftButton);
    checkAll();
    ASSERT_TRUE(becomesReady());
    EXPECT_TRUE(changes().endsWith(u"TWO|9|removed record|Old|"_s)) << changes().toStdString();
    copyButton().click();
    ASSERT_EQ(m_boxes.shown.size(), 1U);
    EXPECT_TRUE(m_boxes.shown[0].text.startsWith(u"1 record that FROM does not have"_s));
    EXPECT_EQ(groups("TWO"), "Food|Old");
    m_boxes.answers = {true};
    copyButton().click();
    EXPECT_EQ(groups("ONE") + ' ' + groups("TWO"), "Drinks Drinks");
}

} // namespace
} // namespace norvane::programme
