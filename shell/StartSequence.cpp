// The steps of the start; see StartSequence.h.
#include "shell/StartSequence.h"

#include "customers/CustomerFolders.h"
#include "shell/FrmCustomer.h"
#include "shell/FrmMain.h"
#include "shell/frmSplash.h"
#include "store/catalogue/Upgrade.h"
#include "ui/Appearance.h"

#include <QCoreApplication>
#include <QThread>
#include <QTime>

namespace norvane::shell
{
namespace
{

constexpr double splashSeconds = 4;
/// Pause between two looks at the clock.
constexpr unsigned long pauseMilliseconds = 10;
constexpr double millisecondsPerSecond = 1000;

} // namespace

double machineSecondsSinceMidnight()
{
    return QTime::currentTime().msecsSinceStartOfDay() / millisecondsPerSecond;
}

StartSequence::StartSequence(ApplicationValues& values, Boxes& boxes, FrmMain& mainWindow,
                             SecondsSinceMidnight clock)
    : m_values(values), m_boxes(boxes), m_main(mainWindow), m_clock(std::move(clock))
{
}

bool StartSequence::run()
{
    showSplash();
    if (!chooseCustomer())
        return false;
    prepareDatabase();
    showMain();
    return true;
}

void StartSequence::showSplash()
{
    frmSplash splash(m_main.statusBar1());
    ui::centreOn(splash, m_main);
    splash.show();
    waitOutSplash(m_clock());
    splash.unload();
}

/// The clock starts again at midnight, so a splash shown just before remains for about a day.
void StartSequence::waitOutSplash(double shownAt)
{
    while (m_clock() - shownAt <= splashSeconds) {
        QCoreApplication::processEvents();
        QThread::msleep(pauseMilliseconds);
    }
}

bool StartSequence::chooseCustomer()
{
    FrmCustomer dialog(m_values, m_boxes);
    return dialog.exec() == QDialog::Accepted;
}

void StartSequence::prepareDatabase()
{
    m_values.databasePath = customers::customerDatabase(m_values.customerPath);
    store::UpgradeUnitDescription(m_values.databasePath);
}

void StartSequence::showMain()
{
    m_main.show();
    m_main.showCustomer();
}

} // namespace norvane::shell
