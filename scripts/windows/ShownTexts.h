// The texts of a window with the room that each needs and has.
#pragma once

#include <QRect>
#include <QString>
#include <QVector>

class QWidget;

namespace norvane::windows
{

struct ShownText {
    const QWidget* control;
    QString text;
    QRect room;    ///< what the style leaves the text, in the control's coordinates
    QSize need;    ///< of the text, or of the longest possible one; empty where the toolkit ensures it
    QRect letters; ///< position of the current text, in the control's coordinates
};

/// All texts in view of @p window and of the controls in it.
[[nodiscard]] QVector<ShownText> shownTexts(const QWidget& window);

} // namespace norvane::windows
