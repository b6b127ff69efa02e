// See Overview.h.
#include "shell/Overview.h"

#include "shell/FrmMain.h"
#include "shell/MainStatusBar.h"
#include "ui/Appearance.h"
#include "ui/FormKit.h"

#include <QApplication>
#include <QContextMenuEvent>
#include <QMdiArea>
#include <QMdiSubWindow>
#include <QMenu>
#include <QScrollBar>

#include <algorithm>
#include <chrono>
#include <utility>

using namespace Qt::Literals::StringLiterals;

namespace norvane::shell
{
namespace
{

/// Until the next try while another program works on the database.
constexpr std::chrono::seconds retryPause(3);

/// What the lines open. Entries that no menu has are for their openers alone.
struct LineTarget {
    Subject subject;
    MenuEntry entry;
};
constexpr LineTarget targets[] = {
    {Subject::Collection, {""_L1, "CollectSales"_L1, ""_L1, Opens::Form, "FrmsalesComm"_L1}},
    {Subject::Takings, {""_L1, "Finweek"_L1, ""_L1, Opens::Form, "Frmreports"_L1}},
    {Subject::Unsent, {""_L1, "DownloadVelmar"_L1, ""_L1, Opens::Form, "FrmComm"_L1}},
    {Subject::Copies, {""_L1, ""_L1, ""_L1, Opens::Form, "CopiesDialog"_L1}},
    {Subject::Log, {""_L1, ""_L1, ""_L1, Opens::Form, "frmSysInfo"_L1}},
};

} // namespace

Overview::Overview(FrmMain& main, const ApplicationValues& values, OverviewMemory memory,
                   std::function<QDateTime()> now)
    : QObject(&main), m_main(main), m_values(values), m_memory(std::move(memory)), m_now(std::move(now)),
      m_panel(new OverviewPanel(main.area().viewport())), m_unsent(new UnsentWatch(this))
{
    for (QTimer* const timer : {&m_soon, &m_retry}) {
        timer->setSingleShot(true);
        connect(timer, &QTimer::timeout, this, &Overview::read);
    }
    m_retry.setInterval(retryPause);
    connect(&main, &FrmMain::customerShown, this, &Overview::readSoon);
    connect(m_unsent, &UnsentWatch::found, this, &Overview::readSoon);
    connect(&main, &FrmMain::entryDone, this, &Overview::readSoon);
    connect(&main.area(), &QMdiArea::subWindowActivated, this, &Overview::readSoon);
    connect(m_panel, &OverviewPanel::chosen, this, &Overview::open);
    connect(m_panel, &OverviewPanel::hidden, this, [this] { setShown(false); });
    for (const QScrollBar* const bar : {main.area().horizontalScrollBar(), main.area().verticalScrollBar()})
        connect(bar, &QScrollBar::valueChanged, this, &Overview::place);
    main.installEventFilter(this);
    main.area().viewport()->installEventFilter(this);
    m_panel->setVisible(m_memory.isShown());
    m_panel->setOverview({});
    place();
}

bool Overview::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() == QEvent::ContextMenu)
        return showMenu(static_cast<const QContextMenuEvent&>(*event));
    if (watched != &m_main && event->type() == QEvent::Resize)
        place();
    if (watched == &m_main && event->type() == QEvent::WindowActivate)
        readSoon();
    return false;
}

/// Several events come together.
void Overview::readSoon()
{
    m_soon.start(0);
}

/// A run or a dialog is at work; its end is one of the events that lead here again.
bool Overview::mayRead() const
{
    return !m_panel->isHidden() && m_main.area().isEnabled() && QApplication::activeModalWidget() == nullptr;
}

/// Also follows the child windows, which are not visible yet when they are said to be active. What is shown
/// remains while another program works on the database.
void Overview::read()
{
    if (m_panel == nullptr)
        return;
    followWindows();
    if (!mayRead())
        return;
    const bool isChosen = !m_values.customerPath.isEmpty();
    const ShopOverview overview =
        readOverview(m_values, m_now(), isChosen ? m_unsent->line(m_values) : unreadUnsent());
    if (overview.isBusy)
        m_retry.start();
    if (overview.isBusy && m_shownCustomer == m_values.customerPath)
        return;
    m_shownCustomer = overview.isBusy ? QString() : m_values.customerPath;
    m_panel->setOverview(overview);
    place();
}

/// In the middle, and rather high: child windows open in the middle.
void Overview::place()
{
    constexpr int margin = ui::spacing::formMargin;
    const QSize room = m_main.area().viewport()->size();
    const QSize size = m_panel->wantedSize().boundedTo(room - QSize(2 * margin, 2 * margin));
    m_panel->setGeometry((room.width() - size.width()) / 2,
                         std::max(margin, (room.height() - size.height()) / 3), size.width(), size.height());
    m_panel->lower();
}

/// Tab leads to the panel while no child window is open.
void Overview::followWindows()
{
    const auto windows = m_main.area().subWindowList();
    m_panel->setReachedByTab(std::ranges::all_of(windows, &QMdiSubWindow::isHidden));
}

void Overview::setShown(bool isShown)
{
    m_panel->setVisible(isShown);
    m_main.statusBar1().setNotice(isShown ? QString()
                                          : u"The context menu of the background shows the overview again"_s);
    (void)m_memory.keepShown(isShown);
    readSoon();
}

bool Overview::isBackground(QPoint place) const
{
    const QWidget* const viewport = m_main.area().viewport();
    const QWidget* const there = viewport->childAt(viewport->mapFromGlobal(place));
    return there == nullptr || m_panel->isAncestorOf(there) || there == m_panel;
}

/// A child window passes on context menus that it does not want. The key for it reaches the main window while
/// nothing on it has the focus.
bool Overview::showMenu(const QContextMenuEvent& event)
{
    const bool isByKey = event.reason() == QContextMenuEvent::Keyboard;
    const bool isHere =
        isByKey ? m_main.area().activeSubWindow() == nullptr : isBackground(event.globalPos());
    if (!isHere || !m_main.area().isEnabled())
        return false;
    auto* const menu = new QMenu(&m_main);
    menu->setAttribute(Qt::WA_DeleteOnClose);
    menu->setObjectName(u"BackgroundMenu"_s);
    QAction* const shown = menu->addAction(u"Show &Overview"_s);
    shown->setObjectName(u"ShowOverview"_s);
    shown->setCheckable(true);
    shown->setChecked(!m_panel->isHidden());
    connect(shown, &QAction::triggered, this, &Overview::setShown);
    menu->popup(event.globalPos());
    return true;
}

void Overview::open(Subject subject)
{
    m_main.choose(std::ranges::find(targets, subject, &LineTarget::subject)->entry);
}

} // namespace norvane::shell
