// What a layout file (.rpt) tells: the tables that a report reads, its columns, order, groups and pictures.
#pragma once

#include "reports/CellFormat.h"
#include "reports/Expression.h"
#include "reports/FieldName.h"
#include "reports/ReportData.h"
#include "reports/SelectionFormula.h"

#include <QString>

#include <optional>
#include <vector>

namespace norvane::reports
{

/// A text with fields in it: "{TIMEPERIOD.STARTTIME} to {TIMEPERIOD.ENDTIME}".
struct TextTemplate {
    struct Part {
        QString text;
        std::optional<Slot> slot; ///< a field stands here instead of the text
        /// Or words for it: one stands where the field is not 0, several for 0, 1 and so on.
        std::vector<std::vector<Part>> words;
    };
    std::vector<Part> parts;

    [[nodiscard]] bool isEmpty() const { return parts.empty(); }
};

/// A text, and what stands in its place where all its fields are empty.
struct FieldText {
    TextTemplate text;
    std::vector<TextTemplate> further; ///< behind it with commas, where they are not empty
    TextTemplate missing;              ///< its fields are numbers of records, whatever the format
    CellFormat format;
};

/// A table joined for its names. Its rows are found by value: "007" and 7 meet.
struct Join {
    const store::TableDefinition* table = nullptr;
    FieldName key; ///< of the joined table; the first of several records with the same key counts
    FieldName of;  ///< of the report's table or of an earlier join
};

enum class Order { Plain, ByValue, Descending };

struct SortKey {
    FieldName field;
    Order order = Order::Plain;
};

/// What a query reads, row by row.
struct LineSource {
    const store::TableDefinition* table = nullptr;
    /// The fields that make a line when rows are added up; empty for a list, where each row is a line.
    std::vector<FieldName> keys;
    /// The fields in the order of their slots. Of a report that adds up, those of its table that are no keys
    /// are sums.
    std::vector<FieldName> fields;
    std::optional<FieldName> groupBy; ///< ordered by it first, rows without a group last
    std::vector<SortKey> order;
    std::optional<Condition> where; ///< beside the user's selection

    [[nodiscard]] bool addsUp() const { return !keys.empty(); }
    [[nodiscard]] bool isKey(const FieldName& field) const;
    /// Whether the field's values are added up.
    [[nodiscard]] bool isSum(const FieldName& field) const;
    /// The day by which rows of a sales table are chosen; nothing for other tables.
    [[nodiscard]] std::optional<FieldName> day() const;
    /// The slot of a field, which is added if it has none.
    Slot slotOf(const FieldName& field);
};

struct ColumnLayout {
    ReportColumn column; ///< its places of money are the shop's, set when the report runs
    CellFormat format;
    std::optional<Expression> number; ///< of a column of numbers
    FieldText text;                   ///< of any other
    bool isTotalled = false;
    std::vector<Expression> shownIf; ///< shown only where one of these is not zero in some line
};

struct GroupLayout {
    Slot by = 0;
    FieldText heading;
};

/// Where the points of a picture come from.
enum class PointSource { Lines, Groups, Query };

struct ChartLayout {
    ChartKind kind = ChartKind::Ranking;
    QString title;
    PointSource from = PointSource::Lines;
    std::optional<LineSource> query; ///< of a picture that adds up rows of its own
    FieldText label;
    std::optional<Expression> value;
    bool isMoney = true;
    int most = 0; ///< points of a ranking; 0 for all
};

enum class Orientation { Automatic, Portrait, Landscape };

struct ReportLayout {
    QString path;
    QString title;
    Orientation orientation = Orientation::Automatic;
    LineSource source;
    std::vector<Join> joins;
    std::vector<ColumnLayout> columns;
    std::optional<GroupLayout> group;
    bool showsZeroLines = true;
    std::vector<ChartLayout> charts;

    /// The report's table and those joined.
    [[nodiscard]] bool reads(const store::TableDefinition& table) const;
    /// Whether a cell is a share of the whole report's total.
    [[nodiscard]] bool needsWhole() const;
};

} // namespace norvane::reports
