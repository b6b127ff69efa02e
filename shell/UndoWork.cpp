// See UndoWork.h.
#include "shell/UndoWork.h"

#include "customers/CustomerLog.h"
#include "customers/RunLock.h"

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

QString numbers(int count)
{
    return count == 1 ? u"1 number"_s : u"%1 numbers"_s.arg(count);
}

/// The texts of the question and of the refusal.
class UndoTexts
{
public:
    UndoTexts(const store::FinishedWork& work, store::Database& database, const UndoNames& names)
        : m_work(work), m_database(database), m_names(names)
    {
    }

    [[nodiscard]] QString question(std::size_t changedSince) const
    {
        return u"Undo \"%1\" of %2?\r\r%3"_s.arg(m_work.name, time(), explanation(changedSince));
    }

    [[nodiscard]] QString refusal() const
    {
        const std::size_t count = m_work.changes.count();
        return u"\"%1\" of %2 cannot be undone: %3 %4 changed again since, in another window, by an upload "
               "or by another program."_s.arg(m_work.name, time(), changedRows(count),
                                              count == 1 ? u"was"_s : u"were"_s);
    }

private:
    [[nodiscard]] QString time() const { return m_work.ended.toString(u"hh:mm"_s); }

    [[nodiscard]] QString lineOf(const store::FieldDifference& difference) const
    {
        const QString record = m_names.record(difference.table, difference.record);
        const int unset = difference.unset;
        if (unset > 0) {
            return u"%1: %2 %3 empty again, which screens show as 0"_s.arg(
                record, numbers(unset), unset == 1 ? u"becomes"_s : u"become"_s);
        }
        if (difference.field.isEmpty())
            return (difference.now.isEmpty() ? u"%1 is added again"_s : u"%1 is deleted again"_s).arg(record);
        const auto shown = [&](const QString& value) {
            return value.isEmpty() ? u"empty"_s : m_names.value(difference.table, difference.field, value);
        };
        return u"%1, %2: %3 becomes %4"_s.arg(record, m_names.field(difference.table, difference.field),
                                              shown(difference.now), shown(difference.then));
    }

    /// "PLU 1001, PLU 1002 and 3 more".
    [[nodiscard]] QString changedRows(std::size_t count) const
    {
        QStringList named;
        for (const auto& [table, key] : m_work.changes.rowsChangedSince(m_database, mostNamed))
            named << m_names.record(table, key);
        const auto more = count - static_cast<std::size_t>(named.size());
        return named.join(u", "_s) + (more > 0 ? u" and %1 more"_s.arg(more) : QString());
    }

    /// What the undo would do.
    [[nodiscard]] QString explanation(std::size_t changedSince) const
    {
        auto differences = m_work.changes.differences(m_database, mostShown + 1);
        const bool isCut = differences.size() > mostShown;
        differences.resize(std::min(differences.size(), mostShown));
        QStringList lines;
        for (const auto& difference : differences)
            lines << lineOf(difference);
        if (isCut)
            lines << u"... %1 in all"_s.arg(records(m_work.changes.count() - changedSince));
        if (changedSince > 0) {
            lines << changedRows(changedSince) + (changedSince == 1
                                                      ? u" was changed since and remains as it is"_s
                                                      : u" were changed since and remain as they are"_s);
        }
        return lines.join(u'\r');
    }

    const store::FinishedWork& m_work;
    store::Database& m_database;
    const UndoNames& m_names;
};

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

QString undoLatestWork(const ApplicationValues& values, Boxes& boxes, store::WorkHistory& history,
                       const UndoNames& names)
{
    const store::FinishedWork* const latest = history.latest(values.databasePath);
    if (latest == nullptr)
        return u"There is nothing to undo"_s;
    store::Database database(values.databasePath);
    const store::FinishedWork work = *latest;
    const UndoTexts texts(work, database, names);
    const std::size_t changedSince = work.changes.changedSince(database);
    if (changedSince == work.changes.count()) {
        history.removeLatest(values.databasePath);
        boxes.message(texts.refusal(), title, BoxIcon::Exclamation);
        return u"Not undone: "_s + work.name;
    }
    if (!boxes.ask(texts.question(changedSince), title, BoxIcon::Question, BoxAnswer::No))
        return {};
    const auto restored = takeBack(work, database, values, boxes);
    if (!restored)
        return u"Not undone: "_s + work.name;
    history.removeLatest(values.databasePath);
    return u"Undone: %1, %2"_s.arg(work.name, records(*restored));
}

} // namespace norvane::shell
