// The status line of a form.
#pragma once

#include <QStatusBar>

class QLabel;

namespace norvane::ui
{

/// Shows, side by side, the current step of longer work, its running time, the result of a run, and a notice
/// that remains until it is replaced. An empty text takes the former one away. Screen readers say result and
/// notice.
class StatusLine : public QStatusBar
{
    Q_OBJECT

public:
    explicit StatusLine(QWidget* parent = nullptr);

    void setStep(const QString& text);
    void setRunning(const QString& text);
    void setResult(const QString& text);
    /// How far the work is, at the right edge. Hidden while the other texts need the room.
    void setProgress(const QString& text);
    void setNotice(const QString& text);

private:
    void showAll();

    QLabel* m_progress;
    QString m_step;
    QString m_running;
    QString m_result;
    QString m_notice;
};

} // namespace norvane::ui
