// Exports tables to spreadsheets and imports them.
#include "articles/SheetExport.h"
#include "articles/SheetImport.h"
#include "articles/SpreadsheetError.h"
#include "articles/XlsxReader.h"
#include "base/CustomerSettings.h"
#include "command/CsvOption.h"
#include "command/StopSignals.h"
#include "command/TerminalBoxes.h"
#include "command/Verbs.h"
#include "customers/RunLock.h"
#include "customers/SetupSettings.h"
#include "programme/ProgrammeParts.h"
#include "register/PluNumber.h"
#include "reports/files/CsvFile.h"
#include "reports/files/XlsxFile.h"
#include "store/catalogue/Catalogue.h"

#include <QFileInfo>

#include <algorithm>
#include <functional>
#include <memory>
#include <optional>

using namespace Qt::Literals::StringLiterals;

namespace norvane::command
{
namespace
{

/// What moves between a file and a table.
struct SheetJob {
    const Workplace& workplace;
    const Invocation& words;
    ApplicationValues values;
    articles::TableSheet sheet;
    QString title;  ///< of an exported spreadsheet
    QString notice; ///< in place of records if there are none

    [[nodiscard]] const QString& file() const { return words.operands.back(); }
    /// On which an import is stored; nothing for now. @throws CommandError Usage
    [[nodiscard]] std::optional<QDate> day() const
    {
        if (!words.has("on"_L1))
            return std::nullopt;
        const QDate day = words.day("on"_L1);
        if (day < QDate::currentDate())
            throw CommandError(ExitCode::Usage, u"%1 is past."_s.arg(day.toString(Qt::ISODate)));
        return day;
    }
};

void exportTo(const SheetJob& job)
{
    const QString ending = job.file() == standardOutput ? u"csv"_s : QFileInfo(job.file()).suffix().toLower();
    if (ending != "csv"_L1 && ending != "xlsx"_L1)
        throw CommandError(ExitCode::Usage, u"Name a file that ends in .csv or .xlsx."_s);
    const reports::CsvSigns signs = signsToWrite(job.words);
    store::Database database(job.values.databasePath);
    auto sheet = articles::exportedSheet(database, job.sheet);
    sheet.heading.title = job.title;
    sheet.heading.customer = customerOf(job.values, job.values.databasePath);
    sheet.heading.printed = QDateTime::currentDateTime();
    sheet.heading.notice = job.notice;
    job.workplace.writeUserFile(job.file(), [&](const QString& file) {
        if (ending == "csv"_L1) {
            reports::writeCsvWith(signs, sheet, file);
        } else {
            reports::writeXlsx(sheet, file);
        }
    });
}

/// The headings that --map names: those of the file in small letters, and the table's. @throws CommandError
/// Usage
QHash<QString, QString> mappedHeadings(const SheetJob& job)
{
    QHash<QString, QString> headings;
    for (const QString& pair : job.words.value(mapOption.name).split(u',', Qt::SkipEmptyParts)) {
        const qsizetype sign = pair.lastIndexOf(u'=');
        const QString field = pair.sliced(sign + 1).trimmed();
        const auto isField = [&field](const articles::SheetColumn& column) {
            return column.heading.compare(field, Qt::CaseInsensitive) == 0;
        };
        if (sign < 1 || (!field.isEmpty() && std::ranges::none_of(job.sheet.columns, isField)))
            throw CommandError(ExitCode::Usage, u"--map cannot use \"%1\"."_s.arg(pair));
        headings.insert(pair.left(sign).trimmed().toLower(), field);
    }
    return headings;
}

/// @throws CommandError BadFile when there are any.
void failWith(const articles::SheetMistakes& mistakes, const QString& path)
{
    if (mistakes.isEmpty())
        return;
    const auto shown = mistakes.first();
    for (const auto& [line, column, reason, place] : shown)
        printMessage(u"%1%2: %3"_s.arg(place, column.isEmpty() ? QString() : u", "_s + column, reason));
    const QString further =
        mistakes.count() > shown.size() ? u" The first %1 are listed."_s.arg(shown.size()) : QString();
    throw CommandError(
        ExitCode::BadFile,
        u"%1 has mistakes: %2. Nothing was changed.%3"_s.arg(path).arg(mistakes.count()).arg(further));
}

/// Compares the file with the records of the customer. @throws CommandError BadFile
std::unique_ptr<articles::ComparedSheet> compared(const SheetJob& job)
{
    const QString path = job.workplace.userFile(job.file());
    try {
        auto file = std::make_unique<articles::ComparedSheet>(job.values.databasePath, job.sheet,
                                                              articles::sheetContent(path, untilSignalled));
        const auto separator = file->content().isFromSpreadsheet
                                   ? std::optional(articles::spreadsheetSeparator)
                                   : separatorToRead(job.words);
        if (const auto day = job.day())
            file->setDay({{*day, job.values.customerPath, registerModel(job.values).messageWidth}});
        file->compare({separator, mappedHeadings(job)}, untilSignalled);
        return file;
    } catch (const articles::SpreadsheetError& error) {
        throw CommandError(ExitCode::BadFile, u"%1 %2."_s.arg(path, error.text()));
    }
}

void addRows(const articles::SheetChange& change, const SheetJob& job,
             const std::function<void(const QVariantList& row)>& take)
{
    stopIfSignalled();
    const QString number = shownKey(job.sheet.columns.front().field, QString::fromStdString(change.number));
    if (change.isNew)
        take({number, u"new %1"_s.arg(job.sheet.name), {}, {}});
    for (const auto& [column, before, after] : change.fields) {
        take({number, column->heading, articles::shownSheetValue(*column, before),
              articles::shownSheetValue(*column, after)});
    }
}

/// Lists what the file changes. @throws CommandError BadFile for one with mistakes.
void show(const articles::SheetComparison& comparison, const SheetJob& job)
{
    failWith(comparison.mistakes(), job.workplace.userFile(job.file()));
    job.workplace.show({u"Number"_s, u"Field"_s, u"Old"_s, u"New"_s}, [&](const auto& take) {
        comparison.forEach([&](const articles::SheetChange& change) { addRows(change, job, take); });
    });
}

void importFrom(const SheetJob& job)
{
    const auto lock = lockFor(job.workplace, job.values);
    std::unique_ptr<articles::ComparedSheet> file;
    const auto compare = [&]() -> articles::ComparedSheet& {
        file = compared(job);
        return *file;
    };
    const auto review = [&](const articles::SheetComparison& comparison) {
        show(comparison, job);
    };
    const articles::ImportPlace place{job.values, job.sheet, job.workplace.boxes};
    if (const auto day = job.day()) {
        const QString model = customers::modelInWords(registerModel(job.values));
        printStep(
            articles::planSheet(place, {compare, review}, {*day, model, job.workplace.userFile(job.file())}));
        return;
    }
    const auto result = articles::importSheet(place, {compare, review}, untilSignalled);
    if (!result)
        throw CommandError(ExitCode::Unwritable, {});
    printStep(*result);
}

/// @return whether the words ask for an export. @throws CommandError Usage
bool isExport(const Invocation& words)
{
    const QString& direction = words.operands[words.operands.size() - 2];
    if (direction != "export"_L1 && direction != "import"_L1)
        throw CommandError(ExitCode::Usage, u"\"%1\" is neither export nor import."_s.arg(direction));
    return direction == "export"_L1;
}

void move(const SheetJob& job)
{
    if (isExport(job.words)) {
        exportTo(job);
    } else if (job.sheet.index.isEmpty()) {
        throw CommandError(ExitCode::Usage, u"The table %1 is only exported."_s.arg(job.sheet.table));
    } else if (job.words.has("dry-run"_L1)) {
        show(compared(job)->comparison(), job);
    } else {
        importFrom(job);
    }
}

/// A table by its name, or by that of the part of the programme which it is. @throws CommandError NoSuchName
const store::TableDefinition& tableNamed(const QString& name)
{
    QStringList unknown;
    const QStringList ofPart = programme::tablesNamed({name}, unknown);
    const auto* const table = store::catalogueTable(ofPart.size() == 1 ? ofPart.front() : name);
    if (table == nullptr) {
        throw CommandError(ExitCode::NoSuchName,
                           u"There is no table \"%1\"; \"norvane-shop tables\" lists them."_s.arg(name));
    }
    return *table;
}

} // namespace

void movePlus(const Workplace& workplace, const Invocation& words)
{
    (void)isExport(words);
    move({workplace, words, takeCustomer(workplace, words.operands[0]), articles::pluSheet(), u"PLUs"_s,
          u"There are no PLUs."_s});
}

void moveTable(const Workplace& workplace, const Invocation& words)
{
    (void)isExport(words);
    const auto& table = tableNamed(words.operands[1]);
    const ApplicationValues values = takeCustomer(workplace, words.operands[0]);
    move({workplace,
          words,
          values,
          articles::tableSheet(table, registerModel(values).messageWidth),
          u"Table %1"_s.arg(table.name),
          {}});
}

void listTables(const Workplace& workplace, const Invocation& /*words*/)
{
    Listing listing({u"Name"_s, u"Fields"_s, u"Import"_s});
    for (const store::TableDefinition& table : store::catalogue()) {
        const bool isImported = !articles::tableSheet(table, 0).index.isEmpty();
        listing.add({table.name, table.fields.size(), isImported ? u"yes"_s : u"no"_s});
    }
    workplace.show(listing);
}

} // namespace norvane::command
