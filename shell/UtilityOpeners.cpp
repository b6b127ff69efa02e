// Runs price utilities and logo images for the main window; see UtilityOpeners.h.
#include "shell/UtilityOpeners.h"

#include "link/ToolWait.h"
#include "shell/LongWork.h"
#include "shell/MainStatusBar.h"
#include "utilities/LogoImages.h"
#include "utilities/PriceUtilities.h"

#include <optional>

namespace norvane::shell
{
namespace
{

void runUtility(FrmMain& main, const utilities::PriceUtility& utility, const ApplicationValues& values,
                Boxes& boxes, store::WorkHistory& history)
{
    std::optional<LongWork> work;
    const auto begin = [&] {
        work.emplace(main);
    };
    const auto everyRow = [&] {
        work->letEventsRun();
    };
    const auto showNotice = [&](const QString& text) {
        main.statusBar1().setNotice(text);
    };
    utilities::runPriceUtility(utility, values, boxes, {begin, everyRow, showNotice, &history});
}

/// The status bar's panel counts the seconds in which the converter is open.
void runConversion(FrmMain& main, const utilities::LogoConversion& conversion,
                   const ApplicationValues& values, Boxes& boxes)
{
    const QString before = main.statusBar1().panel();
    link::ToolWait converter(nullptr, boxes, [&](const QString& running) {
        main.statusBar1().setPanel(running.isEmpty() ? before : running);
    });
    utilities::convertLogoImages(conversion, values, boxes,
                                 [&](const QString& line) { return converter.run(values, line); });
}

} // namespace

FrmMain::FormOpeners makeUtilityOpeners(const ApplicationValues& values, Boxes& boxes,
                                        const std::shared_ptr<store::WorkHistory>& history)
{
    FrmMain::FormOpeners openers;
    for (const auto& utility : utilities::priceUtilities()) {
        openers.insert(utility.handler, [&, history](FrmMain& main, const MenuEntry&) {
            runUtility(main, utility, values, boxes, *history);
        });
    }
    for (const auto& conversion : utilities::logoConversions()) {
        openers.insert(conversion.handler, [&](FrmMain& main, const MenuEntry&) {
            runConversion(main, conversion, values, boxes);
        });
    }
    return openers;
}

} // namespace norvane::shell
