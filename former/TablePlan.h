// Which fields of a former table go where in ours.
#pragma once

#include "former/FormerReader.h"
#include "store/engine/Definitions.h"

#include <QSet>
#include <QStringList>

#include <vector>

namespace norvane::former
{

/// A former table that the catalogue knows, in the catalogue's names, order, types and widths. Fields that
/// the former table lacks are missing here too: the upgrade adds them, as in the former program.
struct TablePlan {
    store::TableDefinition table;
    std::vector<int> fieldOfColumn; ///< for each former column the field in @p table, or -1
    std::vector<int> columnOfField; ///< for each field of @p table its former column
    QStringList unknownFields;      ///< of the former table
};

/// Makes the plans of a file's tables. Names match without regard to case.
class TablePlans
{
public:
    /// @return false for a table that the catalogue does not know, that the file has twice, or without a
    /// known field.
    [[nodiscard]] bool plan(TablePlan& plan, const FormerTable& table);

private:
    QSet<QString> m_planned; ///< the catalogue's names
};

} // namespace norvane::former
