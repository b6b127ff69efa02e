// See KeptFiles.h.
#include "exchange/KeptFiles.h"

#include "exchange/MoveDataFile.h"
#include "link/ExpectedFiles.h"
#include "platform/FilePaths.h"
#include "platform/RuntimeFailure.h"

#include <QFileInfo>

using namespace Qt::Literals::StringLiterals;

namespace norvane::exchange
{
namespace
{

/// Length of a register file in the working directory.
qint64 lengthOf(const QString& name)
{
    if (!pathExists(name)) {
        throw RuntimeFailure(Failure::FileNotFound,
                             u"The file %1 is missing. Upload it from the ECR first."_s.arg(name));
    }
    return QFileInfo(existingPath(name)).size();
}

} // namespace

QString dataFile(int file)
{
    return u"%1.dat"_s.arg(file);
}

/// The customer's copy is the only store of a file without a table.
void KeptFiles::keep(const QString& name) const
{
    if (!pathExists(joinPath(m_values.appPath, name)))
        return;
    if (keepFormerCopy(m_values.appPath, m_values.customerPath, name))
        m_outside.showNotice(u"%1 came empty. The former copy is kept as %1.former."_s.arg(name));
    MoveDataFile(m_values.appPath, m_values.customerPath, name);
}

/// Never a file found in the program's folder, which may be another customer's.
bool KeptFiles::takeForSend(const DownloadRow& row) const
{
    const QString name = dataFile(row.file);
    if (!pathExists(joinPath(m_values.customerPath, name)))
        m_outside.showNotice(u"The customer's folder holds no %1. Upload it from the ECR first."_s.arg(name));
    // The transfer tool gets the name in capitals and would send an old file of that spelling.
    link::keepLatestSpelling(joinPath(m_values.appPath, name));
    MoveDataFile(m_values.customerPath, m_values.appPath, name);
    return row.copy != Copy::FromCustomerUnlessEmpty || lengthOf(name) > 0;
}

void KeptFiles::copyAfterSend(const DownloadRow& row) const
{
    if (row.copy == Copy::ToCustomerAfter) {
        keep(dataFile(row.file));
    } else if (row.copy == Copy::FromCustomerAfter) {
        MoveDataFile(m_values.customerPath, m_values.appPath, dataFile(row.file));
    }
}

} // namespace norvane::exchange
