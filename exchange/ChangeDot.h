// The dot beside a box of the exchange dialog.
#pragma once

#include <QWidget>

namespace norvane::exchange
{

/// Filled for what was not sent, a ring for what some registers may have; takes its place without a mark,
/// too. What it means is said by its tip and by the box.
class ChangeDot : public QWidget
{
public:
    enum class Mark { None, Filled, Ring };

    explicit ChangeDot(QWidget* parent = nullptr);
    void setMark(Mark mark);
    [[nodiscard]] Mark mark() const { return m_mark; }

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    Mark m_mark = Mark::None;
};

} // namespace norvane::exchange
