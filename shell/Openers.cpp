// Opens record editor, exchange dialog and sales collection; see Openers.h.
#include "shell/Openers.h"

#include "exchange/FrmComm.h"
#include "sales/FrmsalesComm.h"
#include "screens/OptionForm.h"
#include "shell/FrameOpeners.h"
#include "shell/KeyOpeners.h"
#include "shell/MainStatusBar.h"
#include "shell/OverlayOpeners.h"
#include "shell/ReportOpeners.h"
#include "shell/UtilityOpeners.h"

#include <QMdiSubWindow>

#include <memory>

using namespace Qt::Literals::StringLiterals;

namespace norvane::shell
{
namespace
{

/// What the exchange dialog is opened for.
struct Direction {
    QLatin1StringView entry;
    QLatin1StringView mode;
    QLatin1StringView caption;
};
constexpr Direction upload{"UploadVelmar"_L1, "UPLOAD"_L1, "Upload From ECR"_L1};
constexpr Direction download{"DownloadVelmar"_L1, "DOWNLOAD"_L1, "Download to ECR"_L1};

void openExchange(FrmMain& main, const MenuEntry& entry, const ApplicationValues& values, Boxes& boxes)
{
    const Direction& direction = entry.name == upload.entry ? upload : download;
    exchange::FrmComm dialog(direction.mode, values, boxes, &main);
    dialog.setWindowTitle(direction.caption);
    dialog.exec();
}

/// The user can end the program while the modem dials. The form must hang up then, as its own exit does.
void openCollection(FrmMain& main, const ApplicationValues& values, Boxes& boxes)
{
    main.showShared(u"FrmsalesComm"_s, [&] {
        auto* const form = new sales::FrmsalesComm(values, boxes);
        QObject::connect(&main, &FrmMain::unloaded, form, &QDialog::reject);
        return form;
    });
}

/// Notices of a screen are shown in the status bar until the screen closes. A screen that comes to the front
/// reads its record again, and all screens do after a menu entry: others may have changed it.
void openScreen(FrmMain& main, const QString& screenFilePath, const ApplicationValues& values, Boxes& boxes)
{
    auto reports = std::make_unique<ScreenReports>(main, values, boxes);
    auto* const form = new screens::OptionForm(screenFilePath, values, boxes, reports.get());
    reports.release()->setParent(form);
    auto* const status = &main.statusBar1();
    QObject::connect(form, &screens::OptionForm::told, status, &MainStatusBar::setNotice);
    QObject::connect(form, &QObject::destroyed, status, [status] { status->setNotice({}); });
    QObject::connect(&main, &FrmMain::entryDone, form, &screens::OptionForm::refresh);
    const QMdiSubWindow& child = main.showChild(form);
    QObject::connect(&child, &QMdiSubWindow::windowStateChanged, form,
                     [form](Qt::WindowStates before, Qt::WindowStates now) {
                         if ((now & ~before).testFlag(Qt::WindowActive))
                             form->refresh();
                     });
}

} // namespace

FrmMain::Openers makeOpeners(ApplicationValues& values, Boxes& boxes)
{
    FrmMain::FormOpeners openers = makeFrameOpeners(values, boxes);
    openers.insert(u"FrmComm"_s, [&values, &boxes](FrmMain& main, const MenuEntry& entry) {
        openExchange(main, entry, values, boxes);
    });
    openers.insert(u"FrmsalesComm"_s, [&values, &boxes](FrmMain& main, const MenuEntry&) {
        openCollection(main, values, boxes);
    });
    openers.insert(makeUtilityOpeners(values, boxes));
    openers.insert(makeReportOpeners(values, boxes));
    openers.insert(makeKeyOpeners(values, boxes));
    openers.insert(makeOverlayOpeners(values, boxes));
    return {openers, [&values, &boxes](FrmMain& main, const QString& screenFilePath) {
                openScreen(main, screenFilePath, values, boxes);
            }};
}

} // namespace norvane::shell
