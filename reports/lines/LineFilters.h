// The filters of a report that was opened from a line of another one.
#pragma once

#include "reports/lines/ReportLayout.h"
#include "reports/lines/ReportRun.h"

namespace norvane::reports
{

/// Restricts everything that @p layout reads, charts included, to lines that pass @p filters. A filter of a
/// table that the layout does not read restricts nothing; the names of such tables are added to @p others.
/// @throws FormulaError for a field that does not exist.
void addFilters(ReportLayout& layout, const std::vector<LineFilter>& filters, QStringList& others);

/// The link of the layout's lines. Of @p filters it keeps those that its own field does not imply: an article
/// is in one group only.
[[nodiscard]] ReportLink linkOf(const ReportLayout& layout, const std::vector<LineFilter>& filters);

/// A value of the link's field, as filters hold it.
[[nodiscard]] QString filterValue(const store::Value& value);

/// What @p line of @p data opens, over the same period; @p data is the report of @p request. The layout is
/// found beside the report's own, or else in the program's folder.
/// @return nothing if the line opens nothing.
[[nodiscard]] std::optional<ReportRequest> linkedRequest(const ReportRequest& request, const ReportData& data,
                                                         qsizetype line);

} // namespace norvane::reports
