// See CustomerList.h.
#include "command/CustomerList.h"

#include "customers/CustomerFolders.h"
#include "customers/SafetyCopies.h"
#include "platform/FilePaths.h"
#include "store/catalogue/DatabaseCheck.h"

#include <QDir>

using namespace Qt::Literals::StringLiterals;

namespace norvane::command
{
namespace
{

/// Whether a folder is a customer's, also when the database was lost.
bool isCustomer(const QString& folder)
{
    return pathExists(customers::customerDatabase(folder)) || pathExists(joinPath(folder, u"setup.ini"_s)) ||
           !customers::safetyCopies(folder).isEmpty();
}

} // namespace

/// Names of the window, in upper case, would have to be looked for.
QStringList allCustomers(const Workplace& workplace)
{
    QStringList names = customers::customerNames(workplace.appPath);
    names.removeIf([&](const QString& name) { return !isCustomer(QDir(workplace.appPath).filePath(name)); });
    return names;
}

ApplicationValues listedCustomer(const Workplace& workplace, const QString& name)
{
    ApplicationValues values;
    values.appPath = workplace.appPath;
    values.customerName = name;
    values.customerPath = existingPath(joinPath(workplace.appPath, name));
    values.databasePath = customers::customerDatabase(values.customerPath);
    return values;
}

QString noteOn(const Workplace& workplace, const QString& name)
{
    const QStringList folders = customers::foldersNamed(workplace.appPath, name);
    if (folders.isEmpty())
        return u"rename the folder: no command takes its name"_s;
    return store::isFormerDatabase(customers::customerDatabase(folders.front()))
               ? u"made by the former program: convert it"_s
               : QString();
}

} // namespace norvane::command
