// See CopyDifferences.h.
#include "programme/CopyDifferences.h"

#include "base/CustomerSettings.h"
#include "customers/CustomerFolders.h"
#include "platform/FilePaths.h"
#include "programme/PartComparison.h"
#include "programme/ProgrammeParts.h"

#include <QFileInfo>

using namespace Qt::Literals::StringLiterals;

namespace norvane::programme
{
namespace
{

/// An earlier layout lacks some tables.
QStringList tablesOfBoth(const store::Database& one, const store::Database& other)
{
    QStringList tables;
    for (const ProgrammePart& part : programmeParts()) {
        for (const QString& table : tablesOf(part)) {
            if (one.hasTable(table) && other.hasTable(table))
                tables << table;
        }
    }
    return tables;
}

bool hasOtherSettings(const QString& customerPath, const QString& copyPath)
{
    const QString now = existingPath(joinPath(customerPath, u"setup.ini"_s));
    const QString then = existingPath(joinPath(copyPath, u"setup.ini"_s));
    return QFileInfo(then).isFile() &&
           (!QFileInfo(now).isFile() || readWholeFile(now) != readWholeFile(then));
}

} // namespace

QStringList copyDifferences(const ApplicationValues& values, const customers::SafetyCopy& copy,
                            const KeepGoing& keepGoing)
{
    store::Database then(joinPath(copy.path, databaseFileName));
    store::Database now(customers::customerDatabase(values.customerPath));
    const RegisterModel& model = registerModelByText(values);
    QStringList lines;
    for (const QString& table : tablesOfBoth(then, now)) {
        const PartComparison comparison({then, model}, {now, model}, {{table}, {}}, keepGoing);
        if (comparison.counts().all() > 0)
            lines << u"%1: %2"_s.arg(table, comparison.counts().inWords());
    }
    if (hasOtherSettings(values.customerPath, copy.path))
        lines << u"Settings"_s;
    return lines;
}

} // namespace norvane::programme
