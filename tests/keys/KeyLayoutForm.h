// The keyboard layout editor over a small Dorvik shop, and short ways to work it by keys and by mouse.
#pragma once

#include "keys/layout/KeyGrid.h"
#include "keys/layout/KeyLayout.h"
#include "tests/keys/KeyShop.h"
#include "tests/support/FormTest.h"

namespace norvane::keys::test
{

class KeyLayoutForm : public testing::Test
{
protected:
    explicit KeyLayoutForm(const KeyGeometry& geometry = dorvikKeyboard()) : keyboard(geometry)
    {
        shop.addKeyboard(keyboard.keysPerLevel);
        shop.addItems();
        shop.execute("insert into FUNCTIONKEY (id, DESCRIPTION) values (200, 'PLU')");
        shop.execute("insert into WLU (WLUno, DESCRIPTION) values (12, 'Breakfast')");
        shop.values.databasePath = u"elsewhere"_s;
        form = std::make_unique<KeyLayout>(keyboard, shop.values, boxes);
        form->show();
        EXPECT_TRUE(QTest::qWaitForWindowActive(form.get()));
    }
    ~KeyLayoutForm() override { EXPECT_FALSE(norvane::test::takeFailure()); }

    template <typename Control>
    Control& control(const char* name) const
    {
        return norvane::test::child<Control>(*form, name);
    }
    [[nodiscard]] KeyGrid& grid() const { return control<KeyGrid>("Grid1"); }
    void press(const char* button) const { norvane::test::press(*form, button); }
    static void key(Qt::Key key, Qt::KeyboardModifiers modifiers = {})
    {
        QTest::keyClick(QApplication::focusWidget(), key, modifiers);
    }
    void click(QTableView& list, int row, int column = 1, Qt::KeyboardModifiers modifiers = {}) const
    {
        const QModelIndex index = list.model()->index(row, column);
        list.scrollTo(index);
        QTest::mouseClick(list.viewport(), Qt::LeftButton, modifiers, list.visualRect(index).center());
    }
    /// Clicks an entry of the list of functions, for a key: CASH, CHECK, PLU.
    void put(int entry, KeyCell cell = {9, 0}) const
    {
        grid().setCurrentCell(cell);
        click(control<QTableView>("functionlist"), entry);
    }
    [[nodiscard]] std::string cell(int row, int column) const
    {
        return grid().model()->index(row, column).data().toString().toStdString();
    }
    /// The first four keys of a row; "." for unprogrammed.
    [[nodiscard]] std::string cells(int row) const
    {
        return QString::fromStdString(cell(row, 0) + cell(row, 1) + cell(row, 2) + cell(row, 3))
            .replace(u"Function Key"_s, u"."_s)
            .toStdString();
    }
    [[nodiscard]] std::string label(const char* name) const
    {
        return control<QLabel>(name).text().toStdString();
    }
    [[nodiscard]] std::string status() const
    {
        return control<QStatusBar>("StatusBar1").currentMessage().toStdString();
    }
    /// Key link and look-up code that are stored for a key of level 1.
    [[nodiscard]] std::string stored(int number) const
    {
        const auto links = QString::fromStdString(shop.column("KEYLINK", "KEYLINK")).split(u'|');
        const auto lookUps = QString::fromStdString(shop.column("NLU", "NLU")).split(u'|');
        return (links.at(number - 1) + u' ' + lookUps.at(number - 1)).toStdString();
    }
    /// Drops the selection on a cell; with Ctrl when @p copies.
    void dropAt(KeyCell cell, bool copies) const
    {
        QAbstractItemModel& model = *grid().model();
        const std::unique_ptr<QMimeData> keys(model.mimeData(grid().selectionModel()->selectedIndexes()));
        model.dropMimeData(keys.get(), copies ? Qt::CopyAction : Qt::MoveAction, -1, -1,
                           model.index(cell.row, cell.column));
    }
    /// Drags cells with the mouse from @p from, with Ctrl down from the start when @p copies, and drops them.
    /// A drag ends as it begins on a platform without a screen.
    void drag(KeyCell from, KeyCell to, bool copies) const
    {
        const auto mouse = [this, copies](QTest::MouseAction action, KeyCell cell, int right = 0) {
            const QRect place = grid().visualRect(grid().model()->index(cell.row, cell.column));
            QTest::mouseEvent(action, form->windowHandle(), Qt::LeftButton,
                              copies ? Qt::ControlModifier : Qt::NoModifier,
                              grid().viewport()->mapTo(form.get(), place.center() + QPoint(right, 0)));
        };
        mouse(QTest::MousePress, from);
        for (const int right : {10, 20})
            mouse(QTest::MouseMove, to, right);
        mouse(QTest::MouseRelease, to);
        dropAt(to, copies);
    }
    /// Alt and a letter; a button pressed so remains down for a moment.
    bool letter(Qt::Key letter, const std::function<bool()>& happened) const
    {
        key(letter, Qt::AltModifier);
        return QTest::qWaitFor(happened);
    }

    const KeyGeometry& keyboard;
    KeyShop shop{"3"};
    norvane::test::RecordingBoxes boxes;
    std::unique_ptr<KeyLayout> form;
};

} // namespace norvane::keys::test
