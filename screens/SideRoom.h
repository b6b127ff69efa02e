// Makes room beside a screen for a list that opens there.
#pragma once

class QWidget;

namespace norvane::screens
{

/// Widens a form, or the frame around it in the main window, and narrows it again by as much.
class SideRoom
{
public:
    explicit SideRoom(QWidget& form) : m_form(form) {}

    /// Makes the form @p pixels wider, as far as there is room. A negative number makes it as narrow as
    /// before. A maximized form is unchanged.
    void widen(int pixels);

private:
    QWidget& m_form;
    int m_widened = 0;
};

} // namespace norvane::screens
