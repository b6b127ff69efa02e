// The menu entries that prepare bitmaps for a receipt printer: a notice and an external program.
#pragma once

#include "base/ApplicationValues.h"
#include "platform/Boxes.h"
#include "platform/ChildProcess.h"

#include <QLatin1StringView>

#include <functional>
#include <span>

namespace norvane::utilities
{

/// One entry. The second one names another printer than its caption, and starts no program.
struct LogoConversion {
    QLatin1StringView handler; ///< "Convert350_Click"
    QLatin1StringView printerNote;
    bool startsConverter;
};

[[nodiscard]] std::span<const LogoConversion> logoConversions();

/// Shows what the images must be like, then runs the converter from the program's folder with @p runAndWait,
/// which waits until the user closes it. Nothing happens after the notice when the converter is missing.
void convertLogoImages(const LogoConversion& conversion, const ApplicationValues& values, Boxes& boxes,
                       const std::function<ChildResult(const QString& commandLine)>& runAndWait);

} // namespace norvane::utilities
