// See DataOwner.h.
#include "customers/DataOwner.h"

#include "base/LossQuestion.h"

#include <QDir>
#include <QFileInfo>

using namespace Qt::Literals::StringLiterals;

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
    return !values.databasePath.isEmpty() &&
           QFileInfo(QFileInfo(values.databasePath).path()).canonicalFilePath() !=
               QFileInfo(values.customerPath).canonicalFilePath();
}

QString ofChosenCustomer(const ApplicationValues& values)
{
    return isDataOfAnother(values) ? u" of "_s + values.customerName : QString();
}

bool mayUseOpenData(const ApplicationValues& values, Boxes& boxes, const QString& consequence)
{
    const QString owner = ownerOfData(values).customerName;
    const QString& chosen = values.customerName;
    return !isDataOfAnother(values) ||
           askBeforeLoss(boxes,
                         u"The open database is that of %1, but the customer chosen is %2.\r\r%3\r\r"
                         u"To work on the database of %2, answer No, end the program and choose %2 when "
                         u"it starts again.\r\rGo on all the same?"_s.arg(owner, chosen,
                                                                          consequence.arg(owner, chosen)));
}

} // namespace norvane::customers
