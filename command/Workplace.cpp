// See Workplace.h.
#include "command/Workplace.h"

#include "command/StopSignals.h"
#include "command/TerminalBoxes.h"
#include "customers/CustomerFolders.h"
#include "customers/RunLock.h"
#include "customers/SafetyCopies.h"
#include "platform/FilePaths.h"
#include "platform/RuntimeFailure.h"
#include "store/catalogue/Upgrade.h"
#include "store/engine/Database.h"

#include <QDir>
#include <QFileInfo>
#include <QStorageInfo>
#include <QTemporaryDir>

#include <algorithm>

using namespace Qt::Literals::StringLiterals;

namespace norvane::command
{

QString Workplace::userFile(const QString& name) const
{
    return QDir(startedIn).absoluteFilePath(name);
}

void Workplace::writeUserFile(const QString& name,
                              const std::function<void(const QString& path)>& write) const
{
    if (name != standardOutput) {
        write(userFile(name));
        return;
    }
    const QTemporaryDir folder;
    const QString path = folder.filePath(u"output"_s);
    write(path);
    print(readWholeFile(path));
}

void Workplace::message(const QString& text) const
{
    (tell ? tell : printMessage)(text);
}

void Workplace::show(const Listing& listing) const
{
    show(listing.headings(), listing.rows());
}

void Workplace::show(const QStringList& headings, const Rows& rows) const
{
    (asJson ? writeJson : writeText)(headings, rows, print);
}

namespace
{

/// Whether a new file could be made in @p folder.
bool canWriteIn(const QString& folder)
{
    return QFileInfo(folder).isWritable() && QStorageInfo(folder).bytesAvailable() > 0;
}

/// A file that is no longer a database is reported before the work begins. @throws CommandError Unsound
void checkOpens(const QString& database)
{
    try {
        const store::Database opened(database);
    } catch (const RuntimeFailure& failure) {
        if (failure.failure() == Failure::NotOurDatabase)
            throw CommandError(ExitCode::Unsound, failure.text());
        throw;
    }
}

} // namespace

ApplicationValues findCustomer(const Workplace& workplace, const QString& name)
{
    QStringList found = customers::foldersNamed(workplace.appPath, name);
    found.removeIf([](const QString& folder) {
        return !pathExists(customers::customerDatabase(folder)) && customers::safetyCopies(folder).isEmpty();
    });
    if (found.isEmpty()) {
        throw CommandError(ExitCode::NoCustomer,
                           u"Customer \"%1\" was not found in %2."_s.arg(name, workplace.appPath));
    }
    if (found.size() > 1) {
        throw CommandError(ExitCode::NoSuchName,
                           u"\"%1\" may be each of the folders %2. Spell it as one of them."_s.arg(
                               name, found.join(u", "_s)));
    }
    ApplicationValues values;
    values.appPath = workplace.appPath;
    values.customerName = QDir(workplace.appPath).relativeFilePath(found.front());
    values.customerPath = found.front();
    values.databasePath = customers::customerDatabase(values.customerPath);
    return values;
}

namespace
{

/// @throws CommandError when the customer cannot be used.
void choose(const Workplace& workplace, ApplicationValues& values, const QString& name)
{
    using customers::CustomerChoice;
    const CommandError none(ExitCode::NoCustomer,
                            u"The customer \"%1\" has no database %2."_s.arg(name, values.databasePath));
    // Choosing a missing customer would create it.
    if (!pathExists(values.databasePath))
        throw none;
    switch (customers::chooseCustomer(values, values.customerName)) {
    case CustomerChoice::Damaged:
        throw CommandError(ExitCode::Unsound, customers::damageReport(values.customerPath));
    case CustomerChoice::Former:
        throw CommandError(
            ExitCode::Unsound,
            u"The database of \"%1\" was made by the former program. \"norvane-shop convert\" converts it."_s
                .arg(name));
    case CustomerChoice::InvalidEntry:
    case CustomerChoice::Failed:
        throw none;
    case CustomerChoice::NewSettings:
        workplace.boxes.message(customers::newSettingsReport(), {}, BoxIcon::Exclamation);
        break;
    case CustomerChoice::Created:
    case CustomerChoice::Taken:
        break;
    }
}

} // namespace

ApplicationValues takeCustomer(const Workplace& workplace, const QString& name)
{
    ApplicationValues values = findCustomer(workplace, name);
    choose(workplace, values, name);
    checkOpens(values.databasePath);
    // As the window does at its start.
    store::UpgradeUnitDescription(values.databasePath);
    return values;
}

std::unique_ptr<customers::RunLock> lockFor(const Workplace& workplace, const ApplicationValues& values)
{
    // A killed run would leave the lock but no line in the log.
    catchStopSignals();
    auto lock = customers::RunLock::take(values, workplace.boxes);
    if (lock == nullptr)
        throw CommandError(codeOfRefusedLock({values.appPath, values.customerPath}), {});
    return lock;
}

ExitCode codeOfRefusedLock(const QStringList& folders)
{
    return std::ranges::all_of(folders, canWriteIn) ? ExitCode::Busy : ExitCode::Unwritable;
}

} // namespace norvane::command
