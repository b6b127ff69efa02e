// The context menu of a customer's line.
#include "customers/SafetyCopies.h"
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

} // namespace
} // namespace norvane::shell
