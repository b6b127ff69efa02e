// The customer dialog as the user meets it: list, name, messages.
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

    QLineEdit& name() { return child<QLineEdit>(*m_form, "text1"); }

    std::optional<FrmCustomer> m_form;
};

TEST_F(FrmCustomerTest, AClickOnARowPutsItsNameIntoTheBoxAndOkTakesIt)
{
    EXPECT_EQ(m_form->windowTitle(), u"Select Customer");
    auto& list = child<QListWidget>(*m_form, "List1");
    ASSERT_EQ(list.count(), 2);
    EXPECT_EQ(name().text(), QString());
    const std::pair<int, QString> clicks[] = {{1, u"CAFE"_s}, {1, u"CAFE"_s}, {0, u"AROMA"_s}};
    for (const auto& [row, customer] : clicks) {
        name().clear();
        QTest::mouseClick(list.viewport(), Qt::LeftButton, {}, list.visualItemRect(list.item(row)).center());
        EXPECT_EQ(name().text(), customer);
    }
    QTest::keyClick(&name(), Qt::Key_Return);
    EXPECT_EQ(m_form->result(), QDialog::Accepted);
    EXPECT_EQ(m_values.customerName, u"AROMA");
    EXPECT_EQ(m_values.customerPath, m_folder.path("app/Aroma"));
    EXPECT_TRUE(m_boxes.shown.empty());
}

TEST_F(FrmCustomerTest, AWrongNameIsToldOverTheDialogAndANewOneAfterIt)
{
    const test::ShownBox refused{u"Error Creating Directory \rRe run software"_s, u"System Error"_s,
                                 BoxIcon::Critical};
    const struct {
        QString typed;
        test::ShownBox box;
        bool stays;
    } rows[] = {
        {u"   "_s, {u"Invalid Entry"_s, applicationTitle(), BoxIcon::Critical}, true},
        {u"../x"_s, refused, true},
        {u"No/Where"_s, refused, true},
        {u"New"_s,
         {u"Your new database has been created please\rupload program from your cash register.  \r"_s,
          u"Information "_s, BoxIcon::Information},
         false},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.typed.toStdString());
        m_boxes.shown.clear();
        m_boxes.whileOpen = [this, &row](const test::ShownBox&) {
            EXPECT_EQ(m_form->isVisible(), row.stays);
        };
        name().setText(row.typed);
        child<QPushButton>(*m_form, "CSCmdBtn1").click();
        EXPECT_EQ(m_boxes.shown, std::vector{row.box});
        EXPECT_EQ(m_form->isVisible(), row.stays);
    }
    EXPECT_TRUE(QFile::exists(m_folder.path("app/New/velmar.mdb")));
}

} // namespace
} // namespace norvane::shell
