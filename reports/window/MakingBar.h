// The row above a report while the next one is made.
#pragma once

#include "reports/window/BackgroundRun.h"

#include <QTimer>
#include <QWidget>

class QLabel;
class QPushButton;

namespace norvane::reports
{

/// Makes one report at a time while the window is used. The row is seen when a report takes long, with its
/// steps and a button that cancels it.
class MakingBar : public QWidget
{
    Q_OBJECT

public:
    /// Gets the run that has ended and takes its report, which may throw what the runner has thrown.
    using Take = std::function<void(BackgroundRun& run)>;

    explicit MakingBar(QWidget* parent);

    /// Makes the report of @p request and passes it to @p take, before it returns if that takes no longer
    /// than a moment. A report that is being made is cancelled. @param text says what is being made.
    void make(const Runner& runner, ReportRequest request, const QString& text, Take take);
    [[nodiscard]] bool isMaking() const { return m_run != nullptr; }
    /// @return whether a report was being made.
    bool cancel();

Q_SIGNALS:
    void cancelWanted();

private:
    void finish();
    void showStep(const QString& step);
    void open();

    BackgroundRun* m_run = nullptr;
    Take m_take;
    QString m_text;
    QTimer m_opening;
    QLabel* m_step;
    QPushButton* m_cancel;
};

} // namespace norvane::reports
