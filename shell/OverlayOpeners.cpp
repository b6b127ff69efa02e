// Opens the designers of keyboard overlays; see OverlayOpeners.h.
#include "shell/OverlayOpeners.h"

#include "overlay/OverlayForm.h"
#include "overlay/SystemDialogs.h"

#include <memory>

using namespace Qt::Literals::StringLiterals;

namespace norvane::shell
{
namespace
{

using overlay::Keyboard;
using overlay::OverlayForm;

/// What the designers share as long as the program runs.
struct Shared {
    overlay::SystemDialogs dialogs;
    overlay::PrinterInUse printer;
};

void openBeside(FrmMain& main, Keyboard keyboard, const ApplicationValues& values, Boxes& boxes,
                Shared& shared)
{
    const auto make = [&] {
        return new OverlayForm(keyboard, values, boxes, shared.dialogs, shared.printer);
    };
    main.showShared(overlay::geometryOf(keyboard).name.toString(), make, FrmMain::FormSize::Free);
}

void openModal(FrmMain& main, Keyboard keyboard, const ApplicationValues& values, Boxes& boxes,
               Shared& shared)
{
    OverlayForm form(keyboard, values, boxes, shared.dialogs, shared.printer, &main);
    form.exec();
}

} // namespace

FrmMain::FormOpeners makeOverlayOpeners(const ApplicationValues& values, Boxes& boxes)
{
    const auto shared = std::make_shared<Shared>();
    const auto opener = [shared, &values, &boxes](Keyboard keyboard, auto open) {
        return [=, &values, &boxes](FrmMain& main, const MenuEntry&) {
            open(main, keyboard, values, boxes, *shared);
        };
    };
    return {{u"Dorvik"_s, opener(Keyboard::Dorvik, openModal)},
            {u"Velmar"_s, opener(Keyboard::Velmar, openModal)},
            {u"Quelmont"_s, opener(Keyboard::Quelmont, openBeside)}};
}

} // namespace norvane::shell
