// See OverlayForm.h.
#include "overlay/OverlayForm.h"

#include "overlay/ColourStrip.h"
#include "overlay/KeyboardView.h"
#include "overlay/KeyClipboard.h"
#include "overlay/SheetPainter.h"
#include "platform/Boxes.h"
#include "platform/RuntimeFailure.h"
#include "ui/Appearance.h"
#include "ui/FormKit.h"

#include <QClipboard>
#include <QComboBox>
#include <QDir>
#include <QFileInfo>
#include <QFontInfo>
#include <QGuiApplication>
#include <QLabel>
#include <QMenu>
#include <QMenuBar>
#include <QScreen>
#include <QStatusBar>
#include <QToolBar>
#include <QVBoxLayout>

#include <array>

using namespace Qt::Literals::StringLiterals;

namespace norvane::overlay
{
namespace
{

constexpr int levels = 5;
constexpr QSize sampleSize{130, 30};
/// Larger letters would not fit the sample.
constexpr double largestSample = 16;

constexpr std::array<std::pair<const char*, int>, 6> zooms = {
    {{"Fit window", 0}, {"75 %", 75}, {"100 %", 100}, {"125 %", 125}, {"150 %", 150}, {"200 %", 200}}};

QFont fontOf(const CellFont& font)
{
    QFont shown(font.name);
    shown.setPointSizeF(font.size > 0 ? font.size : CellFont().size);
    shown.setBold(font.isBold);
    shown.setItalic(font.isItalic);
    return shown;
}

/// The dialog shows what stands in for a font that this computer does not have. Documents keep its name.
QString nameOf(const QFont& chosen, const QFont& initial)
{
    return QFontInfo(initial).family() == chosen.family() ? initial.family() : chosen.family();
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
                         OverlayDialogs& dialogs, PrinterFinder finder, QWidget* parent)
    : QDialog(parent, Qt::Window), m_values(values), m_boxes(boxes), m_dialogs(dialogs), m_editor(keyboard),
      m_files(m_editor, values, boxes, dialogs),
      m_sheet(m_editor.document(), boxes, dialogs, std::move(finder)),
      m_keyboard(new KeyboardView(m_editor, this)), m_colours(new ColourStrip(this)),
      Label1(new QLabel(u"Sample"_s, this)), StatusBar1(new QStatusBar(this))
{
    ui::nameControl(*this, m_editor.document().geometry().name.toString());
    ui::nameControl(*StatusBar1, u"StatusBar1"_s);
    auto* const bar = new QMenuBar(this);
    ui::nameControl(*bar, u"Menu"_s);
    buildMenus(*bar);
    auto* const column = new QVBoxLayout(this);
    column->setContentsMargins({});
    column->setSpacing(0);
    column->setMenuBar(bar);
    column->addWidget(makeTools());
    column->addWidget(m_keyboard, 1);
    column->addWidget(StatusBar1);
    connect(m_keyboard, &KeyboardView::currentCellChanged, this, &OverlayForm::showCurrentCell);
    followHistory();
    showSample();
    showTitle();
    openAtGoodSize();
    m_keyboard->goTo(0);
}

void OverlayForm::buildMenus(QMenuBar& bar)
{
    static constexpr std::array<Entry, 6> files = {{
        {"New", "&New", &OverlayForm::newFile},
        {"Open", "&Open", &OverlayForm::open},
        {"Save", "&Save", &OverlayForm::save},
        {"PrinterSetup", "&Printer Setup", &OverlayForm::setUpPrinter},
        {"Print", "&Print", &OverlayForm::print},
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
}

void OverlayForm::addEntry(QWidget& menu, const Entry& entry)
{
    auto* const action = new QAction(QLatin1StringView(entry.caption), this);
    action->setObjectName(QLatin1StringView(entry.name));
    action->setMenuRole(QAction::NoRole);
    action->setShortcut(QKeySequence(QLatin1StringView(entry.keys)));
    if (*entry.toolTip != '\0')
        action->setToolTip(QLatin1StringView(entry.toolTip));
    connect(action, &QAction::triggered, this, entry.handler);
    menu.addAction(action);
}

void OverlayForm::addImportMenu(QMenuBar& bar)
{
    QMenu* const menu = bar.addMenu(u"&Import Keyboard"_s);
    ui::nameControl(*menu, u"ImportKeyboard"_s);
    for (int level = 1; level <= levels; ++level) {
        QAction* const action = menu->addAction(u"Import Level&%1"_s.arg(level));
        action->setObjectName(u"ImportLevel%1"_s.arg(level));
        connect(action, &QAction::triggered, this, [this, level] { importLevel(level); });
    }
}

QToolBar* OverlayForm::makeTools()
{
    static constexpr std::array<Entry, 4> edits = {{
        {"Undo", "Undo", &OverlayForm::undo, "Ctrl+Z"},
        {"Redo", "Redo", &OverlayForm::redo, "Ctrl+Y"},
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
    bar->addSeparator();
    addZoom(*bar);
    bar->addSeparator();
    addSample(*bar);
    return bar;
}

void OverlayForm::addZoom(QToolBar& bar)
{
    auto* const label = new QLabel(u" &Zoom: "_s, &bar);
    auto* const zoom = new QComboBox(&bar);
    ui::nameControl(*zoom, u"Zoom"_s);
    for (const auto& [caption, percent] : zooms)
        zoom->addItem(QLatin1StringView(caption), percent);
    label->setBuddy(zoom);
    connect(zoom, &QComboBox::currentIndexChanged, this,
            [this, zoom] { m_keyboard->setZoom(zoom->currentData().toInt()); });
    bar.addWidget(label);
    bar.addWidget(zoom);
}

void OverlayForm::addSample(QToolBar& bar)
{
    ui::nameControl(*Label1, u"Label1"_s);
    Label1->setToolTip(u"What a double click (colours) and a click (font) give to a cell"_s);
    Label1->setAlignment(Qt::AlignCenter);
    Label1->setFixedSize(sampleSize);
    Label1->setFrameStyle(QFrame::Box);
    Label1->setAutoFillBackground(true);
    // A tool bar gives its own roles to what lies in it.
    Label1->setBackgroundRole(QPalette::Window);
    Label1->setForegroundRole(QPalette::WindowText);
    connect(m_colours, &ColourStrip::backgroundChosen, this, &OverlayForm::takeBackground);
    connect(m_colours, &ColourStrip::textColourChosen, this, &OverlayForm::takeTextColour);
    bar.addWidget(Label1);
    bar.addWidget(m_colours);
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
    resize(screen()->availableSize() * 0.94);
}

void OverlayForm::reject()
{
    if (mayLeave())
        QDialog::reject();
}

void OverlayForm::newFile()
{
    m_files.newFile();
}

void OverlayForm::open()
{
    m_files.open();
    rememberColours();
}

void OverlayForm::save()
{
    if (m_files.save())
        tell(u"Saved as %1."_s.arg(QDir::toNativeSeparators(m_editor.fileName())));
}

void OverlayForm::preview()
{
    m_sheet.preview([this] { print(); }, [this] { savePdf(); }, this);
}

void OverlayForm::savePdf()
{
    const QString name = QFileInfo(m_files.documentName()).completeBaseName() + u".pdf"_s;
    const QString path = m_sheet.savePdf(QDir(m_values.customerPath).filePath(name));
    if (!path.isEmpty())
        tell(u"Saved as %1."_s.arg(QDir::toNativeSeparators(path)));
}

/// Before the first choice the dialog begins with the font of the cell in use.
QFont OverlayForm::initialFont() const
{
    const auto& chosen = m_editor.style().font;
    return fontOf(chosen ? *chosen : m_editor.document().cell(m_keyboard->currentCell()).font);
}

void OverlayForm::chooseFont()
{
    const QFont initial = initialFont();
    const auto chosen = m_dialogs.font(initial);
    if (!chosen)
        return;
    m_editor.style().font = CellFont{nameOf(*chosen, initial), static_cast<float>(chosen->pointSizeF()),
                                     chosen->bold(), chosen->italic()};
    showSample();
}

void OverlayForm::chooseBackground()
{
    const auto chosen = m_dialogs.colour(drawnBackground(m_editor.style().background), u"BackGround"_s);
    if (!chosen)
        return;
    m_colours->remember(*chosen);
    takeBackground(*chosen);
}

void OverlayForm::chooseTextColour()
{
    const auto chosen = m_dialogs.colour(drawnText(m_editor.style().textColour), u"Text Colour"_s);
    if (!chosen)
        return;
    m_colours->remember(*chosen);
    takeTextColour(*chosen);
}

void OverlayForm::takeBackground(const QColor& colour)
{
    m_editor.style().background = colourOf(colour);
    showSample();
}

void OverlayForm::takeTextColour(const QColor& colour)
{
    m_editor.style().textColour = colourOf(colour);
    showSample();
}

/// A document that was opened offers its own colours again.
void OverlayForm::rememberColours()
{
    QList<QColor> colours;
    const auto note = [&colours](const QColor& colour) {
        if (colour != Qt::white && colour != Qt::black && !colours.contains(colour))
            colours += colour;
    };
    for (const Cell& cell : m_editor.document().cells()) {
        note(drawnBackground(cell.background));
        note(drawnText(cell.textColour));
    }
    for (const QColor& colour : colours)
        m_colours->remember(colour);
}

/// An import that fails has stored nothing. What it gave to the document can be taken back like any import.
void OverlayForm::importLevel(int level)
{
    try {
        m_editor.importLevel(level, m_values.databasePath);
        tell(u"Level %1 was imported."_s.arg(level));
    } catch (const RuntimeFailure& failure) {
        m_boxes.message(u"Run-time error '%1':\r\r%2"_s.arg(failure.number()).arg(failure.text()), {},
                        BoxIcon::Critical);
    }
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
    tell(u"The key was copied."_s);
}

void OverlayForm::pasteKey()
{
    const QMimeData* const mime = QGuiApplication::clipboard()->mimeData();
    const auto cells = mime ? keyFromMime(*mime) : std::vector<Cell>();
    if (cells.empty()) {
        tell(u"No key was copied yet."_s);
    } else {
        m_editor.pasteKey(m_keyboard->currentCell(), cells);
    }
}

void OverlayForm::showSample()
{
    const CurrentStyle& style = m_editor.style();
    QPalette colours = Label1->palette();
    colours.setColor(QPalette::Window, drawnBackground(style.background));
    colours.setColor(QPalette::WindowText, drawnText(style.textColour));
    Label1->setPalette(colours);
    if (!style.font)
        return;
    QFont shown = fontOf(*style.font);
    shown.setPointSizeF(qMin(shown.pointSizeF(), largestSample));
    Label1->setFont(shown);
    Label1->setText(style.font->name);
}

void OverlayForm::showTitle()
{
    const QString keyboard = m_editor.document().geometry().name.toString();
    setWindowTitle(u"%1 Keyboard - %2[*]"_s.arg(keyboard, m_files.documentName()));
}

void OverlayForm::showCurrentCell(int cell)
{
    if (m_keyboard->isCut(cell)) {
        tell(u"Wider than its key: only \"%1\" will print."_s.arg(printedText(m_editor.document(), cell)));
    } else {
        StatusBar1->clearMessage();
    }
}

void OverlayForm::tell(const QString& text)
{
    StatusBar1->showMessage(text);
}

} // namespace norvane::overlay
