// See TableSave.h.
#include "screens/table/TableSave.h"

#include "base/LossQuestion.h"
#include "customers/CustomerLog.h"
#include "customers/DataOwner.h"
#include "customers/RunLock.h"
#include "customers/SafetyCopies.h"
#include "platform/RuntimeFailure.h"
#include "register/PluNumber.h"
#include "screens/SaveNotices.h"
#include "screens/table/TableStore.h"
#include "store/engine/ShortWait.h"
#include "store/engine/WorkHistory.h"

using namespace Qt::Literals::StringLiterals;

namespace norvane::screens
{
namespace
{

/// Lines that a box shows at most.
constexpr std::size_t mostLines = 12;

/// One press of the button.
class Save
{
public:
    Save(store::Database& database, const TableInUse& table, PendingEdits& edits, Boxes& boxes)
        : m_database(database), m_table(table), m_owner(customers::ownerOfData(table.values)), m_edits(edits),
          m_boxes(boxes)
    {
    }

    QString run()
    {
        if (!mayGoOn())
            return keptNotice();
        if (m_edits.isEmpty())
            return u"Nothing was stored: the records were deleted"_s;
        const auto lock = customers::RunLock::take(m_owner, m_boxes);
        if (lock == nullptr)
            return keptNotice();
        const QString amount = amountOf(m_edits.all());
        if (!store(amount))
            return u"Nothing was stored: there is no safety copy"_s;
        m_edits.clear();
        return u"Saved %1. Ctrl+Z undoes it"_s.arg(amount);
    }

private:
    /// After a box that has said why.
    static QString keptNotice() { return u"Nothing was stored. Your changes are still in the list"_s; }

    bool store(const QString& amount)
    {
        customers::LoggedWork work(m_owner.customerPath, u"Table %1, %2"_s.arg(m_table.caption, amount));
        const bool isCopied = customers::copyBeforeJob(m_owner, m_boxes, u"before table change"_s);
        work.setResult(u"no safety copy"_s);
        if (!isCopied)
            return false;
        store::RecordedWork recorded(m_table.history, m_database, m_table.values.databasePath,
                                     {m_table.source.table});
        recorded.setName(u"%1: %2 saved"_s.arg(m_table.caption, amount));
        work.during([this] { storeEdits(m_database, m_table.source, m_edits.all()); });
        work.setResult(QString(customers::completeResult));
        return true;
    }

    /// What the user agrees to overwrite counts as seen.
    bool mayGoOn()
    {
        if (areFresh(m_database, m_table.source, m_edits.all()))
            return true;
        FreshEdits fresh = freshEdits(m_database, m_table.source, m_edits.all());
        if (!fresh.conflicts.empty() && !askBeforeLoss(m_boxes, questionOf(fresh.conflicts)))
            return false;
        m_edits.set(std::move(fresh.edits));
        return true;
    }

    [[nodiscard]] QString questionOf(const std::vector<EditConflict>& conflicts) const
    {
        QStringList lines;
        for (std::size_t place = 0; place < conflicts.size() && place < mostLines; ++place)
            lines += lineOf(conflicts[place]);
        if (conflicts.size() > mostLines)
            lines += u"and %1 more"_s.arg(conflicts.size() - mostLines);
        return u"Others have changed records since you saw them:\r\r%1\r\rStore your values?"_s.arg(
            lines.join(u'\r'));
    }

    [[nodiscard]] QString nameOf(const std::string& key) const
    {
        return m_table.recordName + u' ' + shownKey(m_table.source.keyField, QString::fromStdString(key));
    }

    [[nodiscard]] QString lineOf(const EditConflict& conflict) const
    {
        const QString record = nameOf(conflict.edit.key);
        if (conflict.kind == EditConflict::Kind::Deleted)
            return u"%1 was deleted; its change is dropped"_s.arg(record);
        if (conflict.kind == EditConflict::Kind::Renumbered)
            return u"%1 is now %2"_s.arg(record, nameOf(conflict.now.toUtf8()));
        const TableColumn& column = m_table.source.columns.at(conflict.edit.column);
        return u"%1, %2: was %3, is %4, yours is %5"_s.arg(
            record, column.label, quoted(column, conflict.edit.before), quoted(column, conflict.now),
            quoted(column, conflict.edit.after));
    }

    static QString quoted(const TableColumn& column, const store::Value& value)
    {
        const QString text = column.text(value);
        if (column.kind() == ControlKind::Check)
            return text.isEmpty() ? u"No"_s : text;
        return text.isEmpty() ? u"empty"_s : text;
    }

    store::Database& m_database;
    const TableInUse& m_table;
    ApplicationValues m_owner;
    PendingEdits& m_edits;
    Boxes& m_boxes;
};

} // namespace

QString saveEdits(store::Database& database, const TableInUse& table, PendingEdits& edits, Boxes& boxes)
{
    const store::ShortWait wait(database);
    try {
        return Save(database, table, edits, boxes).run();
    } catch (const RuntimeFailure& failure) {
        return nothingStored(failure);
    }
}

} // namespace norvane::screens
