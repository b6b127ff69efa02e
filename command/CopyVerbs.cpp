// Safety copies: which there are, and the way back to one.
#include "command/StopSignals.h"
#include "command/TerminalBoxes.h"
#include "command/Verbs.h"
#include "customers/CopiesElsewhere.h"
#include "customers/CustomerFolders.h"
#include "customers/RunLock.h"
#include "customers/SafetyCopies.h"
#include "platform/FilePaths.h"

#include <QFileInfo>

using namespace Qt::Literals::StringLiterals;

namespace norvane::command
{
namespace
{

/// @throws CommandError NoSuchName if none or several begin so.
customers::SafetyCopy copyOf(const QString& customerPath, const QString& name)
{
    QList<customers::SafetyCopy> found;
    for (const auto& copy : customers::safetyCopies(customerPath)) {
        if (copy.name == name)
            return copy;
        if (!name.isEmpty() && copy.name.startsWith(name))
            found << copy;
    }
    if (found.size() == 1)
        return found.front();
    const QString why =
        found.isEmpty() ? u"There is no copy \"%1\"."_s : u"Several copies begin with \"%1\"."_s;
    throw CommandError(ExitCode::NoSuchName, why.arg(name));
}

/// A safety copy is a folder.
bool isCopyElsewhere(const QString& path)
{
    return path.endsWith(".zip"_L1, Qt::CaseInsensitive) && QFileInfo(path).isFile();
}

/// The customer, which need not exist. @throws CommandError as findCustomer(); Usage for a name that no
/// folder can have.
ApplicationValues customerToRestore(const Workplace& workplace, const QString& name)
{
    const QStringList folders = customers::foldersNamed(workplace.appPath, name);
    if (folders.size() > 1)
        return findCustomer(workplace, name);
    ApplicationValues values;
    values.appPath = workplace.appPath;
    values.customerName = name;
    // Also one whose database was lost, and with it everything by which it is known.
    values.customerPath = folders.isEmpty() ? customers::folderFor(workplace.appPath, name) : folders.front();
    values.databasePath = customers::customerDatabase(values.customerPath);
    if (values.customerPath.isEmpty())
        throw CommandError(ExitCode::Usage, u"\"%1\" cannot be the name of a customer."_s.arg(name));
    return values;
}

/// A new customer has no folder to lock: it gets its name when it is complete.
void restoreFromElsewhere(const Workplace& workplace, const Invocation& words)
{
    // Also without a lock the restore is finished first: a half folder would remain.
    catchStopSignals();
    const QString copy = workplace.userFile(words.operands[1]);
    const ApplicationValues values = customerToRestore(workplace, words.operands[0]);
    const auto lock = pathExists(values.customerPath) ? lockFor(workplace, values) : nullptr;
    const QString notice = customers::restoreCopyElsewhere(copy, values.customerPath, [] {});
    if (!notice.isEmpty())
        printMessage(notice);
}

} // namespace

void listCopies(const Workplace& workplace, const Invocation& words)
{
    const ApplicationValues values = findCustomer(workplace, words.operands.front());
    Listing listing({u"Name"_s, u"Made"_s, u"Reason"_s});
    for (const auto& copy : customers::safetyCopies(values.customerPath))
        listing.add({copy.name, copy.made, copy.reason});
    workplace.show(listing);
}

void restore(const Workplace& workplace, const Invocation& words)
{
    if (isCopyElsewhere(workplace.userFile(words.operands[1]))) {
        restoreFromElsewhere(workplace, words);
        return;
    }
    const ApplicationValues values = findCustomer(workplace, words.operands[0]);
    const auto copy = copyOf(values.customerPath, words.operands[1]);
    const auto lock = lockFor(workplace, values);
    const QString notice = customers::restoreSafetyCopy(values.customerPath, copy);
    if (!notice.isEmpty())
        printMessage(notice);
}

} // namespace norvane::command
