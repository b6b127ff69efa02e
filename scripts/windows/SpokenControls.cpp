// Goes through the interfaces that the accessibility bus provides; see SpokenControls.h.
#include "scripts/windows/SpokenControls.h"

#include <QAccessible>
#include <QtWidgets>

using namespace Qt::Literals::StringLiterals;

namespace norvane::windows
{
namespace
{

constexpr int rowsRead = 3;

/// What a control holds on the screen.
QString shownIn(const QObject* control)
{
    if (const auto* const box = qobject_cast<const QLineEdit*>(control))
        return box->displayText();
    if (const auto* const page = qobject_cast<const QPlainTextEdit*>(control))
        return page->toPlainText();
    if (const auto* const spin = qobject_cast<const QDoubleSpinBox*>(control))
        return spin->cleanText();
    if (const auto* const spin = qobject_cast<const QSpinBox*>(control))
        return spin->cleanText();
    if (const auto* const day = qobject_cast<const QDateTimeEdit*>(control))
        return day->text();
    if (const auto* const list = qobject_cast<const QComboBox*>(control)) {
        return list->currentIndex() < 0 && !list->isEditable() ? list->placeholderText()
                                                               : list->currentText();
    }
    return {};
}

class Reader
{
public:
    void readBelow(QAccessibleInterface& whole)
    {
        for (int place = 0; place < whole.childCount(); ++place) {
            QAccessibleInterface* const child = whole.child(place);
            if (child == nullptr || child->state().invisible)
                continue;
            if (isControl(*child))
                readControl(*child);
            if (child->tableInterface() != nullptr) {
                readCells(*child);
            } else {
                readBelow(*child);
            }
        }
    }
    [[nodiscard]] const QStringList& faults() const { return m_faults; }

private:
    /// Some buttons are for the mouse and for readers only. The parts of a control have no names of their
    /// own.
    static bool isControl(const QAccessibleInterface& control)
    {
        const auto* const widget = qobject_cast<const QWidget*>(control.object());
        const bool isPart = widget == nullptr || widget->parentWidget() == nullptr ||
                            qobject_cast<const QAbstractSpinBox*>(widget->parentWidget()) ||
                            qobject_cast<const QComboBox*>(widget->parentWidget());
        return !isPart && (control.state().focusable || qobject_cast<const QAbstractButton*>(widget));
    }

    void readControl(QAccessibleInterface& control)
    {
        const auto& widget = *static_cast<const QWidget*>(control.object());
        checkName(control, widget.objectName());
        const QAccessible::Role role = control.role();
        check(role != QAccessible::NoRole && role != QAccessible::Client, control, u"has no role"_s);
        check(widget.isEnabled() != bool(control.state().disabled), control, u"reports another state"_s);
        if (const auto* const button = qobject_cast<const QAbstractButton*>(&widget))
            check(button->isChecked() == bool(control.state().checked), control, u"reports another tick"_s);
        check(control.tableInterface() || control.text(QAccessible::Value) == shownIn(&widget), control,
              u"reports another value"_s);
    }

    static bool isCaption(const QAccessibleInterface& control, const QString& name)
    {
        const auto* const button = qobject_cast<const QAbstractButton*>(control.object());
        return button && button->text().remove(u'&') == name;
    }

    void checkName(QAccessibleInterface& control, const QString& objectName)
    {
        const QString name = control.text(QAccessible::Name).trimmed();
        check(!name.isEmpty(), control, u"has no name"_s);
        check(name.isEmpty() || name != objectName || isCaption(control, name), control,
              u"has an internal name"_s);
        check(name.isEmpty() || !m_names.contains({control.role(), name}), control,
              u"has the name of another"_s);
        m_names.insert({control.role(), name});
    }

    void readCells(QAccessibleInterface& table)
    {
        QAccessibleTableInterface& cells = *table.tableInterface();
        for (int row = 0; row < qMin(rowsRead, cells.rowCount()); ++row) {
            for (int column = 0; column < cells.columnCount(); ++column) {
                QAccessibleInterface* const cell = cells.cellAt(row, column);
                check(cell != nullptr && cell->tableCellInterface() != nullptr, table, u"has no cell"_s);
            }
        }
    }

    void check(bool holds, QAccessibleInterface& control, const QString& fault)
    {
        if (!holds) {
            m_faults += u"%1 \"%2\" (%3) %4"_s.arg(QLatin1String(qAccessibleRoleString(control.role())),
                                                   control.text(QAccessible::Name),
                                                   control.object()->objectName(), fault);
        }
    }

    QSet<std::pair<int, QString>> m_names;
    QStringList m_faults;
};

} // namespace

QStringList unspokenControls(QWidget& window)
{
    Reader reader;
    reader.readBelow(*QAccessible::queryAccessibleInterface(&window));
    return reader.faults();
}

} // namespace norvane::windows
