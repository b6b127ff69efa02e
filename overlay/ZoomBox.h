// The size of the keyboard on the screen.
#pragma once

#include <QComboBox>

namespace norvane::overlay
{

class KeyboardView;

/// The list of sizes in the tool bar; Ctrl and +, - or 0 choose from it too.
class ZoomBox : public QComboBox
{
    Q_OBJECT

public:
    /// @p keyboard must outlive this. @param form in which the keys work.
    ZoomBox(KeyboardView& keyboard, QWidget* form);

    void zoomIn();
    /// Below the smallest size is what fits the window.
    void zoomOut();

private:
    KeyboardView& m_keyboard;
};

} // namespace norvane::overlay
