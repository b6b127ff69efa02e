// What a register has sold, kept as text files in its folder.
// totals/NNN.txt (open) and consolidated/NNN.txt (waiting for collection) hold a line of comma-separated
// numbers for each item; those of report 194 begin with the PLU number. A missing file or line counts as
// zeros.
#pragma once

#include "tools/bank/Bank.h"

#include <QByteArray>

#include <map>
#include <vector>

namespace bank
{

/// Numbers are thousandths, so that weights and money add up exactly.
using Numbers = std::vector<qint64>;

constexpr int financialReport = 190;
constexpr int timeReport = 191;
constexpr int clerkReport = 192;
constexpr int pluReport = 194;
constexpr int mixReport = 218;

/// Items of the financial report, and of each clerk's block.
constexpr int financialItems = 118;

constexpr qsizetype pluDigits = 18;

/// @return "-2.5" for -2500. @see thousandthsOf
[[nodiscard]] QByteArray numberText(qint64 thousandths);

struct Totals {
    std::map<int, std::vector<Numbers>> byPlace; ///< of all reports except 194, item 1 first
    std::map<QByteArray, Numbers> plus; ///< by PLU number of 18 digits: promotion, waste, then count and
                                        ///< value for each price level

    void add(int report, std::size_t item, const Numbers& numbers); ///< @param item counted from 1
    void addPlu(const QByteArray& number, const Numbers& numbers);

    /// @throws ToolFailure for a file that holds anything but numbers
    [[nodiscard]] static Totals read(const QString& folder);
    /// Replaces the files of @p folder, and makes the folder. @throws ToolFailure
    void write(const QString& folder) const;
};

[[nodiscard]] QString openTotals(const Register& of);         ///< folder of what was sold since consolidation
[[nodiscard]] QString consolidatedTotals(const Register& of); ///< folder of what waits for collection

/// Adds item by item; what @p into is too short for is appended.
void addNumbers(Numbers& into, const Numbers& numbers);

} // namespace bank
