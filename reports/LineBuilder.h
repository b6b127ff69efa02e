// Makes the lines of a report from the rows that its query finds: headings, details, subtotals and total.
#pragma once

#include "platform/DecimalTotal.h"
#include "reports/ChartBuilder.h"
#include "reports/FieldTexts.h"
#include "reports/ReportData.h"
#include "reports/ReportLayout.h"

#include <optional>
#include <string>
#include <vector>

namespace norvane::reports
{

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

/// The numbers of a line as exact decimals; slots that nothing reckons with stay "0".
class LineNumbers
{
public:
    explicit LineNumbers(const ReportLayout& layout);
    void read(const LineFields& fields);
    [[nodiscard]] const std::vector<std::string>& numbers() const { return m_numbers; }
    /// Whether all that the line tells beside its number is zero.
    [[nodiscard]] bool areZero() const;

private:
    std::vector<bool> m_isReckoned;
    std::vector<bool> m_isSum;   ///< spelled as an exact decimal already
    std::vector<bool> m_isValue; ///< no number of a record
    std::vector<std::string> m_numbers;
};

/// Takes the rows in their order. Where the layout needs the totals of the whole report, they are handed in
/// before the first row.
class LineBuilder
{
public:
    LineBuilder(const ReportLayout& layout, ReportData& data, ChartBuilder& charts,
                std::vector<std::string> whole);

    void add(const LineFields& fields);
    /// Closes the last group, adds the total and takes away columns that have nothing to show.
    void finish();

private:
    void changeGroup(const LineFields& fields);
    void closeGroup();
    void addDetail(const LineFields& fields);
    void addTotal(LineKind kind, const SlotTotals& totals, const QString& label);
    [[nodiscard]] Cell cell(const ColumnLayout& column, const LineFields& fields) const;
    [[nodiscard]] Cell number(const ColumnLayout& column, const std::vector<std::string>& numbers) const;
    void noteShown();

    const ReportLayout& m_layout;
    ReportData& m_data;
    ChartBuilder& m_charts;
    std::vector<std::string> m_whole;
    LineNumbers m_numbers;
    SlotTotals m_groupTotals;
    SlotTotals m_totals;
    std::optional<store::Value> m_group; ///< of the lines that come now
    QString m_groupHeading;
    std::vector<bool> m_isShown;
    std::size_t m_labelColumn;
    bool m_isTotalled;
};

} // namespace norvane::reports
