// Waiting for a tool while windows are open.
#pragma once

#include "base/ApplicationValues.h"
#include "link/ToolWords.h"
#include "platform/Boxes.h"
#include "platform/ChildProcess.h"

#include <QElapsedTimer>
#include <QObject>
#include <QPointer>

#include <chrono>
#include <functional>
#include <memory>
#include <vector>

class QWidget;

namespace norvane::link
{

/// When a tool may be hanging, and how long Escape is held to be asked about it.
struct ToolPatience {
    std::chrono::milliseconds hangsAfter = std::chrono::seconds(30);
    std::chrono::milliseconds held = std::chrono::seconds(2);
};

/// How long a key has been held. Some systems report a held key as going up and down again and again, and do
/// not always say that it is held.
class HeldKey
{
public:
    explicit HeldKey(Qt::Key key) : m_key(key) {}

    /// @return whether @p event only repeats that the key is down
    bool follow(const QEvent& event);
    [[nodiscard]] bool isHeld(std::chrono::milliseconds atLeast) const;
    /// It counts as held only after it was pressed again.
    void spend() { m_spent = true; }
    void letGo() { m_down.invalidate(); }

private:
    Qt::Key m_key;
    QElapsedTimer m_down;
    QElapsedTimer m_up; ///< since the last report that it went up, invalid after one that it went down
    bool m_spent = false;
};

/// Runs tools one after another. Meanwhile the windows are painted but receive neither keys nor clicks. Only
/// input to the form of the run is kept and delivered when the tool has ended, so that Exit works. A tool
/// that may be hanging can be ended.
class ToolWait : public QObject
{
    Q_OBJECT

public:
    /// @param form of the run, nullptr when it has none; must outlive this object
    /// @param showRunning shows how long the tool has been running; gets empty text when it has ended
    ToolWait(QWidget* form, Boxes& boxes, std::function<void(const QString& text)> showRunning,
             ToolPatience patience = {});
    ~ToolWait() override;

    /// @param exit the form's button that leaves it; @param show is called at once with whether the form
    /// will close when the running tool ends, because of what the user did meanwhile.
    void setExit(QWidget* exit, std::function<void(bool leaves)> show);

    /// Lets pending events run once, then runs the tool in @p folder, or else in the working directory.
    /// @param words gets what the tool says; nullptr leaves it to the terminal, if there is one
    /// @return Crashed, too, when the user ended it.
    [[nodiscard]] ChildResult run(const ApplicationValues& values, const QString& commandLine,
                                  const QString& folder = {}, ToolWords* words = nullptr);

    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    struct KeptEvent {
        QPointer<QObject> receiver;
        QPointer<const QObject> target; ///< the widget of the form that it is for
        std::unique_ptr<QEvent> event;
    };

    [[nodiscard]] bool goOn(const QString& tool, std::chrono::milliseconds running);
    void showSeconds(std::chrono::milliseconds running);
    [[nodiscard]] bool mayBeEnded(const QString& tool, std::chrono::milliseconds running);
    [[nodiscard]] bool belongsToForm(const QObject& receiver, const QEvent& event) const;
    void keep(QObject& receiver, const QEvent& event);
    void followFrame(const QEvent& event);
    [[nodiscard]] bool willLeave() const;
    [[nodiscard]] bool leaves(const KeptEvent& kept) const;
    void handOver();

    QWidget* m_form;
    Boxes& m_boxes;
    std::function<void(const QString& text)> m_showRunning;
    QWidget* m_exit = nullptr;
    std::function<void(bool leaves)> m_showLeaving = [](bool) {
    };
    ToolPatience m_patience;
    std::chrono::seconds m_shown{0};
    HeldKey m_escape{Qt::Key_Escape};
    QPointer<QWidget> m_modal; ///< the window that takes all input, if any
    std::vector<KeptEvent> m_kept;
    bool m_closesFrame = false; ///< the mouse went down on the close button of the form's frame
};

} // namespace norvane::link
