// The filter that keeps keys and clicks from the windows, and the offer to end a tool; see ToolWait.h.
#include "link/ToolWait.h"

#include "base/LossQuestion.h"
#include "link/ToolRun.h"

#include <QApplication>
#include <QKeyEvent>
#include <QMdiSubWindow>
#include <QMouseEvent>
#include <QScopeGuard>
#include <QStyle>
#include <QStyleOptionTitleBar>
#include <QWidget>
#include <QWindow>

#include <algorithm>
#include <array>
#include <utility>

using namespace Qt::Literals::StringLiterals;

namespace norvane::link
{
namespace
{

/// What reaches no window while a tool runs. A close is among them: it would ask, or end the run's form.
constexpr std::array blocked{
    QEvent::KeyPress,
    QEvent::KeyRelease,
    QEvent::ShortcutOverride,
    QEvent::Shortcut,
    QEvent::InputMethod,
    QEvent::MouseButtonPress,
    QEvent::MouseButtonRelease,
    QEvent::MouseButtonDblClick,
    QEvent::MouseMove,
    QEvent::Wheel,
    QEvent::ContextMenu,
    QEvent::TouchBegin,
    QEvent::TouchUpdate,
    QEvent::TouchEnd,
    QEvent::TouchCancel,
    QEvent::TabletPress,
    QEvent::TabletMove,
    QEvent::TabletRelease,
    QEvent::DragEnter,
    QEvent::DragMove,
    QEvent::Drop,
    QEvent::Close,
};

/// Those of them that are kept for the form of the run until the tool has ended.
constexpr std::array worthKeeping{
    QEvent::KeyPress,           QEvent::KeyRelease,          QEvent::Shortcut, QEvent::MouseButtonPress,
    QEvent::MouseButtonRelease, QEvent::MouseButtonDblClick, QEvent::Close,
};

template <std::size_t count>
bool holds(const std::array<QEvent::Type, count>& types, QEvent::Type type)
{
    return std::find(types.begin(), types.end(), type) != types.end();
}

/// A key that is down again so soon was held all the time.
constexpr qint64 millisecondsUpBetweenRepeats = 20;

bool isKey(const QEvent& event, Qt::Key key)
{
    return (event.type() == QEvent::KeyPress || event.type() == QEvent::KeyRelease) &&
           static_cast<const QKeyEvent&>(event).key() == key;
}

bool isMouse(const QEvent& event)
{
    return event.type() == QEvent::MouseButtonPress || event.type() == QEvent::MouseButtonRelease ||
           event.type() == QEvent::MouseButtonDblClick;
}

/// The widget of @p window that the event is for.
const QWidget* target(const QWidget& window, const QEvent& event)
{
    if (!isMouse(event))
        return QApplication::focusWidget();
    const QPoint place = static_cast<const QMouseEvent&>(event).position().toPoint();
    return window.childAt(place);
}

/// Whether a mouse event of the window is on the close button of @p form's frame, when it is a child of the
/// main window. The button is drawn and not a widget.
bool isOnCloseButton(const QWidget& form, const QEvent& event)
{
    const auto* const widget = qobject_cast<const QMdiSubWindow*>(form.parentWidget());
    if (widget == nullptr || target(*form.window(), event) != widget)
        return false;
    const QMdiSubWindow& frame = *widget;
    const QPoint place =
        frame.mapFrom(form.window(), static_cast<const QMouseEvent&>(event).position().toPoint());
    QStyleOptionTitleBar bar;
    bar.initFrom(&frame);
    bar.titleBarFlags = frame.windowFlags();
    bar.rect.setHeight(frame.style()->pixelMetric(QStyle::PM_TitleBarHeight, &bar, &frame));
    return frame.style()->hitTestComplexControl(QStyle::CC_TitleBar, &bar, place, &frame) ==
           QStyle::SC_TitleBarCloseButton;
}

} // namespace

bool HeldKey::follow(const QEvent& event)
{
    if (!isKey(event, m_key))
        return false;
    const bool saysSo = static_cast<const QKeyEvent&>(event).isAutoRepeat();
    if (event.type() == QEvent::KeyRelease) {
        if (!saysSo)
            m_up.start();
        return saysSo;
    }
    const bool wasDown =
        m_down.isValid() && (!m_up.isValid() || !m_up.hasExpired(millisecondsUpBetweenRepeats));
    if (!wasDown) {
        m_down.start();
        m_spent = false;
    }
    m_up.invalidate();
    return saysSo || wasDown;
}

bool HeldKey::isHeld(std::chrono::milliseconds atLeast) const
{
    return m_down.isValid() && !m_up.isValid() && !m_spent && m_down.hasExpired(atLeast.count());
}

ToolWait::ToolWait(QWidget* form, Boxes& boxes, std::function<void(const QString& text)> showRunning,
                   ToolPatience patience)
    : m_form(form), m_boxes(boxes), m_showRunning(std::move(showRunning)), m_patience(patience)
{
}

ToolWait::~ToolWait() = default;

void ToolWait::setExit(QWidget* exit, std::function<void(bool leaves)> show)
{
    m_exit = exit;
    m_showLeaving = std::move(show);
}

ChildResult ToolWait::run(const ApplicationValues& values, const QString& commandLine, const QString& folder,
                          ToolWords* words)
{
    const QString tool = commandWords(commandLine).value(0).section(u'/', -1);
    m_shown = std::chrono::seconds(0);
    m_escape.letGo();
    ChildResult result{};
    {
        const auto ended = qScopeGuard([this] {
            qApp->removeEventFilter(this);
            m_showRunning({});
        });
        ChildWatch watch{.goOn = [&](auto running) {
            return goOn(tool, running);
        }};
        if (words != nullptr) {
            watch.output = [words](const QByteArray& bytes) {
                words->add(bytes);
            };
        }
        result = RunAndWait(values, commandLine, watch, folder);
    }
    handOver();
    return result;
}

bool ToolWait::goOn(const QString& tool, std::chrono::milliseconds running)
{
    // Not before the first look: pending events still reach the windows before the tool starts. Installing it
    // again moves it to the front.
    m_modal = QApplication::activeModalWidget();
    qApp->installEventFilter(this);
    showSeconds(running);
    QCoreApplication::processEvents();
    const bool asks = running >= m_patience.hangsAfter && m_escape.isHeld(m_patience.held);
    return !asks || !mayBeEnded(tool, running);
}

void ToolWait::showSeconds(std::chrono::milliseconds running)
{
    const auto seconds = std::chrono::floor<std::chrono::seconds>(running);
    if (seconds == std::exchange(m_shown, seconds))
        return;
    const QString text = u"%1 s"_s.arg(seconds.count());
    m_showRunning(running < m_patience.hangsAfter ? text : text + u" (to end it, hold Escape)"_s);
}

bool ToolWait::mayBeEnded(const QString& tool, std::chrono::milliseconds running)
{
    // This Escape, and those tried before it, are not meant for the form.
    const bool leftBefore = willLeave();
    std::erase_if(m_kept, [](const KeptEvent& kept) { return isKey(*kept.event, Qt::Key_Escape); });
    if (leftBefore && !willLeave())
        m_showLeaving(false);
    m_escape.spend();
    return askBeforeLoss(m_boxes,
                         u"%1 has been running for %2 seconds and may be hanging.\r\r"
                         "Do you want to end it? What it was moving will not be complete."_s.arg(tool)
                             .arg(std::chrono::floor<std::chrono::seconds>(running).count()));
}

bool ToolWait::eventFilter(QObject* watched, QEvent* event)
{
    // A window receives a key first and may pass it on: it counts once.
    const bool repeated = watched->isWindowType() && m_escape.follow(*event);
    // A box that has opened since waits for its answer. The Escape that opened it is still down and must not
    // be that answer.
    if (m_modal != QApplication::activeModalWidget())
        return repeated;
    if (event->type() == QEvent::FocusOut)
        m_escape.letGo();
    if (!holds(blocked, event->type()))
        return false;
    if (!repeated && holds(worthKeeping, event->type()) && belongsToForm(*watched, *event))
        keep(*watched, *event);
    if (isMouse(*event) && m_form != nullptr && m_form->window()->windowHandle() == watched)
        followFrame(*event);
    if (event->type() == QEvent::Close)
        event->ignore();
    return true;
}

/// A window receives keys and clicks first and passes them to the widget concerned.
bool ToolWait::belongsToForm(const QObject& receiver, const QEvent& event) const
{
    if (m_form == nullptr)
        return false;
    const auto inForm = [this](const QObject* widget) {
        for (const QObject* each = widget; each != nullptr; each = each->parent()) {
            if (each == m_form)
                return true;
        }
        return false;
    };
    if (!receiver.isWindowType())
        return inForm(&receiver);
    const bool ownWindow = m_form->window()->windowHandle() == &receiver;
    if (event.type() == QEvent::Close)
        return ownWindow && m_form->isWindow();
    return ownWindow && inForm(target(*m_form->window(), event));
}

void ToolWait::keep(QObject& receiver, const QEvent& event)
{
    const QObject* const aim = receiver.isWindowType() ? target(*m_form->window(), event) : &receiver;
    m_kept.push_back({&receiver, aim, std::unique_ptr<QEvent>(event.clone())});
    if (leaves(m_kept.back()))
        m_showLeaving(true);
}

/// A click on the close button of the form's frame closes the form; the frame itself would need the moves of
/// the mouse as well.
void ToolWait::followFrame(const QEvent& event)
{
    const bool isOnButton = isOnCloseButton(*m_form, event);
    const bool isReleased = event.type() == QEvent::MouseButtonRelease;
    if (isReleased && isOnButton && m_closesFrame)
        keep(*m_form, QCloseEvent());
    m_closesFrame = isOnButton && !isReleased;
}

bool ToolWait::willLeave() const
{
    return std::ranges::any_of(m_kept, [this](const KeptEvent& kept) { return leaves(kept); });
}

/// What the form takes as leaving it once it gets the event.
bool ToolWait::leaves(const KeptEvent& kept) const
{
    const QEvent::Type type = kept.event->type();
    if (type == QEvent::Close || (type == QEvent::KeyPress && isKey(*kept.event, Qt::Key_Escape)))
        return true;
    const bool presses = type == QEvent::MouseButtonRelease || type == QEvent::Shortcut ||
                         (type == QEvent::KeyRelease && isKey(*kept.event, Qt::Key_Space));
    return presses && m_exit != nullptr && kept.target == m_exit;
}

/// The form shows by itself that it is being left. A click that was drawn off the button does not leave it.
void ToolWait::handOver()
{
    if (willLeave())
        m_showLeaving(false);
    for (const KeptEvent& kept : std::exchange(m_kept, {})) {
        if (kept.receiver)
            QCoreApplication::sendEvent(kept.receiver, kept.event.get());
    }
}

} // namespace norvane::link
