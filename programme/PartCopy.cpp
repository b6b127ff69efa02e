// See PartCopy.h.
#include "programme/PartCopy.h"

#include "customers/CustomerLog.h"
#include "customers/SafetyCopies.h"
#include "platform/FailurePlace.h"
#include "platform/RuntimeFailure.h"
#include "store/engine/AllOrNothing.h"

using namespace Qt::Literals::StringLiterals;

namespace norvane::programme
{
namespace
{

using store::FieldType;
using store::Value;

[[noreturn]] void failChanged()
{
    throw RuntimeFailure(
        Failure::RecordDeleted,
        u"One of the two programmes was changed after they were compared. Nothing was copied; please start again."_s);
}

/// Stores changes of one table.
class PartWriter
{
public:
    PartWriter(store::Database& database, const QString& table) : m_rows(database.openTable(table)) {}

    void store(const PartWalk& walk)
    {
        if (walk.change().kind == ChangeKind::New) {
            m_rows.addNew();
            fillEmpty();
            return storeFields(walk);
        }
        if (!m_rows.seek(store::Seek::Equal, walk.targetKey()))
            failChanged();
        if (walk.change().kind == ChangeKind::Gone)
            return m_rows.deleteRecord();
        m_rows.edit();
        storeFields(walk);
    }

private:
    void storeFields(const PartWalk& walk)
    {
        walk.forEachCopiedField(
            [this](const QString& field, const Value& value) { m_rows.setValue(field, value); });
        fillRequired();
        m_rows.update();
    }

    static bool isNumber(FieldType type) { return type == FieldType::Long || type == FieldType::YesNo; }

    /// Screens cannot show a record whose number fields were never set.
    void fillEmpty()
    {
        for (int field = 0; field < m_rows.fieldCount(); ++field) {
            if (isNumber(m_rows.field(field).type))
                m_rows.setValue(field, Value::whole(0));
        }
    }

    /// A field that an upgrade has added is empty in the records from before.
    void fillRequired()
    {
        for (int field = 0; field < m_rows.fieldCount(); ++field) {
            const auto& definition = m_rows.field(field);
            const bool isText = definition.type == FieldType::Text;
            if (definition.required && m_rows.value(field).isNull())
                m_rows.setValue(field, isText ? Value::text(QString()) : Value::whole(0));
        }
    }

    store::Recordset m_rows;
};

} // namespace

/// Reads what PartComparison keeps for itself.
class PartCopy
{
public:
    static void run(const PartComparison& comparison, const KeepGoing& keepGoing)
    {
        ChangeSum sum;
        for (const QString& table : comparison.m_parts.tables) {
            PartWalk walk(comparison.m_from, comparison.m_to, table, comparison.m_parts);
            PartWriter writer(comparison.m_to.database, table);
            while (walk.next(keepGoing)) {
                sum.add(walk.change());
                if (walk.change().isCopied())
                    writer.store(walk);
            }
        }
        if (sum.digest() != comparison.m_digest)
            failChanged();
    }
    static store::Database& target(const PartComparison& comparison) { return comparison.m_to.database; }
};

namespace
{

void copyShop(const QString& customerPath)
{
    const auto explain = [](const QString& text) {
        return u"No safety copy could be made, so nothing was copied. %1"_s.arg(text);
    };
    atPlace(explain, [&] {
        customers::makeSafetyCopy(customerPath, u"before programme copy"_s, store::CopyOf::Programme);
    });
}

} // namespace

void applyParts(const PartComparison& comparison, const KeepGoing& keepGoing)
{
    store::allOrNothing(PartCopy::target(comparison), [&] { PartCopy::run(comparison, keepGoing); });
}

void applyParts(const std::vector<PartComparison>& comparisons, const KeepGoing& keepGoing)
{
    if (comparisons.empty())
        return;
    store::allOrNothing(PartCopy::target(comparisons.front()), [&] {
        for (const PartComparison& comparison : comparisons)
            PartCopy::run(comparison, keepGoing);
    });
}

QString copyParts(const PartComparison& comparison, const QString& from, const ApplicationValues& target,
                  const KeepGoing& keepGoing)
{
    customers::LoggedWork work(target.customerPath, u"programme copy from %1"_s.arg(from));
    work.during([&] {
        if (comparison.counts().all() == 0)
            return;
        copyShop(target.customerPath);
        applyParts(comparison, keepGoing);
    });
    QString result = comparison.counts().inWords();
    work.setResult(comparison.leftOut().isEmpty() ? result : result + u", some left out"_s);
    return result;
}

} // namespace norvane::programme
