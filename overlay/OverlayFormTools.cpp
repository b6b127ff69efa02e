// Menus and tool bar of the overlay form as tables; see OverlayForm.h.
#include "overlay/ColourStrip.h"
#include "overlay/KeyboardView.h"
#include "overlay/OverlayForm.h"
#include "ui/Appearance.h"
#include "ui/FormKit.h"

#include <QBoxLayout>
#include <QComboBox>
#include <QLabel>
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

constexpr int levels = 5;
constexpr QSize labelSampleSize{100, 28};
constexpr std::array<std::pair<const char*, int>, 6> zooms = {
    {{"Fit window", 0}, {"75 %", 75}, {"100 %", 100}, {"125 %", 125}, {"150 %", 150}, {"200 %", 200}}};

} // namespace

/// An entry of a menu or of the tool bar.
struct OverlayForm::Entry {
    const char* name;
    const char* caption;
    Handler handler;
    const char* keys = "";
    const char* toolTip = "";
};

void OverlayForm::buildMenus(QMenuBar& bar)
{
    static constexpr std::array<Entry, 6> files = {{
        {"New", "&New", &OverlayForm::newFile},
        {"Open", "&Open", &OverlayForm::openFile},
        {"Save", "&Save", &OverlayForm::saveFile},
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
    for (int level = 1; level <= levels; ++level) {
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
    addZoom(*bar);
    bar->addSeparator();
    addSample(*bar);
    return bar;
}

void OverlayForm::addZoom(QToolBar& bar)
{
    auto* const zoom = new QComboBox(&bar);
    ui::nameControl(*zoom, u"Zoom"_s, u"Size of the keyboard on the screen"_s);
    for (const auto& [caption, percent] : zooms)
        zoom->addItem(QLatin1StringView(caption), percent);
    zoom->setToolTip(u"Size of the keyboard on the screen"_s);
    connect(zoom, &QComboBox::currentIndexChanged, this,
            [this, zoom] { m_keyboard->setZoom(zoom->currentData().toInt()); });
    bar.addWidget(zoom);
}

void OverlayForm::addSample(QToolBar& bar)
{
    ui::nameControl(*Label1, u"Label1"_s);
    Label1->setToolTip(u"What a double click (colours) and a click (font) give to a cell"_s);
    Label1->setAlignment(Qt::AlignCenter);
    Label1->setFixedSize(ui::scaled(labelSampleSize));
    Label1->setFrameStyle(QFrame::Box);
    Label1->setAutoFillBackground(true);
    // A tool bar applies its roles to the widgets in it.
    Label1->setBackgroundRole(QPalette::Window);
    Label1->setForegroundRole(QPalette::WindowText);
    connect(m_colours, &ColourStrip::backgroundChosen, this, &OverlayForm::takeBackground);
    connect(m_colours, &ColourStrip::textColourChosen, this, &OverlayForm::takeTextColour);
    bar.addWidget(Label1);
    bar.addWidget(m_colours);
}

} // namespace norvane::overlay
