// Keeps a tool window in front of the form that it works on.
#pragma once

#include <QObject>

class QWidget;

namespace norvane::ui
{

/// Some window managers put a modal form in front of its own tool windows whenever the user clicks into the
/// form, where a list of hits would be lost. The tool window comes back in front, without the focus.
class KeptInFront : public QObject
{
    Q_OBJECT

public:
    /// @param window a tool window that does not block its parent's window; it owns this object.
    explicit KeptInFront(QWidget& window);

    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    QWidget& m_window;
};

} // namespace norvane::ui
