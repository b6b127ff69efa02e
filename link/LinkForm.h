// What the exchange dialog and the sales collection share: the run's button, the exit, the status bar, and
// the modem around a run.
#pragma once

#include "base/ApplicationValues.h"
#include "link/Clock.h"
#include "link/LinkSettings.h"
#include "link/Modem.h"
#include "link/RunOutside.h"
#include "link/TimedBoxes.h"
#include "link/ToolWait.h"
#include "link/ToolWords.h"
#include "platform/SerialLine.h"
#include "ui/WaitPointer.h"

#include <QDialog>
#include <QElapsedTimer>

#include <functional>
#include <memory>
#include <optional>

class QHBoxLayout;
class QPushButton;

namespace norvane::customers
{
class RunLock;
}

namespace norvane::ui
{
class StatusLine;
}

namespace norvane::link
{

class RunReport;

/// Base of the forms that speak with the registers. A run handles events while the modem waits and once
/// before each tool, so that the user can leave. While a tool runs the window is painted, but keys and clicks
/// wait.
class LinkForm : public QDialog
{
    Q_OBJECT

public:
    /// Replace the machine's serial line and clock; before the first run.
    void setSerialLine(std::unique_ptr<SerialLine> line);
    void setClock(std::unique_ptr<Clock> clock);

public Q_SLOTS:
    /// The "E&xit" button, Escape and the window's close button: hangs up a modem and leaves, even while it
    /// dials. While tools are at work, leaving takes effect after the current step; the status bar says so
    /// immediately.
    void reject() override;

Q_SIGNALS:
    /// A run has ended, however it ended; it may have changed any table.
    void runEnded();

protected:
    /// @p name becomes the form's object name, @p runCaption is the caption of the button Communicate.
    LinkForm(const char* name, const char* runCaption, const ApplicationValues& values, Boxes& boxes,
             QWidget* parent);
    ~LinkForm() override;

    /// Makes a button; layOut() places it.
    [[nodiscard]] QPushButton* addButton(const char* name, const char* caption);
    /// The same for a button that calls runAs(). It cannot be pressed during a run.
    [[nodiscard]] QPushButton* addRunButton(const char* name, const char* caption);
    /// Puts @p content above a row of buttons, @p others before Communicate and Exit, and below the
    /// status bar and, while there is one, the report of the run. The form has the size that these need.
    void layOut(QLayout* content, const QList<QPushButton*>& others = {});

    /// Asked at a press of Communicate, before everything else.
    [[nodiscard]] virtual bool mayStart() = 0;
    /// One press of Communicate.
    virtual void run() = 0;
    /// Does @p work as a run, under the lock and with the exit as in run(). @return whether it was done and
    /// the form remains open.
    bool runAs(const std::function<void()>& work);
    /// Shown when the user leaves while tools are at work.
    [[nodiscard]] virtual QString leavingNotice() const = 0;

    /// Sets up the serial line, shows the wait pointer, and dials when @p link is a modem.
    /// @return 0 when the registers can be reached, modemFailed when the dialling failed. A user who left
    /// while it dialled has hung up already; see exitPressed().
    [[nodiscard]] int connectLink(const LinkSettings& link);
    /// Hangs up a modem; nothing on a direct line.
    void disconnectLink();
    /// Hangs up unless that was done since the last connectLink().
    void hangUp();
    /// Lets other runs start, unless a modem is still connected. Call it before a box that ends the run: the
    /// user may be away.
    void endBeforeLastBox();
    [[nodiscard]] bool exitPressed() const { return m_exitPressed; }

    /// The outside of a run that shows its steps in this form; the form must outlive it.
    /// @param folder in which the tools work; empty for the working directory
    [[nodiscard]] RunOutside outside(const QString& folder = {});

    const ApplicationValues& m_values;
    Boxes& m_boxes;
    QPushButton* Communicate = nullptr;
    QPushButton* CSCmdBtn1 = nullptr;
    ui::StatusLine* StatusBar1 = nullptr;

private:
    [[nodiscard]] QHBoxLayout* buttonRow(const QList<QPushButton*>& others) const;
    void tabToButtonsLast(const QList<QPushButton*>& others);
    void communicate();
    [[nodiscard]] bool takeLock();
    void showStep(const QString& text);
    [[nodiscard]] ChildResult runTool(const QString& commandLine, const QString& folder);
    void fitFrame();
    void showProgress();
    void beginRun();
    [[nodiscard]] bool endRun();
    void enableRuns(bool enabled);
    [[nodiscard]] int dial();
    void leave();

    TimedBoxes m_timedBoxes; ///< of a run
    ToolWait m_tool;
    ToolWords m_words; ///< of the last tool
    QString m_step;    ///< as the status bar shows it
    RunReport* m_report = nullptr;
    RunProgress m_progress;
    QElapsedTimer m_sinceProgress;
    std::unique_ptr<SerialLine> m_line;
    std::unique_ptr<Clock> m_clock;
    std::unique_ptr<Modem> m_modem;
    LinkSettings m_link;              ///< of the last run
    QList<QPushButton*> m_runButtons; ///< begin a run
    bool m_isConnected = false;
    std::unique_ptr<customers::RunLock> m_lock; ///< while a run works
    /// What a run is busy with.
    enum class Work { None, Preparing, Dialling, Moving };
    Work m_work = Work::None;
    bool m_exitPressed = false; ///< since the run began
    std::optional<ui::WaitPointer> m_waitPointer;
};

} // namespace norvane::link
