// Copies of customers elsewhere: making and checking them.
#include "command/CustomerRun.h"
#include "command/StopSignals.h"
#include "command/Verbs.h"
#include "customers/CopiesElsewhere.h"
#include "platform/FolderLock.h"

#include <QDirIterator>
#include <QFileInfo>
#include <QTemporaryDir>

using namespace Qt::Literals::StringLiterals;

namespace norvane::command
{
namespace
{

/// @return the row of the listing: shop, path and size of the copy. @throws CommandError, RuntimeFailure
QVariantList copyShop(const Workplace& workplace, const QString& name, const QString& folder)
{
    const ApplicationValues values = takeCustomer(workplace, name);
    const auto lock = FolderLock::take(values.customerPath, workplace.boxes);
    if (lock == nullptr)
        throw CommandError(codeOfRefusedLock({values.customerPath}), {});
    const auto made = customers::makeCopyElsewhere(values.customerPath, folder, QDateTime::currentDateTime(),
                                                   stopIfSignalled);
    return {QFileInfo(values.customerPath).fileName(), made.path, QFileInfo(made.path).size()};
}

/// A file as named, or all copies below a folder.
QStringList copiesNamed(const QString& path)
{
    if (!QFileInfo(path).isDir())
        return {path};
    QStringList paths;
    QDirIterator all(path, {u"[0-9][0-9][0-9][0-9]-*.zip"_s}, QDir::Files, QDirIterator::Subdirectories);
    while (all.hasNext())
        paths << all.next();
    if (paths.isEmpty())
        throw CommandError(ExitCode::NoSuchName, u"There is no copy in %1."_s.arg(path));
    paths.sort();
    return paths;
}

} // namespace

void copyElsewhere(const Workplace& workplace, const Invocation& words)
{
    if (!words.has("to"_L1))
        throw CommandError(ExitCode::Usage, u"Name a folder with --to."_s);
    catchStopSignals();
    const QString folder = workplace.userFile(words.value("to"_L1));
    Listing listing({u"Shop"_s, u"Copy"_s, u"Bytes"_s});
    CustomerRun(u"not copied."_s)
        .forEach(
            words.operands, [&](const QString& name) { listing.add(copyShop(workplace, name, folder)); },
            [&] { workplace.show(listing); });
}

void verifyCopies(const Workplace& workplace, const Invocation& words)
{
    QStringList paths;
    for (const QString& name : words.operands)
        paths << copiesNamed(workplace.userFile(name));
    catchStopSignals();
    const QTemporaryDir scratch;
    Listing listing({u"Copy"_s, u"Finding"_s});
    bool isSound = true;
    for (const QString& path : paths) {
        const QString fault = customers::faultOfCopy(path, scratch.path(), stopIfSignalled);
        listing.add({path, fault.isEmpty() ? u"sound"_s : fault});
        isSound = isSound && fault.isEmpty();
    }
    workplace.show(listing);
    if (!isSound)
        throw CommandError(ExitCode::Unsound, {});
}

} // namespace norvane::command
