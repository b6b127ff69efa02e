// Copies of a customer from before each work that could spoil its data, and the way back to one.
#pragma once

#include "base/ApplicationValues.h"
#include "platform/Boxes.h"
#include "store/catalogue/DatabaseCopy.h"

#include <QDateTime>
#include <QList>
#include <QString>

namespace norvane::customers
{

/// A folder in "copies" of the customer's folder: its database, its settings and the register files kept
/// there.
struct SafetyCopy {
    QString name; ///< of the folder: "2026-11-25 18.30.12 before upload"
    QString path;
    QDateTime made;
    QString reason; ///< "before upload"
};

/// Copies the customer of the folder @p customerPath. The last ten copies and those of the last seven days
/// are kept; older ones are removed.
/// @throws RuntimeFailure with Failure::DiskFull on a full disk, Failure::PathOrFileAccess, and what the
/// database reports; no part of a copy is left.
SafetyCopy makeSafetyCopy(const QString& customerPath, const QString& reason, store::CopyOf what,
                          const QDateTime& now = QDateTime::currentDateTime());

/// The latest first.
[[nodiscard]] QList<SafetyCopy> safetyCopies(const QString& customerPath);

/// Whether it restores sales, too. @throws RuntimeFailure with Failure::FileNotFound, Failure::NotOurDatabase
/// for a copy without a sound database.
[[nodiscard]] bool holdsSales(const SafetyCopy& copy);

/// Whether the customer's database is missing, damaged or not a database any more, so that a restore renames
/// it.
/// @throws RuntimeFailure with Failure::DatabaseLocked, Failure::PathOrFileAccess if that cannot be
/// determined.
[[nodiscard]] bool needsNewDatabase(const QString& customerPath);

/// Restores tables, settings and register files from the copy, after copying their current state. Sales are
/// restored only from a copy that has them. Files that the copy does not have are kept, and so are the notes
/// about the registers. The database is restored completely or not at all; the files follow it. A damaged
/// database is kept beside a new one, which receives the sales that can still be read.
/// @return what the user must know about a damaged database; empty if there was none.
/// @throws RuntimeFailure as makeSafetyCopy(), and with Failure::NotOurDatabase for a damaged copy, before
/// anything was changed.
QString restoreSafetyCopy(const QString& customerPath, const SafetyCopy& copy);

/// Copies the customers that a job is about to change: the one whose database is in use and, if different,
/// the one whose folder receives the register files.
/// @return why no copy could be made, in words for the user; empty on success. Without a copy the job must
/// not start.
[[nodiscard]] QString refusalOfCopy(const ApplicationValues& values, const QString& reason,
                                    store::CopyOf what = store::CopyOf::Programme);

/// The same; shows the refusal. @return whether the copy was made.
[[nodiscard]] bool copyBeforeJob(const ApplicationValues& values, Boxes& boxes, const QString& reason,
                                 store::CopyOf what = store::CopyOf::Programme);

} // namespace norvane::customers
