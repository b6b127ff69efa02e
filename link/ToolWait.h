// Waiting for a tool while windows are open.
#pragma once

#include "base/ApplicationValues.h"
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

/// Runs tools one after another. Meanwhile the windows are painted but get neither keys nor clicks. Only what
/// the user does in the form of the run is kept, and reaches it as soon as the tool has ended, so that Exit
/// works. A tool that may be hanging can be ended.
class ToolWait : public QObject
{
    Q_OBJECT

public:
    /// @param form of the run, nullptr when it has none; must outlive this object
    /// @param showRunning shows how long the tool has been running; gets empty text when it has ended
    ToolWait(QWidget* form, Boxes& boxes, std::function<void(const QString& text)> showRunning);
    ~ToolWait() override;

    void setPatience(const ToolPatience& patience) { m_patience = patience; }

    /// Lets pending events run once, then runs the tool. @return Crashed, too, when the user ended it.
    [[nodiscard]] ChildResult run(const ApplicationValues& values, const QString& commandLine);

    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    struct KeptEvent {
        QPointer<QObject> receiver;
        std::unique_ptr<QEvent> event;
    };

    [[nodiscard]] bool goOn(const QString& tool, std::chrono::milliseconds running);
    void showSeconds(std::chrono::milliseconds running);
    [[nodiscard]] bool mayBeEnded(const QString& tool, std::chrono::milliseconds running);
    void followEscape(const QEvent& event);
    [[nodiscard]] bool belongsToForm(const QObject& receiver, const QEvent& event) const;
    void keep(QObject& receiver, const QEvent& event);
    void handOver();

    QWidget* m_form;
    Boxes& m_boxes;
    std::function<void(const QString& text)> m_showRunning;
    ToolPatience m_patience;
    std::chrono::seconds m_shown{0};
    QElapsedTimer m_escape;    ///< since it went down; invalid while it is up
    QPointer<QWidget> m_modal; ///< the window that takes all input, if any
    std::vector<KeptEvent> m_kept;
};

} // namespace norvane::link
