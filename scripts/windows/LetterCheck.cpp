// See LetterCheck.h.
#include "scripts/windows/LetterCheck.h"

#include <QtWidgets>

#include <algorithm>
#include <iterator>

using namespace Qt::Literals::StringLiterals;

namespace norvane::windows
{
namespace
{

/// Captions that dealers and their handbooks know, and which share a letter. In a menu, each press of the
/// letter leads to the next entry.
struct FixedLetter {
    const char* owner; ///< objectName of the menu or window
    const char* names; ///< objectNames of all that have the letter, in their order
    const char* reason;
};

constexpr FixedLetter fixedLetters[] = {
    {"SModeMenu", "PrinterDriverMenu DefineSerialMenu", "neither can be chosen"},
    {"PModeMenu", "SystemMenu Payrate", "captions of the main menu are fixed"},
    {"SystemMenu", "GeneralOptions GeneralPrintOption", "captions of the main menu are fixed"},
    {"SystemMenu", "TrainingMode TimeKeeping", "captions of the main menu are fixed"},
    {"Files", "PrinterSetup Print", "captions of the overlay's own menus are fixed; Ctrl+P prints"},
};

/// What has a letter.
struct Lettered {
    QString name;
    QString caption;
};

using Letters = QMap<QString, QList<Lettered>>;

void addCaption(Letters& letters, const QString& caption, const QString& name)
{
    const QKeySequence letter = QKeySequence::mnemonic(caption);
    if (!letter.isEmpty())
        letters[letter.toString(QKeySequence::PortableText)] += Lettered{name, caption};
}

void addEntries(Letters& letters, const QWidget& menu)
{
    for (const QAction* const entry : menu.actions()) {
        if (entry->isVisible() && !entry->isSeparator())
            addCaption(letters, entry->text(), entry->objectName());
    }
}

void addTabs(Letters& letters, const QTabBar& tabs)
{
    for (int tab = 0; tab < tabs.count(); ++tab)
        addCaption(letters, tabs.tabText(tab), tabs.objectName());
}

void addControl(Letters& letters, const QWidget& control)
{
    if (const auto* const button = qobject_cast<const QAbstractButton*>(&control)) {
        addCaption(letters, button->text(), button->objectName());
    } else if (const auto* const group = qobject_cast<const QGroupBox*>(&control)) {
        addCaption(letters, group->title(), group->objectName());
    } else if (const auto* const tabs = qobject_cast<const QTabBar*>(&control)) {
        addTabs(letters, *tabs);
    } else if (const auto* const label = qobject_cast<const QLabel*>(&control); label && label->buddy()) {
        addCaption(letters, label->text(), label->objectName());
    } else if (qobject_cast<const QMenuBar*>(&control)) {
        addEntries(letters, control);
    }
}

Letters lettersOf(const QWidget& window)
{
    Letters letters;
    for (const auto* const control : window.findChildren<QWidget*>()) {
        if (control->window() == window.window() && control->isVisibleTo(&window))
            addControl(letters, *control);
    }
    return letters;
}

Letters lettersOfMenu(const QWidget& menu)
{
    Letters letters;
    addEntries(letters, menu);
    return letters;
}

QString namesOf(const QList<Lettered>& all)
{
    QStringList names;
    for (const Lettered& each : all)
        names += each.name;
    return names.join(u' ');
}

QString captionsOf(const QList<Lettered>& all)
{
    QStringList captions;
    for (const Lettered& each : all)
        captions += u"%1 \"%2\""_s.arg(each.name, each.caption);
    return captions.join(u", "_s);
}

/// Menus, and the controls that show their actions as one.
bool hasEntries(const QWidget& widget)
{
    return qobject_cast<const QMenu*>(&widget) || widget.contextMenuPolicy() == Qt::ActionsContextMenu;
}

} // namespace

QStringList LetterCheck::repeated(const QWidget& window)
{
    QStringList faults;
    const auto compare = [&](const QString& owner, const Letters& letters) {
        for (const auto& [letter, all] : letters.asKeyValueRange()) {
            if (all.size() > 1 && !isFixed(owner, namesOf(all)))
                faults += u"%1: %2 leads to %3"_s.arg(owner, letter, captionsOf(all));
        }
    };
    compare(window.objectName(), hasEntries(window) ? lettersOfMenu(window) : lettersOf(window));
    for (const auto* const widget : window.findChildren<QWidget*>()) {
        if (hasEntries(*widget))
            compare(widget->objectName(), lettersOfMenu(*widget));
    }
    return faults;
}

QStringList LetterCheck::unusedExceptions() const
{
    QStringList unused;
    for (const FixedLetter& fixed : fixedLetters) {
        if (!m_used.contains(&fixed)) {
            unused += u"%1: %2 no longer share a letter"_s.arg(QLatin1String(fixed.owner),
                                                               QLatin1String(fixed.names));
        }
    }
    return unused;
}

bool LetterCheck::isFixed(const QString& owner, const QString& names)
{
    const auto* const found = std::ranges::find_if(fixedLetters, [&](const FixedLetter& fixed) {
        return owner == QLatin1String(fixed.owner) && names == QLatin1String(fixed.names);
    });
    if (found == std::end(fixedLetters))
        return false;
    m_used.insert(found);
    return true;
}

} // namespace norvane::windows
