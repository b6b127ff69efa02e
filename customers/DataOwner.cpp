// See DataOwner.h.
#include "customers/DataOwner.h"

#include <QDir>
#include <QFileInfo>

namespace norvane::customers
{

ApplicationValues ownerOfData(const ApplicationValues& values)
{
    if (!isDataOfAnother(values))
        return values;
    ApplicationValues owner = values;
    const QDir folder = QFileInfo(values.databasePath).dir();
    owner.customerPath = folder.path();
    owner.customerName = folder.dirName();
    return owner;
}

/// Folders are compared as they are on the disk: a customer may be reached through a link.
bool isDataOfAnother(const ApplicationValues& values)
{
    return QFileInfo(QFileInfo(values.databasePath).path()).canonicalFilePath() !=
           QFileInfo(values.customerPath).canonicalFilePath();
}

} // namespace norvane::customers
