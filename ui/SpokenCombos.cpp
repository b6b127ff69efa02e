// See SpokenCombos.h.
#include "ui/SpokenCombos.h"

#include "ui/ItemsInterface.h"

#include <QAbstractItemView>
#include <QComboBox>
#include <QLineEdit>

using namespace Qt::Literals::StringLiterals;

namespace norvane::ui
{
namespace
{

class ComboRows : public SpokenItems
{
public:
    explicit ComboRows(const QComboBox& combo) : m_combo(combo) {}

    [[nodiscard]] int spokenItemCount() const override { return m_combo.count(); }
    [[nodiscard]] SpokenItem spokenItem(int index) const override
    {
        return {m_combo.itemText(index), {}, m_combo.rect(), index == m_combo.currentIndex()};
    }

private:
    const QComboBox& m_combo;
};

/// In the open list, the list itself says where the user is.
void sayRow(QComboBox& combo, int row)
{
    const bool isOpen = combo.findChild<QAbstractItemView*>() && combo.view()->isVisible();
    if (row >= 0 && combo.hasFocus() && !combo.isEditable() && !isOpen)
        sayItem(combo, row);
}

class ComboInterface : private ComboRows, public ItemsInterface, public QAccessibleTextInterface
{
public:
    explicit ComboInterface(QComboBox& combo)
        : ComboRows(combo), ItemsInterface(combo, QAccessible::ComboBox, *this), m_combo(combo)
    {
        QObject::connect(&combo, &QComboBox::currentIndexChanged, &combo,
                         [&combo](int row) { sayRow(combo, row); });
    }

    [[nodiscard]] int childCount() const override
    {
        return ItemsInterface::childCount() + (m_combo.isEditable() ? 1 : 0);
    }
    [[nodiscard]] QAccessibleInterface* child(int index) const override
    {
        const bool isBox = m_combo.isEditable() && index == ItemsInterface::childCount();
        return isBox ? box() : ItemsInterface::child(index);
    }
    int indexOfChild(const QAccessibleInterface* child) const override
    {
        const bool isBox = m_combo.isEditable() && child == box();
        return isBox ? ItemsInterface::childCount() : ItemsInterface::indexOfChild(child);
    }
    /// The box of an editable list passes the focus to the list.
    [[nodiscard]] QAccessibleInterface* focusChild() const override
    {
        return m_combo.isEditable() ? box() : nullptr;
    }
    [[nodiscard]] QAccessible::State state() const override
    {
        QAccessible::State state = ItemsInterface::state();
        state.editable = m_combo.isEditable();
        state.hasPopup = true;
        return state;
    }
    [[nodiscard]] QString text(QAccessible::Text kind) const override
    {
        return kind == QAccessible::Value ? shown() : ItemsInterface::text(kind);
    }
    [[nodiscard]] QStringList actionNames() const override
    {
        return QStringList{showMenuAction()} + ItemsInterface::actionNames();
    }
    void doAction(const QString& name) override
    {
        if (name == showMenuAction()) {
            m_combo.showPopup();
        } else {
            ItemsInterface::doAction(name);
        }
    }
    void* interface_cast(QAccessible::InterfaceType type) override
    {
        return type == QAccessible::TextInterface ? static_cast<QAccessibleTextInterface*>(this)
                                                  : ItemsInterface::interface_cast(type);
    }

    // The whole text is read; no part of it can be selected.
    void selection(int /*index*/, int* start, int* end) const override { *start = *end = 0; }
    [[nodiscard]] int selectionCount() const override { return 0; }
    void addSelection(int /*start*/, int /*end*/) override {}
    void removeSelection(int /*index*/) override {}
    void setSelection(int /*index*/, int /*start*/, int /*end*/) override {}
    [[nodiscard]] int cursorPosition() const override { return 0; }
    void setCursorPosition(int /*position*/) override {}
    [[nodiscard]] QString text(int start, int end) const override { return shown().mid(start, end - start); }
    [[nodiscard]] int characterCount() const override { return static_cast<int>(shown().size()); }
    [[nodiscard]] QRect characterRect(int /*offset*/) const override { return rect(); }
    [[nodiscard]] int offsetAtPoint(const QPoint& /*point*/) const override { return -1; }
    void scrollToSubstring(int /*start*/, int /*end*/) override {}
    QString attributes(int /*offset*/, int* start, int* end) const override
    {
        *start = 0;
        *end = characterCount();
        return {};
    }

private:
    /// A value without a row shows in grey.
    [[nodiscard]] QString shown() const
    {
        return m_combo.currentIndex() < 0 && !m_combo.isEditable() ? m_combo.placeholderText()
                                                                   : m_combo.currentText();
    }
    [[nodiscard]] QAccessibleInterface* box() const
    {
        return QAccessible::queryAccessibleInterface(m_combo.lineEdit());
    }
    static QString showMenuAction() { return QAccessibleActionInterface::showMenuAction(); }

    QComboBox& m_combo;
};

QAccessibleInterface* makeComboInterface(const QString& /*className*/, QObject* object)
{
    auto* const combo = qobject_cast<QComboBox*>(object);
    return combo ? new ComboInterface(*combo) : nullptr;
}

} // namespace

void speakCombos()
{
    QAccessible::installFactory(makeComboInterface);
}

} // namespace norvane::ui
