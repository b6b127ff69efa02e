// Several keys at once, by mouse and keys: selected, coloured, set in whole words; texts found and replaced.
#include "overlay/FindDialog.h"
#include "overlay/KeyboardView.h"
#include "overlay/KeyKinds.h"
#include "overlay/WholeWordsDialog.h"
#include "store/engine/CommitOnExit.h"
#include "store/engine/Database.h"
#include "tests/overlay/OverlayFormFixture.h"

#include <QCheckBox>
#include <QComboBox>
#include <QDoubleSpinBox>
#include <QListWidget>

namespace norvane::overlay
{
namespace
{

/// A Velmar whose key of row n sells PLU n; every third PLU is of group 7, the others of group 9.
class KeysMenuTest : public OverlayFormTest
{
protected:
    void fillShop() const
    {
        store::Database database(m_folder.path());
        const store::CommitOnExit transaction(database);
        const auto insert = [&database](const QString& row) {
            database.execute(u"insert into "_s + row);
        };
        insert(u"GROUPS (GROUPNO, DESCRIPTION) values (7, 'DRINKS')"_s);
        insert(u"GROUPS (GROUPNO, DESCRIPTION) values (8, 'EMPTY')"_s);
        for (int row = 1; row <= 169; ++row) {
            const QString number = u"%1"_s.arg(row, 18, 10, QChar(u'0'));
            insert(u"KEYLINK (ID, KEYLINK) values (%1, '%2')"_s.arg(row).arg(row <= 13 ? 300 + row : 0));
            insert(u"NLU (ID, NLU) values (%1, '%2')"_s.arg(QString::number(row), number));
            insert(u"PLUDATA (PLUNUMBER, DESCRIPTION, GROUPNO) values ('%1', 'HAMBURGER %2', %3)"_s.arg(
                number, QString::number(row), row % 3 == 0 ? u"7"_s : u"9"_s));
        }
    }
    [[nodiscard]] const KeySelection& selection() { return m_form->findChild<KeyboardView*>()->selection(); }
    void drag(int from, int to) { drag(from, to, to); }
    void drag(int from, int over, int to)
    {
        QTest::mousePress(&cell(from), Qt::LeftButton);
        for (const int next : {over, to}) {
            for (const int share : {2, 1})
                QTest::mouseMove(&cell(from), placeOf(from) + (placeIn(from, next) - placeOf(from)) / share);
        }
        QTest::mouseRelease(&cell(from), Qt::LeftButton, {}, placeIn(from, to));
    }
    QPoint placeOf(int index) { return cell(index).rect().center(); }
    /// The middle of cell @p index, seen from another.
    QPoint placeIn(int seenFrom, int index)
    {
        return cell(seenFrom).mapFromGlobal(cell(index).mapToGlobal(placeOf(index)));
    }
    void press(Qt::Key key, Qt::KeyboardModifiers modifiers = {})
    {
        QTest::keyClick(QApplication::focusWidget(), key, modifiers);
    }
    /// What a modal dialog is used for, while the entry that opens it runs.
    template <typename Dialog>
    void chooseIn(const char* entry, const std::function<void(Dialog&)>& use)
    {
        QTimer::singleShot(0, &*m_form, [&use] {
            auto* const dialog = qobject_cast<Dialog*>(QApplication::activeModalWidget());
            ASSERT_TRUE(dialog);
            use(*dialog);
            dialog->accept();
        });
        m_form->findChild<QAction*>(QLatin1StringView(entry))->trigger();
    }
    void selectKind(const QString& begin)
    {
        chooseIn<KeyKinds>("SelectKind", [&](KeyKinds& dialog) {
            auto& list = *dialog.findChild<QListWidget*>();
            const auto rows = list.findItems(begin, Qt::MatchStartsWith);
            ASSERT_EQ(rows.size(), 1) << qPrintable(begin);
            list.setCurrentItem(rows.first());
        });
    }
    [[nodiscard]] QString key(int first)
    {
        return cell(first).text() + u'|' + cell(first + 1).text() + u'|' + cell(first + 2).text();
    }
};

TEST_F(KeysMenuTest, SelectsByMouse)
{
    open(Keyboard::Velmar);
    m_dialogs.fonts = {QFont(u"Liberation Mono"_s, 7)};
    choose("Font");
    drag(0, 82);
    EXPECT_EQ(selection().keys(), (std::vector{0, 1, 13, 14, 26, 27})) << "six keys, some in part";
    EXPECT_TRUE(status().startsWith(u"Selected: 6 keys."_s));
    EXPECT_EQ(saved(0), "|16777215|0|Arial|8|True|False") << "a drag is not a click";
    EXPECT_TRUE(cell(4).accessibleName().endsWith(u", selected"_s));
    drag(0, 39);
    EXPECT_EQ(selection().count(), 2) << "a straight drag, and a new one";
    QWidget& ground = *cell(0).parentWidget();
    QTest::mousePress(&ground, Qt::LeftButton, {}, cell(0).geometry().topLeft() - QPoint(5, 5));
    QTest::mouseMove(&ground, cell(42).geometry().center());
    QTest::mouseRelease(&ground, Qt::LeftButton);
    EXPECT_EQ(selection().keys(), (std::vector{0, 1, 13, 14})) << "begun beside the keys";
    drag(6, 39, 6);
    EXPECT_EQ(selection().keys(), std::vector{2}) << "there and back";
    EXPECT_EQ(saved(6), "|16777215|0|Arial|8|True|False");
    drag(0, 39);
    QTest::mouseClick(&cell(120), Qt::LeftButton, Qt::ControlModifier);
    QTest::mouseClick(&cell(0), Qt::LeftButton, Qt::ControlModifier);
    EXPECT_EQ(selection().keys(), (std::vector{13, 40}));
    QTest::mouseClick(&cell(3), Qt::LeftButton);
    EXPECT_TRUE(selection().isEmpty() && status().isEmpty());
    QTest::mouseClick(&cell(42), Qt::LeftButton, Qt::ShiftModifier);
    EXPECT_EQ(selection().keys(), (std::vector{1, 14})) << "from the current key on";
    EXPECT_EQ(saved(42), "|16777215|0|Arial|8|True|False") << "what selects gives no font";
    EXPECT_EQ(saved(3), "|16777215|0|Liberation Mono|7|False|False");
    type(3, "COFFEE");
    QTest::mousePress(&cell(3), Qt::LeftButton, {}, QPoint(2, 5));
    QTest::mouseMove(&cell(3), QPoint(cell(3).width() - 2, 5));
    QTest::mouseRelease(&cell(3), Qt::LeftButton, {}, QPoint(cell(3).width() - 2, 5));
    EXPECT_TRUE(selection().isEmpty());
    EXPECT_EQ(cell(3).selectedText(), u"COFFEE"_s) << "within a key letters are selected";
}

TEST_F(KeysMenuTest, SelectsByKeys)
{
    open(Keyboard::Velmar);
    press(Qt::Key_Right, Qt::ShiftModifier);
    press(Qt::Key_Down, Qt::ShiftModifier);
    press(Qt::Key_Down, Qt::ShiftModifier);
    press(Qt::Key_Up, Qt::ShiftModifier);
    EXPECT_EQ(selection().keys(), (std::vector{0, 1, 13, 14}));
    press(Qt::Key_Escape);
    EXPECT_TRUE(selection().isEmpty() && m_form->isVisible()) << "Escape ends the selection first";
    press(Qt::Key_A, Qt::ControlModifier | Qt::ShiftModifier);
    EXPECT_EQ(selection().count(), 169);
    press(Qt::Key_Tab);
    EXPECT_TRUE(selection().isEmpty());
    choose("SelectColumn");
    EXPECT_EQ(selection().keys().front() + selection().keys().back(), 12) << "thirteen keys";
    press(Qt::Key_Escape);
    type(39, "TEA");
    press(Qt::Key_Left, Qt::ShiftModifier);
    EXPECT_EQ(cell(39).selectedText(), u"A"_s);
    EXPECT_TRUE(selection().isEmpty());
}

TEST_F(KeysMenuTest, ChoicesGoToTheSelectionAsOneStep)
{
    open(Keyboard::Velmar);
    type(3, "TEA");
    drag(0, 120);
    m_dialogs.colours = {QColor(0, 0, 255)};
    QFont chosen(u"Liberation Mono"_s, 9);
    m_dialogs.fonts = {chosen};
    choose("BackGround");
    choose("Font");
    choose("LargerLetters");
    press(Qt::Key_B, Qt::ControlModifier);
    press(Qt::Key_I, Qt::ControlModifier);
    EXPECT_EQ(saved(3), "TEA|16711680|0|Liberation Mono|9.5|True|True");
    EXPECT_EQ(saved(122), "|16711680|0|Liberation Mono|9.5|True|True");
    EXPECT_EQ(saved(123), "|16777215|0|Arial|8|True|False") << "the key below";
    for (int step = 0; step < 5; ++step)
        choose("Undo");
    EXPECT_EQ(saved(3) + saved(122), "TEA|16777215|0|Arial|8|True|False|16777215|0|Arial|8|True|False");
}

TEST_F(KeysMenuTest, AGroupKeepsItsColoursForTheNextImport)
{
    fillShop();
    open(Keyboard::Velmar);
    choose("ImportLevel1");
    chooseIn<KeyKinds>("SelectKind", [](KeyKinds& dialog) {
        auto& level = *dialog.findChild<QComboBox*>();
        level.setCurrentIndex(1);
        EXPECT_TRUE(
            dialog.findChild<QLabel*>(u"KindsFailure"_s)->text().contains(u"level 2 ends at row 338"_s));
        EXPECT_FALSE(dialog.findChild<QPushButton*>(u"SelectButton"_s)->isEnabled());
        level.setCurrentIndex(0);
    });
    selectKind(u"Functions: 13"_s);
    EXPECT_EQ(selection().keys().back(), 12);
    selectKind(u"Numeric keys: 12"_s);
    selectKind(u"Group 7 DRINKS: 48"_s);
    m_dialogs.colours = {QColor(0, 0, 255), QColor(255, 255, 0)};
    choose("BackGround");
    choose("TextColour");
    m_dialogs.files = {path("tea.Velmar"), path("tea.Velmar")};
    choose("Save");
    EXPECT_EQ(m_folder.folder().read("tea.Velmar.notes"),
              "[Overlay]\r\nKeyboard=Velmar\r\nLevel=1\r\n[Group 7]\r\nBackGround=16711680\r\n"
              "TextColour=65535\r\n");
    open(Keyboard::Velmar);
    choose("Open");
    press(Qt::Key_A, Qt::ControlModifier | Qt::ShiftModifier);
    m_dialogs.colours = {QColor(255, 255, 255)};
    choose("BackGround");
    press(Qt::Key_Escape);
    EXPECT_EQ(colourOf(74), "#ffffff");
    choose("ImportLevel1");
    EXPECT_TRUE(status().contains(u"Colour by Group"_s));
    choose("ColourByGroup");
    EXPECT_EQ(colourOf(74) + colourOf(77) + colourOf(41), "#0000ff#ffffff#ffffff") << "rows 15, 14 and 26";
    choose("Undo");
    EXPECT_EQ(colourOf(74), "#ffffff");
    m_folder.folder().write("tea.Velmar.notes",
                            "[Overlay]\nKeyboard=Dorvik\nLevel=1\n[Group 7]\nBackGround=1\nTextColour=2\n");
    m_dialogs.files = {path("tea.Velmar")};
    m_boxes.unsavedAnswers = {UnsavedAnswer::Discard};
    choose("Open");
    choose("ColourByGroup");
    EXPECT_TRUE(status().startsWith(u"No group has colours yet"_s)) << "notes of another keyboard";
    m_dialogs.files = {path("tea.Velmar")};
    choose("New");
    choose("SaveChanges");
    m_boxes.answers = {true};
    m_dialogs.files = {path("tea.Velmar")};
    choose("Save");
    EXPECT_FALSE(QFile::exists(path("tea.Velmar.notes"))) << "a new document has none of the former one's";
}

TEST_F(KeysMenuTest, SetsWholeWordsAndListsWhatDoesNotFit)
{
    fillShop();
    open(Keyboard::Velmar);
    choose("ImportLevel1");
    EXPECT_EQ(key(72), u"HAMBURG|ER |15"_s);
    type(75, "INCOMPREHENSIBILITY");
    type(78, "SELF-SERVICE");
    chooseIn<WholeWordsDialog>("WholeWordsEntry", [](WholeWordsDialog& dialog) {
        auto& list = *dialog.findChild<QListWidget*>(u"UnfitKeys"_s);
        dialog.findChild<QDoubleSpinBox*>(u"SmallestSize"_s)->setValue(7);
        EXPECT_EQ(list.count(), 143) << "with letters this large no burger fits";
        dialog.findChild<QDoubleSpinBox*>(u"SmallestSize"_s)->setValue(6);
        ASSERT_EQ(list.count(), 1);
        EXPECT_TRUE(
            list.item(0)->text().startsWith(u"Column 2, key 13: \"INCOMPREHENSIBILITY ER 14\" fits at "_s))
            << qPrintable(list.item(0)->text());
    });
    EXPECT_EQ(key(72), u"HAMBURGER|15|"_s);
    EXPECT_EQ(key(75), u"INCOMPREHENSIBILITY|ER |14"_s) << "what does not fit remains";
    EXPECT_EQ(selection().keys(), std::vector{25});
    EXPECT_EQ(key(78), u"SELF-|SERVICE|ER 39"_s) << "a hyphen of the user's";
    EXPECT_EQ(key(0), u"|function|"_s) << "one line is in the middle";
    choose("Undo");
    EXPECT_EQ(key(72), u"HAMBURG|ER |15"_s);
}

TEST_F(KeysMenuTest, FindsAndReplaces)
{
    fillShop();
    open(Keyboard::Velmar);
    choose("ImportLevel1");
    press(Qt::Key_F, Qt::ControlModifier);
    auto& dialog = *m_form->findChild<FindDialog*>();
    const auto click = [&dialog](const char* button) {
        QTest::mouseClick(dialog.findChild<QPushButton*>(QLatin1StringView(button)), Qt::LeftButton);
    };
    auto& sought = *dialog.findChild<QLineEdit*>(u"FindText"_s);
    auto& outcome = *dialog.findChild<QLabel*>(u"FindOutcome"_s);
    QTest::keyClicks(&sought, u"hamburger"_s);
    QTest::keyClick(&sought, Qt::Key_Return);
    EXPECT_EQ(outcome.text(), u"Column 2, key 1, line 1"_s) << "cut by the import";
    click("ReplaceButton");
    EXPECT_TRUE(outcome.text().contains(u"next line"_s));
    sought.setText(u"ER"_s);
    dialog.findChild<QLineEdit*>(u"ReplaceText"_s)->setText(u"CHEESE"_s);
    dialog.findChild<QCheckBox*>(u"MatchCase"_s)->setChecked(true);
    click("FindNextButton");
    click("FindNextButton");
    EXPECT_EQ(outcome.text(), u"Column 3, key 1, line 2"_s) << "not the line above";
    click("ReplaceAllButton");
    EXPECT_EQ(outcome.text(), u"Replaced in 144 lines."_s);
    EXPECT_EQ(key(72), u"HAMBURG|CHEESE |15"_s);
    sought.setText(u"absent"_s);
    click("FindNextButton");
    EXPECT_EQ(outcome.text(), u"No key has this text."_s);
    QTest::keyClick(&sought, Qt::Key_Escape);
    EXPECT_FALSE(dialog.isVisible());
    EXPECT_TRUE(m_form->isVisible());
    choose("Undo");
    EXPECT_EQ(key(72), u"HAMBURG|ER |15"_s);

    type(60, "ONLY");
    press(Qt::Key_F, Qt::ControlModifier);
    sought.setText(u"ONLY"_s);
    const auto isHidden = [&] {
        return dialog.frameGeometry().contains(cell(60).mapToGlobal(cell(60).rect().center()));
    };
    dialog.move(cell(60).mapToGlobal(QPoint(-40, -40)));
    EXPECT_TRUE(isHidden());
    click("FindNextButton");
    EXPECT_FALSE(isHidden()) << "the dialog moves off what it has found";
}

TEST_F(KeysMenuTest, HasTheKeysThatEveryProgramHas)
{
    open(Keyboard::Velmar);
    const auto pressed = [this](Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::ControlModifier) {
        m_dialogs.asked.clear();
        press(key, modifiers);
        QCoreApplication::processEvents();
        return m_dialogs.asked.empty() ? QString() : m_dialogs.asked.back().title;
    };
    EXPECT_EQ(pressed(Qt::Key_N) + pressed(Qt::Key_O), u"NewOpen"_s);
    type(3, "TEA");
    m_dialogs.files = {path("tea.Velmar")};
    EXPECT_EQ(pressed(Qt::Key_S), u"Save"_s) << "no name yet";
    type(3, "COFFEE");
    EXPECT_EQ(pressed(Qt::Key_S), QString()) << "its own file";
    EXPECT_TRUE(m_folder.folder().read("tea.Velmar").contains("\nCOFFEE\r"));
    EXPECT_EQ(pressed(Qt::Key_S, Qt::ControlModifier | Qt::ShiftModifier), u"Save"_s);
    m_boxes.answers = {false};
    pressed(Qt::Key_P);
    EXPECT_EQ(m_boxes.shown.back().title, u"Print Option"_s);
    auto& zoom = *m_form->findChild<QComboBox*>(u"Zoom"_s);
    pressed(Qt::Key_0);
    for (const Qt::Key key : {Qt::Key_Plus, Qt::Key_Equal})
        pressed(key);
    const int larger = zoom.currentIndex();
    pressed(Qt::Key_Minus);
    EXPECT_EQ(zoom.currentIndex(), larger - 1);
    EXPECT_EQ(cell(3).text(), u"COFFEE"_s) << "no letter was typed";
    pressed(Qt::Key_0);
    EXPECT_EQ(zoom.currentIndex(), 0);
}

} // namespace
} // namespace norvane::overlay
