// Runs price utilities and logo images for the main window; see UtilityOpeners.h.
#include "shell/UtilityOpeners.h"

#include "shell/LongWork.h"
#include "utilities/LogoImages.h"
#include "utilities/PriceUtilities.h"

#include <optional>

namespace norvane::shell
{
namespace
{

void runUtility(FrmMain& main, const utilities::PriceUtility& utility, const ApplicationValues& values,
                Boxes& boxes)
{
    std::optional<LongWork> work;
    const auto begin = [&] {
        work.emplace(main);
    };
    const auto everyRow = [&] {
        work->letEventsRun();
    };
    utilities::runPriceUtility(utility, values.databasePath, boxes, {begin, everyRow});
}

} // namespace

FrmMain::FormOpeners makeUtilityOpeners(const ApplicationValues& values, Boxes& boxes)
{
    FrmMain::FormOpeners openers;
    for (const auto& utility : utilities::priceUtilities()) {
        openers.insert(utility.handler,
                       [&](FrmMain& main, const MenuEntry&) { runUtility(main, utility, values, boxes); });
    }
    for (const auto& conversion : utilities::logoConversions()) {
        openers.insert(conversion.handler, [&](FrmMain&, const MenuEntry&) {
            utilities::convertLogoImages(conversion, values, boxes);
        });
    }
    return openers;
}

} // namespace norvane::shell
