// Keeps the windows painted while a report is made or a file imported, and lets the user cancel it.
#pragma once

#include "ui/EventTurns.h"
#include "ui/WaitPointer.h"

#include <QProgressDialog>

#include <chrono>
#include <memory>

class QStatusBar;

namespace norvane::reports
{

/// Shows the wait pointer and, once the work takes noticeably long, a box with a cancel button that blocks
/// all other windows. Until the box is there clicks and keys wait, so that a form cannot close while its
/// report runs.
class RunProgress
{
public:
    /// @param window the window below the box. @param work, title the texts of the box.
    RunProgress(QWidget& window, QString work, QString title = QStringLiteral("Report"));
    ~RunProgress();
    RunProgress(const RunProgress&) = delete;
    RunProgress& operator=(const RunProgress&) = delete;

    /// For the work to call now and then. @return false once the user cancelled.
    [[nodiscard]] bool goOn();
    /// Names a step in the main window's status bar and in the box.
    void showStep(const QString& step);
    [[nodiscard]] bool isCancelled() const { return m_isCancelled; }

private:
    void handleEvents();
    void showBox();

    [[nodiscard]] QStatusBar* statusBar() const;

    QWidget& m_window;
    QString m_work;
    QString m_title;
    QString m_step;
    ui::WaitPointer m_pointer;
    std::chrono::steady_clock::time_point m_boxTime;
    ui::EventTurns m_turns{ui::EventTurns::between};
    std::unique_ptr<QProgressDialog> m_box;
    bool m_isCancelled = false;
};

} // namespace norvane::reports
