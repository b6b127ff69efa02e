// The sales of the last days as bars.
#pragma once

#include "shell/ShopOverview.h"
#include "ui/SpokenItems.h"

#include <QWidget>

namespace norvane::shell
{

/// A day in each line: its name, its bar, its sales as a number. The bar of the best day is the longest. A
/// day without a collection has words in place of bar and number; one without sales has a bar of no length
/// and the number.
class TakingsBars : public QWidget, public ui::SpokenItems
{
    Q_OBJECT

public:
    explicit TakingsBars(QWidget* parent);

    void setBars(const std::vector<OverviewBar>& bars);

    [[nodiscard]] QSize sizeHint() const override;
    [[nodiscard]] QSize minimumSizeHint() const override { return sizeHint(); }
    [[nodiscard]] int spokenItemCount() const override { return static_cast<int>(m_bars.size()); }
    [[nodiscard]] ui::SpokenItem spokenItem(int index) const override;

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    [[nodiscard]] int lineHeight() const;
    [[nodiscard]] QRect lineOf(int index) const;
    [[nodiscard]] int widest(const QString OverviewBar::*text) const;
    void paintDay(QPainter& painter, const OverviewBar& bar, const QRect& line) const;

    std::vector<OverviewBar> m_bars;
};

} // namespace norvane::shell
