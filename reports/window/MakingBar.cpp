// See MakingBar.h.
#include "reports/window/MakingBar.h"

#include "ui/Announcement.h"
#include "ui/Appearance.h"
#include "ui/FormKit.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QProgressBar>
#include <QPushButton>

#include <utility>

using namespace Qt::Literals::StringLiterals;

namespace norvane::reports
{
namespace
{

/// What a user does next is then done with the new report, as most are made in this time.
constexpr std::chrono::milliseconds moment{100};
/// A row that is seen for a shorter time would only move the page.
constexpr std::chrono::milliseconds beforeBar{300};
constexpr int progressWidth = 120;

} // namespace

MakingBar::MakingBar(QWidget* parent)
    : QWidget(parent), m_step(new QLabel(this)),
      m_cancel(ui::makeButton(u"CancelMakingButton"_s, u"C&ancel"_s, this))
{
    ui::nameControl(*this, u"MakingBar"_s);
    ui::nameControl(*m_step, u"MakingStep"_s);
    m_step->setTextFormat(Qt::PlainText);
    m_step->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
    m_cancel->setMinimumWidth(ui::buttonWidth);
    m_cancel->setToolTip(u"Esc"_s);
    auto* const progress = new QProgressBar(this);
    ui::nameControl(*progress, u"MakingProgress"_s, u"Progress"_s);
    progress->setRange(0, 0); // queries do not report how much is left
    progress->setMaximumWidth(ui::scaled(progressWidth));
    auto* const row = new QHBoxLayout(this);
    row->setContentsMargins({});
    row->setSpacing(ui::spacing::controlGap);
    row->addWidget(m_cancel);
    row->addWidget(progress);
    row->addWidget(m_step, 1);
    m_opening.setSingleShot(true);
    m_opening.setInterval(beforeBar);
    connect(&m_opening, &QTimer::timeout, this, &MakingBar::open);
    connect(m_cancel, &QPushButton::clicked, this, &MakingBar::cancelWanted);
    hide();
}

void MakingBar::make(const Runner& runner, ReportRequest request, const QString& text, Take take)
{
    cancel();
    m_text = text;
    m_take = std::move(take);
    m_step->setText(text);
    m_run = new BackgroundRun(runner, std::move(request), this);
    connect(m_run, &BackgroundRun::stepChanged, this, &MakingBar::showStep);
    connect(m_run, &BackgroundRun::done, this, &MakingBar::finish);
    if (m_run->isDoneWithin(moment))
        return finish();
    m_opening.start();
}

/// The run still exists while its report is taken: it is deleted later.
void MakingBar::finish()
{
    BackgroundRun& run = *m_run;
    const Take take = std::move(m_take);
    cancel();
    run.deleteLater();
    take(run);
}

bool MakingBar::cancel()
{
    m_opening.stop();
    hide();
    BackgroundRun* const run = std::exchange(m_run, nullptr);
    if (run == nullptr)
        return false;
    run->disconnect(this);
    run->cancel();
    return true;
}

void MakingBar::showStep(const QString& step)
{
    m_step->setText(u"%1 %2."_s.arg(m_text, step));
}

void MakingBar::open()
{
    show();
    ui::announce(*m_step, m_text);
}

} // namespace norvane::reports
