// What the registers do not have yet: the tables and kept files of a customer against the ledger.
#pragma once

#include "base/ApplicationValues.h"
#include "exchange/ExchangeBoxes.h"
#include "exchange/ExchangePlan.h"

#include <QList>
#include <QString>

#include <array>
#include <functional>

namespace norvane::exchange
{

/// Of one box. What a send would not move is never unsent: an empty table, a file that the customer's folder
/// does not keep, boxes that the model does not have.
struct BoxChanges {
    qint64 records = 0; ///< added, changed or removed in the tables since all registers had them
    int files = 0;      ///< kept files without a table that differ
    /// A send did not succeed, or was cut off: some registers may have what was sent.
    bool mayBeAtSome = false;
    /// Sent to fewer registers than the customer has now.
    bool isNotAtAll = false;

    [[nodiscard]] bool isUnsent() const { return records > 0 || files > 0 || mayBeAtSome || isNotAtAll; }
    bool operator==(const BoxChanges&) const = default;
};

using AllChanges = std::array<BoxChanges, boxCount>;

/// Of all boxes together, and the boxes with something unsent.
struct UnsentTotal {
    BoxChanges changes;
    QList<int> boxes;
};

[[nodiscard]] UnsentTotal totalOf(const AllChanges& changes);

/// Compares what a send would write now with the ledger. Reads only, and walks the tables that were sent or
/// fetched before. It may run in a thread of its own.
/// @param goOn asked before each file; the rest counts as sent once it returns false.
/// @throws RuntimeFailure if database or settings cannot be read.
[[nodiscard]] AllChanges unsentChanges(
    const ApplicationValues& values, const std::function<bool()>& goOn = [] { return true; });

/// Whether a file is never unsent: the model does not have it, or the registers' points were not fetched
/// after their PLUs and so are not those of the table.
[[nodiscard]] bool isLeftOut(const DownloadRow& row, const ApplicationValues& values);

/// "3 records not sent, some registers may have it"; empty if nothing is unsent.
[[nodiscard]] QString changesInWords(const BoxChanges& changes);

} // namespace norvane::exchange
