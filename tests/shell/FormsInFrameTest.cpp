// Small windows, key editors and keyboard designers in the real main window, and screens that cannot open.
#include "tests/shell/FrameFixture.h"
#include "tests/store/Elsewhere.h"

namespace norvane::shell
{
namespace
{

using FormsInFrameTest = FrameFixture;

TEST_F(FormsInFrameTest, AccessLettersOfSmallWindowsComeBeforeTheMenu)
{
    open("DataSetup");
    child<QLineEdit>(*m_main, "TxtTelephone").setText(u"0123"_s);
    letter(Qt::Key_S);
    EXPECT_TRUE(allClosed());
    EXPECT_TRUE(m_folder.read("app/Cafe/setup.ini").contains("Telephone=0123"));
    EXPECT_EQ(notice(), "Saved Setup");
    open("About");
    letter(Qt::Key_S);
    QPointer<QWidget> info;
    ASSERT_TRUE(soon([&] { return !(info = m_main->findChild<QWidget*>(u"frmSysInfo"_s)).isNull(); }));
    child<QPushButton>(*info, "CopyButton").click();
    EXPECT_EQ(QGuiApplication::clipboard()->text().section(u'\n', 0, 0), u"Program: " NORVANE_VERSION);
    info->close();
    EXPECT_TRUE(soon([&] { return info.isNull(); }));
    QApplication::setActiveWindow(&*m_main);
    const QString path = std::exchange(m_values.customerPath, m_folder.path("app/Gone"));
    child<QPushButton>(*m_main, "cmdSysInfo").click();
    child<QPushButton>(*m_main, "cmdOK").click();
    EXPECT_TRUE(allClosed());
    m_values.customerPath = path;
    for (const char* entry : {"DataSetup", "CollectSales"}) {
        open(entry);
        letter(Qt::Key_X);
        EXPECT_TRUE(allClosed()) << entry;
    }
    ASSERT_EQ(m_boxes.shown.size(), 1U);
    EXPECT_EQ(m_boxes.shown[0].text, u"System Information Is Unavailable At This Time");
    EXPECT_TRUE(m_main->isVisible());
}

/// The frame of the form grows with it.
TEST_F(FormsInFrameTest, ACollectionShowsWhatAToolSaid)
{
    const test::WorkingDirectory here(m_folder.path("app"));
    m_folder.write("app/VELMARCOMM", "#!/bin/sh\necho no answer\necho 8 >status.out\n");
    QFile::setPermissions(m_folder.path("app/VELMARCOMM"), QFile::ReadOwner | QFile::ExeOwner);
    QWidget& form = open("CollectSales");
    QWidget& frame = *form.parentWidget();
    const auto& report = child<QPlainTextEdit>(form, "RunReport");
    int seen = 0;
    m_boxes.whileOpen = [&](const test::ShownBox&) {
        EXPECT_TRUE(report.toPlainText().startsWith(u"Get Memory:\nno answer\n\nResult 8 at Get Memory"_s));
        EXPECT_TRUE(frame.rect().contains({report.mapTo(&frame, QPoint()), report.size()}));
        EXPECT_TRUE(frame.parentWidget()->rect().contains(frame.geometry()));
        ++seen;
    };
    child<QPushButton>(form, "Communicate").click();
    EXPECT_EQ(seen, 1);
}

/// Another customer is chosen; the key editors lead over to its data, which is still empty.
TEST_F(FormsInFrameTest, AKeyEditorThatCannotOpenClosesAlone)
{
    QWidget& screen = open("PLUMENU");
    type(screen, pluName, "Stout");
    m_folder.write("app/New/setup.ini", "[SetupOption]\r\nECRModel=2\r\n");
    store::Database::create(m_folder.path("app/New/velmar.mdb"), store::catalogue());
    m_values.customerName = u"New"_s;
    m_values.customerPath = m_folder.path("app/New");
    const auto& dataInUse = child<QWidget>(*m_main, "DataInUse");
    const auto& chosen = child<QWidget>(*m_main, "StatusText");
    for (const char* entry : {"FunctionMenu", "KeyboardLocation", "WLUMenu"}) {
        m_values.databasePath = m_folder.path("app/Cafe/velmar.mdb");
        m_main->showCustomer();
        EXPECT_TRUE(dataInUse.isVisible());
        EXPECT_EQ(dataInUse.property("text"), u"Screens and exchange: data of Cafe"_s);
        EXPECT_TRUE(soon([&] { return chosen.width() >= chosen.sizeHint().width(); })) << "whole beside it";
        child<QAction>(*m_main, entry).trigger();
        EXPECT_TRUE(m_boxes.shown.back().text.startsWith(u"Run-time error '3021':\r\r"_s)) << entry;
        EXPECT_EQ(m_values.databasePath, m_folder.path("app/New/velmar.mdb")) << entry;
        EXPECT_FALSE(dataInUse.isVisible()) << entry;
        EXPECT_EQ(shown(screen, pluName), "Stout") << entry;
    }
    EXPECT_EQ(m_boxes.shown.front().text,
              u"Redeem Points for Tender Keys are programmed in the General Function Options"_s);
    EXPECT_EQ(m_boxes.shown.size(), 4U) << "a note for the function keys, a failure for each";
}

/// Setup remains open while another customer is chosen.
TEST_F(FormsInFrameTest, SetupFollowsAChangeOfCustomer)
{
    m_folder.write("app/Bar/setup.ini", "[SetupOption]\r\nECRModel= 3\r\n");
    m_folder.write("app/Inn/setup.ini", "[SetupOption]\r\nECRModel=none\r\n");
    const auto change = [this](const char* name) {
        m_values.customerName = QLatin1String(name);
        m_values.customerPath = m_folder.path(QByteArray("app/") + name);
        child<QAction>(*m_main, "About").trigger();
        return m_main->statusBar1().notice();
    };
    QPointer<QWidget> setup = &open("DataSetup");
    EXPECT_EQ(change("Bar"), u"Setup now shows the settings of Bar");
    EXPECT_EQ(child<QComboBox>(*setup, "CboModel").currentText(), u"Dorvik");
    child<QComboBox>(*setup, "CboECRs").setCurrentIndex(4);
    EXPECT_EQ(change("Cafe"), u"Setup now shows the settings of Cafe. Changes for Bar were not saved");
    child<QPushButton>(*setup, "CmdSave").click();
    EXPECT_EQ(m_folder.read("app/Bar/setup.ini"), "[SetupOption]\r\nECRModel= 3\r\n");
    EXPECT_TRUE(m_folder.read("app/Cafe/setup.ini").contains("NoOfECRs=0\r\n"));

    setup = &open("DataSetup");
    (void)change("Inn");
    EXPECT_TRUE(soon([&] { return setup.isNull(); })) << "nothing of Cafe can be saved for Inn";
    ASSERT_EQ(m_boxes.shown.size(), 1U);
    EXPECT_TRUE(m_boxes.shown[0].text.contains(u"ECRModel=none in "_s));
}

TEST_F(FormsInFrameTest, AScreenThatCannotOpenClosesAlone)
{
    QFile::copy(QStringLiteral(DATA_DIR "/Group.scn"), m_folder.path("app/Group.scn"));
    QWidget& screen = open("PLUMENU");
    type(screen, pluName, "Stout");
    for (const char* entry : {"GroupMenu", "CardCat"})
        EXPECT_EQ(&open(entry), &screen) << entry;
    setModel("");
    EXPECT_EQ(&open("PLUStatusMenu"), &screen);
    m_folder.write("app/Cafe/setup.ini", "[SetupOption]\r\nPort=9\r\n");
    EXPECT_EQ(&open("DataSetup"), &screen);
    EXPECT_EQ(shown(screen, pluName), "Stout");
    QStringList messages;
    for (const auto& box : m_boxes.shown)
        messages += box.text.section(u'\r', 0, 0);
    EXPECT_EQ(messages, (QStringList{u"Run-time error '3021':"_s, u"Run-time error '53':"_s,
                                     u"Run-time error '13':"_s, u"Run-time error '5':"_s}));
    EXPECT_TRUE(m_boxes.shown[1].text.endsWith(
        u"mem.dat\rUpload from the ECR first: each upload fetches this file."_s));
}

/// Entries, models and the form that opens.
constexpr const char* modalForms[][3] = {{"DorvikKeyboard", "2", "Dorvik"},
                                         {"Velmarkeyboard", "2", "Velmar"},
                                         {"KeyboardLocation", "0", "KeyLayoutVelmar"},
                                         {"KeyboardLocation", "2", "KeyLayoutVelmar"},
                                         {"KeyboardLocation", "3", "KeyLayoutDorvik"}};

TEST_F(FormsInFrameTest, TheDesignersOfTwoKeyboardsAndTheLayoutOfTheModelAreModal)
{
    const QString keyRows = u"insert into %1 with recursive n(i) as (select 1 union all select i + 1 from n "
                            "where i < 845) select i, '5' from n"_s;
    for (const char* table : {"KEYLINK (ID, KEYLINK)", "NLU (ID, NLU)"})
        test::runElsewhere(m_values.databasePath, keyRows.arg(QLatin1String(table)).toUtf8());
    for (const auto& [entry, model, form] : modalForms) {
        setModel(model);
        QString modal;
        QTimer::singleShot(0, &*m_main, [&modal] {
            if (QWidget* const open = QApplication::activeModalWidget()) {
                modal = open->objectName();
                open->close();
            }
        });
        child<QAction>(*m_main, entry).trigger();
        EXPECT_EQ(modal, QLatin1String(form));
    }
    EXPECT_TRUE(m_boxes.shown.empty());
}

TEST_F(FormsInFrameTest, ADesignerBesideTheMenuAsksBeforeTheEnd)
{
    QWidget& beside = open("Quelmontkeyboard");
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Plus, Qt::ControlModifier);
    EXPECT_GT(child<QComboBox>(beside, "Zoom").currentIndex(), 0);
    EXPECT_EQ(menuBy([] { letter(Qt::Key_C); }), u"Colours"_s) << "its own menu comes first";
    EXPECT_EQ(menuBy([] { letter(Qt::Key_E); }), u"Keys"_s);
    EXPECT_EQ(menuBy([] { letter(Qt::Key_K); }), u"KeyboardPrint"_s) << "left to the main menu";
    EXPECT_EQ(&open("Quelmontkeyboard"), &beside) << "one at a time";
    type(beside, "RichTextBox1_0", "TEA");
    m_boxes.answers = {true};
    m_main->close();
    EXPECT_TRUE(m_main->isVisible());
    m_main->unload();
    EXPECT_TRUE(m_main->isVisible());
    m_boxes.unsavedAnswers = {UnsavedAnswer::Discard};
    m_boxes.answers = {true};
    m_main->close();
    EXPECT_FALSE(m_main->isVisible());
    QStringList titles;
    for (const auto& box : m_boxes.shown)
        titles += box.title;
    const QString unsaved = u"Unsaved Changes"_s;
    const QString exit = u"Exit Program"_s;
    EXPECT_EQ(titles, (QStringList{exit, unsaved, unsaved, exit, unsaved}));
}

} // namespace
} // namespace norvane::shell
