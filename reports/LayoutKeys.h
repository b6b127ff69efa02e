// The keys of layout files, section by section: how each is taken and what is expected in it.
#pragma once

#include "reports/LayoutTexts.h"

#include <span>

namespace norvane::reports
{

/// What the keys are taken into: the layout, and what a value needs to know of its section.
struct LayoutTarget {
    ReportLayout& layout;
    LineSource* source = nullptr; ///< whose fields the section names
    Join* join = nullptr;
    ColumnLayout* column = nullptr;
    ChartLayout* chart = nullptr;

    [[nodiscard]] const store::TableDefinition* table() const { return layout.source.table; }
    [[nodiscard]] FieldSlots fields() const { return fieldSlots(layout, *source); }
};

/// @return false when the value is not as the rule expects it. @throws FormulaError likewise, with a place.
using Take = bool (*)(const QString& value, LayoutTarget& target);

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
    std::span<const KeyRule> column;
    std::span<const KeyRule> group;
    std::span<const KeyRule> sort;
    std::span<const KeyRule> chart;
    KeyRule furtherValue; ///< of a column, behind its value: Value2 and so on
};
[[nodiscard]] const LayoutKeys& layoutKeys();

} // namespace norvane::reports
