// Reads a form as a screen reader does and notes what it could not say.
#pragma once

#include <QtWidgets>

namespace norvane::test
{

using namespace Qt::Literals::StringLiterals;

/// Goes through the interfaces that the accessibility bus hands on, in the process: thousands of controls
/// would take minutes over the bus.
class SpokenForms
{
public:
    /// Reads all that is in view of @p form.
    void read(QWidget& form)
    {
        m_form = form.windowTitle();
        readBelow(*QAccessible::queryAccessibleInterface(&form));
    }
    /// One line for each control and what is wrong with it.
    [[nodiscard]] const QStringList& complaints() const { return m_complaints; }
    [[nodiscard]] int controlsRead() const { return m_read; }

private:
    static constexpr int rowsRead = 3;

    /// By what a user knows it: the text of its label, or what it is described as.
    static QString wordsOf(QAccessibleInterface& control)
    {
        for (const auto& [label, relation] : control.relations(QAccessible::Label)) {
            if (relation.testFlag(QAccessible::Label) && !label->text(QAccessible::Name).isEmpty())
                return label->text(QAccessible::Name);
        }
        return control.text(QAccessible::Description);
    }

    /// What a control holds on the screen.
    static QString shownIn(const QObject* control)
    {
        if (const auto* const box = qobject_cast<const QLineEdit*>(control))
            return box->displayText();
        if (const auto* const list = qobject_cast<const QComboBox*>(control))
            return list->currentIndex() < 0 ? list->placeholderText() : list->currentText();
        return {};
    }

    static bool isGeneric(QAccessible::Role role)
    {
        return role == QAccessible::NoRole || role == QAccessible::Client;
    }

    void readBelow(QAccessibleInterface& whole)
    {
        for (int place = 0; place < whole.childCount(); ++place) {
            QAccessibleInterface* const child = whole.child(place);
            if (child == nullptr || child->state().invisible)
                continue;
            if (child->state().focusable)
                readControl(*child);
            if (child->tableInterface() != nullptr) {
                readCells(*child);
            } else {
                readBelow(*child);
            }
        }
    }
    void readControl(QAccessibleInterface& control)
    {
        ++m_read;
        check(!control.text(QAccessible::Name).isEmpty(), control, "has no name");
        check(!wordsOf(control).isEmpty(), control, "says nothing to a user");
        check(!isGeneric(control.role()), control, "has no role");
        const QObject* const shown = control.object();
        if (const auto* const widget = qobject_cast<const QWidget*>(shown)) {
            check(widget->isEnabled() != bool(control.state().disabled), control,
                  "tells wrongly whether it can be used");
        }
        if (const auto* const button = qobject_cast<const QAbstractButton*>(shown))
            check(button->isChecked() == bool(control.state().checked), control, "tells another tick");
        const bool holdsText = control.tableInterface() == nullptr;
        check(!holdsText || control.text(QAccessible::Value) == shownIn(shown), control,
              "tells another value");
    }
    void readCells(QAccessibleInterface& table)
    {
        QAccessibleTableInterface& cells = *table.tableInterface();
        for (int row = 0; row < qMin(rowsRead, cells.rowCount()); ++row) {
            for (int column = 0; column < cells.columnCount(); ++column) {
                QAccessibleInterface* const cell = cells.cellAt(row, column);
                check(cell != nullptr && cell->tableCellInterface() != nullptr, table, "has no cell");
            }
        }
    }
    void check(bool holds, QAccessibleInterface& control, const char* complaint)
    {
        if (holds)
            return;
        const char* const role = qAccessibleRoleString(control.role());
        m_complaints +=
            u"%1: %2 %3 \"%4\" %5"_s.arg(m_form, QLatin1String(role), control.text(QAccessible::Name),
                                         control.text(QAccessible::Value), QLatin1String(complaint));
    }

    QString m_form;
    QStringList m_complaints;
    int m_read = 0;
};

} // namespace norvane::test
