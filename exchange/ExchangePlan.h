// The files moved by an upload and a download, in order: one row for each register file of a box.
#pragma once

#include <QStringView>

#include <optional>
#include <span>

namespace norvane::exchange
{

/// Files with special rules.
inline constexpr int pluFile = 67;
inline constexpr int pluPointsFile = 71;

/// A file fetched from the register and kept in the customer's folder. The file catalogue knows the procedure
/// that loads its table, and files without one are only kept.
struct UploadRow {
    int box;             ///< index of the box in the exchange dialog
    int file;            ///< number of the register file
    const char* literal; ///< end of the command line; its blanks are exact
};

/// Which way a binary file is copied around a send.
enum class Copy {
    None,
    ToCustomerAfter,         ///< the file just made and sent becomes the customer's kept copy
    FromCustomerAfter,       ///< the customer's older copy replaces the file just sent
    FromCustomerBefore,      ///< the customer's kept copy is what is sent
    FromCustomerUnlessEmpty, ///< the same, but an empty copy is not sent; a missing one is a failure
};

/// A file sent to all registers of the range. The file catalogue has the procedure that makes it from its
/// table, and whether an empty table is skipped.
struct DownloadRow {
    int box;
    int file;
    const char* literal;
    Copy copy;
};

/// All rows in the order of execution.
[[nodiscard]] std::span<const UploadRow> uploadPlan();
[[nodiscard]] std::span<const DownloadRow> downloadPlan();

/// The box that sends the records of a table; nothing if the registers have no file of them. That of the PLUs
/// ticks the one of their points.
[[nodiscard]] std::optional<int> boxSending(QStringView table);

/// The rows of one box; they are adjacent in a plan.
template <typename Row>
[[nodiscard]] std::span<const Row> rowsOfBox(std::span<const Row> plan, int box)
{
    std::size_t first = 0;
    while (first < plan.size() && plan[first].box != box)
        ++first;
    std::size_t end = first;
    while (end < plan.size() && plan[end].box == box)
        ++end;
    return plan.subspan(first, end - first);
}

} // namespace norvane::exchange
