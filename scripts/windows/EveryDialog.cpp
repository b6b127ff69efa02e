// The dialogs as tables; see EveryDialog.h.
#include "scripts/windows/EveryDialog.h"

#include "articles/ImportDialog.h"
#include "articles/PlannedDialog.h"
#include "exchange/CompareDialog.h"
#include "exchange/FrmComm.h"
#include "keys/functions/FrmFunctKey.h"
#include "keys/layout/CompareLevels.h"
#include "keys/layout/copylevel.h"
#include "keys/layout/ImportLevel.h"
#include "keys/layout/KeyFinder.h"
#include "keys/layout/KeyLayout.h"
#include "keys/layout/MapPreview.h"
#include "keys/lookups/frmwlu.h"
#include "overlay/CorrectionForm.h"
#include "overlay/FindDialog.h"
#include "overlay/KeyKinds.h"
#include "overlay/OverlayForm.h"
#include "overlay/OverlayPreview.h"
#include "overlay/PrinterSetup.h"
#include "overlay/SheetOptionsForm.h"
#include "overlay/SystemDialogs.h"
#include "overlay/WholeWordsDialog.h"
#include "platform/FilePaths.h"
#include "platform/ProfileFile.h"
#include "programme/CopyToShopsDialog.h"
#include "reports/lines/ReportRun.h"
#include "reports/window/PreviewWindow.h"
#include "sales/Frmreports.h"
#include "sales/MoreReports.h"
#include "sales/ShopLayouts.h"
#include "scripts/windows/FilledShop.h"
#include "shell/CopiesDialog.h"
#include "shell/CopyMenu.h"
#include "shell/FrmCustomer.h"
#include "shell/frmSplash.h"
#include "shell/frmSysInfo.h"
#include "shell/NewShopDialog.h"
#include "shell/SystemReport.h"
#include "store/engine/Database.h"

#include <QTest>
#include <QtWidgets>

#include <memory>
#include <span>

using namespace Qt::Literals::StringLiterals;

namespace norvane::windows
{
namespace
{

/// What a dialog is made with. Names are as long as users give them.
struct Ground {
    explicit Ground(FilledShop& filled) : shop(filled) {}

    [[nodiscard]] const keys::KeyLevel& levelOne()
    {
        level.read(1);
        return level;
    }

    FilledShop& shop;
    ApplicationValues values = shop.values();
    overlay::SystemDialogs dialogs;
    overlay::PrinterInUse printer;
    store::Database database = store::Database(values.databasePath);
    std::shared_ptr<store::Database> connection = std::make_shared<store::Database>(values.databasePath);
    keys::KeyLevel level = keys::KeyLevel(keys::velmarKeyboard(), connection);
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

/// With the preview of a group in place of keys that are in use.
QWidget* fillKeys(Ground& ground, QWidget* parent)
{
    auto* const form =
        new keys::KeyLayout(keys::velmarKeyboard(), ground.values, ground.shop.boxes(), parent);
    form->findChild<QAbstractButton*>(u"plucode"_s)->click();
    form->findChild<QAction*>(u"Fill"_s)->trigger();
    form->findChild<QAbstractButton*>(u"FillSkipsUsed"_s)->click();
    form->findChild<QComboBox*>(u"ListChoice"_s)->setCurrentIndex(2);
    return form;
}

/// With a text that does not fit, as long as a name in the programme can be.
QWidget* wholeWords(Ground& ground, QWidget* parent)
{
    ground.document.cell(39).text = u"INCOMPREHENSIBLE"_s;
    const overlay::ProgrammeTexts none(ground.document.layout().keys().size());
    return new overlay::WholeWordsDialog(ground.document, {13, 14}, none, parent);
}

/// The dialog's keyboard goes with its designer, which is not shown.
QWidget* findAndReplace(Ground& ground, QWidget* parent)
{
    QWidget* const form = designer(overlay::Keyboard::Velmar, ground, parent);
    form->findChild<QAction*>(u"FindEntry"_s)->trigger();
    return form->findChild<overlay::FindDialog*>();
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
    return new articles::PlannedDialog(
        ground.values, [](const QString&) { return articles::HeadingLabels(); }, ground.shop.boxes(), parent);
}

/// The copy of a layout, saved with two mistakes after the preview was opened.
QWidget* followedReport(Ground& ground, QWidget* parent)
{
    reports::ReportRequest request;
    request.reportFile =
        sales::copyLayout(joinPath(ground.values.appPath, u"groupsales.rpt"_s), ground.values.customerPath);
    request.programFolder = ground.values.appPath;
    request.dataFile = ground.values.databasePath;
    request.customer = ground.values.customerName;
    request.now = QDateTime::currentDateTime();
    auto* const window = new reports::PreviewWindow(
        reports::runReport(request), ground.shop.boxes(), [] { return nullptr; }, parent);
    window->followLinks(request, reports::runReport);
    window->followLayout();
    const QByteArray layout = readWholeFile(request.reportFile);
    writeWholeFile(request.reportFile,
                   QByteArray(layout)
                       .replace("Heading=Quantity", "Haeding=Quantity")
                       .replace("{GROUPS.DESCRIPTION}\r\nWidth=66", "{GROUPS.NAME}\r\nWidth=66"));
    (void)QTest::qWaitFor(
        [window] { return window->findChild<QWidget*>(u"Mistakes"_s)->isVisibleTo(window); });
    return window;
}

/// From a shop with other articles.
QWidget* levelImport(Ground& /*ground*/, QWidget* parent)
{
    const keys::LevelImport plan{
        std::vector<keys::FilledKey>(169),
        {u"Key 4: PLU 123456789012345678 An article of 24 chars"_s, u"Key 158: Look-up 12 Breakfast"_s},
        {u"Key 1: PLU 1001 Cola is PLU 123456789012345678 Cola here"_s},
        117};
    return new keys::ImportLevel(plan, 1, parent);
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
    {"compare",
     [](Ground& g, QWidget* p) -> QWidget* {
         exchange::FetchedFiles fetched{{67, 1}, {4, 11}, u"file 4: result 8: Time Out"_s, false, {}};
         auto comparison = std::make_unique<exchange::RegisterComparison>(
             g.values, std::make_unique<exchange::ScratchShop>(g.values), fetched);
         return new exchange::CompareDialog(std::move(comparison), g.shop.boxes(), nullptr, p);
     }},
    {"keys-velmar",
     [](Ground& g, QWidget* p) -> QWidget* {
         return new keys::KeyLayout(keys::velmarKeyboard(), g.values, g.shop.boxes(), p);
     }},
    {"fill-keys", &fillKeys},
    {"find-keys",
     [](Ground& g, QWidget* p) -> QWidget* {
         return new keys::KeyFinder(g.levelOne(), g.connection, p);
     }},
    {"compare-levels",
     [](Ground& g, QWidget* p) -> QWidget* {
         return new keys::CompareLevels(g.levelOne(), g.connection, g.shop.boxes(), p);
     }},
    {"import-level", &levelImport},
    {"level-map",
     [](Ground& g, QWidget* p) -> QWidget* {
         keys::LevelMap map(g.levelOne(), g.values.customerName, QDateTime::currentDateTime());
         return new keys::MapPreview(
             std::move(map), g.shop.boxes(), [] { return nullptr; }, p);
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
    {"overlay-kinds",
     [](Ground& g, QWidget* p) -> QWidget* {
         return new overlay::KeyKinds(g.document, g.values.databasePath, p);
     }},
    {"overlay-whole-words", &wholeWords},
    {"overlay-find", &findAndReplace},
    {"overlay-preview", &preview},
    {"printer-correction",
     [](Ground& g, QWidget* p) -> QWidget* {
         return new overlay::CorrectionForm(u"Office"_s, {}, {}, g.shop.boxes(), p);
     }},
    {"printer-setup",
     [](Ground& /*g*/, QWidget* p) -> QWidget* {
         return new overlay::PrinterSetup({}, p);
     }},
    {"overlay-marks",
     [](Ground& /*g*/, QWidget* p) -> QWidget* {
         return new overlay::SheetOptionsForm({}, 1, p);
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
    {"report-mistakes", &followedReport},
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

void lookAtAll(FilledShop& shop, std::span<const Dialog> table, const Look& look)
{
    Ground ground(shop);
    for (const Dialog& dialog : table) {
        const std::unique_ptr<QWidget> window(dialog.make(ground, &shop.frame()));
        window->setAttribute(Qt::WA_DeleteOnClose, false);
        window->show();
        QApplication::processEvents();
        look(QLatin1String(dialog.name), *window);
    }
}

} // namespace

void lookAtDialogs(FilledShop& shop, const Look& look)
{
    lookAtAll(shop, dialogs, look);
}

void lookAtDorvikDialogs(FilledShop& shop, const Look& look)
{
    lookAtAll(shop, dorvikDialogs, look);
}

} // namespace norvane::windows
