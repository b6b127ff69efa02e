// Boxes that measure how long they are open: the log records seconds of work, not of waiting for an answer.
#pragma once

#include "platform/Boxes.h"

#include <QElapsedTimer>

namespace norvane::link
{

/// Passes every call on to other boxes, which must outlive this object.
class TimedBoxes : public Boxes
{
public:
    explicit TimedBoxes(Boxes& boxes) : m_boxes(boxes) {}

    /// Milliseconds during which a box was open, all boxes added up.
    [[nodiscard]] qint64 millisecondsOpen() const { return m_millisecondsOpen; }

    void message(const QString& text, const QString& title, BoxIcon icon) override;
    bool ask(const QString& text, const QString& title, BoxIcon icon, BoxAnswer preset) override;
    std::optional<bool> askBeforeGoingOn(const QString& text, const QString& title) override;
    bool choose(const QString& text, const QString& title, const QString& first,
                const QString& second) override;
    bool confirm(const QString& text, const QString& title) override;
    QString input(const QString& prompt, const QString& title, const QString& initial) override;
    QString fileToOpen(const FileRequest& request) override;
    QString fileToSave(const FileRequest& request) override;
    void beep() override { m_boxes.beep(); }

private:
    /// Shows one box. @return its answer.
    template <typename Show>
    auto timed(Show&& show);

    Boxes& m_boxes;
    qint64 m_millisecondsOpen = 0;
};

} // namespace norvane::link
