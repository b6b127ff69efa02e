// The numbers of a report's lines, and their totals.
#pragma once

#include "platform/DecimalTotal.h"
#include "reports/lines/ReportLayout.h"
#include "reports/lines/TextTemplate.h"

#include <string>
#include <vector>

namespace norvane::reports
{

/// Whether a field numbers records and is not an amount: it is joined, a key of the lines or indexed.
[[nodiscard]] bool isRecordNumber(const LineSource& source, const FieldName& field);

/// Exact totals of the numbers in the slots.
class SlotTotals
{
public:
    explicit SlotTotals(std::size_t count) : m_totals(count) {}
    void add(const std::vector<std::string>& numbers);
    [[nodiscard]] std::vector<std::string> texts() const;

private:
    std::vector<DecimalTotal> m_totals;
};

/// The numbers of a line as exact decimals. Slots not used in any calculation remain "0".
class LineNumbers
{
public:
    explicit LineNumbers(const ReportLayout& layout);
    void read(const LineFields& fields);
    [[nodiscard]] const std::vector<std::string>& numbers() const { return m_numbers; }
    /// Whether all amounts of the line are zero; the number of its record does not count.
    [[nodiscard]] bool areZero() const;

private:
    std::vector<bool> m_isUsed;  ///< some column or chart calculates with the slot
    std::vector<bool> m_isSum;   ///< the query gives it as the text of an exact decimal
    std::vector<bool> m_isValue; ///< an amount, and not the number of a record
    std::vector<std::string> m_numbers;
};

} // namespace norvane::reports
