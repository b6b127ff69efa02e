// The files that a preview saves its report as.
#pragma once

#include "reports/data/KeepGoing.h"
#include "reports/data/ReportData.h"

#include <span>

namespace norvane::reports
{

/// A kind of file, and its entry in the menu.
struct FileKind {
    const char* name;
    const char* caption;
    const char* filter;
    const char* suffix;
    void (*write)(const ReportData& report, bool showsCharts, const QString& path,
                  const KeepGoing& keepGoing);
};
[[nodiscard]] std::span<const FileKind> fileKinds();

/// The name of a file without its suffix: the shop, a title such as "PLU Sales Report by Date." and the
/// period.
[[nodiscard]] QString fileNameFor(const ReportHeading& heading);

} // namespace norvane::reports
