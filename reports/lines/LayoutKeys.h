// The keys of layout files, section by section: how each is read and which value is expected.
#pragma once

#include "reports/lines/LayoutFields.h"

#include <span>

namespace norvane::reports
{

/// Where the values of the keys go: the layout, and the part of it that the section describes.
struct LayoutTarget {
    ReportLayout& layout;
    LineSource* source = nullptr; ///< reads the fields that the section names
    Join* join = nullptr;
    ColumnLayout* column = nullptr;
    ChartLayout* chart = nullptr;
    BlockLayout* block = nullptr;

    [[nodiscard]] const store::TableDefinition* table() const { return layout.source.table; }
    [[nodiscard]] FieldSlots fields() const { return fieldSlots(layout, *source); }
};

/// Puts the value of a key into the layout. @return false when it is not what the rule expects.
/// @throws FormulaError when it is not, and the column of the mistake is known.
using Take = bool (*)(const QString& value, LayoutTarget& target);

/// A key of a report file and how it is read.
struct KeyRule {
    QStringView key;
    bool isRequired;
    QLatin1String expected;
    Take take;
};

/// The keys of a section, in the order in which they are taken.
struct LayoutKeys {
    std::span<const KeyRule> report;
    std::span<const KeyRule> join;
    std::span<const KeyRule> classes;
    std::span<const KeyRule> column;
    std::span<const KeyRule> group;
    std::span<const KeyRule> sort;
    std::span<const KeyRule> chart;
    std::span<const KeyRule> link;
    KeyRule furtherValue; ///< of a column, after its value: Value2 and so on
};
[[nodiscard]] const LayoutKeys& layoutKeys();

} // namespace norvane::reports
