// Menu handlers and child windows; see FrmMain.h.
#include "shell/FrmMain.h"

#include "paper/Length.h"
#include "platform/FilePaths.h"
#include "shell/MainStatusBar.h"
#include "shell/NotYetBuilt.h"
#include "shell/ScreenChoice.h"
#include "ui/Appearance.h"
#include "ui/WaitPointer.h"

#include <QCloseEvent>
#include <QGuiApplication>
#include <QMdiArea>
#include <QMdiSubWindow>
#include <QMenuBar>
#include <QRegularExpression>
#include <QScreen>

#include <algorithm>
#include <utility>

namespace norvane::shell
{
namespace
{

/// What the window leaves free of the screen.
constexpr double spareWidthTwips = 4;
constexpr double spareHeightTwips = 450;

/// The shared forms have one size, and one way out beside their own buttons.
constexpr Qt::WindowFlags sharedFormFlags = Qt::SubWindow | Qt::CustomizeWindowHint | Qt::WindowTitleHint |
                                            Qt::WindowSystemMenuHint | Qt::WindowCloseButtonHint;

/// Whole pixels only: a begun one stays free.
int pixelsLess(int pixels, double spareTwips)
{
    const paper::Length left = paper::dots(pixels, paper::screenDotsPerInch) - paper::twips(spareTwips);
    return static_cast<int>(left.inDots(paper::screenDotsPerInch));
}

/// "M&ix & Match Table": an ampersand before a blank marks no access letter but is one of the words.
QString menuText(QLatin1StringView caption)
{
    static const QRegularExpression ampersandWord(QStringLiteral("(?<!&)& "));
    return caption.toString().replace(ampersandWord, QStringLiteral("&& "));
}

void nameAction(QAction& action, const MenuEntry& entry)
{
    action.setObjectName(entry.name);
    action.setEnabled(entry.choosable == Choosable::Yes);
    // Some desktops move entries named "About" or "Setup" into a menu of their own.
    action.setMenuRole(QAction::NoRole);
}

} // namespace

FrmMain::FrmMain(ApplicationValues& values, Boxes& boxes, Openers openers)
    : m_values(values), m_boxes(boxes), m_openers(std::move(openers)), m_area(new QMdiArea(this)),
      StatusBar1(new MainStatusBar(this))
{
    setObjectName(QStringLiteral("FrmMain"));
    setAccessibleName(objectName());
    setWindowTitle(QStringLiteral("Norvane Velmar & Dorvik Programming Utility."));
    m_area->setObjectName(QStringLiteral("Workspace"));
    m_area->setAccessibleName(m_area->objectName());
    m_area->setBackground(ui::colours::desktop);
    m_area->setHorizontalScrollBarPolicy(Qt::ScrollBarAsNeeded);
    m_area->setVerticalScrollBarPolicy(Qt::ScrollBarAsNeeded);
    setCentralWidget(m_area);
    setStatusBar(StatusBar1);
    StatusBar1->setPanel(readyText());
    buildMenu();
    placeOnScreen();
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
    if (entry.opens == Opens::Menu) {
        auto* const menu = new QMenu(menuText(entry.caption), this);
        menu->setObjectName(entry.name);
        menu->setAccessibleName(entry.name);
        nameAction(*menu->menuAction(), entry);
        return menu->menuAction();
    }
    auto* const action = new QAction(menuText(entry.caption), this);
    nameAction(*action, entry);
    action->setSeparator(entry.opens == Opens::Separator);
    connect(action, &QAction::triggered, this, [this, &entry] { open(entry); });
    return action;
}

void FrmMain::open(const MenuEntry& entry)
{
    if (m_working)
        return;
    switch (entry.opens) {
    case Opens::Screen:
    case Opens::ModelScreen:
    case Opens::GatedScreen:
        openScreen(entry);
        break;
    case Opens::Form:
    case Opens::ModelForm:
        if (!isNotYetBuilt(entry.name))
            callOpener(targetOf(entry, m_values), entry);
        break;
    case Opens::Nothing:
    case Opens::Menu:
    case Opens::Separator:
        break;
    }
}

void FrmMain::openScreen(const MenuEntry& entry)
{
    if (!mayOpen(entry, m_values, m_boxes))
        return;
    m_values.screenFilePath = joinPath(m_values.appPath, targetOf(entry, m_values));
    const ui::WaitPointer wait;
    callOpener(QStringLiteral("OptionForm"), entry);
}

void FrmMain::callOpener(const QString& form, const MenuEntry& entry)
{
    if (const Opener opener = m_openers.value(form))
        opener(*this, entry);
}

QMdiSubWindow& FrmMain::showChild(QWidget* form, Qt::WindowFlags flags)
{
    form->setAttribute(Qt::WA_DeleteOnClose);
    QMdiSubWindow* const child = m_area->addSubWindow(form, flags);
    child->setObjectName(form->objectName() + QStringLiteral("Window"));
    // A form that closes itself leaves an empty frame behind, otherwise.
    connect(form, &QObject::destroyed, child, &QObject::deleteLater);
    form->show();
    child->show();
    child->adjustSize();
    place(*child);
    return *child;
}

/// In the middle of the window, but with its lower edge still on the area that the menu and the status bar
/// leave.
void FrmMain::place(QMdiSubWindow& child)
{
    ui::centreOn(child, *this);
    const int lowest = qMax(0, m_area->viewport()->height() - child.height());
    child.move(child.x(), qMin(child.y(), lowest));
}

void FrmMain::showShared(const QString& name, const std::function<QWidget*()>& make)
{
    const auto open = m_area->subWindowList();
    const auto found = std::ranges::find_if(open, [&name](const QMdiSubWindow* child) {
        return child->widget() && child->widget()->objectName() == name;
    });
    if (found != open.end()) {
        m_area->setActiveSubWindow(*found);
        return;
    }
    QMdiSubWindow& child = showChild(make(), sharedFormFlags);
    child.setFixedSize(child.size());
}

void FrmMain::showCustomer()
{
    StatusBar1->setStatusText(QStringLiteral("Customer Database ") + m_values.customerName);
}

void FrmMain::unload()
{
    m_unloading = true;
    close();
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

void FrmMain::closeEvent(QCloseEvent* event)
{
    if (m_working) {
        m_closeAfterWork = true;
        event->ignore();
        return;
    }
    m_unloading = m_unloading || m_boxes.ask(QStringLiteral("Are You Sure?"), QStringLiteral("Exit Program"),
                                             BoxIcon::Question);
    event->setAccepted(m_unloading);
    if (m_unloading)
        Q_EMIT unloaded();
}

} // namespace norvane::shell
