// The colours used last, one click away.
#pragma once

#include <QColor>
#include <QWidget>

#include <array>

class QToolButton;

namespace norvane::overlay
{

/// Eight fields, the colour used last first. A click, or the space bar, takes a field's colour as background,
/// with the right button or Shift as text colour. Fields without a colour cannot be chosen.
class ColourStrip : public QWidget
{
    Q_OBJECT

public:
    explicit ColourStrip(QWidget* parent = nullptr);
    /// Puts @p colour first; one that is there already moves.
    void remember(const QColor& colour);

Q_SIGNALS:
    void backgroundChosen(const QColor& colour);
    void textColourChosen(const QColor& colour);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void choose(const QToolButton& field, bool forText);
    void showColours();

    std::array<QToolButton*, 8> m_fields{};
    QList<QColor> m_colours;
};

} // namespace norvane::overlay
