// Takes over a customer whose database was made by the former program.
#pragma once

#include "former/Conversion.h"
#include "platform/Boxes.h"

#include <functional>

namespace norvane::customers
{

/// Who watches a conversion, and decides about it.
struct ConversionWatch {
    /// Called while the former database is looked through. @return false to cancel.
    KeepGoing keepGoing;
    /// Asked once it is known what the database holds. @return false to leave it as it is.
    std::function<bool(const former::Examination& found)> accepts;
    /// Called with the records stored and all that there are. @return false to cancel.
    std::function<bool(qint64 stored, qint64 all)> progress;
};

/// Converts the database in the folder @p customerPath in place (former/Conversion.h), and logs it. The
/// folder is locked meanwhile.
/// @param programFolder holds norvane-former.
/// @throws FormerError, with FormerProblem::Cancelled also for a conversion that was not accepted and for a
/// folder that is locked, of which a box told; RuntimeFailure when the new database cannot be stored. The
/// folder is then as it was.
former::Converted convertCustomer(const QString& customerPath, const QString& programFolder, Boxes& boxes,
                                  const ConversionWatch& watch);

} // namespace norvane::customers
