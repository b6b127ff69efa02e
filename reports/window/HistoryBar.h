// The row above a report that was opened from a line of another one.
#pragma once

#include <QWidget>

class QLabel;
class QPushButton;

namespace norvane::reports
{

class PreviewHistory;

/// Back, forward, and the way to the report that is shown. Hidden until there is a way.
class HistoryBar : public QWidget
{
    Q_OBJECT

public:
    explicit HistoryBar(QWidget* parent);

    /// @param isOpening a report is being made that follows the current one, and back cancels it
    void showHistory(const PreviewHistory& history, bool isOpening);

Q_SIGNALS:
    void goWanted(int steps); ///< -1 back, 1 forward

private:
    QPushButton* makeButton(const QString& name, const QString& caption, const QString& key, int steps);

    QPushButton* m_back;
    QPushButton* m_forward;
    QLabel* m_path;
};

} // namespace norvane::reports
