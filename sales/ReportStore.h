// Stores the five collected reports as one, and asks before a day is stored short or twice.
#pragma once

#include "base/ApplicationValues.h"
#include "platform/Boxes.h"

#include <QDate>

namespace norvane::sales
{

/// Where the texts of a collection come from.
enum class ReportOrigin {
    ThisRun,
    InDoubt, ///< a tool failed and the user went on: they may be older
};

/// Whether the reports were stored.
enum class Stored {
    Yes,
    AlreadyThere, ///< the same reports were stored before, and not a second time
    Refused,      ///< nothing was stored, and the registers must keep their sales
};

/// The stored reports of a collection.
struct StoredReports {
    Stored outcome;
    qint64 rows; ///< that were stored
};

/// Imports the five reports, dated @p collected, in one transaction. Asks if a report has fewer records than
/// this customer's last one or none at all, and if all are byte for byte those that were stored last. After a
/// failure the user is asked whether to keep what was read, see importOrPutBack().
/// @throws what importPollFile() throws.
[[nodiscard]] StoredReports storeReports(const ApplicationValues& values, Boxes& boxes, QDate collected,
                                         ReportOrigin origin);

} // namespace norvane::sales
