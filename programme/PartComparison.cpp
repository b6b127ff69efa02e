// See PartComparison.h.
#include "programme/PartComparison.h"

#include "programme/PartRules.h"

#include <algorithm>
#include <utility>

using namespace Qt::Literals::StringLiterals;

namespace norvane::programme
{
namespace
{

/// Why nothing of the table can be copied; empty if something can.
QString reasonAgainst(const QString& table, const ShopData& from, const ShopData& to)
{
    if (!from.database.hasTable(table) || !to.database.hasTable(table))
        return u"The database of one of the two shops does not have this table."_s;
    return refusalOfTable(table, from.model, to.model);
}

} // namespace

QString ChangeCounts::inWords() const
{
    return u"%1 new, %2 changed, %3 gone"_s.arg(added).arg(changed).arg(gone);
}

QString LeftOut::inWords() const
{
    QString words = table;
    if (records == 1)
        words += u", record %1"_s.arg(record);
    if (records > 1)
        words += u", %1 records"_s.arg(records);
    if (!field.isEmpty())
        words += u", "_s + field;
    return words + u": "_s + reason;
}

void ChangeSum::add(const RecordChange& change)
{
    if (!change.isCopied())
        return;
    (change.kind == ChangeKind::New    ? m_counts.added
     : change.kind == ChangeKind::Gone ? m_counts.gone
                                       : m_counts.changed) += 1;
    const auto add = [this](const QString& text) {
        m_hash.addData(text.toUtf8());
        m_hash.addData(QByteArrayView("", 1));
    };
    add(change.table);
    add(change.record);
    add(QString::number(static_cast<int>(change.kind)) + change.text);
    for (const FieldChange& field : change.fields) {
        add(field.field);
        add(field.before);
        add(field.after);
    }
}

PartComparison::PartComparison(const ShopData& from, const ShopData& to, ChosenParts parts,
                               const KeepGoing& keepGoing)
    : m_from(from), m_to(to), m_parts(std::move(parts))
{
    m_parts.tables.removeIf([&](const QString& table) {
        const QString reason = reasonAgainst(table, from, to);
        if (!reason.isEmpty())
            leaveOut(LeftOut{table, {}, {}, 0, reason});
        return !reason.isEmpty();
    });
    ChangeSum sum;
    for (const QString& table : std::as_const(m_parts.tables)) {
        PartWalk walk(m_from, m_to, table, m_parts);
        while (walk.next(keepGoing)) {
            sum.add(walk.change());
            leaveOut(walk.change());
        }
    }
    m_counts = sum.counts();
    m_digest = sum.digest();
}

void PartComparison::leaveOut(const RecordChange& change)
{
    if (!change.refusal.isEmpty())
        return leaveOut(LeftOut{change.table, change.record, {}, 1, change.refusal});
    for (const FieldChange& field : change.fields) {
        if (!field.refusal.isEmpty())
            leaveOut(LeftOut{change.table, change.record, field.field, 1, field.refusal});
    }
}

/// The same field of a hundred records is one thing.
void PartComparison::leaveOut(const LeftOut& what)
{
    const auto known = std::ranges::find_if(m_leftOut, [&](const LeftOut& other) {
        return other.table == what.table && other.field == what.field && other.reason == what.reason;
    });
    if (known == m_leftOut.end()) {
        m_leftOut << what;
    } else {
        known->records += what.records;
    }
}

void PartComparison::forEach(const std::function<bool(const RecordChange& change)>& take,
                             const KeepGoing& keepGoing) const
{
    for (const QString& table : m_parts.tables) {
        PartWalk walk(m_from, m_to, table, m_parts);
        while (walk.next(keepGoing)) {
            if (walk.change().isCopied() && !take(walk.change()))
                return;
        }
    }
}

void forEachLine(const RecordChange& change, const std::function<void(const ChangeLine& line)>& take)
{
    if (change.kind == ChangeKind::New)
        return take({u"new record"_s, {}, change.text});
    if (change.kind == ChangeKind::Gone)
        return take({u"removed record"_s, change.text, {}});
    for (const FieldChange& field : change.fields) {
        if (field.refusal.isEmpty())
            take({field.field, field.before, field.after});
    }
}

} // namespace norvane::programme
