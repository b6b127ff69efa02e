// See Workplace.h.
#include "command/Workplace.h"

#include "command/ExitCode.h"
#include "customers/CustomerFolders.h"
#include "customers/RunLock.h"
#include "platform/FilePaths.h"

#include <QDir>

#include <cstdio>

using namespace Qt::Literals::StringLiterals;

namespace norvane::command
{

QString Workplace::userFile(const QString& name) const
{
    return QDir(startedIn).absoluteFilePath(name);
}

void Workplace::show(const Listing& listing) const
{
    const QByteArray text = asJson ? listing.json() : listing.text();
    std::fwrite(text.constData(), 1, static_cast<std::size_t>(text.size()), stdout);
}

ApplicationValues takeCustomer(const Workplace& workplace, const QString& name)
{
    using customers::CustomerChoice;
    ApplicationValues values;
    values.appPath = workplace.appPath;
    const CommandError none(ExitCode::NoCustomer,
                            u"There is no customer \"%1\" in %2."_s.arg(name, workplace.appPath));
    // Choosing one that is not there would make it.
    if (!pathExists(customers::customerDatabase(joinPath(workplace.appPath, name))))
        throw none;
    switch (customers::chooseCustomer(values, name)) {
    case CustomerChoice::Damaged:
        throw CommandError(ExitCode::Unsound, customers::damageReport(values.customerPath));
    case CustomerChoice::InvalidEntry:
    case CustomerChoice::Failed:
        throw none;
    case CustomerChoice::Created:
    case CustomerChoice::Taken:
        break;
    }
    values.databasePath = customers::customerDatabase(values.customerPath);
    return values;
}

std::unique_ptr<customers::RunLock> lockFor(const Workplace& workplace, const ApplicationValues& values)
{
    auto lock = customers::RunLock::take(values, workplace.boxes);
    if (lock == nullptr)
        throw CommandError(ExitCode::Busy, {});
    return lock;
}

} // namespace norvane::command
