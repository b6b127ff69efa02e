// A new customer like another, by the keys and the mouse.
#include "shell/FrmCustomer.h"
#include "tests/shell/ShellFixture.h"
#include "tests/support/FormTest.h"

namespace norvane::shell
{
namespace
{

class NewShopDialogTest : public ShellFixture
{
protected:
    NewShopDialogTest()
    {
        makeCustomerDatabase();
        execute(u"insert into PLUDATA (PLUNUMBER) values ('7')"_s);
        execute(u"insert into EMPLOYEE (ID, dallaskey) values (1, 'k')"_s);
        store::Database::create(m_folder.path("app/velmar.mdb"), store::catalogue());
    }
    /// Opens the dialog of the customer in the list. @return the result of the customer dialog, -1 while it
    /// is open.
    int run(const std::function<void(QDialog&)>& act)
    {
        FrmCustomer customers(m_values, m_boxes);
        customers.show();
        auto& list = child<QListWidget>(customers, "List1");
        QTest::mouseClick(list.viewport(), Qt::LeftButton, {}, list.visualItemRect(list.item(0)).center());
        QTimer::singleShot(0, &customers,
                           [&] { act(*qobject_cast<QDialog*>(QApplication::activeModalWidget())); });
        test::press(customers, "CmdNewLike");
        EXPECT_EQ(child<QLineEdit>(customers, "text1").text(), m_after);
        return customers.isVisible() ? -1 : customers.result();
    }

    QString m_after = u"CAFE"_s;
};

TEST_F(NewShopDialogTest, MakesTheCustomerAndTakesIt)
{
    m_after = u"Bar"_s;
    const int result = run([this](QDialog& dialog) {
        EXPECT_EQ(child<QComboBox>(dialog, "LikeCustomer").currentText(), u"CAFE"_s);
        const auto& notice = child<QLabel>(dialog, "ModelNotice");
        EXPECT_FALSE(notice.isVisible());
        test::press(dialog, "TakeSettings");
        EXPECT_TRUE(notice.isVisible() && notice.text().contains(u"Velmar +V3"_s));
        test::press(dialog, "Take_staff");
        auto& name = child<QLineEdit>(dialog, "NewName");
        QTest::keyClicks(&name, u"cafe"_s);
        QTest::keyClick(&name, Qt::Key_Return);
        EXPECT_TRUE(dialog.isVisible());
        EXPECT_EQ(m_boxes.shown.size(), 1U);
        EXPECT_EQ(name.text(), u"cafe"_s) << "what was typed remains";
        EXPECT_FALSE(child<QCheckBox>(dialog, "Take_staff").isChecked());
        QTest::keyClicks(&name, u"Bar"_s);
        QTest::keyClick(&name, Qt::Key_Return);
        EXPECT_FALSE(dialog.isVisible());
    });
    EXPECT_EQ(result, QDialog::Accepted);
    EXPECT_EQ(m_values.customerPath, m_folder.path("app/Bar"));
    EXPECT_TRUE(
        m_boxes.shown.back().text.startsWith(u"Bar is a new customer. From CAFE it has: 1 record."_s));
    EXPECT_EQ(test::rowsOf(m_folder.path("app/Bar/velmar.mdb"), u"select PLUNUMBER from PLUDATA"_s), "7");
    EXPECT_EQ(m_folder.read("app/Bar/setup.ini"), m_folder.read("app/setup.ini"));
}

TEST_F(NewShopDialogTest, CancelReturnsToTheCustomers)
{
    EXPECT_EQ(run([](QDialog& dialog) {
                  QTest::keyClicks(&child<QLineEdit>(dialog, "NewName"), u"Bar"_s);
                  QTest::keyClick(&dialog, Qt::Key_Escape);
              }),
              -1);
    EXPECT_FALSE(QFile::exists(m_folder.path("app/Bar")));
    EXPECT_EQ(m_values.customerPath, m_folder.path("app/Cafe"));
}

} // namespace
} // namespace norvane::shell
