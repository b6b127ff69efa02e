// The safety copies of a customer: the context menu of its line, and the window.
#include "customers/SafetyCopies.h"
#include "shell/CopiesDialog.h"
#include "shell/FrmCustomer.h"
#include "tests/shell/ShellFixture.h"
#include "tests/support/FormTest.h"

namespace norvane::shell
{
namespace
{

class CopyMenuTest : public ShellFixture
{
protected:
    CopyMenuTest() { makeCustomerDatabase(); }

    /// Opens the menu on the customer's line and chooses its last entry. @return how many entries it had.
    qsizetype chooseLastCopy()
    {
        FrmCustomer dialog(m_values, m_boxes);
        dialog.show();
        auto& list = child<QListWidget>(dialog, "List1");
        Q_EMIT list.customContextMenuRequested(list.visualItemRect(list.item(0)).center());
        const auto entries = child<QMenu>(dialog, "CopyMenu").actions();
        entries.last()->trigger();
        return entries.size();
    }
    [[nodiscard]] std::string plus() const
    {
        return test::rowsOf(m_values.databasePath, u"select PLUNUMBER from PLUDATA"_s);
    }
};

TEST_F(CopyMenuTest, RestoresTheCustomerAfterAQuestion)
{
    EXPECT_EQ(chooseLastCopy(), 1) << "a heading says that there are no copies";
    EXPECT_TRUE(m_boxes.shown.empty());

    execute(u"insert into PLUDATA (PLUNUMBER) values ('1')"_s);
    (void)customers::makeSafetyCopy(m_values.customerPath, u"before upload"_s, store::CopyOf::Programme,
                                    QDateTime({2026, 11, 25}, {18, 30}));
    execute(u"insert into PLUDATA (PLUNUMBER) values ('2')"_s);
    EXPECT_EQ(chooseLastCopy(), 2);
    EXPECT_EQ(plus(), "1 2") << "without an answer";
    ASSERT_EQ(m_boxes.shown.size(), 1U);
    EXPECT_EQ(m_boxes.shown[0].preset, BoxAnswer::No);
    m_boxes.answers = {true};
    chooseLastCopy();
    EXPECT_EQ(plus(), "1");
    EXPECT_TRUE(m_boxes.shown.back().text.startsWith(u"CAFE is as it was on"_s));
}

TEST_F(CopyMenuTest, TheWindowMakesComparesAndRestoresCopies)
{
    execute(u"insert into PLUDATA (PLUNUMBER, PRICE1) values ('1', '2.5')"_s);
    CopiesDialog dialog(m_values.appPath, u"CAFE"_s, m_boxes, nullptr);
    dialog.show();
    EXPECT_FALSE(child<QPushButton>(dialog, "RestoreCopy").isEnabled()) << "there is no copy yet";
    child<QPushButton>(dialog, "MakeCopy").click();
    auto& list = child<QTreeWidget>(dialog, "CopyList");
    ASSERT_EQ(list.topLevelItemCount(), 1);
    EXPECT_EQ(list.topLevelItem(0)->text(1), u"by hand"_s);
    const auto differences = [&dialog] {
        child<QPushButton>(dialog, "CompareCopy").click();
        return child<QPlainTextEdit>(dialog, "CopyDifferences").toPlainText().toStdString();
    };
    EXPECT_EQ(differences(), "Nothing");
    execute(u"update PLUDATA set PRICE1 = '3'"_s);
    execute(u"insert into PLUDATA (PLUNUMBER) values ('2')"_s);
    setModel("3");
    EXPECT_EQ(differences(), "PLUDATA: 0 new, 1 changed, 1 gone\nSettings");
    m_boxes.answers = {true};
    child<QPushButton>(dialog, "RestoreCopy").click();
    EXPECT_EQ(plus(), "1");
    EXPECT_EQ(list.topLevelItemCount(), 2) << "the state before the restore is kept";
}

} // namespace
} // namespace norvane::shell
