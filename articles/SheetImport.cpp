// See SheetImport.h.
#include "articles/SheetImport.h"

#include "articles/PlannedChanges.h"
#include "articles/SheetUpdate.h"
#include "customers/CustomerLog.h"
#include "customers/SafetyCopies.h"
#include "store/engine/WorkHistory.h"

using namespace Qt::Literals::StringLiterals;

namespace norvane::articles
{
namespace
{

/// @return whether a safety copy was made, without which nothing is stored.
bool storeChanges(const ImportPlace& place, ComparedSheet& file, const KeepGoing& keepGoing)
{
    const SheetComparison& comparison = file.comparison();
    const bool changesNothing = comparison.changeCount() == 0 || !comparison.mistakes().isEmpty();
    if (changesNothing)
        return true;
    if (!customers::copyBeforeJob(place.values, place.boxes, u"before %1 import"_s.arg(place.sheet.name)))
        return false;
    store::RecordedWork recorded(place.history, file.database(), place.values.databasePath,
                                 {place.sheet.table});
    recorded.setName(u"%1 import: %2"_s.arg(place.sheet.name, changesInWords(comparison)));
    applySheetChanges(file.database(), comparison, keepGoing);
    return true;
}

/// @return the number of the list, or 0 if there was nothing to plan.
int planChanges(const ImportPlace& place, const SheetComparison& comparison, const ImportPlan& plan)
{
    if (comparison.changeCount() == 0 || !comparison.mistakes().isEmpty())
        return 0;
    return addPlannedList(place.values.customerPath,
                          plannedListFrom(comparison, plan.day, plan.model, plan.source));
}

} // namespace

QString changesInWords(const SheetComparison& comparison)
{
    return u"%1 changed, %2 new"_s.arg(comparison.changeCount() - comparison.newCount())
        .arg(comparison.newCount());
}

std::optional<QString> importSheet(const ImportPlace& place, const ImportSteps& steps,
                                   const KeepGoing& keepGoing)
{
    customers::LoggedWork work(place.values.customerPath, u"%1 import"_s.arg(place.sheet.name));
    return work.during([&]() -> std::optional<QString> {
        ComparedSheet& file = steps.compare();
        if (!file.comparison().mistakes().isEmpty())
            work.setResult(u"refused: the file has mistakes"_s);
        steps.review(file.comparison());
        if (!storeChanges(place, file, keepGoing)) {
            work.setResult(u"not started: no safety copy"_s);
            return std::nullopt;
        }
        const QString result = changesInWords(file.comparison());
        work.setResult(result);
        return result;
    });
}

QString planSheet(const ImportPlace& place, const ImportSteps& steps, const ImportPlan& plan)
{
    customers::LoggedWork work(place.values.customerPath, u"planning of %1 import"_s.arg(place.sheet.name));
    QString result = work.during([&] {
        const SheetComparison& comparison = steps.compare().comparison();
        if (!comparison.mistakes().isEmpty())
            work.setResult(u"refused: the file has mistakes"_s);
        steps.review(comparison);
        const QString day = plan.day.toString(Qt::ISODate);
        const int number = planChanges(place, comparison, plan);
        return number == 0
                   ? u"nothing for %1: the file changes nothing"_s.arg(day)
                   : u"list %1 for %2: %3"_s.arg(QString::number(number), day, changesInWords(comparison));
    });
    work.setResult(result);
    return result;
}

} // namespace norvane::articles
