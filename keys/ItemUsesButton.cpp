// See ItemUsesButton.h.
#include "keys/ItemUsesButton.h"

#include "platform/RuntimeFailure.h"
#include "store/engine/ShortWait.h"

#include <QShortcut>

using namespace Qt::Literals::StringLiterals;

namespace norvane::keys
{
namespace
{

/// The button says so if they cannot be read; the form can be used without them.
std::optional<ui::Uses> readUses(store::Database& database, const KeyGeometry& keyboard, ItemKind kind,
                                 const QString& number, int atMost)
{
    const store::ShortWait wait(database);
    try {
        const QStringList uses = usesOfItem(database, keyboard, kind, number);
        return ui::Uses{static_cast<int>(uses.size()), uses.first(qMin<qsizetype>(atMost, uses.size()))};
    } catch (const RuntimeFailure&) {
        return std::nullopt;
    }
}

} // namespace

ui::UsesButton* makeUsesButton(store::Database& database, const KeyGeometry& keyboard, ItemKind kind,
                               std::function<QString()> number, QWidget* form)
{
    auto* const button =
        new ui::UsesButton([&database, &keyboard, kind, number = std::move(number)](
                               int atMost) { return readUses(database, keyboard, kind, number(), atMost); },
                           form);
    button->setAutoDefault(false);
    button->setToolTip(u"Keys of all levels and look-ups that use this one (Ctrl+R)"_s);
    const auto* const shortcut = new QShortcut(QKeySequence(u"Ctrl+R"_s), form);
    QObject::connect(shortcut, &QShortcut::activated, button, &QPushButton::click);
    return button;
}

} // namespace norvane::keys
