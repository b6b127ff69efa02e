// What a report holds once its query has run: a heading, columns, lines and charts. Preview, paper and
// files are all made from it, so that they show the same figures.
#pragma once

#include "paper/Length.h"
#include "platform/Decimal.h"
#include "reports/data/Alignment.h"
#include "reports/data/Chart.h"
#include "reports/data/ReportLink.h"
#include "reports/data/ShownNumber.h"

#include <QDate>
#include <QDateTime>
#include <QString>

#include <cstdint>
#include <optional>
#include <string>
#include <variant>
#include <vector>

namespace norvane::reports
{

/// What the cells of a column hold.
enum class ColumnKind { Text, Number, Date };

/// A column of the report, and how its values are shown.
struct ReportColumn {
    QString heading;
    paper::Length width;
    Alignment alignment = Alignment::Left;
    ColumnKind kind = ColumnKind::Text;
    int leastDecimals = 0; ///< places that are always shown
    int mostDecimals = 0;  ///< further places are rounded off, halves away from zero
    NumberDress dress = {};
    bool isCompared = false; ///< beside the same number of another period, if the report has one
};

/// A cell as it is stored, never rounded: nothing, a text, a number or a day.
using ReportCell = std::variant<std::monostate, QString, Decimal, QDate>;

/// Kinds of report lines.
enum class LineKind : std::uint8_t {
    GroupHeading, ///< its text is in the first cell and spans the whole line
    Detail,
    Subtotal,   ///< of the group that ends here; its label is in the first text column
    GrandTotal, ///< likewise, at the end of the report
    Remark      ///< about the whole report, below its totals; its text is placed as that of a heading
};

/// Whether a line of the kind is a text over the whole line, without cells.
[[nodiscard]] constexpr bool isText(LineKind kind)
{
    return kind == LineKind::GroupHeading || kind == LineKind::Remark;
}
/// Whether a line of the kind is set off from the lines with the numbers.
[[nodiscard]] constexpr bool isBold(LineKind kind)
{
    return kind != LineKind::Detail && kind != LineKind::Remark;
}

/// The texts above the lines and around them on every page.
struct ReportHeading {
    QString title;       ///< on the pages
    QString windowTitle; ///< of the preview
    QString subtitle;    ///< the period in words and dates, or which other table the selection names
    QString customer;
    QDateTime printed;
    QString notice;  ///< replaces the lines if the period has none
    QDate from = {}; ///< first day of the period; invalid if it has none
    QDate to = {};
};

/// The page settings of a report.
struct PageSetup {
    bool isLandscape = false; ///< of a sheet of A4
    bool mayTurn = false;     ///< an upright sheet is turned where the columns do not fit side by side
};

struct ReportBlock;

/// The lines of a report. They are added in their order; lines and columns count from 0. A list can have a
/// hundred thousand lines, so a cell takes at most nine bytes and its text.
class ReportData
{
public:
    ReportHeading heading;
    PageSetup page;
    std::vector<Chart> charts;
    std::optional<ReportLink> link;  ///< of the lines that have a value for it
    std::vector<ReportBlock> blocks; ///< of a summary: its lines are those of the blocks, each as a group

    explicit ReportData(std::vector<ReportColumn> columns = {});

    [[nodiscard]] const std::vector<ReportColumn>& columns() const { return m_columns; }
    [[nodiscard]] int columnCount() const { return static_cast<int>(m_columns.size()); }

    /// Adds a line; @p cells beyond the columns are an error of the caller, missing ones remain empty.
    void addLine(LineKind kind, std::vector<ReportCell> cells);
    /// What the last line added opens by the link of the report.
    void setLinkValue(const QString& value);
    [[nodiscard]] std::optional<QString> linkValue(qsizetype line) const;
    /// Columns before the first number, whose texts identify a line.
    [[nodiscard]] int namingColumns() const;
    /// Removes the columns for which @p isKept is false, with their cells.
    void keepColumns(const std::vector<bool>& isKept);
    [[nodiscard]] qsizetype lineCount() const { return static_cast<qsizetype>(m_kinds.size()); }
    [[nodiscard]] LineKind lineKind(qsizetype line) const;
    [[nodiscard]] ReportCell cell(qsizetype line, int column) const;
    /// The cell as preview and paper show it: numbers rounded to the column's places, with the signs of the
    /// user's locale and the column's dress, dates in the locale's short form.
    [[nodiscard]] QString text(qsizetype line, int column) const;
    /// The cell as other programs read it: a number without its dress.
    [[nodiscard]] QString plainText(qsizetype line, int column) const;

private:
    /// Cells of one column, line by line.
    struct Cells {
        std::vector<std::uint8_t> tags;     ///< what a cell is, and the scale of a number
        std::vector<std::int64_t> contents; ///< coefficient, day, or place of the text
    };
    void addCell(Cells& cells, const ReportCell& cell);
    void addText(Cells& cells, const QString& text);

    std::vector<ReportColumn> m_columns;
    std::vector<LineKind> m_kinds;
    std::vector<std::optional<QString>> m_linkValues; ///< up to the last line that has one
    std::vector<Cells> m_cells;
    std::string m_texts; ///< of all cells, one after the other, in UTF-8
};

/// What a block of a summary looks like.
enum class BlockKind {
    Figure, ///< one large number
    Table,
    HeatMap, ///< a table whose numbers are the darker the larger they are
    Days     ///< a text with the days that have no collection
};

/// Where a block is on the page. Figures are side by side above all others.
enum class BlockPlace { Left, Right, Wide };

/// A block of a summary. Its table has the name of each line in its first column and numbers in all others.
struct ReportBlock {
    QString title;
    BlockKind kind = BlockKind::Table;
    BlockPlace place = BlockPlace::Left;
    ReportData table;        ///< what the page shows
    qsizetype firstLine = 0; ///< the line of the summary with the title; the lines of the table follow it
};

} // namespace norvane::reports
