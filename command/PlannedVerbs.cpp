// Lists of changes that are stored on a day: which there are, what one has, cancelling one.
#include "command/PlannedVerbs.h"

#include "articles/PlannedChanges.h"
#include "articles/SpreadsheetError.h"
#include "command/TerminalBoxes.h"
#include "command/Verbs.h"
#include "customers/CustomerFolders.h"
#include "customers/CustomerLog.h"
#include "customers/RunLock.h"
#include "register/PluNumber.h"
#include "store/catalogue/Catalogue.h"

#include <QFileInfo>

#include <algorithm>
#include <array>

using namespace Qt::Literals::StringLiterals;

namespace norvane::command
{
namespace
{

using articles::PlannedFile, articles::PlannedList, articles::PlannedState;

void addLists(const QString& shop, const QString& customerPath, Listing& listing)
{
    for (const PlannedFile& file : articles::plannedFiles(customerPath)) {
        if (file.state == PlannedState::Done)
            continue;
        try {
            const PlannedList list = file.read();
            listing.add({shop, file.number, list.day, list.table, list.records.size(),
                         articles::stateInWords(file.state), list.made, list.source});
        } catch (const TextError& error) {
            listing.add({shop, file.number, {}, {}, {}, error.text(), {}, file.path});
        }
    }
}

PlannedFile listNamed(const QString& customerPath, const QString& number)
{
    const auto files = articles::plannedFiles(customerPath);
    const auto file = std::ranges::find(files, number,
                                        [](const PlannedFile& each) { return QString::number(each.number); });
    if (file == files.end())
        throw CommandError(ExitCode::NoSuchName, u"There is no list %1."_s.arg(number));
    return *file;
}

void requireState(const PlannedFile& file, PlannedState state)
{
    if (file.state != state) {
        throw CommandError(ExitCode::NoSuchName, u"List %1 is %2."_s.arg(QString::number(file.number),
                                                                         articles::stateInWords(file.state)));
    }
}

void showList(const Workplace& workplace, const ApplicationValues& /*values*/, const PlannedFile& file)
{
    const PlannedList list = file.read();
    const store::TableDefinition* const table = store::catalogueTable(list.table);
    const QString keyField = table != nullptr ? table->fields.front().name : QString();
    workplace.show({u"Number"_s, u"Field"_s, u"Old"_s, u"New"_s}, [&](const auto& take) {
        for (const auto& record : list.records) {
            const QString number = shownKey(keyField, record.number);
            if (record.isNew)
                take({number, u"new record"_s, {}, {}});
            for (const auto& [heading, before, after] : record.fields)
                take({number, heading, before, after});
        }
    });
}

void cancelList(const Workplace& /*workplace*/, const ApplicationValues& values, const PlannedFile& file)
{
    requireState(file, PlannedState::Planned);
    articles::cancelPlannedList(values.customerPath, file);
    customers::writeLog(
        values.customerPath,
        {QDateTime::currentDateTime(), u"planned changes, list %1"_s.arg(file.number), {}, u"cancelled"_s});
    printStep(u"List %1 is cancelled. --plan-again %1 plans it again."_s.arg(file.number));
}

void planAgain(const Workplace& /*workplace*/, const ApplicationValues& values, const PlannedFile& file)
{
    requireState(file, PlannedState::Cancelled);
    if (file.read().day < QDate::currentDate()) {
        throw CommandError(ExitCode::Usage,
                           u"The day of list %1 is past. Import its file again."_s.arg(file.number));
    }
    articles::replanList(values.customerPath, file);
    printStep(u"List %1 is planned again."_s.arg(file.number));
}

/// What is done with one list.
struct ListAction {
    QLatin1StringView option;
    bool needsLock;
    void (*run)(const Workplace& workplace, const ApplicationValues& values, const PlannedFile& file);
};
constexpr auto listActions = std::to_array<ListAction>({
    {"show"_L1, false, showList},
    {"cancel"_L1, true, cancelList},
    {"plan-again"_L1, true, planAgain},
});

void runAction(const Workplace& workplace, const Invocation& words, const ListAction& action)
{
    if (words.operands.size() != 1)
        throw CommandError(ExitCode::Usage, u"Name one customer with --%1."_s.arg(action.option));
    const ApplicationValues values = findCustomer(workplace, words.operands.front());
    const auto lock = action.needsLock ? lockFor(workplace, values) : nullptr;
    const PlannedFile file = listNamed(values.customerPath, words.value(action.option));
    try {
        action.run(workplace, values, file);
    } catch (const articles::SpreadsheetError& error) {
        throw CommandError(ExitCode::BadFile, u"%1 %2."_s.arg(file.path, error.text()));
    }
}

} // namespace

QStringList shopsWithLists(const Workplace& workplace, const Invocation& words)
{
    if (!words.operands.isEmpty())
        return words.operands;
    QStringList names = customers::customerNames(workplace.appPath);
    names.removeIf([&](const QString& name) {
        const QStringList folders = customers::foldersNamed(workplace.appPath, name);
        return folders.isEmpty() || articles::plannedFiles(folders.front()).isEmpty();
    });
    return names;
}

void listPlanned(const Workplace& workplace, const Invocation& words)
{
    for (const ListAction& action : listActions) {
        if (words.has(action.option)) {
            runAction(workplace, words, action);
            return;
        }
    }
    Listing listing(
        {u"Shop"_s, u"List"_s, u"Store on"_s, u"Table"_s, u"Records"_s, u"State"_s, u"Planned"_s, u"From"_s});
    for (const QString& name : shopsWithLists(workplace, words)) {
        const ApplicationValues values = findCustomer(workplace, name);
        addLists(QFileInfo(values.customerPath).fileName(), values.customerPath, listing);
    }
    workplace.show(listing);
}

} // namespace norvane::command
