// Opens record editor, exchange dialog and sales collection; see Openers.h.
#include "shell/Openers.h"

#include "exchange/FrmComm.h"
#include "platform/FailureBox.h"
#include "sales/FrmsalesComm.h"
#include "screens/OptionForm.h"
#include "shell/CopyTool.h"
#include "shell/FrameOpeners.h"
#include "shell/FrameRecords.h"
#include "shell/KeyOpeners.h"
#include "shell/MainStatusBar.h"
#include "shell/OverlayOpeners.h"
#include "shell/ReportOpeners.h"
#include "shell/TableOpeners.h"
#include "shell/TableTools.h"
#include "shell/UtilityOpeners.h"

#include <QMdiSubWindow>

#include <algorithm>
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

void openExchange(FrmMain& main, const MenuEntry& entry, const ApplicationValues& values, Boxes& boxes,
                  store::WorkHistory& history)
{
    const Direction& direction = entry.name == upload.entry ? upload : download;
    exchange::FrmComm dialog(direction.mode, values, boxes, &main);
    dialog.setWindowTitle(direction.caption);
    dialog.setHistory(&history);
    dialog.exec();
}

/// The user can end the program while the modem dials. The form must hang up then, as its own exit does. It
/// remains open after a run.
void openCollection(FrmMain& main, const ApplicationValues& values, Boxes& boxes)
{
    main.showShared(u"FrmsalesComm"_s, [&] {
        auto* const form = new sales::FrmsalesComm(values, boxes);
        QObject::connect(&main, &FrmMain::unloaded, form, &QDialog::reject);
        QObject::connect(form, &sales::FrmsalesComm::runEnded, &main, &FrmMain::entryDone);
        return form;
    });
}

/// Opens screens, and restores what was typed into one and not saved.
class Screens
{
public:
    Screens(ApplicationValues& values, Boxes& boxes, std::shared_ptr<store::WorkHistory> history)
        : m_values(values), m_boxes(boxes), m_history(std::move(history))
    {
    }

    /// Notices of a screen are shown in the status bar. A screen that comes to the front reads its record
    /// again, and all screens do after a menu entry: others may have changed it.
    screens::OptionForm& open(FrmMain& main, const QString& screenFile)
    {
        auto reports = std::make_unique<ScreenReports>(main, m_values, m_boxes);
        auto* const form =
            new screens::OptionForm(screenFile, m_values, m_boxes, reports.get(), m_losses, toolsFor(main));
        reports.release()->setParent(form);
        form->setHistory(m_history);
        QObject::connect(form, &screens::OptionForm::noticeChanged, &main.statusBar1(),
                         &MainStatusBar::setNotice);
        QObject::connect(form, &screens::OptionForm::nothingToGetBack, &main,
                         [this, &main] { getBack(main); });
        QObject::connect(&main, &FrmMain::entryDone, form, &screens::OptionForm::refresh);
        followInTable(main, *form);
        const QMdiSubWindow& child = main.showChild(form);
        QObject::connect(&child, &QMdiSubWindow::windowStateChanged, form,
                         [form](Qt::WindowStates before, Qt::WindowStates now) {
                             if ((now & ~before).testFlag(Qt::WindowActive))
                                 form->refresh();
                         });
        return *form;
    }

    /// In the screen that lost changes last, which is opened again if the user has left it. Without such
    /// changes, the latest stored work is undone.
    void getBack(FrmMain& main)
    {
        const QString file = m_losses->latestScreen(m_values.databasePath);
        if (file.isEmpty())
            return openOrTell(m_boxes, [&] { undoStored(main, m_values, m_boxes, *m_history); });
        openOrTell(m_boxes, [&] {
            screens::OptionForm* const known = formOf(main, file, m_values.databasePath);
            screens::OptionForm& form = known == nullptr ? open(main, file) : *known;
            main.bringToFront(form);
            form.getBack();
        });
    }

private:
    [[nodiscard]] screens::ScreenTools toolsFor(FrmMain& main)
    {
        const auto screenOf = [this](FrmMain& frame, const auto&... screen) {
            return openedForm(frame, screen...);
        };
        return {makeTableTool({main, m_values, m_boxes, screenOf, m_history}),
                makeCopyTool(main, m_values, m_boxes), makeCopiesTool(main, m_values, m_boxes)};
    }

    /// @return nullptr if it is not open.
    static screens::OptionForm* formOf(const FrmMain& main, const QString& file, const QString& database)
    {
        const auto forms = main.findChildren<screens::OptionForm*>();
        const auto found = std::ranges::find_if(forms, [&](const screens::OptionForm* form) {
            return form->screenFile() == file && form->databasePath() == database;
        });
        return found == forms.end() ? nullptr : *found;
    }

    /// A screen is opened for the database in use only.
    screens::OptionForm* openedForm(FrmMain& main, const QString& file, const QString& database)
    {
        screens::OptionForm* form = formOf(main, file, database);
        if (form == nullptr && database == m_values.databasePath)
            openOrTell(m_boxes, [&] { form = &open(main, file); });
        return form;
    }

    ApplicationValues& m_values;
    Boxes& m_boxes;
    std::shared_ptr<store::WorkHistory> m_history;
    std::shared_ptr<screens::LostChangesList> m_losses = std::make_shared<screens::LostChangesList>();
};

} // namespace

FrmMain::Openers makeOpeners(ApplicationValues& values, Boxes& boxes)
{
    FrmMain::FormOpeners openers = makeFrameOpeners(values, boxes);
    const auto history = std::make_shared<store::WorkHistory>();
    openers.insert(u"FrmComm"_s, [&values, &boxes, history](FrmMain& main, const MenuEntry& entry) {
        openExchange(main, entry, values, boxes, *history);
    });
    openers.insert(u"FrmsalesComm"_s, [&values, &boxes](FrmMain& main, const MenuEntry&) {
        openCollection(main, values, boxes);
    });
    openers.insert(makeUtilityOpeners(values, boxes, history));
    openers.insert(makeReportOpeners(values, boxes));
    openers.insert(makeKeyOpeners(values, boxes, history));
    openers.insert(makeOverlayOpeners(values, boxes));
    const auto editors = std::make_shared<Screens>(values, boxes, history);
    return {openers, [editors](FrmMain& main, const QString& file) { editors->open(main, file); },
            [editors](FrmMain& main) {
                editors->getBack(main);
            }};
}

} // namespace norvane::shell
