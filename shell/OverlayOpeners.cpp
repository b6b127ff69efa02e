// Opens the designers of keyboard overlays; see OverlayOpeners.h.
#include "shell/OverlayOpeners.h"

#include "overlay/OverlayForm.h"
#include "overlay/SystemDialogs.h"

#include <QEvent>

#include <memory>

using namespace Qt::Literals::StringLiterals;

namespace norvane::shell
{
namespace
{

using overlay::Keyboard;
using overlay::OverlayForm;

/// The main window closes without asking the forms in it. So unsaved overlays are asked about first.
class CloseQuestion : public QObject
{
public:
    CloseQuestion(FrmMain& main, OverlayForm& form) : QObject(&form), m_form(form)
    {
        main.installEventFilter(this);
    }
    bool eventFilter(QObject* /*watched*/, QEvent* event) override
    {
        if (event->type() != QEvent::Close || m_form.mayLeave())
            return false;
        event->ignore();
        return true;
    }

private:
    OverlayForm& m_form;
};

/// What the designers share as long as the program runs.
struct Shared {
    overlay::SystemDialogs dialogs;
    overlay::PrinterInUse printer;
};

void openBeside(FrmMain& main, Keyboard keyboard, const ApplicationValues& values, Boxes& boxes,
                Shared& shared)
{
    const auto make = [&] {
        auto* const form = new OverlayForm(keyboard, values, boxes, shared.dialogs, shared.printer);
        new CloseQuestion(main, *form);
        return form;
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
