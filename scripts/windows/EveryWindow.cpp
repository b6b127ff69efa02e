// The windows as tables, by how they open; see EveryWindow.h.
#include "scripts/windows/EveryWindow.h"

#include "articles/ImportDialog.h"
#include "articles/PlannedDialog.h"
#include "exchange/FrmComm.h"
#include "keys/functions/FrmFunctKey.h"
#include "keys/layout/copylevel.h"
#include "keys/layout/KeyLayout.h"
#include "keys/lookups/frmwlu.h"
#include "overlay/CorrectionForm.h"
#include "overlay/OverlayForm.h"
#include "overlay/OverlayPreview.h"
#include "overlay/PrinterSetup.h"
#include "overlay/SystemDialogs.h"
#include "platform/FilePaths.h"
#include "platform/ProfileFile.h"
#include "programme/CopyToShopsDialog.h"
#include "reports/window/Report.h"
#include "sales/Frmreports.h"
#include "sales/MoreReports.h"
#include "scripts/windows/FilledShop.h"
#include "shell/CopiesDialog.h"
#include "shell/CopyMenu.h"
#include "shell/FrmCustomer.h"
#include "shell/frmSplash.h"
#include "shell/frmSysInfo.h"
#include "shell/NewShopDialog.h"
#include "shell/SystemReport.h"
#include "store/engine/Database.h"
#include "ui/FrmSearch.h"
#include "ui/MessageBoxes.h"

#include <QtTest>
#include <QtWidgets>

#include <memory>

using namespace Qt::Literals::StringLiterals;

namespace norvane::windows
{
namespace
{

/// What a dialog is made with. Names are as long as users give them.
struct Ground {
    explicit Ground(FilledShop& filled) : shop(filled) {}

    FilledShop& shop;
    ApplicationValues values = shop.values();
    overlay::SystemDialogs dialogs;
    overlay::PrinterInUse printer;
    store::Database database = store::Database(values.databasePath);
    overlay::Document document = overlay::Document(overlay::Keyboard::Velmar);
    paper::PrinterCorrections corrections = paper::PrinterCorrections(shop.folder().appFile(u"none.ini"_s));
};

struct Dialog {
    const char* name;
    QWidget* (*make)(Ground& ground, QWidget* parent);
};

QWidget* designer(overlay::Keyboard keyboard, Ground& ground, QWidget* parent)
{
    auto* const form = new overlay::OverlayForm(keyboard, ground.values, ground.shop.boxes(), ground.dialogs,
                                                ground.printer, parent);
    if (auto* const import = form->findChild<QAction*>(u"ImportLevel1"_s))
        import->trigger();
    return form;
}

QWidget* preview(Ground& ground, QWidget* parent)
{
    const paper::Sheet portrait{QPageLayout::Portrait};
    return new overlay::OverlayPreview(ground.document, {u"Office on the first floor"_s, portrait, {}}, {},
                                       ground.corrections, ground.shop.boxes(), parent);
}

/// A file with changes, mistakes, and a heading that is nobody's.
QWidget* importOfFile(Ground& ground, QWidget* parent)
{
    const QByteArray text = "Number;Description;Price 1;Remarks of the wholesaler\n"
                            "1;Another text;2,50;a\n2;A text that is too long;2,50;b\n4711;New;x;c\n";
    return new articles::ImportDialog({ground.values, articles::pluSheet(), {}, u"wholesaler.csv"_s, {text}},
                                      ground.shop.boxes(), parent);
}

/// A list, a cancelled one and a damaged one.
QWidget* plannedChanges(Ground& ground, QWidget* parent)
{
    const QString& folder = ground.values.customerPath;
    const articles::PlannedRecord record{u"4711"_s, true, {{u"Description"_s, {}, u"New article"_s}}};
    for (const int month : {1, 2, 3})
        (void)articles::addPlannedList(folder, {{2027, month, 1}, u"PLUDATA"_s, {}, {}, {}, {record}});
    articles::cancelPlannedList(folder, articles::plannedFiles(folder)[1]);
    writeWholeFile(articles::plannedFiles(folder)[2].path, "damaged");
    return new articles::PlannedDialog(ground.values, ground.shop.boxes(), parent);
}

constexpr Dialog dialogs[] = {
    {"customer",
     [](Ground& g, QWidget* p) -> QWidget* {
         return new shell::FrmCustomer(g.values, g.shop.boxes(), p);
     }},
    {"new-shop",
     [](Ground& g, QWidget* p) -> QWidget* {
         // With the longest notice about models.
         ProfileFile::write(g.shop.folder().appFile(u"setup.ini"_s), u"SetupOption"_s, u"ECRModel"_s, u"3"_s);
         auto* const dialog =
             new shell::NewShopDialog(g.values.appPath, g.values.customerName, g.shop.boxes(), p);
         dialog->findChild<QAbstractButton*>(u"TakeSettings"_s)->click();
         return dialog;
     }},
    {"safety-copies",
     [](Ground& g, QWidget* p) -> QWidget* {
         return new shell::CopiesDialog(g.values.appPath, g.values.customerName, g.shop.boxes(), p);
     }},
    {"copies",
     [](Ground& g, QWidget* p) -> QWidget* {
         return new shell::CopyMenu(g.values.appPath, g.values.customerName, g.shop.boxes(), p);
     }},
    {"copy-to-customers",
     [](Ground& g, QWidget* p) -> QWidget* {
         return new programme::CopyToShopsDialog(
             g.values, {u"PLUDATA"_s, u"PLU"_s, u"1"_s, u"PLU 123456789012345678"_s, true, {}},
             g.shop.boxes(), p);
     }},
    {"import", &importOfFile},
    {"planned", &plannedChanges},
    {"exchange",
     [](Ground& g, QWidget* p) -> QWidget* {
         return new exchange::FrmComm(u"UPLOAD"_s, g.values, g.shop.boxes(), p);
     }},
    {"keys-velmar",
     [](Ground& g, QWidget* p) -> QWidget* {
         return new keys::KeyLayout(keys::velmarKeyboard(), g.values, g.shop.boxes(), p);
     }},
    {"copy-level",
     [](Ground& g, QWidget* p) -> QWidget* {
         return new keys::copylevel(g.database, keys::velmarKeyboard(), g.values, g.shop.boxes(), p);
     }},
    {"function-keys",
     [](Ground& g, QWidget* p) -> QWidget* {
         return new keys::FrmFunctKey(g.values, g.shop.boxes(), p);
     }},
    {"look-ups",
     [](Ground& g, QWidget* p) -> QWidget* {
         return new keys::frmwlu(g.values, g.shop.boxes(), p);
     }},
    {"overlay-velmar",
     [](Ground& g, QWidget* p) {
         return designer(overlay::Keyboard::Velmar, g, p);
     }},
    {"overlay-quelmont",
     [](Ground& g, QWidget* p) {
         return designer(overlay::Keyboard::Quelmont, g, p);
     }},
    {"overlay-preview", &preview},
    {"printer-correction",
     [](Ground& g, QWidget* p) -> QWidget* {
         return new overlay::CorrectionForm(u"Office"_s, {}, {}, g.shop.boxes(), p);
     }},
    {"printer-setup",
     [](Ground& /*g*/, QWidget* p) -> QWidget* {
         return new overlay::PrinterSetup({}, p);
     }},
    {"reports",
     [](Ground& g, QWidget* p) -> QWidget* {
         g.values.reportMode = u"DAILYPLU"_s;
         return new sales::Frmreports(g.values, g.shop.boxes(), sales::reportEntries().front(),
                                      reports::runReport, p);
     }},
    {"more-reports",
     [](Ground& g, QWidget* p) -> QWidget* {
         return new sales::MoreReports(g.values, g.shop.boxes(), reports::runReport, p);
     }},
    {"system-info",
     [](Ground& g, QWidget* p) -> QWidget* {
         return new shell::frmSysInfo(shell::systemReport(g.values, {}), p);
     }},
    {"splash",
     [](Ground& g, QWidget* /*p*/) -> QWidget* {
         return new shell::frmSplash(g.shop.frame().statusBar1());
     }},
};

/// The keyboard of the model, which has separate tables.
constexpr Dialog dorvikDialogs[] = {
    {"keys-dorvik",
     [](Ground& g, QWidget* p) -> QWidget* {
         return new keys::KeyLayout(keys::dorvikKeyboard(), g.values, g.shop.boxes(), p);
     }},
    {"overlay-dorvik",
     [](Ground& g, QWidget* p) {
         return designer(overlay::Keyboard::Dorvik, g, p);
     }},
};

/// Boxes that wait for an answer, with the longest texts that the program has for them.
struct WaitingBox {
    const char* name;
    void (*open)(Boxes& boxes, QWidget& frame);
};

constexpr WaitingBox waitingBoxes[] = {
    {"message",
     [](Boxes& boxes, QWidget&) {
         boxes.message(
             u"Your new database has been created please\rupload program from your cash register.  \r"_s,
             u"Information "_s, BoxIcon::Information);
     }},
    {"question",
     [](Boxes& boxes, QWidget&) {
         boxes.ask(
             u"Put Corner Shop as it was on 24/11/2026 22:05, before the upload?\r\rEverything changed since then is undone, sales included. A copy of its present state is made first."_s,
             u"Please Check"_s, BoxIcon::Question, BoxAnswer::No);
     }},
    {"choice",
     [](Boxes& boxes, QWidget&) {
         boxes.choose(
             u"Since this record was shown here, it was changed by another screen, a price change or an upload.\r\rSave replaces those changes by the values shown here.\rShow shows them here, and drops what you have typed."_s,
             u"Record Changed"_s, u"&Save"_s, u"S&how"_s);
     }},
    {"input",
     [](Boxes& boxes, QWidget&) {
         boxes.input(u"Please enter the Euro Conversion Rate"_s, u"Enter Euro Conversion Rate"_s,
                     u"1.269738"_s);
     }},
    {"find",
     [](Boxes&, QWidget& frame) {
         static_cast<void>(ui::FrmSearch::ask(&frame, u"PLU number"_s));
     }},
};

/// Windows inside the frame, by their menu entries.
constexpr const char* formsInFrame[] = {"DataSetup", "About", "CollectSales", "Quelmontkeyboard"};

void show(QWidget& window)
{
    window.show();
    QApplication::processEvents();
}

void lookAtMenus(shell::FrmMain& frame, const Look& look)
{
    for (QMenu* const menu : frame.findChildren<QMenu*>()) {
        menu->popup({});
        look(u"menu-"_s + menu->objectName(), *menu);
        menu->close();
    }
}

/// With a preview of all records.
void lookAtSetField(QWidget& table, const QString& name, const Look& look)
{
    QTimer::singleShot(0, &table, [&] {
        auto* const dialog = table.findChild<QDialog*>(u"SetFieldDialog"_s);
        dialog->findChild<QLineEdit*>(u"NewValue"_s)->setText(u"1"_s);
        dialog->findChild<QComboBox*>(u"HowToSet"_s)->setCurrentIndex(1);
        look(name, *dialog);
        dialog->reject();
    });
    table.findChild<QPushButton*>(u"SetField"_s)->click();
}

/// With a choice made and a change that is not stored.
void lookAtTable(FilledShop& shop, QWidget& screen, const QString& name, const Look& look)
{
    screen.findChild<QAction*>(u"ShowTable"_s)->trigger();
    QWidget& table = *shop.frame().findChild<QWidget*>(u"TableWindow"_s);
    QAbstractItemModel& cells = *table.findChild<QTableView*>(u"TableView"_s)->model();
    cells.setData(cells.index(0, 1), u"Another text"_s);
    auto& column = *table.findChild<QComboBox*>(u"ChoiceColumn"_s);
    QTest::keyClicks(&column, column.itemText(1));
    QTest::keyClick(table.findChild<QComboBox*>(u"Choice"_s), Qt::Key_Down);
    QApplication::processEvents();
    look(name, *table.parentWidget());
    lookAtSetField(table, name + u"-field"_s, look);
    shop.boxes().unsavedAnswers = {UnsavedAnswer::Discard};
    table.close();
    deleteClosed();
}

/// The list of the places that use the record; the button counts them first.
void lookAtUses(QPushButton& uses, const QString& name, const Look& look)
{
    constexpr int longestCount = 1000;
    if (!QTest::qWaitFor([&] { return uses.isEnabled(); }, longestCount))
        return;
    uses.click();
    QApplication::processEvents();
    QWidget* const list = uses.findChild<QListWidget*>(u"UsesList"_s)->window();
    look(name, *list);
    list->close();
}

/// With the list of records open beside those that have one.
void lookAtScreen(FilledShop& shop, const shell::MenuEntry& entry, const QString& name, const Look& look)
{
    QWidget& screen = shop.openScreen(entry);
    QApplication::processEvents();
    look(name, *screen.parentWidget());
    if (auto* const handle = screen.findChild<QToolButton*>(u"ListHandle"_s);
        handle && name.contains(u"PLU"_s)) {
        handle->click();
        QApplication::processEvents();
        look(name + u"-list"_s, *screen.parentWidget());
        if (auto* const uses = screen.findChild<QPushButton*>(u"RecordUses"_s))
            lookAtUses(*uses, name + u"-uses"_s, look);
        lookAtTable(shop, screen, name + u"-table"_s, look);
    }
    test::press(screen, "ExitForm");
    deleteClosed();
}

void lookAtScreens(FilledShop& shop, QSet<QString>& seen, const Look& look)
{
    for (const shell::MenuEntry& entry : shell::menuTree()) {
        const QString file = shop.screenFile(entry);
        if (file.isEmpty() || seen.contains(file.toLower()))
            continue;
        seen.insert(file.toLower());
        lookAtScreen(shop, entry, u"screen-"_s + file.section(u'.', 0, 0), look);
    }
}

void lookAtFormsInFrame(FilledShop& shop, const Look& look)
{
    for (const char* const entry : formsInFrame) {
        QWidget& form = shop.openForm(entry);
        QApplication::processEvents();
        look(u"frame-"_s + QLatin1String(entry), *form.parentWidget());
        form.close();
        deleteClosed();
    }
}

void lookAtDialogs(FilledShop& shop, std::span<const Dialog> table, const Look& look)
{
    Ground ground(shop);
    for (const Dialog& dialog : table) {
        const std::unique_ptr<QWidget> window(dialog.make(ground, &shop.frame()));
        window->setAttribute(Qt::WA_DeleteOnClose, false);
        show(*window);
        look(QLatin1String(dialog.name), *window);
    }
}

void lookAtBoxes(QWidget& frame, const Look& look)
{
    ui::MessageBoxes boxes;
    for (const WaitingBox& box : waitingBoxes) {
        QTimer::singleShot(0, &frame, [&] {
            QWidget* const window = QApplication::activeModalWidget();
            QApplication::processEvents();
            look(u"box-"_s + QLatin1String(box.name), *window);
            window->close();
        });
        box.open(boxes, frame);
    }
}

/// The price list, printed to the screen.
void lookAtReport(FilledShop& shop, const Look& look)
{
    reports::ReportRequest request;
    request.reportFile = shop.folder().appFile(u"pluprice.rpt"_s);
    request.dataFile = shop.values().databasePath;
    reports::Report(shop.frame(), shop.boxes()).run(std::move(request));
    auto* const window = shop.frame().findChild<QWidget*>(u"ReportPreview"_s);
    window->findChild<QPushButton*>(u"FindButton"_s)->click();
    QApplication::processEvents();
    look(u"report-preview"_s, *window);
    window->close();
    deleteClosed();
}

} // namespace

void lookAtEveryWindow(const Look& look)
{
    QSet<QString> seen;
    for (const int model : modelOrder) {
        FilledShop shop(model);
        lookAtScreens(shop, seen, look);
        if (model == modelOrder[0]) {
            lookAtOverview(shop, look);
            lookAtMenus(shop.frame(), look);
            lookAtFormsInFrame(shop, look);
            lookAtDialogs(shop, dialogs, look);
            lookAtReport(shop, look);
            lookAtBoxes(shop.frame(), look);
        }
        if (model == 3)
            lookAtDialogs(shop, dorvikDialogs, look);
    }
}

} // namespace norvane::windows
