// Menu handlers and child windows; see FrmMain.h.
#include "shell/FrmMain.h"

#include "customers/DataOwner.h"
#include "paper/Length.h"
#include "platform/FailureBox.h"
#include "platform/FilePaths.h"
#include "shell/AccessLetters.h"
#include "shell/MainStatusBar.h"
#include "shell/ScreenChoice.h"
#include "ui/Appearance.h"
#include "ui/FormKit.h"
#include "ui/WaitPointer.h"

#include <QCloseEvent>
#include <QGuiApplication>
#include <QMdiArea>
#include <QMdiSubWindow>
#include <QMenuBar>
#include <QRegularExpression>
#include <QScreen>
#include <QShortcut>

#include <algorithm>
#include <utility>

using namespace Qt::Literals::StringLiterals;

namespace norvane::shell
{
namespace
{

/// How much smaller than the screen the window is.
constexpr double spareWidthTwips = 4;
constexpr double spareHeightTwips = 450;

/// Offset of a screen from another one, in device-independent pixels: the title of the lower one remains
/// visible.
constexpr int cascadeStep = 28;

/// The shared forms have a title with a close button, but their size is fixed.
constexpr Qt::WindowFlags sharedFormFlags = Qt::SubWindow | Qt::CustomizeWindowHint | Qt::WindowTitleHint |
                                            Qt::WindowSystemMenuHint | Qt::WindowCloseButtonHint;

/// Rounded down to whole pixels.
int pixelsLess(int pixels, double spareTwips)
{
    const paper::Length left = paper::dots(pixels, paper::screenDotsPerInch) - paper::twips(spareTwips);
    return static_cast<int>(left.inDots(paper::screenDotsPerInch));
}

/// An ampersand before a blank is text and marks no access letter: "M&ix & Match Table".
QString menuText(QLatin1StringView caption)
{
    static const QRegularExpression ampersandWord(u"(?<!&)& "_s);
    return caption.toString().replace(ampersandWord, u"&& "_s);
}

void nameAction(QAction& action, const MenuEntry& entry)
{
    action.setObjectName(entry.name);
    action.setEnabled(entry.choosable == Choosable::Yes);
    // Some desktops would move entries named "About" or "Setup" into another menu.
    action.setMenuRole(QAction::NoRole);
}

} // namespace

FrmMain::FrmMain(const ApplicationValues& values, Boxes& boxes, Openers openers)
    : m_values(values), m_boxes(boxes), m_openers(std::move(openers)), m_area(makeArea()),
      StatusBar1(new MainStatusBar(this))
{
    ui::nameControl(*this, u"FrmMain"_s);
    setWindowTitle(u"Norvane Velmar & Dorvik Programming Utility."_s);
    setCentralWidget(m_area);
    setStatusBar(StatusBar1);
    StatusBar1->setPanel(readyText());
    buildMenu();
    takeMenuKey();
    takeUndoKey();
    takeReportsKey();
    placeOnScreen();
}

QMdiArea* FrmMain::makeArea()
{
    auto* const area = new QMdiArea(this);
    ui::nameControl(*area, u"Workspace"_s);
    area->setBackground(ui::colours::desktop());
    area->setHorizontalScrollBarPolicy(Qt::ScrollBarAsNeeded);
    area->setVerticalScrollBarPolicy(Qt::ScrollBarAsNeeded);
    new AccessLetters(*area);
    return area;
}

/// F10 leads into the menu as the Alt key alone does. A press of Alt says itself that Alt is held, so the
/// event names no other key.
void FrmMain::takeMenuKey()
{
    connect(new QShortcut(QKeySequence(Qt::Key_F10), this), &QShortcut::activated, this, [this] {
        QKeyEvent pressed(QEvent::ShortcutOverride, Qt::Key_Alt, Qt::NoModifier);
        QKeyEvent released(QEvent::KeyRelease, Qt::Key_Alt, Qt::NoModifier);
        QCoreApplication::sendEvent(this, &pressed);
        QCoreApplication::sendEvent(this, &released);
    });
}

/// A child window has its own Ctrl+Z, and a key with two owners would reach neither.
void FrmMain::takeUndoKey()
{
    auto* const undo = new QShortcut(QKeySequence::Undo, this);
    connect(m_area, &QMdiArea::subWindowActivated, undo,
            [undo](const QMdiSubWindow* child) { undo->setEnabled(child == nullptr); });
    connect(undo, &QShortcut::activated, this, [this] {
        if (m_openers.lostScreen && !m_working)
            m_openers.lostScreen(*this);
    });
}

/// Screens have Ctrl+R for where a record is used.
void FrmMain::takeReportsKey()
{
    connect(new QShortcut(QKeySequence(u"Ctrl+Shift+R"_s), this), &QShortcut::activated, this, [this] {
        choose({{}, "MoreReports"_L1, "More Reports..."_L1, Opens::Form, "MoreReports"_L1});
    });
}

void FrmMain::placeOnScreen()
{
    const QSize screenSize = QGuiApplication::primaryScreen()->size();
    move(0, 0);
    resize(pixelsLess(screenSize.width(), spareWidthTwips),
           pixelsLess(screenSize.height(), spareHeightTwips));
}

void FrmMain::buildMenu()
{
    menuBar()->setNativeMenuBar(false);
    QHash<QString, QWidget*> menus{{QString(), menuBar()}};
    for (const MenuEntry& entry : menuTree()) {
        QAction* const action = buildEntry(entry);
        menus.value(entry.parent)->addAction(action);
        if (action->menu())
            menus.insert(entry.name, action->menu());
    }
}

QAction* FrmMain::buildEntry(const MenuEntry& entry)
{
    if (entry.opens == Opens::Menu)
        return buildMenuOf(entry);
    auto* const action = new QAction(menuText(entry.caption), this);
    nameAction(*action, entry);
    action->setSeparator(entry.opens == Opens::Separator);
    connect(action, &QAction::triggered, this, [this, &entry] { choose(entry); });
    return action;
}

QAction* FrmMain::buildMenuOf(const MenuEntry& entry)
{
    auto* const menu = new QMenu(menuText(entry.caption), this);
    ui::nameControl(*menu, entry.name);
    nameAction(*menu->menuAction(), entry);
    return menu->menuAction();
}

/// An entry can change which database is in use, as the key editors do, or records that screens show.
void FrmMain::choose(const MenuEntry& entry)
{
    if (m_working)
        return;
    StatusBar1->setNotice({});
    open(entry);
    showDataInUse();
    Q_EMIT entryDone();
}

/// A screen that cannot open, such as on an empty table, leaves the other screens with what was typed.
void FrmMain::open(const MenuEntry& entry)
{
    const bool isForm = entry.opens == Opens::Form || entry.opens == Opens::ModelForm;
    if (opensScreen(entry)) {
        openOrTell(m_boxes, [&] { openScreen(entry); });
    } else if (isForm) {
        openForm(entry);
    }
}

void FrmMain::openScreen(const MenuEntry& entry)
{
    if (!mayOpen(entry, m_values, m_boxes))
        return;
    const ui::WaitPointer wait;
    if (m_openers.screen)
        m_openers.screen(*this, joinPath(m_values.appPath, targetOf(entry, m_values)));
}

void FrmMain::openForm(const MenuEntry& entry)
{
    if (const Opener opener = m_openers.forms.value(targetOf(entry, m_values)))
        opener(*this, entry);
}

QMdiSubWindow& FrmMain::showChild(QWidget* form, Qt::WindowFlags flags)
{
    form->setAttribute(Qt::WA_DeleteOnClose);
    QMdiSubWindow* const child = m_area->addSubWindow(form, flags);
    child->setObjectName(form->objectName() + u"Window"_s);
    // Otherwise a form that closes itself would leave an empty frame.
    connect(form, &QObject::destroyed, child, &QObject::deleteLater);
    form->show();
    child->show();
    child->adjustSize();
    child->resize(child->size().boundedTo(m_area->viewport()->size()));
    place(*child);
    return *child;
}

/// In the middle of the window, higher if the status bar would cover its lower edge, and offset from a screen
/// of the same size: exactly above it, it would hide input there.
void FrmMain::place(QMdiSubWindow& child)
{
    ui::centreOn(child, *this);
    const int lowest = qMax(0, m_area->viewport()->height() - child.height());
    child.move(child.x(), qMin(child.y(), lowest));
    const QPoint step(cascadeStep, cascadeStep);
    while (coversAnother(child) && m_area->viewport()->rect().contains(child.geometry().translated(step)))
        child.move(child.pos() + step);
}

bool FrmMain::coversAnother(const QMdiSubWindow& child) const
{
    return std::ranges::any_of(m_area->subWindowList(), [&child](const QMdiSubWindow* other) {
        return other != &child && other->isVisible() && other->geometry() == child.geometry();
    });
}

void FrmMain::showShared(const QString& name, const std::function<QWidget*()>& make, FormSize size)
{
    const auto open = m_area->subWindowList();
    const auto found = std::ranges::find_if(open, [&name](const QMdiSubWindow* child) {
        return child->widget() && child->widget()->objectName() == name;
    });
    if (found != open.end()) {
        m_area->setActiveSubWindow(*found);
        return;
    }
    openOrTell(m_boxes, [&] {
        QMdiSubWindow& child =
            showChild(make(), size == FormSize::Fixed ? sharedFormFlags : Qt::WindowFlags());
        if (size == FormSize::Fixed)
            child.setFixedSize(child.size());
    });
}

void FrmMain::bringToFront(const QWidget& form)
{
    m_area->setActiveSubWindow(qobject_cast<QMdiSubWindow*>(form.parentWidget()));
}

void FrmMain::showCustomer()
{
    StatusBar1->setStatusText(u"Customer Database "_s + m_values.customerName);
    showDataInUse();
    Q_EMIT customerShown();
}

void FrmMain::showDataInUse()
{
    const bool isOfAnother = customers::isDataOfAnother(m_values);
    StatusBar1->setDataInUse(isOfAnother ? customers::ownerOfData(m_values).customerName : QString());
}

void FrmMain::unload()
{
    m_unloading = true;
    // A form inside may refuse. The next close asks again then.
    m_unloading = close();
}

void FrmMain::beginWork()
{
    m_working = true;
    m_focusBeforeWork = focusWidget();
    menuBar()->setEnabled(false);
    m_area->setEnabled(false);
}

void FrmMain::endWork()
{
    m_working = false;
    menuBar()->setEnabled(true);
    m_area->setEnabled(true);
    if (m_focusBeforeWork)
        m_focusBeforeWork->setFocus();
    if (std::exchange(m_closeAfterWork, false))
        QMetaObject::invokeMethod(this, &QWidget::close, Qt::QueuedConnection);
}

/// The answer before says nothing about what would be lost. Each window asks as when it is closed alone, in
/// front of the others. @return false if one remains open.
bool FrmMain::closeChanged()
{
    const auto open = m_area->subWindowList();
    return std::ranges::all_of(open, [this](QMdiSubWindow* child) {
        if (!child->widget() || !child->widget()->isWindowModified())
            return true;
        m_area->setActiveSubWindow(child);
        return child->close();
    });
}

void FrmMain::closeEvent(QCloseEvent* event)
{
    if (m_working) {
        m_closeAfterWork = true;
        event->ignore();
        return;
    }
    m_unloading =
        m_unloading || m_boxes.ask(u"Are You Sure?"_s, u"Exit Program"_s, BoxIcon::Question, BoxAnswer::No);
    m_unloading = m_unloading && closeChanged();
    event->setAccepted(m_unloading);
    if (m_unloading)
        Q_EMIT unloaded();
}

} // namespace norvane::shell
