// The key editors as a table, and how each of them opens; see KeyOpeners.h.
#include "shell/KeyOpeners.h"

#include "keys/frmwlu.h"
#include "keys/KeyLayout.h"
#include "platform/RuntimeFailure.h"
#include "shell/Program.h"

#include <memory>

using namespace Qt::Literals::StringLiterals;

namespace norvane::shell
{
namespace
{

using MakeForm = std::unique_ptr<QDialog> (*)(ApplicationValues& values, Boxes& boxes, QWidget* parent);

struct KeyForm {
    QLatin1StringView name;
    MakeForm make;
};

template <const keys::KeyGeometry& (*keyboard)()>
std::unique_ptr<QDialog> makeLayout(ApplicationValues& values, Boxes& boxes, QWidget* parent)
{
    return std::make_unique<keys::KeyLayout>(keyboard(), values, boxes, parent);
}

std::unique_ptr<QDialog> makeLookUps(ApplicationValues& values, Boxes& boxes, QWidget* parent)
{
    return std::make_unique<keys::frmwlu>(values, boxes, parent);
}

constexpr KeyForm keyForms[] = {
    {"KeyLayoutVelmar"_L1, &makeLayout<keys::velmarKeyboard>},
    {"KeyLayoutDorvik"_L1, &makeLayout<keys::dorvikKeyboard>},
    {"frmwlu"_L1, &makeLookUps},
};

/// A key editor that cannot open has stored nothing yet: it alone closes, and what was typed into other
/// screens stays.
std::unique_ptr<QDialog> makeOrTell(MakeForm make, ApplicationValues& values, Boxes& boxes, FrmMain& main)
{
    try {
        return make(values, boxes, &main);
    } catch (const RuntimeFailure&) {
        showFailure(describeFailure(std::current_exception()), boxes);
        return nullptr;
    }
}

/// The editor works on the chosen customer's data, and so does everything else from then on.
void openKeyForm(MakeForm make, ApplicationValues& values, Boxes& boxes, FrmMain& main)
{
    const std::unique_ptr<QDialog> form = makeOrTell(make, values, boxes, main);
    main.showCustomer();
    if (form)
        form->exec();
}

} // namespace

FrmMain::FormOpeners makeKeyOpeners(ApplicationValues& values, Boxes& boxes)
{
    FrmMain::FormOpeners openers;
    for (const KeyForm& form : keyForms) {
        openers.insert(form.name, [&values, &boxes, make = form.make](FrmMain& main, const MenuEntry&) {
            openKeyForm(make, values, boxes, main);
        });
    }
    return openers;
}

} // namespace norvane::shell
