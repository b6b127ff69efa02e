// Places the cells of one line of a report in its columns.
#pragma once

#include "reports/pages/ColumnPlaces.h"

#include <vector>

namespace norvane::reports
{

/// What is painted for one cell: its text, broken into rows.
struct CellBox {
    ColumnPlace place; ///< in mm, without the cell's margins
    QStringList rows;
    Alignment alignment = Alignment::Left;
    int firstRow = 0; ///< counted from the top of the line
};

/// Lays out one line at a time. A text too wide for its column continues in further rows. The heading of a
/// group spans the whole line, and the label of a total over the empty cells at both sides.
class LineLayout
{
public:
    /// @p report and @p font must outlive this; lines may still be added.
    LineLayout(const ReportData& report, const PageFont& font, ColumnPlaces places);

    [[nodiscard]] const ColumnPlaces& places() const { return m_places; }
    [[nodiscard]] TextStyle style(qsizetype line) const;
    /// Height of one row of text and of the whole line, in mm.
    [[nodiscard]] double rowHeight() const;
    [[nodiscard]] double height(qsizetype line) const;
    /// Free space above the text of the line, a part of its height.
    [[nodiscard]] double lead(qsizetype line) const;
    [[nodiscard]] std::vector<CellBox> cells(qsizetype line) const;
    /// The headings of all columns, each at the foot of its band.
    [[nodiscard]] std::vector<CellBox> headings() const;

private:
    [[nodiscard]] ColumnPlace textPlace(qsizetype line, int column) const;
    [[nodiscard]] int firstColumn(qsizetype line, int column) const;
    [[nodiscard]] bool isOfNumbers(int column) const;
    [[nodiscard]] int lastColumn(qsizetype line, int column) const;
    [[nodiscard]] bool isSameBand(int column, int other) const;
    [[nodiscard]] qsizetype rowsOfCell(qsizetype line, int column) const;
    [[nodiscard]] std::vector<int> bandTops(qsizetype line) const;
    [[nodiscard]] CellBox cellBox(qsizetype line, int column) const;

    const ReportData& m_report;
    const PageFont& m_font;
    ColumnPlaces m_places;
};

} // namespace norvane::reports
