// The key editors as a table, and how each of them opens; see KeyOpeners.h.
#include "shell/KeyOpeners.h"

#include "keys/functions/FrmFunctKey.h"
#include "keys/layout/KeyLayout.h"
#include "keys/lookups/frmwlu.h"
#include "platform/FailureBox.h"
#include "shell/MainStatusBar.h"

#include <memory>

using namespace Qt::Literals::StringLiterals;

namespace norvane::shell
{
namespace
{

using MakeForm = std::unique_ptr<QDialog> (*)(ApplicationValues& values, Boxes& boxes, FrmMain& main);

struct KeyForm {
    QLatin1StringView name;
    MakeForm make;
    QLatin1StringView notice = {}; ///< a message shown first, empty for none
};

template <const keys::KeyGeometry& (*keyboard)()>
std::unique_ptr<QDialog> makeLayout(ApplicationValues& values, Boxes& boxes, FrmMain& main)
{
    return std::make_unique<keys::KeyLayout>(keyboard(), values, boxes, &main);
}

std::unique_ptr<QDialog> makeFunctionKeys(ApplicationValues& values, Boxes& boxes, FrmMain& main)
{
    auto form = std::make_unique<keys::FrmFunctKey>(values, boxes, &main);
    QObject::connect(form.get(), &keys::FrmFunctKey::noticeChanged, &main.statusBar1(),
                     &MainStatusBar::setNotice);
    return form;
}

std::unique_ptr<QDialog> makeLookUps(ApplicationValues& values, Boxes& boxes, FrmMain& main)
{
    return std::make_unique<keys::frmwlu>(values, boxes, &main);
}

constexpr KeyForm keyForms[] = {
    {"KeyLayoutVelmar"_L1, &makeLayout<keys::velmarKeyboard>},
    {"KeyLayoutDorvik"_L1, &makeLayout<keys::dorvikKeyboard>},
    {"frmwlu"_L1, &makeLookUps},
    {"FrmFunctKey"_L1, &makeFunctionKeys,
     "Redeem Points for Tender Keys are programmed in the General Function Options"_L1},
};

/// The editor works on the chosen customer's data, and so does everything else from then on.
void openKeyForm(const KeyForm& entry, ApplicationValues& values, Boxes& boxes, FrmMain& main)
{
    if (!entry.notice.isEmpty())
        boxes.message(entry.notice);
    std::unique_ptr<QDialog> form;
    openOrTell(boxes, [&] { form = entry.make(values, boxes, main); });
    main.showCustomer();
    if (form)
        form->exec();
}

} // namespace

FrmMain::FormOpeners makeKeyOpeners(ApplicationValues& values, Boxes& boxes)
{
    FrmMain::FormOpeners openers;
    for (const KeyForm& form : keyForms) {
        openers.insert(form.name, [&values, &boxes, &form](FrmMain& main, const MenuEntry&) {
            openKeyForm(form, values, boxes, main);
        });
    }
    return openers;
}

} // namespace norvane::shell
