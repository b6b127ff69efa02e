// Why a report was not made, printed or saved.
#pragma once

#include "platform/TextError.h"

namespace norvane::reports
{

/// Thrown when a report cannot be made, printed or saved. The text is shown in a box "Report Error", and the
/// program continues.
class ReportError : public TextError
{
public:
    /// The text names the file and the reason.
    using TextError::TextError;
};

/// The user cancelled the run. No box is shown.
class ReportCancelled : public ReportError
{
public:
    ReportCancelled() : ReportError(QStringLiteral("The report was cancelled.")) {}
};

/// A file that a report should go to cannot be written.
class TargetError : public ReportError
{
public:
    using ReportError::ReportError;
};

} // namespace norvane::reports
