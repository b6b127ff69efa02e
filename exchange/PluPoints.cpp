// See PluPoints.h.
#include "exchange/PluPoints.h"

#include "base/LossQuestion.h"
#include "customers/DataOwner.h"
#include "link/RunNotes.h"
#include "store/engine/Database.h"
#include "store/engine/Recordset.h"

#include <QScopeGuard>

using namespace Qt::Literals::StringLiterals;

namespace norvane::exchange
{
namespace
{

constexpr auto pointsSection = "Exchange"_L1;
constexpr auto pointsKey = "PLUPointsWait"_L1;
constexpr auto waitWord = "1"_L1;
constexpr auto fetchedWord = "0"_L1;

QString pointsQuestion()
{
    return u"The PLUs were uploaded, but the upload of their points did not follow. The points would go to "
           u"the registers as they are here, and those that the registers hold would be lost.\r\r"
           u"To keep them, answer No and upload Smartcard PLU Points first.\r\rSend all the same?"_s;
}

qint64 recordCount(store::Database& database, const QString& query)
{
    return database.openQuery(query).recordCount();
}

PluPoints notedPluPoints(const ApplicationValues& values)
{
    const QString word = link::readNote(customers::ownerOfData(values), pointsSection, pointsKey);
    if (word.isEmpty())
        return PluPoints::Unknown;
    return word == fetchedWord ? PluPoints::Fetched : PluPoints::Wait;
}

} // namespace

void notePluPoints(const ApplicationValues& values, PluPoints points)
{
    if (points == notedPluPoints(values))
        return;
    const QString word = points == PluPoints::Wait ? QString(waitWord) : QString(fetchedWord);
    link::writeNote(customers::ownerOfData(values), pointsSection, pointsKey,
                    points == PluPoints::Unknown ? QString() : word);
}

/// A fetch of the PLUs leaves their points empty. So they are in a PLU that was added by hand, but then not
/// in all.
bool pluPointsWait(const ApplicationValues& values)
{
    const PluPoints noted = notedPluPoints(values);
    if (noted == PluPoints::Unknown)
        return false;
    store::Database database(values.databasePath);
    const qint64 without = recordCount(database, u"select POINT1 from PLUDATA where POINT1 is null"_s);
    return without > 0 &&
           (noted == PluPoints::Wait || without == recordCount(database, u"select POINT1 from PLUDATA"_s));
}

bool mayLosePoints(Boxes& boxes)
{
    return askBeforeLoss(boxes, pointsQuestion(), "overwrite-points"_L1);
}

/// Noted ahead of the commit, so that a program that is killed between the two asks once too often rather
/// than never.
void storePlusWithoutPoints(const ApplicationValues& values, const std::function<void()>& commit)
{
    const PluPoints before = notedPluPoints(values);
    notePluPoints(values, PluPoints::Wait);
    auto notStored = qScopeGuard([&] { notePluPoints(values, before); });
    commit();
    notStored.dismiss();
}

} // namespace norvane::exchange
