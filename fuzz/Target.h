// What the fuzz targets share. Each target is one file that defines tryInput(); in the preset fuzz libFuzzer
// calls it with whatever it thinks up, in a normal build ReplayMain.cpp with the inputs that are kept.
#pragma once

#include "platform/RuntimeFailure.h"

#include <QByteArray>
#include <QString>

#include <initializer_list>
#include <string_view>

namespace norvane::fuzz
{

/// Reads one input as the product would. Any undocumented result ends the process.
void tryInput(std::string_view input);

/// Ends the process, so that the input is kept as a finding.
[[noreturn]] void report(const QString& what);

/// What a reader promises. @param what the promise, in the words of the report.
inline void require(bool holds, const char* what)
{
    if (!holds)
        report(QLatin1StringView(what));
}

/// Runs @p work, which may fail with one of the @p documented numbers; any other exception is a finding.
/// @return whether it finished without a failure.
template <typename Work>
bool succeeds(std::initializer_list<Failure> documented, Work work)
{
    try {
        work();
        return true;
    } catch (const RuntimeFailure& failure) {
        for (const Failure each : documented) {
            if (each == failure.failure())
                return false;
        }
        report(QStringLiteral("failure %1 is not documented: %2").arg(failure.number()).arg(failure.text()));
    }
}

/// Takes the first byte off @p input; 0 when it is empty. Inputs begin with what chooses a file or model.
[[nodiscard]] inline unsigned char takeByte(std::string_view& input)
{
    if (input.empty())
        return 0;
    const auto byte = static_cast<unsigned char>(input.front());
    input.remove_prefix(1);
    return byte;
}

/// Takes the text up to @p mark, and the mark, from @p input; all of it if there is no mark.
[[nodiscard]] inline std::string_view takeUntil(std::string_view& input, char mark)
{
    const auto end = input.find(mark);
    const auto taken = input.substr(0, end);
    input.remove_prefix(end == std::string_view::npos ? input.size() : end + 1);
    return taken;
}

/// The folder in which the targets keep their files, one for the process. It is the working directory.
[[nodiscard]] const QString& scratchFolder();

/// A file of that folder with this content. @return its path.
QString scratchFile(const QString& name, std::string_view content);

} // namespace norvane::fuzz
