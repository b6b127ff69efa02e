// Why a report was not made, printed or saved.
#pragma once

#include <QString>

#include <stdexcept>

namespace norvane::reports
{

/// Thrown when a report cannot be made, printed or saved. The text is shown in a box "Report Error", and the
/// program continues.
class ReportError : public std::runtime_error
{
public:
    /// @param text names the file and the reason.
    explicit ReportError(const QString& text) : std::runtime_error(text.toStdString()), m_text(text) {}
    [[nodiscard]] const QString& text() const { return m_text; }

private:
    QString m_text;
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
