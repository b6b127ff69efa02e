// The designer as a dealer works it: cells, colours and fonts by mouse and keys, files, printing, leaving.
#include "tests/overlay/OverlayFormFixture.h"

#include <QMenuBar>

namespace norvane::overlay
{
namespace
{

using test::ShownBox;

const ShownBox startPrinting{u"Start Printing? [OK|Cancel]"_s, u"Print Option"_s, BoxIcon::Question};
const ShownBox printerFailure{u"Printer Failure"_s, u"Error"_s, BoxIcon::Critical};

/// Where New begins, the filter, the suffix of what is written and those of what is opened.
const std::tuple<Keyboard, QString, QString, QString, QString> askedFiles[] = {
    {Keyboard::Dorvik, u"C"_s, u"*.Dorvik"_s, u"Velmar"_s, u"Dorvik Velmar"_s},
    {Keyboard::Velmar, u"C"_s, u"*.Velmar"_s, u"Velmar"_s, u"Velmar"_s},
    {Keyboard::Quelmont, u"/app"_s, u"*.ky4"_s, u"ky4"_s, u"ky4"_s},
};

TEST_F(OverlayFormTest, AsksForFilesAsEachKeyboardHasThem)
{
    for (const auto& [keyboard, newIn, filter, suffix, opened] : askedFiles) {
        open(keyboard);
        m_dialogs.asked.clear();
        for (const char* entry : {"New", "Open", "Save"})
            choose(entry);
        QStringList asked;
        for (const FileChoice& each : m_dialogs.asked) {
            asked << u"%1|%2|%3|%4"_s.arg(each.title, each.path, each.filter, each.suffixes.join(u' '))
                         .replace(m_values.customerPath, u"C"_s);
        }
        EXPECT_EQ(asked.join(u';'), u"New|%1|Keyboard Files (%2)|%3;Open|C|Keyboard Files (%2)|%4;"
                                    "Save|C|Keyboard Files (%2)|%3"_s.arg(newIn, filter, suffix, opened));
        EXPECT_EQ(m_form->findChild<QAction*>(u"ImportLevel5"_s) != nullptr, keyboard != Keyboard::Quelmont);
    }
    EXPECT_TRUE(m_boxes.shown.empty());
}

/// "Files(&New|&Open)" and so on.
QString menusOf(const OverlayForm& form)
{
    QStringList menus;
    for (const QAction* const entry : form.findChild<QMenuBar*>()->actions()) {
        QStringList captions;
        for (const QAction* const each : entry->menu() ? entry->menu()->actions() : QList<QAction*>())
            captions << each->text();
        menus << u"%1(%2)"_s.arg(entry->text(), captions.join(u'|'));
    }
    return menus.join(u' ');
}

TEST_F(OverlayFormTest, HasTheMenusThatDealersKnowAndFurtherOnesAfterThem)
{
    const auto everyKeyboard = u"Files(&New|&Open|&Save|&Printer Setup|&Print|E&xit) &Font() "
                               "&Colours(&BackGround|&Text Colour) "_s;
    open(Keyboard::Quelmont);
    EXPECT_TRUE(menusOf(*m_form).startsWith(everyKeyboard + u"K&eys("_s)) << menusOf(*m_form).toStdString();
    open(Keyboard::Velmar);
    EXPECT_TRUE(menusOf(*m_form).startsWith(
        everyKeyboard + u"&Import Keyboard(Import Level&1|Import Level&2|Import Level&3|Import Level&4|"
                        "Import Level&5) K&eys("_s))
        << menusOf(*m_form).toStdString();
}

TEST_F(OverlayFormTest, SavesAndOpensAndTellsWhatIsWrong)
{
    m_folder.folder().write("short.Dorvik", "HALF\r\n255\r\n");
    m_folder.folder().write("junk.Dorvik", "JUNK\r\nred\r\n");
    open(Keyboard::Dorvik);
    EXPECT_EQ(title(), "Dorvik Keyboard - Untitled[*]");
    type(3, "TEA");
    EXPECT_TRUE(m_form->isWindowModified());
    m_dialogs.files = {path("short.Dorvik"), path("tea.Dorvik")};
    m_boxes.answers = {false};
    choose("Save");
    EXPECT_EQ(m_boxes.shown.back(), (ShownBox{u"short.Dorvik exists already. Replace it?"_s, u"Save"_s,
                                              BoxIcon::Question, BoxAnswer::No}));
    EXPECT_EQ(title(), "Dorvik Keyboard - tea.Dorvik[*]");
    EXPECT_FALSE(m_form->isWindowModified());
    m_boxes.shown.clear();
    m_dialogs.files = {path("tea.Dorvik"), path("short.Dorvik"), path("junk.Dorvik")};
    choose("Save");
    choose("Open");
    EXPECT_EQ(cell(0).text(), u"HALF"_s);
    m_boxes.unsavedAnswers = {UnsavedAnswer::Discard};
    choose("Open");
    ASSERT_EQ(m_boxes.shown.size(), 3U) << "saving again asks nothing";
    EXPECT_EQ(m_boxes.shown[0], (ShownBox{u"Incorrect file format"_s, u"File Error"_s, BoxIcon::Critical}));
    EXPECT_EQ(m_boxes.shown[1].title, u"Unsaved Changes"_s);
    EXPECT_EQ(m_boxes.shown[2].title, u"Error"_s);
    EXPECT_TRUE(m_boxes.shown[2].text.startsWith(u"System error 13: "_s));
    choose("Undo");
    choose("Undo");
    EXPECT_EQ(cell(0).text() + cell(3).text(), u" RECEIPTTEA"_s);
    m_dialogs.files = {path("no/such/folder.Dorvik")};
    choose("Save");
    EXPECT_TRUE(m_boxes.shown.back().text.startsWith(u"System error 75: "_s));
    EXPECT_FALSE(test::takeFailure());
}

TEST_F(OverlayFormTest, ReplacesUnaskedOnlyItsOwnFile)
{
    m_folder.folder().write("short.Dorvik", "HALF\r\n");
    const QString tea = path("tea.Dorvik");
    open(Keyboard::Dorvik);
    type(3, "TEA");
    m_dialogs.files = {tea, path("short.Dorvik"), tea, {}, tea, tea, {}};
    choose("Save");
    EXPECT_TRUE(m_boxes.shown.empty());
    choose("Open");
    choose("Save");
    EXPECT_EQ(m_boxes.shown.back().title, u"Save"_s) << "after an open that failed";
    m_boxes.unsavedAnswers = {UnsavedAnswer::Discard};
    choose("New");
    EXPECT_EQ(cell(0).text() + cell(3).text(), u" RECEIPT"_s);
    EXPECT_FALSE(m_form->isWindowModified());
    choose("Save");
    EXPECT_EQ(m_boxes.shown.back().title, u"Save"_s) << "new, but a file of this name is there";
    EXPECT_TRUE(m_folder.folder().read("tea.Dorvik").contains("\nTEA\r"));
}

TEST_F(OverlayFormTest, ClicksGiveTheFontAndDoubleClicksTheColours)
{
    open(Keyboard::Velmar);
    auto& sample = *m_form->findChild<QLabel*>(u"Label1"_s);
    click(9);
    m_dialogs.colours = {QColor(0, 0, 255), QColor(255, 255, 0)};
    choose("BackGround");
    choose("TextColour");
    QFont chosen(u"Liberation Mono"_s, 7);
    chosen.setItalic(true);
    m_dialogs.fonts = {chosen};
    choose("Font");
    choose("Font"); // cancelled
    EXPECT_EQ(sample.text(), u"Liberation Mono"_s);
    EXPECT_EQ(sample.grab().toImage().pixelColor(4, 4), QColor(0, 0, 255));
    EXPECT_EQ(sample.palette().color(sample.foregroundRole()), QColor(255, 255, 0));
    click(3);
    doubleClick(6);
    doubleClick(378);
    EXPECT_EQ(colourOf(6) + colourOf(8) + colourOf(378) + colourOf(379), "#0000ff#0000ff#0000ff#ffffff");
    EXPECT_EQ(cell(3).toolTip(), u"Double Click changes text & background colours"_s);
    QTest::keyClick(&cell(378), Qt::Key_Tab);
    EXPECT_EQ(saved(3), "|16777215|0|Liberation Mono|7|False|True");
    EXPECT_EQ(saved(6), "|16711680|65535|Arial|8|True|False");
    EXPECT_EQ(saved(9) + saved(focused()), "|16777215|0|Arial|8|True|False 8|16777215|0|Arial|8|True|False");
    for (int step = 0; step < 3; ++step)
        QTest::keyClick(&cell(3), Qt::Key_Z, Qt::ControlModifier);
    EXPECT_EQ(saved(3) + colourOf(6), "|16777215|0|Arial|8|True|False#ffffff");
}

TEST_F(OverlayFormTest, OffersTheColoursUsedLast)
{
    open(Keyboard::Dorvik);
    for (int shade = 1; shade <= 9; ++shade) {
        m_dialogs.colours.push_back(QColor(shade * 20, 0, 0));
        choose("BackGround");
    }
    auto& sample = *m_form->findChild<QLabel*>(u"Label1"_s);
    const auto field = [this](int place) {
        return m_form->findChild<QToolButton*>(u"RecentColour_%1"_s.arg(place));
    };
    QTest::mouseClick(field(8), Qt::LeftButton);
    QTest::mouseClick(field(2), Qt::RightButton);
    EXPECT_EQ(sample.palette().color(QPalette::Window), QColor(40, 0, 0));
    EXPECT_EQ(sample.palette().color(QPalette::WindowText), QColor(160, 0, 0));
}

const std::pair<Qt::Key, int> keySteps[] = {
    {Qt::Key_Down, 1},   {Qt::Key_Return, 2}, {Qt::Key_Tab, 30},   {Qt::Key_Right, 60},
    {Qt::Key_Down, 61},  {Qt::Key_Left, 31},  {Qt::Key_Enter, 32}, {Qt::Key_Backtab, 31},
    {Qt::Key_Right, 61}, {Qt::Key_Right, 91}, {Qt::Key_Up, 90},    {Qt::Key_Up, 90},
};

TEST_F(OverlayFormTest, WalksByKeysAndTakesOnlyWhatARegisterHas)
{
    open(Keyboard::Dorvik);
    EXPECT_EQ(focused(), 0);
    for (const auto& [key, expected] : keySteps) {
        QTest::keyClick(QApplication::focusWidget(), key);
        EXPECT_EQ(focused(), expected) << key;
    }
    EXPECT_FALSE(m_form->isWindowModified());
    type(90, "Caf\u00e9 \u0416\u4e2d\u20ac");
    EXPECT_EQ(cell(90).text(), u"Café €"_s);
    QTest::keyClick(&cell(90), Qt::Key_Left);
    EXPECT_EQ(focused(), 90) << "within a text an arrow moves the cursor";
    type(91, "A TEXT FAR WIDER THAN ITS KEY");
    const auto* const bar = m_form->findChild<QStatusBar*>();
    EXPECT_TRUE(bar->currentMessage().startsWith(u"Wider than its key: only \"A TEXT "_s));
    type(92, "KEY");
    constexpr auto wholeKey = Qt::ControlModifier | Qt::ShiftModifier;
    QTest::keyClick(&cell(92), Qt::Key_C, wholeKey);
    cell(120).setFocus();
    QTest::keyClick(&cell(120), Qt::Key_V, wholeKey);
    EXPECT_EQ(cell(120).text() + cell(122).text(), u"Café €KEY"_s);
    cell(379).setFocus();
    choose("PasteKey");
    EXPECT_EQ(cell(379).text() + cell(380).text(), u"Café € 1"_s) << "a key of one cell takes one line";
    for (int step = 0; step < 3; ++step)
        choose("Undo");
    EXPECT_EQ(cell(120).text() + cell(92).text(), QString());
    EXPECT_TRUE(cell(91).text().startsWith(u"A TEXT"_s));
}

TEST_F(OverlayFormTest, ShowsWhateverADocumentSays)
{
    open(Keyboard::Quelmont);
    QByteArray file =
        QByteArray(10000, 'W') + "\r\n-2147483643\r\n-2147483640\r\nNo Such Font\r\n8\r\nTrue\r\nFalse";
    for (const char* size : {"0", "-3", "1000"})
        file += QByteArray("\r\nA\r\n255\r\n0\r\nArial\r\n") + size + "\r\nTrue\r\nFalse";
    m_folder.folder().write("odd.ky4",
                            file + QByteArray("\r\n \r\n255\r\n0\r\n\r\n8\r\n1\r\n0").repeated(179));
    m_dialogs.files = {path("odd.ky4")};
    choose("Open");
    EXPECT_TRUE(m_boxes.shown.empty());
    EXPECT_EQ(cell(0).text().size(), 10000);
    EXPECT_EQ(cell(0).palette().color(QPalette::Base), QColor(Qt::white)) << "a system colour";
    EXPECT_EQ(cell(0).palette().color(QPalette::Text), QColor(Qt::black));
    EXPECT_EQ(colourOf(182), "#ff0000");
    for (int odd = 0; odd < 4; ++odd) {
        cell(odd).setFocus();
        EXPECT_FALSE(m_form->grab().isNull());
    }
    EXPECT_FALSE(m_form->isWindowModified());
}

TEST_F(OverlayFormTest, PrintsOnceAndTellsWhatFails)
{
    open(Keyboard::Velmar);
    m_boxes.answers = {false};
    choose("Print");
    EXPECT_EQ(m_boxes.shown, std::vector{startPrinting});
    for (const char* file : {"", "no/such/folder.pdf"}) {
        m_printFile = *file != '\0' ? path(file) : QString();
        m_boxes.answers = {true};
        choose("Print");
        EXPECT_EQ(m_boxes.shown.back(), printerFailure) << file;
    }
    m_dialogs.printerChoice = PrinterChoice{u"Back office"_s, QPageLayout::Portrait};
    choose("PrinterSetup");
    type(3, "A TEXT FAR WIDER THAN ITS KEY");
    m_printFile = path("sheet.pdf");
    m_boxes.shown.clear();
    m_boxes.answers = {false, true, false, true, true};
    QStringList notices;
    m_boxes.whileOpen = [&](const ShownBox& box) {
        if (box == startPrinting)
            notices += status();
    };
    choose("Print");
    EXPECT_EQ(notices, QStringList{u"Printer: none. Paper: A4 portrait. Scale: 100 %."_s});
    m_boxes.shown.clear();
    choose("Print");
    EXPECT_FALSE(QFile::exists(m_printFile));
    open(Keyboard::Velmar); // printed where the former form was set up to print
    type(3, "A TEXT FAR WIDER THAN ITS KEY");
    choose("Print");
    EXPECT_TRUE(status().startsWith(u"Sent to the printer. "_s));
    ASSERT_EQ(m_boxes.shown.size(), 4U);
    EXPECT_EQ(m_boxes.shown[1],
              (ShownBox{u"The text \"A TEXT FAR WIDER THAN ITS KEY\" is wider than its key and will be "
                        "cut.\r\rPrint all the same?"_s,
                        u"Print Option"_s, BoxIcon::Question}));
    EXPECT_EQ(m_chosen->name, u"Back office"_s);
    const QString sheet = QString::fromLatin1(m_folder.folder().read("sheet.pdf"));
    EXPECT_EQ(sheet.count(QRegularExpression(u"/Type /Page\\b"_s)), 1) << "one page and no empty one";
    EXPECT_TRUE(sheet.contains(QRegularExpression(u"MediaBox \\[0 0 595\\S* 84[12]"_s))) << "A4 portrait";
}

TEST_F(OverlayFormTest, ImportsALevelAndStaysWhenRowsAreMissing)
{
    for (int row = 1; row <= 170; ++row) {
        norvane::test::execute(m_folder.path(),
                               u"insert into KEYLINK (ID, KEYLINK) values (%1, '%1')"_s.arg(row));
    }
    open(Keyboard::Velmar);
    choose("ImportLevel1");
    EXPECT_EQ(cell(0).text() + u'|' + cell(1).text() + cell(378).text(), u"functio|n 7"_s);
    EXPECT_EQ(status(), u"Level 1 was imported."_s);
    m_folder.folder().write("setup.ini", "[SetupOption]\r\nECRModel=3\r\n");
    choose("Undo");
    choose("ImportLevel1");
    EXPECT_EQ(status(),
              u"Level 1 was imported. It is a level of a Dorvik: the texts may be on the wrong keys "
              "of this Velmar."_s);
    choose("Undo");
    EXPECT_TRUE(m_boxes.shown.empty() && !m_form->isWindowModified());
    type(0, "TEA");
    choose("ImportLevel2");
    EXPECT_EQ(
        m_boxes.shown,
        std::vector{(ShownBox{u"Run-time error '3021':\r\rNo current record: level 2 ends at row 338 of "
                              "KEYLINK, which has only 170. Upload \"Key Link\" and \"PLU & WLU "
                              "Relocation\" from the register, then import the level again."_s,
                              applicationTitle(), BoxIcon::Critical})});
    EXPECT_EQ(cell(0).text() + cell(36).text(), u"TEAfunctio"_s) << "what was read and typed remains";
}

TEST_F(OverlayFormTest, LeavingAsksOnceAboutUnsavedChanges)
{
    const std::function<void()> ways[] = {
        [this] { choose("Exit"); },
        [] { QTest::keyClick(QApplication::focusWidget(), Qt::Key_Escape); },
        [this] { m_form->close(); },
    };
    for (const auto& leave : ways) {
        open(Keyboard::Quelmont);
        m_boxes.shown.clear();
        type(3, "TEA");
        m_dialogs.files.clear();
        for (const auto answer : {UnsavedAnswer::Cancel, UnsavedAnswer::Save}) {
            m_boxes.unsavedAnswers = {answer};
            leave();
            EXPECT_TRUE(m_form->isVisible()) << "kept, or not saved since no name was given";
        }
        const bool saves = !QFile::exists(path("tea.ky4"));
        m_dialogs.files = {path("tea.ky4")};
        m_boxes.unsavedAnswers = {saves ? UnsavedAnswer::Save : UnsavedAnswer::Discard};
        leave();
        EXPECT_FALSE(m_form->isVisible());
        EXPECT_EQ(m_boxes.shown,
                  std::vector(3, ShownBox{u"Changes to Untitled are not saved. [Save|Discard|Cancel]"_s,
                                          u"Unsaved Changes"_s, BoxIcon::Exclamation}));
    }
    EXPECT_TRUE(m_folder.folder().read("tea.ky4").contains("\nTEA\r"));
    open(Keyboard::Quelmont);
    m_form->close();
    EXPECT_FALSE(m_form->isVisible());
}

} // namespace
} // namespace norvane::overlay
