// The list beside a screen: keys and clicks in, rows of the list and the record on the screen out.
#include "tests/screens/ScreenFixture.h"

namespace norvane::screens
{
namespace
{

class RecordListTest : public test::ScreenFixture
{
protected:
    RecordListTest()
    {
        execute("insert into PLUDATA values ('000000000000001123', 'Cider', '2', 1)");
        execute("insert into PLUDATA values ('000000000000005000', 'crème 12', '2', 1)");
        screen("[Database]\ntable=PLUDATA\nIndex1=plunumber\n[FormName]\nWidth=9000\nHeight=4500\n"
               "[visiblekeys]\nShownextrecord=YES\nShowAddrecord=YES\nShowdeleterecord=YES\n"
               "[Field1]\nControlType=TextControl\nVisible=True\nDatafield=PLUNUMBER\n"
               "[Field2]\nControlType=TextControl\nVisible=True\nDatafield=Description\nY=600\n");
        form = open();
    }

    void toggleList()
    {
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_L, Qt::ControlModifier);
        QCoreApplication::processEvents();
        ASSERT_TRUE(control(form, "ListFilter")->isVisible());
    }
    /// The contents of the list: "number text", the record of the screen with a star.
    [[nodiscard]] std::string listed() const
    {
        QStringList rows;
        const QAbstractItemModel& model = *control<QTableView>(form, "ListTable")->model();
        for (int row = 0; row < model.rowCount(); ++row) {
            rows += model.index(row, 0).data().toString() + u' ' + model.index(row, 1).data().toString() +
                    (model.index(row, 0).data(Qt::UserRole).toBool() ? u"*"_s : QString());
        }
        return rows.join(u'|').toStdString();
    }
    void choose(int row)
    {
        auto* const table = control<QTableView>(form, "ListTable");
        const QPoint place = table->visualRect(table->model()->index(row, 1)).center();
        QTest::mouseClick(table->viewport(), Qt::LeftButton, {}, place);
    }

    Form form;
};

TEST_F(RecordListTest, FiltersByAnyPartOfNumberOrTextAndGoesToTheChosenRecord)
{
    toggleList();
    EXPECT_EQ(QApplication::focusWidget(), control(form, "ListFilter"));
    EXPECT_EQ(listed(), "5 Lager*|123 Claret|1123 Cider|5000 crème 12");
    for (const auto& [part, rows] : {std::pair{"123", "123 Claret|1123 Cider"},
                                     {"12", "123 Claret|1123 Cider|5000 crème 12"},
                                     {"CRÈ", "5000 crème 12"},
                                     {"3C", ""}}) {
        type(form, "ListFilter", part);
        EXPECT_EQ(listed(), rows) << part;
    }
    EXPECT_EQ(control<QLabel>(form, "ListCount")->text(), u"0 of 4"_s);
    type(form, "ListFilter", "123");
    choose(1);
    EXPECT_EQ(text(form, "TextControl_2"), "Cider");
    EXPECT_EQ(listed(), "123 Claret|1123 Cider*");
    type(form, "ListFilter", "cl");
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Return);
    EXPECT_EQ(text(form, "TextControl_2"), "Claret");
    press(form, "NextRecord");
    EXPECT_EQ(text(form, "TextControl_2"), "Cider") << "moves go on from there";
}

TEST_F(RecordListTest, FollowsTheScreenAndTheTable)
{
    toggleList();
    press(form, "NextRecord");
    EXPECT_EQ(listed(), "5 Lager|123 Claret*|1123 Cider|5000 crème 12");
    type(form, "TextControl_2", "Port");
    choose(1);
    EXPECT_EQ(text(form, "TextControl_2"), "Port") << "the record is on the screen already";
    choose(2);
    EXPECT_EQ(takeBox().title, u"Unsaved Changes"_s);
    EXPECT_EQ(text(form, "TextControl_2"), "Port") << "cancelled";
    EXPECT_EQ(control<QTableView>(form, "ListTable")->currentIndex().row(), 1);
    m_boxes.unsavedAnswers = {UnsavedAnswer::Discard, UnsavedAnswer::Save};
    choose(2);
    EXPECT_EQ(text(form, "TextControl_2"), "Cider");
    type(form, "TextControl_2", "Perry");
    choose(1);
    EXPECT_EQ(text(form, "TextControl_2"), "Claret") << "neither kept nor saved";
    EXPECT_EQ(listed(), "5 Lager|123 Claret*|1123 Perry|5000 crème 12");
    type(form, "TextControl_2", "Port");
    m_boxes.shown.clear();
    press(form, "SaveRecord");
    EXPECT_EQ(listed(), "5 Lager|123 Port*|1123 Perry|5000 crème 12");
    m_boxes.answers = {true};
    press(form, "DeleteRecord");
    EXPECT_EQ(listed(), "5 Lager*|1123 Perry|5000 crème 12");
    execute("delete * from PLUDATA where PLUNUMBER = '000000000000001123'");
    control(form, "ListFilter")->setFocus();
    EXPECT_EQ(listed(), "5 Lager*|5000 crème 12");
    press(form, "AddRecord");
    EXPECT_EQ(listed(), "5 Lager|5000 crème 12") << "none of them is on the screen";
}

TEST_F(RecordListTest, ShowsTheRecordOfTheScreenWhenItOpensAndWhenItsFilterIsCleared)
{
    for (int number = 200; number < 300; ++number) {
        execute("insert into PLUDATA values ('000000000000000" + QByteArray::number(number) +
                "', 'x', '1', 1)");
    }
    form = open();
    control(form, "TextControl_1")->setFocus();
    const auto isShown = [this] {
        QCoreApplication::processEvents();
        auto* const table = control<QTableView>(form, "ListTable");
        const auto selected = table->selectionModel()->selectedRows();
        return selected.size() == 1 && selected[0].data(Qt::UserRole).toBool() &&
               table->viewport()->rect().contains(table->visualRect(selected[0]));
    };
    for (int time = 0; time < 80; ++time)
        press(form, "NextRecord");
    toggleList();
    EXPECT_TRUE(isShown()) << "at its first opening";
    auto* const filter = control<QLineEdit>(form, "ListFilter");
    QTest::keyClicks(filter, u"claret"_s);
    EXPECT_FALSE(isShown());
    QTest::keyClick(filter, Qt::Key_A, Qt::ControlModifier);
    QTest::keyClick(filter, Qt::Key_Delete);
    EXPECT_TRUE(isShown()) << "without a filter";
    QTest::keyClicks(filter, u"2"_s);
    press(form, "ListHandle");
    press(form, "ListHandle");
    EXPECT_EQ(filter->selectedText(), u"2"_s) << "typing replaces it";
    EXPECT_TRUE(isShown()) << "opened again";
}

TEST_F(RecordListTest, IsShownOnlyBesideScreensOfSeveralRecords)
{
    EXPECT_FALSE(form->findChild<QWidget*>(u"ListFilter"_s)) << "at first";
    const int width = form->width();
    press(form, "ListHandle");
    EXPECT_GT(form->width(), width + 200);
    EXPECT_TRUE(control(form, "ListFilter")->isVisible());
    press(form, "ListHandle");
    EXPECT_EQ(form->width(), width);
    form =
        open("[Database]\ntable=GROUPS\nIndex1=groupno\n[Field1]\nControlType=TextControl\nVisible=True\n");
    EXPECT_EQ(form->findChild<QWidget*>(u"RecordList"_s), nullptr);
}

} // namespace
} // namespace norvane::screens
