// Comparing from the exchange dialog as a user does, with the real tools and a bank of registers.
#include "exchange/CompareDialog.h"

#include "exchange/FrmComm.h"
#include "store/engine/WorkHistory.h"
#include "tests/exchange/TemporaryPlace.h"
#include "tests/store/Rows.h"
#include "tests/support/LinkFormTest.h"

#include <QTableView>

namespace norvane::exchange
{
namespace
{

class CompareDialogTest : public test::LinkFormTest<FrmComm>
{
protected:
    CompareDialogTest() : LinkFormTest(1, 0, u"UPLOAD"_s)
    {
        form.setHistory(&history);
        tick({2, 5});
        press("Communicate");
        tick({2, 5});
        store::Database database(values.databasePath);
        for (const char* sql : {"update GROUPS set DESCRIPTION='OTHER' where GROUPNO=3",
                                "update GROUPS set DESCRIPTION='NEW' where GROUPNO=4",
                                "update TAXRATES set notax=77 where ID=2"})
            database.execute(QLatin1StringView(sql));
    }
    void tick(const QList<int>& boxesToTick) const
    {
        for (const int index : boxesToTick)
            form.findChild<QCheckBox*>(u"check1_%1"_s.arg(index))->setChecked(true);
    }
    /// Presses Compare; @p act gets the dialog once it has listed everything.
    void compare(const std::function<void(CompareDialog& dialog)>& act)
    {
        QTimer timer;
        bool isOpen = false;
        if (act)
            actOnDialog(timer, isOpen, act);
        press("CompareButton");
        EXPECT_EQ(isOpen, act != nullptr);
    }
    [[nodiscard]] std::string rows(const char* sql) const
    {
        return test::rowsOf(values.databasePath, QLatin1StringView(sql));
    }
    static QString state(const CompareDialog& dialog)
    {
        return dialog.findChild<QLabel*>(u"State"_s)->text();
    }

    store::WorkHistory history;
    test::TemporaryPlace place;

private:
    static void actOnDialog(QTimer& timer, bool& isOpen,
                            const std::function<void(CompareDialog& dialog)>& act)
    {
        QObject::connect(&timer, &QTimer::timeout, &timer, [&timer, &isOpen, act] {
            auto* const dialog = qobject_cast<CompareDialog*>(QApplication::activeModalWidget());
            if (dialog == nullptr || state(*dialog).isEmpty() || state(*dialog) == u"Comparing..."_s)
                return;
            timer.stop();
            isOpen = true;
            act(*dialog);
            dialog->reject();
        });
        timer.start(1);
    }
};

TEST_F(CompareDialogTest, TakesOverTheChosenRecordsAndListsWhatIsLeft)
{
    compare([this](CompareDialog& dialog) {
        auto& table = test::child<QTableView>(dialog, "ComparedLines");
        auto& use = test::child<QPushButton>(dialog, "UseButton");
        EXPECT_EQ(state(dialog), u"2 differences; 1 value in italics travels one way only."_s);
        EXPECT_EQ(table.model()->rowCount(), 3);
        EXPECT_FALSE(use.isEnabled());
        table.selectRow(0);
        use.click();
        EXPECT_TRUE(
            state(dialog).startsWith("Used the register's values of 1 record. 1 difference; 1 value in"_L1));
        EXPECT_EQ(table.model()->index(0, 3).data(), u"NEW"_s);
        EXPECT_FALSE(use.isEnabled());
    });
    EXPECT_EQ(rows("select DESCRIPTION from GROUPS where GROUPNO between 3 and 4"), "Beer & Cider NEW");
    EXPECT_EQ(history.latest(values.databasePath)->name, u"values of the register used for 1 record"_s);
    EXPECT_TRUE(form.findChild<QCheckBox*>(u"check1_2"_s)->isChecked()) << "a comparison moves nothing";
    EXPECT_TRUE(othersMayStart());
}

TEST_F(CompareDialogTest, EndsWithTheFormAndSaysWhyNothingCame)
{
    folder.setFaults("[Off]\nCommand=open\nResult=8\n");
    compare(nullptr);
    ASSERT_EQ(boxes.shown.size(), 1U);
    EXPECT_TRUE(boxes.shown[0].text.startsWith(
        "Nothing was compared. Stopped at the opening exchange: result 8: Time Out"_L1))
        << boxes.shown[0].text.toStdString();
    folder.setFaults("");
    pressEscapeSoon();
    compare(nullptr);
    EXPECT_FALSE(form.isVisible());
    EXPECT_EQ(place.scratchFolders(), QStringList());
    EXPECT_EQ(boxes.shown.size(), 1U);
    EXPECT_TRUE(othersMayStart());
}

TEST_F(CompareDialogTest, AsksForTicksFirst)
{
    for (const int index : {2, 5})
        form.findChild<QCheckBox*>(u"check1_%1"_s.arg(index))->setChecked(false);
    compare(nullptr);
    ASSERT_EQ(boxes.shown.size(), 1U);
    EXPECT_EQ(boxes.shown[0].text, u"Tick what to compare first."_s);
}

} // namespace
} // namespace norvane::exchange
