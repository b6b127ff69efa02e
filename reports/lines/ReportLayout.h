// The content of a layout file (.rpt): the tables that a report reads, its columns, order, groups and charts.
#pragma once

#include "reports/formula/Expression.h"
#include "reports/formula/FieldName.h"
#include "reports/formula/SelectionFormula.h"
#include "reports/lines/CellFormat.h"
#include "reports/lines/ReportData.h"

#include <QString>

#include <memory>
#include <optional>
#include <vector>

namespace norvane::reports
{

/// Names of another table, found by the number of a record. They are read once, when the report runs.
struct NameList {
    FieldName name;
    FieldName key;                 ///< the field of the same table that its first index orders by
    QHash<QString, QString> names; ///< by keyOf()

    /// A number as lists compare it: registers fill numbers up with zeros and blanks.
    [[nodiscard]] static QString keyOf(const store::Value& number);
};

/// A text with fields in it: "{TIMEPERIOD.STARTTIME} to {TIMEPERIOD.ENDTIME}".
struct TextTemplate {
    struct Part {
        QString text;
        std::optional<Slot> slot; ///< the field shown instead of the text
        /// Words shown instead of the field's value. One: if the field is not 0. Several: for 0, 1 and so on.
        std::vector<std::vector<Part>> words;
        std::shared_ptr<const NameList> names =
            nullptr; ///< shows the name that belongs to the field's number
    };
    std::vector<Part> parts;

    [[nodiscard]] bool isEmpty() const { return parts.empty(); }
};

/// A text, and the text that takes its place when all its fields are empty.
struct FieldText {
    TextTemplate text;
    std::vector<TextTemplate> further; ///< added after it with commas, unless they are empty
    TextTemplate missing;              ///< its fields are shown as numbers of records, in any format
    CellFormat format;
};

/// A table joined for its names. Its rows are found by value: "007" and 7 meet.
struct Join {
    const store::TableDefinition* table = nullptr;
    FieldName key; ///< of the joined table; the first of several records with the same key counts
    FieldName of;  ///< of the report's table or of an earlier join
};

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

    [[nodiscard]] bool addsUp() const { return !keys.empty(); }
    [[nodiscard]] bool isKey(const FieldName& field) const;
    /// Whether the field's values are added up.
    [[nodiscard]] bool isSum(const FieldName& field) const;
    /// The field that holds the day of a sale; nothing for tables without sales.
    [[nodiscard]] std::optional<FieldName> day() const;
    /// The slot of a field. A field without one gets the next.
    Slot slotOf(const FieldName& field);
};

/// A column of a report.
struct ColumnLayout {
    ReportColumn column; ///< the decimal places of money are set when the report runs
    CellFormat format;
    std::optional<Expression> number; ///< of a column of numbers
    FieldText text;                   ///< of a column of texts or days
    bool isTotalled = false;
    /// The column is shown if one of these is not zero in any line; always if there are none.
    std::vector<Expression> shownIf;
};

/// A group of a report.
struct GroupLayout {
    Slot by = 0;
    FieldText heading;
};

/// Where the points of a chart come from.
enum class PointSource { Lines, Groups, Query };

/// A chart of a report.
struct ChartLayout {
    ChartKind kind = ChartKind::Ranking;
    QString title;
    PointSource from = PointSource::Lines;
    std::optional<LineSource> query; ///< of a chart that adds up the rows again, by another field
    FieldText label;
    std::optional<Expression> value;
    CellFormat valueFormat{FormatKind::Money, 2, 2, {}};
    int most = 0; ///< how many of the largest points are shown; 0 for all
};

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
    bool showsZeroLines = true;
    bool showsEmptyRecords = false; ///< of a list
    std::vector<std::shared_ptr<NameList>> nameLists;
    std::vector<ChartLayout> charts;

    /// Whether it reads @p table: its own or a joined one.
    [[nodiscard]] bool reads(const store::TableDefinition& table) const;
    /// Whether a column uses totals of the whole report, as shares do.
    [[nodiscard]] bool needsWhole() const;
};

} // namespace norvane::reports
