// Opening of setup, about and customer dialog; see FrameOpeners.h.
#include "shell/FrameOpeners.h"

#include "platform/FailureBox.h"
#include "shell/CopiesDialog.h"
#include "shell/frmAbout.h"
#include "shell/FrmCustomer.h"
#include "shell/FrmSetup.h"
#include "shell/frmSysInfo.h"

using namespace Qt::Literals::StringLiterals;

namespace norvane::shell
{
namespace
{

/// databasePath is unchanged: screens and exchange use the previous customer's database until a key editor
/// sets it.
void changeCustomer(FrmMain& main, ApplicationValues& values, Boxes& boxes)
{
    main.setCursor(Qt::WaitCursor);
    FrmCustomer dialog(values, boxes, &main);
    const int outcome = dialog.exec();
    if (outcome == FrmCustomer::Accepted)
        main.showCustomer();
    main.unsetCursor();
    if (outcome == FrmCustomer::Rejected)
        main.unload();
}

/// Settings that cannot be read close the window: those of the former customer must not be saved.
void followCustomer(FrmSetup& setup, Boxes& boxes)
{
    try {
        setup.followCustomer();
    } catch (const RuntimeFailure& failure) {
        setup.close();
        showFailure(failure, boxes);
    }
}

QWidget* makeSetup(FrmMain& main, const ApplicationValues& values, Boxes& boxes)
{
    auto* const setup = new FrmSetup(values, main.statusBar1());
    QObject::connect(&main, &FrmMain::entryDone, setup, [setup, &boxes] { followCustomer(*setup, boxes); });
    return setup;
}

} // namespace

FrmMain::FormOpeners makeFrameOpeners(ApplicationValues& values, Boxes& boxes)
{
    FrmMain::FormOpeners openers;
    openers.insert(u"Exit"_s, [](FrmMain& main, const MenuEntry&) { main.close(); });
    openers.insert(u"FrmSetup"_s, [&values, &boxes](FrmMain& main, const MenuEntry&) {
        main.showShared(u"FrmSetup"_s, [&] { return makeSetup(main, values, boxes); });
    });
    openers.insert(u"frmAbout"_s, [&values, &boxes](FrmMain& main, const MenuEntry&) {
        main.showShared(u"frmAbout"_s, [&] { return new frmAbout(values, boxes, main.statusBar1()); });
    });
    openers.insert(u"CopiesDialog"_s, [&values, &boxes](FrmMain& main, const MenuEntry&) {
        CopiesDialog(values.appPath, values.customerName, boxes, &main).exec();
    });
    openers.insert(u"frmSysInfo"_s, [&values, &boxes](FrmMain& main, const MenuEntry&) {
        showSystemInfo(values, boxes, &main);
    });
    openers.insert(u"FrmCustomer"_s, [&values, &boxes](FrmMain& main, const MenuEntry&) {
        changeCustomer(main, values, boxes);
    });
    return openers;
}

} // namespace norvane::shell
