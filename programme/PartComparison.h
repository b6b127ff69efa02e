// What copying parts of a programme would change at another shop.
#pragma once

#include "platform/KeepGoing.h"
#include "programme/PartWalk.h"

#include <QByteArray>
#include <QCryptographicHash>
#include <QList>
#include <QString>

#include <functional>

namespace norvane::programme
{

/// Records that copying stores or removes.
struct ChangeCounts {
    qint64 added = 0;
    qint64 changed = 0;
    qint64 gone = 0;

    [[nodiscard]] qint64 all() const { return added + changed + gone; }
    /// "2 new, 1 changed, 0 gone"
    [[nodiscard]] QString inWords() const;
};

/// A line of a list of changes: a field, or "new record" or "removed record" with the text of the record.
struct ChangeLine {
    QString what;
    QString before;
    QString after;
};

/// Calls @p take with each line of what is copied of @p change.
void forEachLine(const RecordChange& change, const std::function<void(const ChangeLine& line)>& take);

/// Something that is not copied: a table, a record or a field of some records.
struct LeftOut {
    QString table;
    QString record; ///< the first of them; empty for the whole table
    QString field;  ///< empty for the whole record
    qint64 records = 0;
    QString reason;

    /// "LOGOMESSAGE, record 1, PREAMBLE2: The printer of this shop ..."
    [[nodiscard]] QString inWords() const;
};

/// Changes counted and sealed, one after the other, so that two rounds can be compared without keeping
/// either.
class ChangeSum
{
public:
    void add(const RecordChange& change);
    [[nodiscard]] const ChangeCounts& counts() const { return m_counts; }
    [[nodiscard]] QByteArray digest() const { return m_hash.result(); }

private:
    ChangeCounts m_counts;
    QCryptographicHash m_hash{QCryptographicHash::Sha1};
};

/// Two shops compared. Nothing is kept of the single changes: listing them reads both databases again.
class PartComparison
{
public:
    /// @throws RuntimeFailure as PartWalk, and with Failure::UserInterrupt when @p keepGoing returns false.
    PartComparison(const ShopData& from, const ShopData& to, ChosenParts parts,
                   const KeepGoing& keepGoing = {});

    [[nodiscard]] const ChangeCounts& counts() const { return m_counts; }
    [[nodiscard]] const QList<LeftOut>& leftOut() const { return m_leftOut; }
    /// Calls @p take with each change that copying makes, table by table and by key, until it returns false.
    /// @throws RuntimeFailure as the constructor does
    void forEach(const std::function<bool(const RecordChange& change)>& take,
                 const KeepGoing& keepGoing = {}) const;

private:
    friend class PartCopy;
    void leaveOut(const RecordChange& change);
    void leaveOut(const LeftOut& what);

    ShopData m_from;
    ShopData m_to;
    ChosenParts m_parts; ///< without the tables that are left out
    ChangeCounts m_counts;
    QByteArray m_digest;
    QList<LeftOut> m_leftOut;
};

} // namespace norvane::programme
