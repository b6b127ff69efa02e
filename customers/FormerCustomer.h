// Converts the database of a customer of the former program.
#pragma once

#include "former/Conversion.h"

#include <functional>

namespace norvane::customers
{

/// Who watches a conversion, and decides about it.
struct ConversionWatch {
    /// Called while the former database is examined. @return false to cancel.
    KeepGoing keepGoing;
    /// Asked once it is known what the database holds. @return false to leave it as it is.
    std::function<bool(const former::Examination& found)> accepts;
    /// Called with the number of records stored so far, and of all. @return false to cancel.
    std::function<bool(qint64 stored, qint64 all)> progress;
};

/// Converts the database in the folder @p customerPath in place (former/Conversion.h), and logs it. The
/// caller holds the folder's lock (platform/FolderLock.h).
/// @param programFolder holds norvane-former.
/// @throws FormerError, with FormerProblem::Cancelled also for a conversion that was not accepted;
/// RuntimeFailure when the new database cannot be stored. The folder is then as it was.
former::Converted convertCustomer(const QString& customerPath, const QString& programFolder,
                                  const ConversionWatch& watch);

} // namespace norvane::customers
