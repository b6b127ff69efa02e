// Copies of whole customers in a folder elsewhere, as on another disk: one compressed file for each.
#pragma once

#include <QDateTime>
#include <QList>
#include <QString>

#include <functional>

namespace norvane::customers
{

/// A file "2026-11-26 23.31.05.zip" in the folder of its customer: DIR/SHOP.
struct CopyElsewhere {
    QString path;
    QDateTime made;
};

/// The copies of a customer in @p folder, the latest first. Other files there are left out.
[[nodiscard]] QList<CopyElsewhere> copiesElsewhere(const QString& folder, const QString& customer);

/// How many copies are kept: the latest of each of the last days, weeks (from Monday) and months that have
/// one.
struct CopyRule {
    int days = 7;
    int weeks = 4;
    int months = 12;
};
/// Those of @p copies, the latest first, that the rule does not keep.
[[nodiscard]] QList<CopyElsewhere> surplusCopies(const QList<CopyElsewhere>& copies,
                                                 const CopyRule& rule = {});

/// Called often during long work; may throw to end it.
using GoOn = std::function<void()>;

/// Copies the customer of the folder @p customerPath to @p folder, with programme, sales, settings, kept
/// register files, overlay documents, planned changes and log; the safety copies and what the program has
/// noted about the registers are left out. The database is copied as of one moment. The file gets its name
/// when it was written to the disk and read back; only then are the copies removed that @p rule does not
/// keep. The caller holds the lock of the folder.
/// @throws RuntimeFailure with Failure::DiskFull, Failure::PathOrFileAccess, Failure::NotOurDatabase for a
/// damaged database; nothing is left then. A target in the customer's own folder is refused, too.
CopyElsewhere makeCopyElsewhere(const QString& customerPath, const QString& folder, const QDateTime& now,
                                const GoOn& goOn, const CopyRule& rule = {});

/// Reads a copy to its end and checks its database. @p scratch is a folder for the unpacked database.
/// @return what is wrong; empty when it is sound.
[[nodiscard]] QString faultOfCopy(const QString& path, const QString& scratch, const GoOn& goOn);

/// Restores the customer of the folder @p customerPath from the copy at @p path. A customer that does not
/// exist is made completely or not at all. Of one that exists, tables, settings and register files are
/// restored as restoreSafetyCopy() does, after a safety copy; documents that differ are kept in that safety
/// copy. Planned changes, the log and the shop's identity in a chain of an existing customer are never
/// replaced.
/// @return what the user must know about a damaged database. @throws RuntimeFailure as restoreSafetyCopy().
QString restoreCopyElsewhere(const QString& path, const QString& customerPath, const GoOn& goOn);

} // namespace norvane::customers
