// F1 in every window.
#pragma once

#include <QObject>

namespace norvane
{
class Boxes;
}

namespace norvane::shell
{

/// Opens the user guide on F1, at the chapter of the form with the focus. One object for the application; it
/// watches the application's events, because a shortcut would not reach modal forms.
class HelpKey : public QObject
{
    Q_OBJECT

public:
    /// @param guide path of the HTML file. A file that is missing is reported when F1 is pressed.
    HelpKey(QString guide, Boxes& boxes);

    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void showGuide(QWidget& window, const QString& anchor);

    QString m_guide;
    Boxes& m_boxes;
};

} // namespace norvane::shell
