// The blocks of a summary, as a layout names them: what each shows, and where on the page it is.
#pragma once

#include "reports/data/ReportData.h"
#include "reports/lines/CellFormat.h"

#include <memory>
#include <utility>

namespace norvane::reports
{

struct ReportLayout;

/// Which lines of its table a block shows, and in which order.
struct BlockCut {
    bool showsGroups = false; ///< the subtotals of the groups in place of the lines
    bool isSorted = false;    ///< by the last number of the layout, else in the order of the lines
    bool smallestFirst = false;
    int most = 0; ///< so many lines, and all others as one more; 0 for all
};

/// A block of a summary. It has a table of its own, or shows another part of an earlier block's table.
struct BlockLayout {
    QString title;
    BlockKind kind = BlockKind::Table;
    BlockPlace place = BlockPlace::Left;
    BlockCut cut;
    bool hasShare = false; ///< a column with the share of each line in the total
    std::shared_ptr<const ReportLayout> table;
    int of = 0;                         ///< the block whose table is shown, counted from 1
    std::pair<int, int> quotient{0, 0}; ///< the figures that are divided, counted likewise
    CellFormat format;                  ///< of the quotient

    [[nodiscard]] bool isQuotient() const { return quotient.first > 0; }
};

} // namespace norvane::reports
