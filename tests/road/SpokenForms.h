// Reads a form as a screen reader does and notes what it could not say.
#pragma once

#include <QAccessible>
#include <QStringList>

namespace norvane::test
{

/// Goes through the interfaces that the accessibility bus hands on, in the process: thousands of controls
/// would take minutes over the bus.
class SpokenForms
{
public:
    /// Reads all that is in view of @p form.
    void read(QWidget& form);
    /// One line for each control and what is wrong with it.
    [[nodiscard]] const QStringList& complaints() const { return m_complaints; }
    [[nodiscard]] int controlsRead() const { return m_read; }

private:
    void readBelow(QAccessibleInterface& whole);
    void readControl(QAccessibleInterface& control);
    void readCells(QAccessibleInterface& table);
    void check(bool holds, QAccessibleInterface& control, const char* complaint);

    QString m_form;
    QStringList m_complaints;
    int m_read = 0;
};

} // namespace norvane::test
