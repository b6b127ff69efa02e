// The content of a layout file (.rpt): the tables that a report reads, its columns, order, groups and charts.
#pragma once

#include "reports/data/ReportData.h"
#include "reports/formula/Condition.h"
#include "reports/formula/Expression.h"
#include "reports/formula/FieldName.h"
#include "reports/lines/BlockLayout.h"
#include "reports/lines/TextTemplate.h"

#include <QString>

#include <memory>
#include <optional>
#include <vector>

namespace norvane::reports
{

/// A table joined for its names. Its rows are found by value: "007" and 7 meet.
struct Join {
    const store::TableDefinition* table = nullptr;
    FieldName key; ///< of the joined table; the first of several records with the same key counts
    FieldName of;  ///< of the report's table or of an earlier join
    /// Records that no row meets give lines too, with zeros; lines are then made by @c of alone.
    bool isWhole = false;
};

/// How a field sorts lines: as it is stored, texts of digits by their value, or the largest first.
enum class Order { Plain, ByValue, Descending };

/// A field by which lines are sorted.
struct SortKey {
    FieldName field;
    Order order = Order::Plain;
};

/// What a query reads, row by row.
struct LineSource {
    const store::TableDefinition* table = nullptr;
    /// The fields that make a line when rows are added up; empty for a list, where each row is a line.
    std::vector<FieldName> keys;
    /// The fields in the order of their slots. Of a report that adds up, those of its table that are not keys
    /// are sums.
    std::vector<FieldName> fields;
    std::optional<FieldName> groupBy; ///< lines are sorted by it first; those without a group come last
    std::vector<SortKey> order;
    std::optional<Condition> where; ///< of the layout; rows must pass the user's selection as well
    bool isByMonth = false; ///< by the day, but all days of a month may be put together at its first one

    [[nodiscard]] bool addsUp() const { return !keys.empty(); }
    [[nodiscard]] bool isKey(const FieldName& field) const;
    /// Whether the field's values are added up.
    [[nodiscard]] bool isSum(const FieldName& field) const;
    /// The field that holds the day of a sale; nothing for tables without sales.
    [[nodiscard]] std::optional<FieldName> day() const;
    /// The slot of a field. A field without one gets the next.
    Slot slotOf(const FieldName& field);
};

/// What a column of a report with classes shows in place of a value.
enum class RankPart { None, Share, Cumulated, Letter };

/// A column of a report.
struct ColumnLayout {
    ReportColumn column; ///< the decimal places of money are set when the report runs
    CellFormat format;
    std::optional<Expression> number; ///< of a column of numbers
    LineText text;                    ///< of a column of texts or days
    RankPart rank = RankPart::None;
    bool isTotalled = false;
    /// The column is shown if one of these is not zero in any line; always if there are none.
    std::vector<Expression> shownIf;
};

/// A group of a report.
struct GroupLayout {
    Slot by = 0;
    LineText heading;
    bool showsLines = true; ///< otherwise the group is one line, with its heading and totals
};

/// What the lines open: another layout, filtered by the value of a field in the line.
struct LinkLayout {
    QString report; ///< file name of the layout
    FieldName field;
    Slot slot = 0;
};

/// Lines in the order of a number, the largest first, with classes by their cumulated shares; see
/// LineRanks.h.
struct ClassLayout {
    Expression by;
    std::vector<Decimal> limits; ///< per cent, ascending: that of class A first; the last class has none
    QString heading;             ///< of a class, with {class} and {lines} in it; empty for none
};

/// Where the points of a chart come from.
enum class PointSource { Lines, Groups, Query };

/// A chart of a report.
struct ChartLayout {
    ChartKind kind = ChartKind::Ranking;
    QString title;
    PointSource from = PointSource::Lines;
    std::optional<LineSource> query; ///< of a chart that adds up the rows again, by another field
    LineText label;
    std::optional<Expression> value;
    CellFormat valueFormat{FormatKind::Money, 2, 2, {}};
    int most = 0; ///< how many of the largest points are shown; 0 for all
};

/// How the sheet is turned; automatic is upright unless the columns are too wide for it.
enum class Orientation { Automatic, Portrait, Landscape };

/// A whole report file.
struct ReportLayout {
    QString path;
    QString title;
    Orientation orientation = Orientation::Automatic;
    LineSource source;
    std::vector<Join> joins;
    std::vector<ColumnLayout> columns;
    std::optional<GroupLayout> group;
    std::optional<LinkLayout> link;
    std::optional<ClassLayout> classes; ///< never beside groups
    bool showsZeroLines = true;
    std::vector<Expression> zeroIn; ///< only lines in which all of these are zero are shown
    bool showsEmptyRecords = false; ///< of a list, or of a join that is whole
    std::vector<std::shared_ptr<NameList>> nameLists;
    std::vector<ChartLayout> charts;
    std::vector<BlockLayout> blocks; ///< of a summary, which has no columns

    /// Whether it reads @p table: its own or a joined one.
    [[nodiscard]] bool reads(const store::TableDefinition& table) const;
    /// Whether lines come one after another with headings and totals: groups, or classes with a heading.
    [[nodiscard]] bool hasGroups() const;
    /// Whether a column uses totals of the whole report, as shares do, or classes need all lines.
    [[nodiscard]] bool needsWhole() const;
};

} // namespace norvane::reports
