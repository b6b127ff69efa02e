// See KeyItemOpener.h.
#include "shell/KeyItemOpener.h"

#include "keys/functions/FrmFunctKey.h"
#include "keys/layout/KeyLayout.h"
#include "keys/lookups/frmwlu.h"
#include "platform/FilePaths.h"
#include "register/PluNumber.h"
#include "screens/OptionForm.h"
#include "shell/ScreenChoice.h"

#include <algorithm>

using namespace Qt::Literals::StringLiterals;

namespace norvane::shell
{
namespace
{

QString articleScreen(const ApplicationValues& values)
{
    const auto entry = std::ranges::find(menuTree(), "PLUMENU"_L1, &MenuEntry::name);
    Q_ASSERT(entry != menuTree().end());
    return joinPath(values.appPath, targetOf(*entry, values));
}

void openFunction(const KeyItemGround& ground, const QString& number)
{
    keys::FrmFunctKey form(ground.values, ground.boxes, &ground.editor);
    form.showKey(number);
    form.exec();
    ground.editor.itemsChanged();
}

void openLookUp(const KeyItemGround& ground, const QString& number)
{
    keys::frmwlu form(ground.values, ground.boxes, &ground.editor);
    form.showRecord(number);
    form.exec();
    ground.editor.itemsChanged();
}

/// A screen is not a dialog: it is closed later than this returns.
void openArticle(const KeyItemGround& ground, const QString& number)
{
    auto* const form = new screens::OptionForm(articleScreen(ground.values), ground.values, ground.boxes);
    form->setAttribute(Qt::WA_DeleteOnClose);
    form->setParent(&ground.editor, Qt::Dialog | Qt::WindowMinMaxButtonsHint | Qt::WindowCloseButtonHint);
    form->setWindowModality(Qt::ApplicationModal);
    form->setHistory(ground.history);
    QObject::connect(form, &QObject::destroyed, &ground.editor, &keys::KeyLayout::itemsChanged);
    form->showKey(filledPluNumber(number));
    form->resize(form->sizeHint());
    form->show();
}

} // namespace

void openKeyItem(const KeyItemGround& ground, keys::ItemKind kind, const QString& number)
{
    switch (kind) {
    case keys::ItemKind::Function:
        return openFunction(ground, number);
    case keys::ItemKind::Plu:
        return openArticle(ground, number);
    case keys::ItemKind::LookUp:
        return openLookUp(ground, number);
    }
}

} // namespace norvane::shell
