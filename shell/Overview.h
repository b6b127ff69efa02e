// Keeps the overview in the main window: where it is, when it is read again, whether it is shown.
#pragma once

#include "shell/OverviewMemory.h"
#include "shell/OverviewPanel.h"
#include "shell/UnsentWatch.h"

#include <QObject>
#include <QPointer>
#include <QTimer>

#include <functional>

namespace norvane::shell
{

class FrmMain;

/// The panel is on the background of the main window, below all child windows, and is none of them. It is
/// read again after a change of customer, after menu entries and runs, when child windows come and go, and
/// when the main window comes to the front. The user hides it with its button; the context menu of the
/// background shows it again.
class Overview : public QObject
{
    Q_OBJECT

public:
    /// Created for the lifetime of @p main. The values must outlive it. @param now gives the moment of a
    /// reading.
    Overview(FrmMain& main, const ApplicationValues& values, OverviewMemory memory,
             std::function<QDateTime()> now = &QDateTime::currentDateTime);

    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void readSoon();
    void read();
    [[nodiscard]] bool mayRead() const;
    void place();
    void followWindows();
    void setShown(bool isShown);
    [[nodiscard]] bool showMenu(const QContextMenuEvent& event);
    [[nodiscard]] bool isBackground(QPoint place) const;
    void open(Subject subject);

    FrmMain& m_main;
    const ApplicationValues& m_values;
    OverviewMemory m_memory;
    std::function<QDateTime()> m_now;
    QPointer<OverviewPanel> m_panel; ///< its window may go first
    UnsentWatch* m_unsent;
    QString m_shownCustomer; ///< whose overview the panel has; its folder
    QTimer m_soon;
    QTimer m_retry;
};

} // namespace norvane::shell
