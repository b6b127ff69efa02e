// A file of a table is planned for a later day in the real main window, shown there and cancelled.
#include "articles/PlannedChanges.h"
#include "platform/FilePaths.h"
#include "tests/shell/TableFixture.h"

namespace norvane::shell
{
namespace
{

const QDate laterDay = QDate::currentDate().addDays(40);
constexpr auto changes = "Changed|1001|Price 1|2.50|2.60\nChanged|1001|Piece count|0|6";

class PlannedInFrame : public TableFixture
{
protected:
    PlannedInFrame()
    {
        openTable();
        m_folder.write("app/prices.csv", "PLU number,Price 1,Piece count\n1001,2.60,6\n1002,3.00,0\n");
    }
    void importPrices(const std::function<void(QDialog& dialog)>& act)
    {
        EXPECT_TRUE(importFrom(m_folder.path("app/prices.csv"), act));
    }
    void planned(const std::function<void(QDialog& dialog)>& act)
    {
        EXPECT_TRUE(inDialog("PlannedChanges", u"PlannedDialog"_s, act));
    }
    static std::string lists(const QDialog& dialog)
    {
        const auto& tree = child<QTreeWidget>(dialog, "PlannedLists");
        QStringList texts;
        for (int row = 0; row < tree.topLevelItemCount(); ++row) {
            for (int column = 0; column < tree.columnCount(); ++column)
                texts += tree.topLevelItem(row)->text(column);
        }
        return texts.join(u'|').toStdString();
    }
};

TEST_F(PlannedInFrame, AFileIsPlannedShownAndCancelled)
{
    importPrices([](const QDialog& dialog) {
        child<QDateEdit>(dialog, "StoreOn").setDate(laterDay);
        EXPECT_EQ(state(dialog), "1 changed, 0 new, 1 unchanged. Nothing is planned before you press Plan.");
        auto& plan = child<QPushButton>(dialog, "ImportButton");
        EXPECT_EQ(plan.text(), u"&Plan"_s);
        plan.click();
    });
    EXPECT_EQ(plus(), "Lager 2.5|Cider 3");
    EXPECT_EQ(notice(), "Planned: list 1 for " + laterDay.toString(Qt::ISODate).toStdString() +
                            ": 1 changed, 0 new. \"Planned Changes...\" in the menu More shows it");

    const std::string day = laterDay.toString(u"dd/MM/yyyy"_s).toStdString();
    planned([&](const QDialog& dialog) {
        EXPECT_EQ(lists(dialog), "1|" + day + "|PLUDATA|1|planned|prices.csv");
        EXPECT_EQ(lines(dialog, "PlannedValues"), changes) << "with the labels of the screen";
        auto& cancel = child<QPushButton>(dialog, "CancelList");
        m_boxes.answers = {false, true};
        cancel.click();
        EXPECT_TRUE(cancel.isEnabled());
        cancel.click();
        EXPECT_EQ(lists(dialog), "1|" + day + "|PLUDATA|1|cancelled|prices.csv");
        EXPECT_FALSE(cancel.isEnabled());
        child<QPushButton>(dialog, "PlanAgain").click();
        EXPECT_EQ(lists(dialog), "1|" + day + "|PLUDATA|1|planned|prices.csv");
    });
    const auto files = articles::plannedFiles(m_values.customerPath);
    ASSERT_EQ(files.size(), 1);
    EXPECT_EQ(files[0].state, articles::PlannedState::Planned);
}

/// Another file for a later day meets the prices as they will be; today's file those that are stored.
TEST_F(PlannedInFrame, ALaterDayIsComparedWithWhatIsPlannedBefore)
{
    importPrices([](const QDialog& dialog) {
        child<QDateEdit>(dialog, "StoreOn").setDate(laterDay);
        child<QPushButton>(dialog, "ImportButton").click();
    });
    importPrices([](const QDialog& dialog) {
        EXPECT_EQ(lines(dialog), changes);
        auto& day = child<QDateEdit>(dialog, "StoreOn");
        day.setDate(laterDay.addDays(1));
        EXPECT_EQ(lines(dialog), "");
        EXPECT_FALSE(child<QPushButton>(dialog, "ImportButton").isEnabled());
        day.setDate(day.minimumDate());
        child<QPushButton>(dialog, "ImportButton").click();
    });
    EXPECT_EQ(plus(), "Lager 2.6|Cider 3");
}

TEST_F(PlannedInFrame, ADamagedListIsShownAsSuch)
{
    m_folder.write("app/Cafe/planned/3 PLUDATA 2027-01-01.csv", "Planned changes,1\r\n");
    planned([](const QDialog& dialog) {
        EXPECT_EQ(lists(dialog),
                  "3||||is damaged, or was changed after it was planned|3 PLUDATA 2027-01-01.csv");
        EXPECT_EQ(lines(dialog, "PlannedValues"), "");
    });
}

} // namespace
} // namespace norvane::shell
