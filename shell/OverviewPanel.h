// The overview of a shop as the main window shows it below its child windows.
#pragma once

#include "shell/ShopOverview.h"

#include <QFrame>
#include <QList>

class QBoxLayout;
class QLabel;
class QScrollArea;
class QToolButton;

namespace norvane::shell
{

class OverviewRow;
class TakingsBars;

/// Shows one overview: a heading, a button for each line, bars. It reads nothing itself.
class OverviewPanel : public QFrame
{
    Q_OBJECT

public:
    explicit OverviewPanel(QWidget* parent);

    /// Replaces what is shown; the focus remains where it is.
    void setOverview(const ShopOverview& overview);
    /// Whether Tab leads to the lines. While a child window is open they take no focus from it.
    void setReachedByTab(bool isReached);
    /// The size that shows everything, in pixels. With less height the lines scroll.
    [[nodiscard]] QSize wantedSize() const;

Q_SIGNALS:
    /// The user has pressed the line.
    void chosen(norvane::shell::Subject subject);
    /// The user does not want to see the panel.
    void hidden();

private:
    [[nodiscard]] QLayout* makeHeading();
    [[nodiscard]] OverviewRow& rowOf(Subject subject);
    void lineUp();

    QLabel* m_heading;
    QToolButton* m_hide;
    QScrollArea* m_area;
    QBoxLayout* m_lines;
    QList<OverviewRow*> m_rows;
    TakingsBars* m_bars;
    bool m_isReachedByTab = true;
};

} // namespace norvane::shell
