// See FilledShop.h.
#include "scripts/windows/FilledShop.h"

#include "shell/ScreenChoice.h"

#include <QAction>
#include <QApplication>
#include <QFileInfo>

#include <numeric>

using namespace Qt::Literals::StringLiterals;

namespace norvane::windows
{
namespace
{

constexpr int exchangeBoxes = 37;

} // namespace

FilledShop::FilledShop(int model) : Shop(model, 1)
{
    test::BoxNumbers everyBox(exchangeBoxes);
    std::iota(everyBox.begin(), everyBox.end(), 0);
    upload(everyBox);
    // Nothing uploads the descriptors; a screen needs a record.
    execute("insert into SYSTEMDESCRIPTORS (ID, SYSTEMDESCRIPTORS) values (1, 'TOTAL')");
}

shell::FrmMain& FilledShop::frame() const
{
    for (QWidget* const window : QApplication::topLevelWidgets()) {
        if (auto* const main = qobject_cast<shell::FrmMain*>(window))
            return *main;
    }
    qFatal("no main window");
}

QString FilledShop::screenFile(const shell::MenuEntry& entry) const
{
    const QString file = shell::opensScreen(entry) ? shell::targetOf(entry, values()).mid(1) : QString();
    return QFileInfo::exists(file) ? file : QString();
}

QWidget& FilledShop::openScreen(const shell::MenuEntry& entry)
{
    boxes().shown.clear();
    frame().findChild<QAction*>(entry.name)->setEnabled(true);
    return openForm(entry.name.data());
}

QString FilledShop::lastText()
{
    return boxes().shown.empty() ? QString() : boxes().shown.back().text;
}

void deleteClosed()
{
    for (int turn = 0; turn < 2; ++turn)
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
}

} // namespace norvane::windows
