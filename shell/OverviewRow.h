// A line of the overview, which opens what it is about.
#pragma once

#include "shell/ShopOverview.h"

#include <QPushButton>

class QLabel;

namespace norvane::shell
{

/// Caption and text in two columns; the text is wrapped. A mark, and a word for screen readers, where the
/// user has something to do.
class OverviewRow : public QPushButton
{
    Q_OBJECT

public:
    OverviewRow(Subject subject, QWidget* parent);

    void setLine(const OverviewLine& line);
    [[nodiscard]] Subject subject() const { return m_subject; }
    /// The width in pixels that the caption needs. Rows look alike when all have the widest one.
    [[nodiscard]] int captionWidth() const;
    void setCaptionWidth(int pixels);
    /// Pixels from the left edge to the text.
    [[nodiscard]] int textPlace() const;

    [[nodiscard]] QSize sizeHint() const override;
    [[nodiscard]] QSize minimumSizeHint() const override;

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    Subject m_subject;
    QLabel* m_mark;
    QLabel* m_caption;
    QLabel* m_text;
};

} // namespace norvane::shell
