// See OverviewPanel.h.
#include "shell/OverviewPanel.h"

#include "shell/OverviewRow.h"
#include "shell/TakingsBars.h"
#include "ui/Appearance.h"
#include "ui/FormKit.h"

#include <QLabel>
#include <QScrollArea>
#include <QToolButton>
#include <QVBoxLayout>

#include <algorithm>
#include <utility>

using namespace Qt::Literals::StringLiterals;

namespace norvane::shell
{
namespace
{

constexpr int overviewWidth = 600;
constexpr double headingSize = 1.3; ///< of the usual letters

void addMargins(QLayout& layout, int margin)
{
    layout.setContentsMargins(margin, margin, margin, margin);
}

} // namespace

OverviewPanel::OverviewPanel(QWidget* parent)
    : QFrame(parent), m_heading(new QLabel(this)), m_hide(new QToolButton(this)),
      m_area(new QScrollArea(this)), m_lines(new QVBoxLayout), m_bars(new TakingsBars(this))
{
    ui::nameControl(*this, u"OverviewPanel"_s, u"Overview"_s);
    setFrameStyle(static_cast<int>(QFrame::StyledPanel) | static_cast<int>(QFrame::Plain));
    setAutoFillBackground(true);
    auto* const contents = new QWidget;
    contents->setLayout(m_lines);
    addMargins(*m_lines, 0);
    m_lines->setSpacing(0);
    m_lines->setAlignment(Qt::AlignTop);
    m_area->setFrameShape(QFrame::NoFrame);
    m_area->setFocusPolicy(Qt::NoFocus);
    m_area->setWidgetResizable(true);
    m_area->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    m_area->setWidget(contents);
    auto* const column = new QVBoxLayout(this);
    addMargins(*column, ui::spacing::formMargin);
    column->addLayout(makeHeading());
    column->addWidget(m_area);
}

QLayout* OverviewPanel::makeHeading()
{
    QFont large = font();
    large.setBold(true);
    large.setPixelSize(qRound(ui::fontPixels() * headingSize));
    m_heading->setFont(large);
    m_heading->setTextFormat(Qt::PlainText);
    ui::nameControl(*m_hide, u"HideOverview"_s, u"Hide the overview"_s);
    m_hide->setText(u"\u00d7"_s);
    m_hide->setAutoRaise(true);
    m_hide->setToolTip(u"Hide the overview. The context menu of the background shows it again."_s);
    connect(m_hide, &QToolButton::clicked, this, &OverviewPanel::hidden);
    auto* const row = new QHBoxLayout;
    row->addWidget(m_heading, 1);
    row->addWidget(m_hide);
    return row;
}

OverviewRow& OverviewPanel::rowOf(Subject subject)
{
    const auto found = std::ranges::find(m_rows, subject, &OverviewRow::subject);
    if (found != m_rows.end())
        return **found;
    auto* const row = new OverviewRow(subject, this);
    connect(row, &QPushButton::clicked, this, [this, subject] { Q_EMIT chosen(subject); });
    m_rows.append(row);
    m_lines->addWidget(row);
    return *row;
}

void OverviewPanel::setOverview(const ShopOverview& overview)
{
    m_heading->setText(overview.lines.empty() ? u"No customer is chosen"_s : overview.customer);
    for (OverviewRow* const row : std::as_const(m_rows))
        row->hide();
    m_bars->hide();
    for (const OverviewLine& line : overview.lines) {
        OverviewRow& row = rowOf(line.subject);
        row.setLine(line);
        row.show();
        if (!line.bars.empty()) {
            m_lines->insertWidget(m_lines->indexOf(&row) + 1, m_bars);
            m_bars->setBars(line.bars);
            m_bars->show();
        }
    }
    lineUp();
    setReachedByTab(m_isReachedByTab);
}

/// Texts and bars begin at the same place in all lines. The button that hides the panel is the last that Tab
/// leads to.
void OverviewPanel::lineUp()
{
    int widest = 0;
    for (const OverviewRow* const row : std::as_const(m_rows))
        widest = std::max(widest, row->captionWidth());
    for (OverviewRow* const row : std::as_const(m_rows)) {
        row->setCaptionWidth(widest);
        setTabOrder(row, m_hide);
    }
    if (!m_rows.isEmpty())
        m_bars->setContentsMargins(m_rows.front()->textPlace(), 0, 0, 0);
}

void OverviewPanel::setReachedByTab(bool isReached)
{
    m_isReachedByTab = isReached;
    const Qt::FocusPolicy policy = isReached ? Qt::TabFocus : Qt::NoFocus;
    for (OverviewRow* const row : std::as_const(m_rows))
        row->setFocusPolicy(policy);
    m_hide->setFocusPolicy(policy);
}

QSize OverviewPanel::wantedSize() const
{
    const QMargins around = layout()->contentsMargins() + frameWidth();
    const int width = ui::scaled(overviewWidth);
    const int inner = width - around.left() - around.right();
    const int heading = std::max(m_heading->sizeHint().height(), m_hide->sizeHint().height());
    const int lines =
        m_lines->hasHeightForWidth() ? m_lines->heightForWidth(inner) : m_lines->sizeHint().height();
    return {width, around.top() + heading + layout()->spacing() + lines + around.bottom()};
}

} // namespace norvane::shell
