// Makes the lines of a report from the rows that its query finds: headings, details, subtotals and total.
#pragma once

#include "platform/DecimalTotal.h"
#include "reports/data/ReportData.h"
#include "reports/lines/ChartBuilder.h"
#include "reports/lines/ReportLayout.h"
#include "reports/lines/TextTemplate.h"

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

/// Makes lines from rows in their order. Totals of the whole report, if the layout needs them, are passed in
/// before the first row.
class LineBuilder
{
public:
    LineBuilder(const ReportLayout& layout, ReportData& data, ChartBuilder& charts,
                std::vector<std::string> whole);

    void add(const LineFields& fields);
    /// Closes the last group, adds the total and removes columns that have nothing to show.
    void finish();

private:
    [[nodiscard]] bool isLeftOut(const LineFields& fields) const;
    void changeGroup(const LineFields& fields);
    void closeGroup();
    void addDetail(const LineFields& fields);
    void setLink(const store::Value& value);
    void addTotal(LineKind kind, const SlotTotals& totals, const QString& label);
    [[nodiscard]] ReportCell cell(const ColumnLayout& column, const LineFields& fields) const;
    [[nodiscard]] static std::optional<ReportCell> shortNumber(const ColumnLayout& column,
                                                               const SlotNumbers& numbers);
    [[nodiscard]] ReportCell number(const ColumnLayout& column,
                                    const std::vector<std::string>& numbers) const;
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
    std::vector<std::size_t> m_contents; ///< slots of a list's records other than their number
    std::size_t m_labelColumn;
    bool m_isTotalled;
};

} // namespace norvane::reports
