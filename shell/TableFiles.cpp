// See TableFiles.h.
#include "shell/TableFiles.h"

#include "articles/ImportDialog.h"
#include "articles/PlannedDialog.h"
#include "articles/SheetExport.h"
#include "articles/SpreadsheetError.h"
#include "base/CustomerSettings.h"
#include "customers/DataOwner.h"
#include "platform/FailureBox.h"
#include "reports/data/ReportError.h"
#include "reports/files/CsvFile.h"
#include "reports/files/PdfFile.h"
#include "reports/files/XlsxFile.h"
#include "reports/window/RunProgress.h"
#include "screens/table/TableModel.h"
#include "screens/table/TableWindow.h"
#include "shell/FieldLabels.h"
#include "shell/FrmMain.h"
#include "shell/MainStatusBar.h"
#include "store/catalogue/Catalogue.h"

#include <QDir>
#include <QFileInfo>
#include <QRegularExpression>
#include <QStandardPaths>

#include <algorithm>
#include <array>

using namespace Qt::Literals::StringLiterals;

namespace norvane::shell
{
namespace
{

using screens::TableModel;
using screens::TableWindow;

constexpr auto exportTitle = "Export"_L1;
constexpr auto importTitle = "Import"_L1;

/// A table in use, as its files know it.
struct TableOfFile {
    const TableWindow& window;
    ApplicationValues owner; ///< of the data
    articles::TableSheet sheet;
    articles::ColumnNames names;
};

/// @throws RuntimeFailure as registerModel(), and with Failure::UnknownName for a table that only this
/// database has.
TableOfFile tableOfFile(const TableWindow& window, const ApplicationValues& values)
{
    const auto* const known = store::catalogueTable(window.source().table);
    if (known == nullptr) {
        throw RuntimeFailure(Failure::UnknownName,
                             u"The table %1 is not known."_s.arg(window.source().table));
    }
    ApplicationValues shown = values;
    shown.databasePath = window.databasePath();
    ApplicationValues owner = customers::ownerOfData(shown);
    articles::TableSheet sheet = articles::tableSheet(*known, registerModel(owner).messageWidth);
    std::vector<articles::FieldLabel> labels;
    for (const screens::TableColumn& column : window.source().columns)
        labels.push_back({column.field.name, column.label});
    auto names = articles::columnNames(sheet, labels);
    return {window, std::move(owner), std::move(sheet), std::move(names)};
}

/// What is stored, so that it can be imported again. Fields that only this database has are left out.
reports::ReportData storedValues(const TableOfFile& table)
{
    const TableModel& model = table.window.model();
    std::vector<int> shown;
    std::vector<articles::ExportedColumn> columns;
    for (const int each : table.window.shownColumns()) {
        const auto column = std::ranges::find(table.sheet.columns, model.column(each).field.name,
                                              &articles::SheetColumn::field);
        if (column == table.sheet.columns.end())
            continue;
        columns.push_back({*column, articles::nameOf(*column, table.names)});
        shown.push_back(each);
    }
    return articles::exportedRows(
        columns, model.rowCount(),
        [&](int row, std::size_t column) -> const store::Value& { return model.value(row, shown[column]); });
}

/// What the table shows.
reports::ReportData shownTexts(const TableOfFile& table)
{
    const TableModel& model = table.window.model();
    const std::vector<int> shown = table.window.shownColumns();
    std::vector<reports::ReportColumn> columns;
    for (const int each : shown) {
        const screens::TableColumn& column = model.column(each);
        const bool isOfDigits = column.isOfDigits();
        columns.push_back({.heading = column.label,
                           .width = paper::millimetres(isOfDigits ? 18 : 36),
                           .alignment = isOfDigits ? reports::Alignment::Right : reports::Alignment::Left});
    }
    reports::ReportData data(std::move(columns));
    data.page.mayTurn = true;
    for (int row = 0; row < model.rowCount(); ++row) {
        std::vector<reports::ReportCell> cells;
        cells.reserve(shown.size());
        for (const int column : shown)
            cells.emplace_back(model.column(column).text(model.value(row, column)));
        data.addLine(reports::LineKind::Detail, std::move(cells));
    }
    return data;
}

/// The files that a table is written to.
struct TableFileKind {
    QLatin1StringView suffix;
    QLatin1StringView filter;
    reports::ReportData (*make)(const TableOfFile& table);
    void (*write)(const reports::ReportData& data, const QString& path, const KeepGoing& keepGoing);
};
constexpr auto fileKinds = std::to_array<TableFileKind>({
    {"csv"_L1, "Values (*.csv)"_L1, storedValues, reports::writeCsv},
    {"xlsx"_L1, "Spreadsheet (*.xlsx)"_L1, storedValues, reports::writeXlsx},
    {"pdf"_L1, "PDF (*.pdf)"_L1, shownTexts,
     [](const reports::ReportData& data, const QString& path, const KeepGoing& keepGoing) {
         reports::writePdf(data, false, path, keepGoing);
     }},
});

QString documents()
{
    return QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation);
}

/// @return nullptr, after a message, for a name with another ending.
const TableFileKind* kindOf(const QString& path, Boxes& boxes)
{
    const QString suffix = QFileInfo(path).suffix();
    const auto* const kind = std::ranges::find_if(fileKinds, [&](const TableFileKind& each) {
        return suffix.compare(each.suffix, Qt::CaseInsensitive) == 0;
    });
    if (kind != fileKinds.end())
        return kind;
    boxes.message(u"Name a file that ends in .csv, .xlsx or .pdf."_s, exportTitle, BoxIcon::Exclamation);
    return nullptr;
}

QString fileToExport(const TableOfFile& table, Boxes& boxes)
{
    static const QRegularExpression unfit(u"[^\\w -]+"_s, QRegularExpression::UseUnicodePropertiesOption);
    const QString name =
        u"%1 - %2"_s.arg(table.owner.customerName, table.window.caption()).remove(unfit).simplified();
    QStringList filters;
    for (const TableFileKind& kind : fileKinds)
        filters += kind.filter;
    return boxes.fileToSave({exportTitle, QDir(documents()).filePath(name + u".csv"_s), filters.join(u";;"),
                             fileKinds.front().suffix});
}

void writeTable(const TableOfFile& table, const TableFileKind& kind, const QString& path, FrmMain& main)
{
    reports::RunProgress progress(main, u"The table is exported."_s, exportTitle);
    const screens::TableRows& rows = table.window.model().rows();
    reports::ReportData data = kind.make(table);
    data.heading.title = table.window.caption();
    data.heading.customer = table.owner.customerName;
    data.heading.printed = QDateTime::currentDateTime();
    if (rows.size() != rows.total())
        data.heading.subtitle = u"%1 of %2 records"_s.arg(rows.size()).arg(rows.total());
    kind.write(data, path, [&progress] { return progress.goOn(); });
    const QString unsaved = table.window.hasEdits() ? u", with changes that are not saved"_s : QString();
    main.statusBar1().setNotice(
        u"Exported %1 records to %2%3"_s.arg(rows.size()).arg(QDir::toNativeSeparators(path), unsaved));
}

void exportTable(const TableWindow& window, FrmMain& main, const ApplicationValues& values, Boxes& boxes)
{
    const TableOfFile table = tableOfFile(window, values);
    const QString path = fileToExport(table, boxes);
    const TableFileKind* const kind = path.isEmpty() ? nullptr : kindOf(path, boxes);
    if (kind == nullptr)
        return;
    try {
        writeTable(table, *kind, path, main);
    } catch (const reports::ReportCancelled&) {
        main.statusBar1().setNotice(u"Cancelled. Nothing was exported"_s);
    } catch (const reports::ReportError& error) {
        boxes.message(error.text(), exportTitle, BoxIcon::Critical);
    }
}

/// @return nothing, after a message or a notice, for a file that cannot be read.
std::optional<articles::SheetContent> contentToImport(const QString& path, FrmMain& main, Boxes& boxes)
{
    try {
        reports::RunProgress progress(main, u"The file is read."_s, importTitle);
        return articles::sheetContent(path, [&progress] { return progress.goOn(); });
    } catch (const articles::SpreadsheetError& error) {
        boxes.message(u"The file %1 %2."_s.arg(QFileInfo(path).fileName(), error.text()), importTitle,
                      BoxIcon::Exclamation);
    } catch (const RuntimeFailure& failure) {
        if (failure.failure() != Failure::UserInterrupt)
            throw;
        main.statusBar1().setNotice(u"Cancelled. Nothing was imported"_s);
    }
    return std::nullopt;
}

void importTable(TableWindow& window, const TableSurroundings& around)
{
    auto& [main, values, boxes, screenOf, history] = around;
    TableOfFile table = tableOfFile(window, values);
    if (table.sheet.index.isEmpty()) {
        return boxes.message(u"The table %1 is only exported."_s.arg(window.caption()), importTitle,
                             BoxIcon::Exclamation);
    }
    if (!window.settleEdits())
        return;
    const QString path =
        boxes.fileToOpen({importTitle, documents(), u"CSV and spreadsheets (*.csv *.txt *.xlsx)"_s, {}});
    auto content = path.isEmpty() ? std::nullopt : contentToImport(path, main, boxes);
    if (!content)
        return;
    articles::ImportDialog dialog({table.owner, std::move(table.sheet), std::move(table.names),
                                   QFileInfo(path).fileName(), std::move(*content), history},
                                  boxes, &main);
    if (dialog.exec() != QDialog::Accepted)
        return;
    Q_EMIT window.stored();
    main.statusBar1().setNotice(dialog.notice());
}

articles::HeadingLabels headingLabels(const QString& table, FieldLabels& labels)
{
    articles::HeadingLabels result;
    const auto* const known = store::catalogueTable(table);
    if (known == nullptr)
        return result;
    for (const articles::SheetColumn& column : articles::tableSheet(*known, 0).columns) {
        const QString label = labels.field(table, column.field);
        if (label != column.field)
            result.insert(column.heading, label);
    }
    return result;
}

} // namespace

screens::TableTools makeFileTools(const TableSurroundings& around)
{
    const auto exported = [around](TableWindow& window) {
        openOrTell(around.boxes, [&] { exportTable(window, around.main, around.values, around.boxes); });
    };
    const auto imported = [around](TableWindow& window) {
        openOrTell(around.boxes, [&] { importTable(window, around); });
    };
    const auto planned = [around](TableWindow& window) {
        openOrTell(around.boxes, [&] {
            const ApplicationValues owner = tableOfFile(window, around.values).owner;
            FieldLabels labels(owner);
            articles::PlannedDialog(
                owner, [&labels](const QString& table) { return headingLabels(table, labels); }, around.boxes,
                &around.main)
                .exec();
        });
    };
    return {{u"ExportTable"_s, u"&Export..."_s, {}, exported},
            {u"ImportTable"_s, u"&Import..."_s, {}, imported},
            {u"PlannedChanges"_s, u"&Planned Changes..."_s, {}, planned}};
}

} // namespace norvane::shell
