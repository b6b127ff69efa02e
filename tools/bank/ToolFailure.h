// The one failure of the tools: a result code for status.out and a line for the person at the console.
#pragma once

#include <QString>

#include <stdexcept>

namespace bank
{

/// Result codes that VELMARCOMM leaves in status.out.
enum Result {
    Done = 0,
    BadArgument = 1,
    FileOpenError = 2,
    FileInformationWrong = 3,
    FileSizeMismatch = 4,
    ArgumentConversionError = 5,
    FileWriteError = 6,
    UnknownCommand = 7,
    TimeOut = 8,
    BadCrc = 11,
    MachineBusy = 12,
    /// Consolidated reports of an earlier run still wait for collection or clearing; they are kept.
    ReportsWaiting = -13,
};

class ToolFailure : public std::runtime_error
{
public:
    ToolFailure(int code, const QString& text) : std::runtime_error(text.toStdString()), m_code(code) {}
    [[nodiscard]] int code() const { return m_code; }

private:
    int m_code;
};

} // namespace bank
