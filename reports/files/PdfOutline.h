// The outline of a PDF: headings that a reader shows beside the pages and jumps to.
#pragma once

#include "reports/pages/ReportPages.h"

#include <QByteArray>

#include <vector>

namespace norvane::reports
{

/// An entry of the outline.
struct OutlineEntry {
    QString title;
    int page = 0;   ///< from 0
    double top = 0; ///< in mm from the upper edge of the sheet
};

/// The groups of @p report, or its lines with a link where it has no groups, and its charts.
/// @param pages all of them, laid out
[[nodiscard]] std::vector<OutlineEntry> outlineOf(const ReportData& report, const ReportPages& pages);

/// @p pdf with @p entries as its outline. @return @p pdf as it is where there are no entries.
/// @throws ReportError if @p pdf cannot be read.
[[nodiscard]] QByteArray withOutline(const QByteArray& pdf, const std::vector<OutlineEntry>& entries);

} // namespace norvane::reports
