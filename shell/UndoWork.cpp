// See UndoWork.h.
#include "shell/UndoWork.h"

#include "customers/CustomerLog.h"
#include "customers/RunLock.h"
#include "platform/Excerpt.h"

#include <QFileInfo>

using namespace Qt::Literals::StringLiterals;

namespace norvane::shell
{
namespace
{

constexpr auto title = "Undo"_L1;
constexpr std::size_t mostShown = 10;
constexpr std::size_t mostNamed = 3;

QString records(std::size_t count)
{
    return count == 1 ? u"1 record"_s : u"%1 records"_s.arg(count);
}

QString lineOf(const store::FieldDifference& difference)
{
    const auto& [table, record, field, now, then, wereUnset] = difference;
    const QString place = u"%1 %2"_s.arg(table, record).trimmed();
    if (wereUnset)
        return u"%1, unset again, which screens show as 0: %2"_s.arg(place, excerpt(field));
    if (field.isEmpty())
        return (now.isEmpty() ? u"%1 is added again"_s : u"%1 is deleted"_s).arg(place);
    return u"%1, %2: %3 becomes %4"_s.arg(place, field, now.isEmpty() ? u"empty"_s : now,
                                          then.isEmpty() ? u"empty"_s : then);
}

/// "PLUDATA 1001, PLUDATA 1002 and 3 more".
QString changedRows(const store::RowChanges& changes, store::Database& database, std::size_t count)
{
    const QStringList names = changes.rowsChangedSince(database, mostNamed);
    const auto more = count - static_cast<std::size_t>(names.size());
    return names.join(u", "_s) + (more > 0 ? u" and %1 more"_s.arg(more) : QString());
}

/// What the undo would do, for the question.
QString explanation(const store::RowChanges& changes, store::Database& database, std::size_t changedSince)
{
    auto differences = changes.differences(database, mostShown + 1);
    const bool isCut = differences.size() > mostShown;
    differences.resize(std::min(differences.size(), mostShown));
    QStringList lines;
    for (const auto& difference : differences)
        lines << lineOf(difference);
    if (isCut)
        lines << u"... %1 in all"_s.arg(records(changes.count() - changedSince));
    if (changedSince > 0) {
        lines << changedRows(changes, database, changedSince) +
                     (changedSince == 1 ? u" was changed since and remains as it is"_s
                                        : u" were changed since and remain as they are"_s);
    }
    return lines.join(u'\r');
}

QString refuse(const store::FinishedWork& work, store::Database& database, Boxes& boxes)
{
    const std::size_t count = work.changes.count();
    boxes.message(
        u"\"%1\" of %2 cannot be undone: %3 %4 changed again since, in another window, by an upload "
        "or by another program."_s.arg(work.name, work.ended.toString(u"hh:mm"_s),
                                       changedRows(work.changes, database, count),
                                       count == 1 ? u"was"_s : u"were"_s),
        title, BoxIcon::Exclamation);
    return u"Not undone: "_s + work.name;
}

/// @return how many records were restored; nothing while another run works with the customer.
std::optional<std::size_t> takeBack(const store::FinishedWork& work, store::Database& database,
                                    const ApplicationValues& values, Boxes& boxes)
{
    const auto lock = customers::RunLock::take(values, boxes);
    if (lock == nullptr)
        return std::nullopt;
    customers::LoggedWork logged(QFileInfo(work.databasePath).path(), u"undo: "_s + work.name);
    const std::size_t restored = logged.during([&] { return work.changes.takeBack(database); });
    logged.setResult(u"complete, "_s + records(restored));
    return restored;
}

} // namespace

QString undoLatestWork(const ApplicationValues& values, Boxes& boxes, store::WorkHistory& history)
{
    const store::FinishedWork* const latest = history.latest(values.databasePath);
    if (latest == nullptr)
        return u"There is nothing to undo"_s;
    store::Database database(values.databasePath);
    const store::FinishedWork work = *latest;
    const std::size_t changedSince = work.changes.changedSince(database);
    if (changedSince == work.changes.count()) {
        history.removeLatest(values.databasePath);
        return refuse(work, database, boxes);
    }
    const QString question = u"Undo \"%1\" of %2?\r\r%3"_s.arg(
        work.name, work.ended.toString(u"hh:mm"_s), explanation(work.changes, database, changedSince));
    if (!boxes.ask(question, title, BoxIcon::Question, BoxAnswer::No))
        return {};
    const auto restored = takeBack(work, database, values, boxes);
    if (!restored)
        return u"Not undone: "_s + work.name;
    history.removeLatest(values.databasePath);
    return u"Undone: %1, %2"_s.arg(work.name, records(*restored));
}

} // namespace norvane::shell
