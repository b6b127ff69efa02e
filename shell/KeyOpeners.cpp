// The key editors as a table, and how each of them opens; see KeyOpeners.h.
#include "shell/KeyOpeners.h"

#include "keys/functions/FrmFunctKey.h"
#include "keys/layout/KeyLayout.h"
#include "keys/lookups/frmwlu.h"
#include "platform/FailureBox.h"
#include "shell/KeyItemOpener.h"
#include "shell/MainStatusBar.h"

#include <memory>

using namespace Qt::Literals::StringLiterals;

namespace norvane::shell
{
namespace
{

/// What the forms are made with.
struct KeyGround {
    ApplicationValues& values;
    Boxes& boxes;
    FrmMain& main;
    std::shared_ptr<store::WorkHistory> history;
};

using MakeForm = std::unique_ptr<QDialog> (*)(const KeyGround& ground);

struct KeyForm {
    QLatin1StringView name;
    MakeForm make;
    QLatin1StringView notice = {}; ///< a message shown first, empty for none
};

template <const keys::KeyGeometry& (*keyboard)()>
std::unique_ptr<QDialog> makeLayout(const KeyGround& ground)
{
    auto form = std::make_unique<keys::KeyLayout>(keyboard(), ground.values, ground.boxes, &ground.main);
    const KeyItemGround around{*form, ground.values, ground.boxes, ground.history};
    QObject::connect(form.get(), &keys::KeyLayout::itemWanted, form.get(),
                     [around](keys::ItemKind kind, const QString& number) {
                         openOrTell(around.boxes, [&] { openKeyItem(around, kind, number); });
                     });
    return form;
}

std::unique_ptr<QDialog> makeFunctionKeys(const KeyGround& ground)
{
    auto form = std::make_unique<keys::FrmFunctKey>(ground.values, ground.boxes, &ground.main);
    QObject::connect(form.get(), &keys::FrmFunctKey::noticeChanged, &ground.main.statusBar1(),
                     &MainStatusBar::setNotice);
    return form;
}

std::unique_ptr<QDialog> makeLookUps(const KeyGround& ground)
{
    return std::make_unique<keys::frmwlu>(ground.values, ground.boxes, &ground.main);
}

constexpr KeyForm keyForms[] = {
    {"KeyLayoutVelmar"_L1, &makeLayout<keys::velmarKeyboard>},
    {"KeyLayoutDorvik"_L1, &makeLayout<keys::dorvikKeyboard>},
    {"frmwlu"_L1, &makeLookUps},
    {"FrmFunctKey"_L1, &makeFunctionKeys,
     "Redeem Points for Tender Keys are programmed in the General Function Options"_L1},
};

/// The editor works on the chosen customer's data, and so does everything else from then on.
void openKeyForm(const KeyForm& entry, const KeyGround& ground)
{
    if (!entry.notice.isEmpty())
        ground.boxes.message(entry.notice);
    std::unique_ptr<QDialog> form;
    openOrTell(ground.boxes, [&] { form = entry.make(ground); });
    ground.main.showCustomer();
    if (form)
        form->exec();
}

} // namespace

FrmMain::FormOpeners makeKeyOpeners(ApplicationValues& values, Boxes& boxes,
                                    const std::shared_ptr<store::WorkHistory>& history)
{
    FrmMain::FormOpeners openers;
    for (const KeyForm& form : keyForms) {
        openers.insert(form.name, [&values, &boxes, history, &form](FrmMain& main, const MenuEntry&) {
            openKeyForm(form, {values, boxes, main, history});
        });
    }
    return openers;
}

} // namespace norvane::shell
