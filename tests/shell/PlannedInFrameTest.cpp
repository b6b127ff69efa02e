// A file of a table is planned for a later day in the real main window, shown there and cancelled.
#include "articles/PlannedChanges.h"
#include "platform/FilePaths.h"
#include "tests/shell/FrameFixture.h"

namespace norvane::shell
{
namespace
{

const QDate laterDay = QDate::currentDate().addDays(40);

class PlannedInFrame : public FrameFixture
{
protected:
    PlannedInFrame()
    {
        child<QAction>(open("PLUMENU"), "ShowTable").trigger();
        m_table = &front();
        m_folder.write("app/prices.csv", "PLU number,Price 1\n1001,2.60\n1002,3.00\n");
    }
    /// Chooses @p action of the table and does @p act in the dialog @p name, which is closed then.
    void inDialog(const char* action, const QString& name, const std::function<void(QDialog& dialog)>& act)
    {
        bool isOpen = false;
        QTimer wait;
        QObject::connect(&wait, &QTimer::timeout, m_table, [&] {
            auto* const dialog = m_main->findChild<QDialog*>(name);
            if (dialog == nullptr || !dialog->isVisible() || std::exchange(isOpen, true))
                return;
            act(*dialog);
            if (dialog->isVisible())
                dialog->reject();
        });
        wait.start(1);
        child<QAction>(*m_table, action).trigger();
        EXPECT_TRUE(isOpen) << action;
    }
    void import(const std::function<void(QDialog& dialog)>& act)
    {
        m_boxes.typed = {m_folder.path("app/prices.csv")};
        inDialog("ImportTable", u"ImportDialog"_s, act);
    }
    void planned(const std::function<void(QDialog& dialog)>& act)
    {
        inDialog("PlannedChanges", u"PlannedDialog"_s, act);
    }
    static std::string state(const QDialog& dialog)
    {
        return child<QLabel>(dialog, "State").text().toStdString();
    }
    /// "Changed|1001|Price 1|2.50|2.60", line by line.
    static std::string lines(const QDialog& dialog, const char* view)
    {
        const auto& model = *child<QTableView>(dialog, view).model();
        QStringList lines;
        for (int row = 0; row < model.rowCount(); ++row) {
            QStringList cells;
            for (int column = 0; column < model.columnCount(); ++column)
                cells += model.index(row, column).data().toString();
            lines += cells.join(u'|');
        }
        return lines.join(u'\n').toStdString();
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

    QWidget* m_table;
};

TEST_F(PlannedInFrame, AFileIsPlannedShownAndCancelled)
{
    import([this](const QDialog& dialog) {
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
    EXPECT_EQ(lines(dialog, "PlannedValues"), "Changed|1001|Price 1|2.50|2.60");
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
} // namespace

/// Another file for a later day meets the prices as they will be; today's file those that are stored.
TEST_F(PlannedInFrame, ALaterDayIsComparedWithWhatIsPlannedBefore)
{
    import([](const QDialog& dialog) {
        child<QDateEdit>(dialog, "StoreOn").setDate(laterDay);
    child<QPushButton>(dialog, "ImportButton").click();
});
    import([](const QDialog& dialog) {
        EXPECT_EQ(lines(dialog, "Differences"), "Changed|1001|Price 1|2.50|2.60");
    auto& day = child<QDateEdit>(dialog, "StoreOn");
    day.setDate(laterDay.addDays(1));
    EXPECT_EQ(lines(dialog, "Differences"), "");
    EXPECT_FALSE(child<QPushButton>(dialog, "ImportButton").isEnabled());
    day.setDate(day.minimumDate());
    child<QPushButton>(dialog, "ImportButton").click();
    } // namespace norvane::shell
);
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
