// Makes the lines of a report from the rows that its query finds: headings, details, subtotals and total.
#pragma once

#include "reports/data/ReportData.h"
#include "reports/lines/ChartBuilder.h"
#include "reports/lines/LineNumbers.h"
#include "reports/lines/LineRanks.h"
#include "reports/lines/ReportLayout.h"
#include "reports/lines/TextTemplate.h"

#include <optional>
#include <string>
#include <vector>

namespace norvane::reports
{

/// Makes lines from rows in their order. Totals of the whole report, if the layout needs them, are passed in
/// before the first row, and so is the number of days with a collection.
class LineBuilder
{
public:
    LineBuilder(const ReportLayout& layout, ReportData& data, ChartBuilder& charts,
                std::vector<std::string> whole, int days);

    /// @param rank of the line, in a report with classes.
    void add(const LineFields& fields, const LineRank& rank = {});
    /// Closes the last group, adds the total and removes columns that have nothing to show.
    void finish();

private:
    /// What expressions are calculated from; @p numbers must outlive it.
    [[nodiscard]] SlotNumbers all(const std::vector<std::string>& numbers) const
    {
        return {numbers, m_whole, m_days};
    }
    [[nodiscard]] bool isZeroField(const Expression& expression) const;
    [[nodiscard]] bool isSet(const Expression& expression) const;
    [[nodiscard]] bool isLeftOut(const LineFields& fields) const;
    void changeGroup(const LineFields& fields);
    void changeClass();
    void openGroup(const store::Value& group, const QString& heading);
    void closeGroup();
    void addDetail(const LineFields& fields);
    void setLink(const store::Value& value);
    void addTotal(LineKind kind, const SlotTotals& totals, const QString& label);
    [[nodiscard]] ReportCell cell(const ColumnLayout& column, const LineFields& fields) const;
    [[nodiscard]] static std::optional<ReportCell> shortNumber(const ColumnLayout& column,
                                                               const SlotNumbers& numbers);
    [[nodiscard]] ReportCell number(const ColumnLayout& column,
                                    const std::vector<std::string>& numbers) const;
    [[nodiscard]] ReportCell rankCell(RankPart part) const;
    [[nodiscard]] ReportCell totalOf(const ColumnLayout& column,
                                     const std::vector<std::string>& numbers) const;
    void noteShown();

    const ReportLayout& m_layout;
    ReportData& m_data;
    ChartBuilder& m_charts;
    std::vector<std::string> m_whole;
    int m_days;
    LineNumbers m_numbers;
    LineRank m_rank;
    SlotTotals m_groupTotals;
    SlotTotals m_totals;
    std::optional<store::Value> m_group; ///< of the lines that come now
    QString m_groupHeading;
    std::vector<bool> m_isShown;
    std::vector<std::size_t> m_contents; ///< slots of records other than their number
    std::size_t m_labelColumn;
    bool m_isTotalled;
};

} // namespace norvane::reports
