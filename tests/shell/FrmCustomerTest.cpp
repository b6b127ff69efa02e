// The customer dialog as the user meets it: list, name, messages, and the way out.
#include "shell/FrmCustomer.h"

#include "tests/shell/ShellFixture.h"

#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QTest>

using namespace Qt::Literals::StringLiterals;

namespace norvane::shell
{
namespace
{

class FrmCustomerTest : public ShellFixture
{
protected:
    FrmCustomerTest()
    {
        m_folder.write("app/Aroma/setup.ini", "");
        m_form.emplace(m_values, m_boxes);
        m_form->open();
    }

    QListWidget& list() { return *m_form->findChild<QListWidget*>(u"List1"_s); }
    QLineEdit& name() { return *m_form->findChild<QLineEdit*>(u"text1"_s); }
    void pressOk() { m_form->findChild<QPushButton*>(u"CSCmdBtn1"_s)->click(); }

    std::optional<FrmCustomer> m_form;
};

TEST_F(FrmCustomerTest, AClickOnARowPutsItsNameIntoTheBoxAndOkTakesIt)
{
    EXPECT_EQ(m_form->windowTitle(), u"Select Customer");
    ASSERT_EQ(list().count(), 2);
    EXPECT_TRUE(name().text().isEmpty());
    const auto clickRow = [this](int row) {
        QTest::mouseClick(list().viewport(), Qt::LeftButton, {},
                          list().visualItemRect(list().item(row)).center());
    };
    clickRow(1);
    EXPECT_EQ(name().text(), u"CAFE");
    name().clear();
    clickRow(1);
    EXPECT_EQ(name().text(), u"CAFE") << "the same row again";
    clickRow(0);
    QTest::keyClick(&name(), Qt::Key_Return);
    EXPECT_EQ(m_form->result(), QDialog::Accepted);
    EXPECT_EQ(m_values.customerName, u"AROMA");
    EXPECT_EQ(m_values.customerPath, m_folder.path("app/Aroma"));
    EXPECT_TRUE(m_boxes.shown.empty());
}

TEST_F(FrmCustomerTest, ANewCustomerIsAnnouncedAfterTheDialogHasGone)
{
    m_boxes.whileOpen = [this](const test::ShownBox&) {
        EXPECT_FALSE(m_form->isVisible());
    };
    QTest::keyClicks(&name(), u"New"_s);
    pressOk();
    EXPECT_EQ(m_boxes.shown, (std::vector<test::ShownBox>{
                                 {u"Your new database has been created please\rupload program from your cash "
                                  "register.  \r"_s,
                                  u"Information "_s, BoxIcon::Information}}));
    EXPECT_TRUE(QFile::exists(m_folder.path("app/New/velmar.mdb")));
}

TEST_F(FrmCustomerTest, AWrongNameIsToldAndTheDialogStays)
{
    const test::ShownBox invalid{u"Invalid Entry"_s, applicationTitle(), BoxIcon::Critical};
    const test::ShownBox refused{u"Error Creating Directory \rRe run software"_s, u"System Error"_s,
                                 BoxIcon::Critical};
    for (const auto& [typed, box] :
         {std::pair{u"   "_s, invalid}, {u"../x"_s, refused}, {u"No/Where"_s, refused}}) {
        m_boxes.shown.clear();
        name().setText(typed);
        pressOk();
        EXPECT_EQ(m_boxes.shown, std::vector{box}) << typed.toStdString();
        EXPECT_TRUE(m_form->isVisible());
    }
}

TEST_F(FrmCustomerTest, ClosingAsksAndOnlyYesLeaves)
{
    m_boxes.answers = {false, true};
    m_form->close();
    EXPECT_TRUE(m_form->isVisible());
    QTest::keyClick(&*m_form, Qt::Key_Escape);
    EXPECT_FALSE(m_form->isVisible());
    EXPECT_EQ(m_form->result(), QDialog::Rejected);
    const test::ShownBox question{u"Are You Sure?"_s, u"Exit Program"_s, BoxIcon::Question};
    EXPECT_EQ(m_boxes.shown, std::vector({question, question}));
}

} // namespace
} // namespace norvane::shell
