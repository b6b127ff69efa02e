// See TimedBoxes.h.
#include "link/TimedBoxes.h"

#include <QScopeGuard>

namespace norvane::link
{

template <typename Show>
auto TimedBoxes::timed(Show&& show)
{
    QElapsedTimer timer;
    timer.start();
    const auto closed = qScopeGuard([&] { m_millisecondsOpen += timer.elapsed(); });
    return show();
}

void TimedBoxes::message(const QString& text, const QString& title, BoxIcon icon)
{
    timed([&] { m_boxes.message(text, title, icon); });
}

bool TimedBoxes::ask(const QString& text, const QString& title, BoxIcon icon, BoxAnswer preset)
{
    return timed([&] { return m_boxes.ask(text, title, icon, preset); });
}

std::optional<bool> TimedBoxes::askBeforeGoingOn(const QString& text, const QString& title)
{
    return timed([&] { return m_boxes.askBeforeGoingOn(text, title); });
}

bool TimedBoxes::choose(const QString& text, const QString& title, const QString& first,
                        const QString& second)
{
    return timed([&] { return m_boxes.choose(text, title, first, second); });
}

bool TimedBoxes::confirm(const QString& text, const QString& title)
{
    return timed([&] { return m_boxes.confirm(text, title); });
}

QString TimedBoxes::input(const QString& prompt, const QString& title, const QString& initial)
{
    return timed([&] { return m_boxes.input(prompt, title, initial); });
}

QString TimedBoxes::fileToOpen(const FileRequest& request)
{
    return timed([&] { return m_boxes.fileToOpen(request); });
}

QString TimedBoxes::fileToSave(const FileRequest& request)
{
    return timed([&] { return m_boxes.fileToSave(request); });
}

} // namespace norvane::link
