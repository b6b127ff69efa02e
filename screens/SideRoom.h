// Room beside a screen for what is unfolded there.
#pragma once

class QWidget;

namespace norvane::screens
{

/// Grows a form, or the frame around it in the main window, and shrinks it by as much again.
class SideRoom
{
public:
    explicit SideRoom(QWidget& form) : m_form(form) {}

    /// Makes the form so many pixels wider, as far as there is room; with a negative number, as narrow as it
    /// was. A maximized form has its width already.
    void widen(int pixels);

private:
    QWidget& m_form;
    int m_widened = 0;
};

} // namespace norvane::screens
