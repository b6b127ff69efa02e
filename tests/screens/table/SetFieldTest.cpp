// One column set in many records.
#include "screens/table/SetFieldDialog.h"
#include "tests/screens/table/TableWindowFixture.h"

#include <QTimer>

#include <functional>

namespace norvane::screens
{
namespace
{

constexpr struct {
    std::size_t rounding; ///< its place in the list
    const char* number;
    const char* rounded;
} roundedNumbers[] = {
    {0, "2.345", "2.35"}, {0, "2.344", "2.34"}, {1, "2.32", "2.3"}, {1, "2.325", "2.35"},
    {1, "0.02", "0"},     {2, "2.35", "2.4"},   {2, "2.34", "2.3"}, {3, "3.40", "2.99"},
    {3, "3.50", "3.99"},  {3, "0.20", "0.99"},  {3, "0", "0"},      {3, "99.99", "99.99"},
    {3, "-0.2", "-0.01"},
};

TEST(FieldChange, RoundsToStepsAndEndings)
{
    for (const auto& [rounding, number, rounded] : roundedNumbers) {
        EXPECT_EQ(roundedBy(changeRoundings()[rounding], *Decimal::parse(number), 2).text(), rounded)
            << rounding << ' ' << number;
    }
}

class SetFieldTest : public TableWindowFixture
{
protected:
    /// Opens the dialog, lets @p act work in it, and presses OK.
    void setField(const std::function<void(QDialog& dialog)>& act) const
    {
        QTimer::singleShot(0, window.get(), [&] {
            auto* const dialog = window->findChild<SetFieldDialog*>();
            ASSERT_NE(dialog, nullptr);
            act(*dialog);
            EXPECT_TRUE(QTest::qWaitFor([&] { return ok(*dialog).isEnabled(); }));
            QTest::mouseClick(&ok(*dialog), Qt::LeftButton);
        });
        QTest::mouseClick(&test::child<QPushButton>(*window, "SetField"), Qt::LeftButton);
    }
    static QPushButton& ok(QDialog& dialog) { return test::child<QPushButton>(dialog, "OkButton"); }
    static void choose(QDialog& dialog, const char* list, const char* entry)
    {
        auto& box = test::child<QComboBox>(dialog, list);
        const int place = box.findText(QString::fromUtf8(entry), Qt::MatchStartsWith);
        ASSERT_GE(place, 0) << entry;
        box.setCurrentIndex(place);
    }
    static void type(QDialog& dialog, const char* text)
    {
        auto& box = test::child<QLineEdit>(dialog, "NewValue");
        box.setFocus();
        QTest::keyClicks(&box, QString::fromUtf8(text));
    }
    static std::string summary(QDialog& dialog)
    {
        return test::child<QLabel>(dialog, "SummaryOfChanges").text().toStdString();
    }
    [[nodiscard]] std::string prices() const
    {
        return test::rowsOf(m_values.databasePath, u"select PRICE1 from PLUDATA order by PLUNUMBER"_s);
    }
};

TEST_F(SetFieldTest, CopiesFromAColumnOfTheSameKindUnlessAnotherIsChosen)
{
    setField([](QDialog& dialog) {
        choose(dialog, "FieldToSet", "PIECECOUNT");
        choose(dialog, "HowToSet", "Copy from");
        EXPECT_EQ(test::child<QComboBox>(dialog, "SourceField").currentText(), u"MODIFIER"_s);
    });
    save();
    EXPECT_EQ(rows("select PIECECOUNT from PLUDATA"), "7 7 7 7");
    setField([](QDialog& dialog) {
        choose(dialog, "FieldToSet", "PRICE1");
        choose(dialog, "HowToSet", "Copy from");
        choose(dialog, "SourceField", "PIECECOUNT");
    });
    save();
    EXPECT_EQ(prices(), "7 7 7 7");
}

TEST_F(SetFieldTest, RaisesPricesOfTheRecordsThatAreShown)
{
    filter("e"); // all but Café
    const std::string before = prices();
    setField([](QDialog& dialog) {
        choose(dialog, "FieldToSet", "Price");
        choose(dialog, "HowToSet", "Add the amount");
        type(dialog, "0,20");
        EXPECT_TRUE(QTest::qWaitFor([&] { return summary(dialog) == "3 records change."; }))
            << summary(dialog);
        const auto* const preview = test::child<QTableView>(dialog, "PreviewOfChanges").model();
        EXPECT_EQ(preview->index(0, 2).data().toString(), u"2.50"_s);
        EXPECT_EQ(preview->index(0, 3).data().toString(), u"2.70"_s);
    });
    EXPECT_EQ(prices(), before) << "nothing is stored yet";
    EXPECT_EQ(notice, "Changed 3 records. Press Save Changes to store them");
    QTest::mouseClick(&test::child<QPushButton>(*window, "SaveChanges"), Qt::LeftButton);
    EXPECT_EQ(prices(), "2.7 10.2 9.8 0.2");
}

TEST_F(SetFieldTest, NamesWhatCannotBeChanged)
{
    setField([](QDialog& dialog) {
        choose(dialog, "FieldToSet", "Price");
        choose(dialog, "HowToSet", "Add the amount");
        type(dialog, "-5");
        EXPECT_TRUE(QTest::qWaitFor([&] { return summary(dialog).starts_with("2 records change."); }));
        EXPECT_NE(summary(dialog).find("5: the new value is less than 0"), std::string::npos)
            << summary(dialog);
    });
    QTest::mouseClick(&test::child<QPushButton>(*window, "SaveChanges"), Qt::LeftButton);
    EXPECT_EQ(prices(), "2.5 5 4.8 0.00");
}

TEST_F(SetFieldTest, SetsTheChosenRecordsToAnEntryOfTheList)
{
    view->setCurrentIndex(view->model()->index(2, 0));
    view->selectionModel()->select(view->model()->index(3, 0), QItemSelectionModel::Select);
    setField([](QDialog& dialog) {
        choose(dialog, "FieldToSet", "Group");
        EXPECT_EQ(test::child<QComboBox>(dialog, "HowToSet").count(), 2) << "nothing is added to a group";
        type(dialog, "drinks");
    });
    EXPECT_EQ(notice, "Changed 2 records. Press Save Changes to store them");
}

} // namespace
} // namespace norvane::screens
