// Notices and start of the converter; see LogoImages.h.
#include "utilities/LogoImages.h"

#include "platform/FilePaths.h"

#include <array>

using namespace Qt::Literals::StringLiterals;

namespace norvane::utilities
{
namespace
{

// clang-format off
constexpr auto conversions = std::to_array<LogoConversion>({
    {"Convert350_Click"_L1, "Please note this conversion works with SRP350 printers only"_L1, true},
    {"convert550_Click"_L1, "Please note this conversion works for SRP500 printers only"_L1, false},
});
// clang-format on

QString notice(const LogoConversion& conversion)
{
    return u"This utility converts the bitmap's you have created into a single DAT file ready for "
           "downloading to the cash register\n\n"
           "You MUST ensure that non of the images you are converting are greater than 432 X 144 pixels\n\n"_s +
           conversion.printerNote;
}

} // namespace

std::span<const LogoConversion> logoConversions()
{
    return conversions;
}

void convertLogoImages(const LogoConversion& conversion, const ApplicationValues& values, Boxes& boxes,
                       const std::function<ChildResult(const QString& commandLine)>& runAndWait)
{
    boxes.message(notice(conversion));
    // In quotes, since the folder's name may have blanks.
    if (conversion.startsConverter)
        runAndWait(u'"' + joinPath(values.appPath, u"conv_nv.exe"_s) + u'"');
}

} // namespace norvane::utilities
