// See OverlayForm.h.
#include "overlay/OverlayForm.h"

#include "base/CustomerSettings.h"
#include "overlay/KeyboardView.h"
#include "overlay/KeyClipboard.h"
#include "overlay/KeysMenu.h"
#include "overlay/LevelImport.h"
#include "overlay/SheetPainter.h"
#include "overlay/ZoomBox.h"
#include "platform/Boxes.h"
#include "platform/FailureBox.h"
#include "ui/Appearance.h"
#include "ui/FormKit.h"
#include "ui/StatusLine.h"

#include <QBoxLayout>
#include <QClipboard>
#include <QDir>
#include <QFileInfo>
#include <QGuiApplication>
#include <QMenu>
#include <QMenuBar>
#include <QScreen>
#include <QToolBar>

#include <array>

using namespace Qt::Literals::StringLiterals;

namespace norvane::overlay
{
namespace
{

/// The keyboard of the customer whose database is imported; nothing if the settings do not say.
std::optional<Keyboard> keyboardInUse(ApplicationValues values)
{
    values.customerPath = QFileInfo(values.databasePath).path();
    try {
        const bool isVelmar = registerModel(values).family == RegisterFamily::Velmar;
        return isVelmar ? Keyboard::Velmar : Keyboard::Dorvik;
    } catch (const RuntimeFailure&) {
        return std::nullopt;
    }
}

} // namespace

/// An entry of a menu or of the tool bar.
struct OverlayForm::Entry {
    const char* name;
    const char* caption;
    Handler handler;
    const char* keys = "";
    const char* toolTip = "";
};

OverlayForm::OverlayForm(Keyboard keyboard, const ApplicationValues& values, Boxes& boxes,
                         OverlayDialogs& dialogs, PrinterInUse& printer, QWidget* parent)
    : QDialog(parent, Qt::Window), m_values(values), m_boxes(boxes), m_editor(keyboard),
      m_files(m_editor, values, boxes, dialogs),
      m_sheet(m_editor.document(), boxes, dialogs, printer, values.customerName),
      m_keyboard(new KeyboardView(m_editor, this)),
      m_style(new StyleChooser(m_editor.style(), dialogs, this)), StatusBar1(new ui::StatusLine(this))
{
    ui::nameControl(*this, m_editor.document().geometry().name.toString());
    StatusBar1->setSizeGripEnabled(true);
    auto* const bar = new QMenuBar(this);
    ui::nameControl(*bar, u"Menu"_s);
    buildMenus(*bar);
    auto* const column = new QVBoxLayout(this);
    column->setContentsMargins({});
    column->setSpacing(0);
    column->setMenuBar(bar);
    column->addLayout(makeTools());
    column->addWidget(m_keyboard, 1);
    column->addWidget(StatusBar1);
    connect(m_keyboard, &KeyboardView::currentCellChanged, this, &OverlayForm::showCurrentCell);
    followHistory();
    showTitle();
    openAtGoodSize();
    m_keyboard->goTo(0);
}

void OverlayForm::buildMenus(QMenuBar& bar)
{
    static constexpr std::array<Entry, 6> files = {{
        {"New", "&New", &OverlayForm::newFile, "Ctrl+N"},
        {"Open", "&Open", &OverlayForm::openFile, "Ctrl+O"},
        {"Save", "&Save", &OverlayForm::saveFile, "Ctrl+Shift+S"},
        {"PrinterSetup", "&Printer Setup", &OverlayForm::setUpPrinter},
        {"Print", "&Print", &OverlayForm::print, "Ctrl+P"},
        {"Exit", "E&xit", &OverlayForm::reject},
    }};
    static constexpr std::array<Entry, 2> colours = {{
        {"BackGround", "&BackGround", &OverlayForm::chooseBackground},
        {"TextColour", "&Text Colour", &OverlayForm::chooseTextColour},
    }};
    QMenu* const filesMenu = bar.addMenu(u"Files"_s);
    ui::nameControl(*filesMenu, u"Files"_s);
    for (const Entry& entry : files)
        addEntry(*filesMenu, entry);
    addEntry(bar, {"Font", "&Font", &OverlayForm::chooseFont});
    QMenu* const coloursMenu = bar.addMenu(u"&Colours"_s);
    ui::nameControl(*coloursMenu, u"Colours"_s);
    for (const Entry& entry : colours)
        addEntry(*coloursMenu, entry);
    if (m_editor.document().geometry().hasImport)
        addImportMenu(bar);
    addKeysMenu(bar);
}

void OverlayForm::addKeysMenu(QMenuBar& bar)
{
    auto* const keys = new KeysMenu(m_editor, *m_keyboard, *m_style, m_values.databasePath, this);
    QMenu& menu = keys->addTo(bar);
    menu.addSeparator();
    addEntry(menu, {"SaveChanges", "Save C&hanges", &OverlayForm::saveChanges, "Ctrl+S"});
    connect(keys, &KeysMenu::noticed, this, [this](const QString& text) { StatusBar1->setNotice(text); });
}

void OverlayForm::addEntry(QWidget& menu, const Entry& entry)
{
    auto* const action = new QAction(QLatin1StringView(entry.caption), this);
    action->setObjectName(QLatin1StringView(entry.name));
    action->setMenuRole(QAction::NoRole);
    action->setShortcuts(QKeySequence::listFromString(QLatin1StringView(entry.keys)));
    if (*entry.toolTip != '\0')
        action->setToolTip(QLatin1StringView(entry.toolTip));
    connect(action, &QAction::triggered, this, entry.handler);
    menu.addAction(action);
}

void OverlayForm::addImportMenu(QMenuBar& bar)
{
    QMenu* const menu = bar.addMenu(u"&Import Keyboard"_s);
    ui::nameControl(*menu, u"ImportKeyboard"_s);
    for (int level = 1; level <= overlayLevels; ++level) {
        QAction* const action = menu->addAction(u"Import Level&%1"_s.arg(level));
        action->setObjectName(u"ImportLevel%1"_s.arg(level));
        connect(action, &QAction::triggered, this, [this, level] { importLevel(level); });
    }
}

/// In one row, or in two where large type makes them too wide for the screen.
QLayout* OverlayForm::makeTools()
{
    QToolBar* const actions = makeActionTools();
    QToolBar* const view = makeViewTools();
    const int width = actions->sizeHint().width() + view->sizeHint().width();
    const bool fits = width < screen()->availableSize().width() * 0.94;
    auto* const tools = new QBoxLayout(fits ? QBoxLayout::LeftToRight : QBoxLayout::TopToBottom);
    tools->setSpacing(0);
    tools->addWidget(actions);
    tools->addWidget(view, 1);
    return tools;
}

QToolBar* OverlayForm::makeActionTools()
{
    static constexpr std::array<Entry, 4> edits = {{
        {"Undo", "Undo", &OverlayForm::undo, "Ctrl+Z", "Takes the last step back (Ctrl+Z)"},
        {"Redo", "Redo", &OverlayForm::redo, "Ctrl+Y; Ctrl+Shift+Z",
         "Does again what was taken back (Ctrl+Y)"},
        {"CopyKey", "Copy key", &OverlayForm::copyKey, "Ctrl+Shift+C",
         "Copies all lines of the key, with colours and fonts (Ctrl+Shift+C)"},
        {"PasteKey", "Paste key", &OverlayForm::pasteKey, "Ctrl+Shift+V",
         "Gives the key the lines, colours and fonts that were copied (Ctrl+Shift+V)"},
    }};
    static constexpr std::array<Entry, 3> sheet = {{
        {"Preview", "Preview", &OverlayForm::preview, "", "The sheet as it will print"},
        {"SavePdf", "Save as PDF", &OverlayForm::savePdf, "", "Writes the sheet into a PDF file"},
        {"PrinterCorrection", "Printer correction", &OverlayForm::correctPrinter, "",
         "Puts right a printer that prints beside the keys"},
    }};
    auto* const bar = new QToolBar(this);
    ui::nameControl(*bar, u"Tools"_s);
    for (const Entry& entry : edits)
        addEntry(*bar, entry);
    m_undo = bar->actions().at(0);
    m_redo = bar->actions().at(1);
    m_keyboard->addActions(bar->actions().mid(2));
    bar->addSeparator();
    for (const Entry& entry : sheet)
        addEntry(*bar, entry);
    return bar;
}

QToolBar* OverlayForm::makeViewTools()
{
    auto* const bar = new QToolBar(this);
    ui::nameControl(*bar, u"ViewTools"_s);
    bar->addSeparator();
    bar->addWidget(new ZoomBox(*m_keyboard, this));
    QAction* const asPrinted = bar->addAction(u"As printed"_s, m_keyboard, &KeyboardView::setAsPrinted);
    asPrinted->setObjectName(u"AsPrinted"_s);
    asPrinted->setCheckable(true);
    asPrinted->setShortcut(Qt::Key_F8);
    asPrinted->setToolTip(u"Shows the keys as they will be on paper (F8)"_s);
    bar->addSeparator();
    m_style->addTo(*bar);
    return bar;
}

void OverlayForm::followHistory()
{
    QUndoStack& history = m_editor.history();
    m_undo->setEnabled(false);
    m_redo->setEnabled(false);
    connect(&history, &QUndoStack::canUndoChanged, m_undo, &QAction::setEnabled);
    connect(&history, &QUndoStack::canRedoChanged, m_redo, &QAction::setEnabled);
    connect(&history, &QUndoStack::cleanChanged, this, [this](bool isClean) { setWindowModified(!isClean); });
    connect(&history, &QUndoStack::indexChanged, this,
            [this] { showCurrentCell(m_keyboard->currentCell()); });
    connect(&m_editor, &DocumentEditor::fileNameChanged, this, &OverlayForm::showTitle);
}

void OverlayForm::openAtGoodSize()
{
    setWindowFlag(Qt::WindowMinMaxButtonsHint);
    ui::centreOnScreen(*this, screen()->availableSize() * 0.94);
}

void OverlayForm::reject()
{
    if (m_files.mayDropChanges())
        QDialog::reject();
}

void OverlayForm::chooseFont()
{
    m_style->chooseFont(m_editor.document().cell(m_keyboard->currentCell()).font);
}

void OverlayForm::newFile()
{
    m_files.Newfile();
}

void OverlayForm::openFile()
{
    m_files.OpenFile();
    m_style->rememberColours(m_editor.document());
}

void OverlayForm::saveFile()
{
    showSaved(m_files.SaveFile());
}

void OverlayForm::saveChanges()
{
    showSaved(m_files.saveChanges());
}

void OverlayForm::showSaved(bool isSaved)
{
    if (isSaved)
        StatusBar1->setNotice(u"Saved as %1."_s.arg(QDir::toNativeSeparators(m_editor.fileName())));
}

void OverlayForm::print()
{
    printUnder({});
}

void OverlayForm::printUnder(const std::optional<paper::PrinterCorrection>& correction)
{
    const QString destination = m_sheet.destination(correction);
    StatusBar1->setNotice(destination);
    if (m_sheet.print(m_files.documentName(), correction)) {
        StatusBar1->setNotice(u"Sent to the printer. "_s + destination);
    } else {
        showCurrentCell(m_keyboard->currentCell());
    }
}

void OverlayForm::preview()
{
    m_sheet.preview([this](const paper::PrinterCorrection& shown) { printUnder(shown); },
                    [this] { savePdf(); }, this);
}

void OverlayForm::savePdf()
{
    const QString name = QFileInfo(m_files.documentName()).completeBaseName() + u".pdf"_s;
    const QString path = m_sheet.savePdf(QDir(m_values.customerPath).filePath(name));
    if (!path.isEmpty())
        StatusBar1->setNotice(u"Saved as %1."_s.arg(QDir::toNativeSeparators(path)));
}

/// An import that fails has stored nothing. What it changed in the document can be undone like any import.
void OverlayForm::importLevel(int level)
{
    try {
        m_editor.importLevel(level, m_values.databasePath);
        StatusBar1->setNotice(u"Level %1 was imported."_s.arg(level) + keyboardNotice() + groupNotice());
    } catch (const RuntimeFailure& failure) {
        showFailure(failure, m_boxes);
    }
}

/// What the user should know when the level is another keyboard's: its rows fill the keys all the same.
QString OverlayForm::keyboardNotice() const
{
    const auto used = keyboardInUse(m_values);
    if (!used || *used == m_editor.document().keyboard())
        return {};
    return u" It is a level of a %1: the texts may be on the wrong keys of this %2."_s.arg(
        geometryOf(*used).name, m_editor.document().geometry().name);
}

QString OverlayForm::groupNotice() const
{
    return m_editor.document().notes().groups.empty()
               ? QString()
               : u" \"Keys / Colour by Group\" gives the groups their colours."_s;
}

void OverlayForm::undo()
{
    m_editor.endTyping();
    m_editor.history().undo();
}

void OverlayForm::redo()
{
    m_editor.endTyping();
    m_editor.history().redo();
}

void OverlayForm::copyKey()
{
    QGuiApplication::clipboard()->setMimeData(keyToMime(m_editor.copyKey(m_keyboard->currentCell())));
    StatusBar1->setNotice(u"The key was copied."_s);
}

void OverlayForm::pasteKey()
{
    const QMimeData* const mime = QGuiApplication::clipboard()->mimeData();
    const auto cells = mime ? keyFromMime(*mime) : std::vector<TextCell>();
    if (cells.empty()) {
        StatusBar1->setNotice(u"No key was copied yet."_s);
    } else {
        m_editor.pasteKey(m_keyboard->currentCell(), cells);
    }
}

void OverlayForm::showTitle()
{
    const QString keyboard = m_editor.document().geometry().name.toString();
    setWindowTitle(u"%1 Keyboard - %2[*]"_s.arg(keyboard, m_files.documentName()));
}

void OverlayForm::showCurrentCell(int cell)
{
    if (m_keyboard->isCut(cell)) {
        StatusBar1->setNotice(
            u"Wider than its key: only \"%1\" will print."_s.arg(printedText(m_editor.document(), cell)));
    } else {
        StatusBar1->setNotice({});
    }
}

} // namespace norvane::overlay
