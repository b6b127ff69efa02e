// The entries that prepare bitmaps for a receipt printer: a notice, and the external program that does it.
#pragma once

#include "base/ApplicationValues.h"
#include "platform/Boxes.h"

#include <QLatin1StringView>

#include <span>

namespace norvane::utilities
{

/// One entry. The second one names another printer than its caption does, and starts nothing.
struct LogoConversion {
    QLatin1StringView handler; ///< "Convert350_Click"
    QLatin1StringView printerNote;
    bool startsConverter;
};

[[nodiscard]] std::span<const LogoConversion> logoConversions();

/// Tells what the images must be like, then runs the converter from the program's folder and waits for the
/// user to close it. Without that program nothing happens after the notice. Whatever the converter makes
/// stays where the user put it.
void convertLogoImages(const LogoConversion& conversion, const ApplicationValues& values, Boxes& boxes);

} // namespace norvane::utilities
