// PLUs out to a spreadsheet and back.
#include "base/CustomerSettings.h"
#include "command/PluExport.h"
#include "command/PluImport.h"
#include "command/TerminalBoxes.h"
#include "command/Verbs.h"
#include "customers/CustomerLog.h"
#include "customers/RunLock.h"
#include "customers/SafetyCopies.h"
#include "reports/ReportFiles.h"
#include "store/RecordTexts.h"

#include <QFile>
#include <QFileInfo>

#include <algorithm>
#include <span>

using namespace Qt::Literals::StringLiterals;

namespace norvane::command
{
namespace
{

constexpr std::size_t mistakesShown = 100;

void exportTo(const Workplace& workplace, const ApplicationValues& values, const QString& path)
{
    const QString ending = path == standardOutput ? u"csv"_s : QFileInfo(path).suffix().toLower();
    if (ending != "csv"_L1 && ending != "xlsx"_L1)
        throw CommandError(ExitCode::Usage, u"Name a file that ends in .csv or .xlsx."_s);
    store::Database database(values.databasePath);
    auto plus = exportedPlus(database);
    plus.heading.title = u"PLUs"_s;
    plus.heading.customer = customerOf(values, values.databasePath);
    plus.heading.printed = QDateTime::currentDateTime();
    plus.heading.notice = u"There are no PLUs."_s;
    const auto write = ending == "csv"_L1 ? reports::writeCsv : reports::writeXlsx;
    workplace.writeUserFile(path, [&](const QString& file) { write(plus, file, {}); });
}

/// @throws CommandError BadFile
QByteArray contentOf(const QString& path)
{
    QFile file(path);
    if (QFileInfo(path).isDir())
        throw CommandError(ExitCode::BadFile, u"%1 is a folder."_s.arg(path));
    if (!file.open(QIODevice::ReadOnly))
        throw CommandError(ExitCode::BadFile, u"%1 cannot be read: %2."_s.arg(path, file.errorString()));
    return file.readAll();
}

/// @throws CommandError BadFile when there are any.
void failWith(const std::vector<PluMistake>& mistakes, const QString& path)
{
    if (mistakes.empty())
        return;
    for (const auto& [line, column, reason] :
         std::span(mistakes).first(std::min(mistakes.size(), mistakesShown)))
        tell(u"line %1%2: %3"_s.arg(line).arg(column.isEmpty() ? QString() : u", "_s + column, reason));
    const QString further =
        mistakes.size() > mistakesShown ? u" The first %1 are listed."_s.arg(mistakesShown) : QString();
    throw CommandError(
        ExitCode::BadFile,
        u"%1 has mistakes: %2. Nothing was changed.%3"_s.arg(path).arg(mistakes.size()).arg(further));
}

Listing differences(const std::vector<PluChange>& changes)
{
    Listing listing({u"Number"_s, u"Field"_s, u"Old"_s, u"New"_s});
    for (const PluChange& change : changes) {
        const QString number =
            store::shownKey(pluColumns().front().field, QString::fromStdString(change.number));
        if (change.isNew)
            listing.add({number, u"new PLU"_s, {}, {}});
        for (const auto& [column, before, after] : change.fields) {
            listing.add({number, QString(column->heading), shownPluValue(*column, before),
                         shownPluValue(*column, after)});
        }
    }
    return listing;
}

/// Shows what the file at @p path changes. @throws CommandError BadFile
void show(const Workplace& workplace, const PluComparison& comparison, const QString& path)
{
    failWith(comparison.mistakes, path);
    workplace.show(differences(comparison.changes));
}

QString resultOf(const std::vector<PluChange>& changes)
{
    const auto added = std::ranges::count_if(changes, &PluChange::isNew);
    return u"%1 changed, %2 new"_s.arg(std::ssize(changes) - added).arg(added);
}

void listChanges(const Workplace& workplace, const ApplicationValues& values, const QString& path)
{
    store::Database database(values.databasePath);
    show(workplace, comparePlus(database, contentOf(path)), path);
}

void importFrom(const Workplace& workplace, const ApplicationValues& values, const QString& path)
{
    const auto lock = lockFor(workplace, values);
    customers::LoggedWork work(values.customerPath, u"PLU import"_s);
    store::Database database(values.databasePath);
    const PluComparison comparison = comparePlus(database, contentOf(path));
    if (!comparison.mistakes.empty())
        work.setResult(u"refused: the file has mistakes"_s);
    show(workplace, comparison, path);
    const auto& changes = comparison.changes;
    if (!changes.empty()) {
        if (!customers::copyBeforeJob(values, workplace.boxes, u"before PLU import"_s)) {
            work.setResult(u"not started: no safety copy"_s);
            throw CommandError(ExitCode::Unwritable, {});
        }
        applyPluChanges(database, changes);
    }
    work.setResult(resultOf(changes));
    tellStep(resultOf(changes));
}

} // namespace

void movePlus(const Workplace& workplace, const Invocation& words)
{
    const QString direction = words.operands[1];
    const bool isExport = direction == "export"_L1;
    if (!isExport && direction != "import"_L1)
        throw CommandError(ExitCode::Usage, u"\"%1\" is neither export nor import."_s.arg(direction));
    const ApplicationValues values = takeCustomer(workplace, words.operands[0]);
    const QString path = words.operands[2];
    if (isExport) {
        exportTo(workplace, values, path);
    } else if (words.has("dry-run"_L1)) {
        listChanges(workplace, values, workplace.userFile(path));
    } else {
        importFrom(workplace, values, workplace.userFile(path));
    }
}

} // namespace norvane::command
