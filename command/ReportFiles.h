// Reports of a customer and the files that they are written to.
#pragma once

#include "base/ApplicationValues.h"
#include "command/ReportPeriods.h"
#include "reports/files/CsvFile.h"
#include "reports/lines/ReportRun.h"

#include <QDateTime>
#include <QLatin1StringView>

#include <optional>
#include <span>

namespace norvane::command
{

/// A kind of file.
struct FileFormat {
    QLatin1StringView name; ///< "pdf": the option, and the suffix
    void (*write)(const reports::ReportData& report, const QString& path, const reports::CsvSigns& signs);
};
[[nodiscard]] std::span<const FileFormat> fileFormats();

/// A request for the report in the file @p path over all rows of the customer.
[[nodiscard]] reports::ReportRequest reportRequest(const ApplicationValues& values, const QString& path,
                                                   const QDateTime& now);
/// The same over the rows of @p selection.
[[nodiscard]] reports::ReportRequest reportRequest(const ApplicationValues& values, const QString& path,
                                                   const QDateTime& now, const ReportSelection& selection);

/// The word of --compare and of a settings file: "before", "year".
/// @return nothing for another word.
[[nodiscard]] std::optional<reports::ComparedWith> comparisonNamed(const QString& word);

} // namespace norvane::command
