// See OverlayForm.h.
#include "overlay/OverlayForm.h"

#include "base/CustomerSettings.h"
#include "overlay/ColourStrip.h"
#include "overlay/KeyboardView.h"
#include "overlay/KeyClipboard.h"
#include "overlay/SheetPainter.h"
#include "platform/Boxes.h"
#include "platform/FailureBox.h"
#include "ui/Announcement.h"
#include "ui/Appearance.h"
#include "ui/FormKit.h"

#include <QClipboard>
#include <QDir>
#include <QFileInfo>
#include <QFontInfo>
#include <QGuiApplication>
#include <QLabel>
#include <QMenuBar>
#include <QScreen>
#include <QStatusBar>
#include <QToolBar>
#include <QVBoxLayout>

using namespace Qt::Literals::StringLiterals;

namespace norvane::overlay
{
namespace
{

/// Larger letters would not fit the sample.
constexpr double largestSample = 16;

QFont fontOf(const CellFont& font)
{
    QFont shown(font.name);
    shown.setPointSizeF(font.size > 0 ? font.size : CellFont().size);
    shown.setBold(font.isBold);
    shown.setItalic(font.isItalic);
    return shown;
}

/// The keyboard of the customer whose database is imported; nothing if the settings do not say.
std::optional<Keyboard> keyboardInUse(ApplicationValues values)
{
    values.customerPath = QFileInfo(values.databasePath).path();
    try {
        const double model = ecrModel(values);
        const bool isVelmar = model == 0 || model == 1 || model == 2;
        return isVelmar ? Keyboard::Velmar : Keyboard::Dorvik;
    } catch (const RuntimeFailure&) {
        return std::nullopt;
    }
}

/// The dialog shows the substitute for a font that this computer does not have. Documents keep its name.
QString nameOf(const QFont& chosen, const QFont& initial)
{
    return QFontInfo(initial).family() == chosen.family() ? initial.family() : chosen.family();
}

} // namespace

OverlayForm::OverlayForm(Keyboard keyboard, const ApplicationValues& values, Boxes& boxes,
                         OverlayDialogs& dialogs, PrinterInUse& printer, QWidget* parent)
    : QDialog(parent, Qt::Window), m_values(values), m_boxes(boxes), m_dialogs(dialogs), m_editor(keyboard),
      m_files(m_editor, values, boxes, dialogs), m_sheet(m_editor.document(), boxes, dialogs, printer),
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
    column->addLayout(makeTools());
    column->addWidget(m_keyboard, 1);
    column->addWidget(StatusBar1);
    connect(m_keyboard, &KeyboardView::currentCellChanged, this, &OverlayForm::showCurrentCell);
    followHistory();
    showSample();
    showTitle();
    openAtGoodSize();
    m_keyboard->goTo(0);
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
    if (mayLeave())
        QDialog::reject();
}

void OverlayForm::newFile()
{
    m_files.Newfile();
}

void OverlayForm::openFile()
{
    m_files.OpenFile();
    rememberColours();
}

void OverlayForm::saveFile()
{
    if (m_files.SaveFile())
        tell(u"Saved as %1."_s.arg(QDir::toNativeSeparators(m_editor.fileName())));
}

void OverlayForm::print()
{
    printUnder({});
}

void OverlayForm::printUnder(const std::optional<paper::PrinterCorrection>& correction)
{
    const QString destination = m_sheet.destination(correction);
    tell(destination);
    if (m_sheet.print(m_files.documentName(), correction)) {
        tell(u"Sent to the printer. "_s + destination);
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
    for (const TextCell& cell : m_editor.document().cells()) {
        note(drawnBackground(cell.background));
        note(drawnText(cell.textColour));
    }
    for (const QColor& colour : colours)
        m_colours->remember(colour);
}

/// An import that fails has stored nothing. What it changed in the document can be undone like any import.
void OverlayForm::importLevel(int level)
{
    try {
        m_editor.importLevel(level, m_values.databasePath);
        tell(u"Level %1 was imported."_s.arg(level) + keyboardNotice());
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
    const auto cells = mime ? keyFromMime(*mime) : std::vector<TextCell>();
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
    ui::announce(*StatusBar1, text);
}

} // namespace norvane::overlay
