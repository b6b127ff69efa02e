// When the box comes up and events run; see RunProgress.h.
#include "reports/RunProgress.h"

#include "ui/FormKit.h"

#include <QCoreApplication>

using namespace Qt::Literals::StringLiterals;

namespace norvane::reports
{
namespace
{

/// Most reports are ready before a box could be read.
constexpr std::chrono::milliseconds beforeBox{400};
/// Too short for a user to notice.
constexpr std::chrono::milliseconds betweenTurns{15};

} // namespace

RunProgress::RunProgress(QWidget& window)
    : m_window(window), m_boxTime(Clock::now() + beforeBox), m_nextTurn(Clock::now() + betweenTurns)
{
}

bool RunProgress::goOn()
{
    const auto now = Clock::now();
    if (now >= m_nextTurn)
        handleEvents(now);
    return !m_isCancelled;
}

void RunProgress::handleEvents(Clock::time_point now)
{
    if (!m_box && now >= m_boxTime)
        showBox();
    QCoreApplication::processEvents(m_box ? QEventLoop::AllEvents : QEventLoop::ExcludeUserInputEvents);
    m_nextTurn = Clock::now() + betweenTurns;
}

void RunProgress::showBox()
{
    // A range of nothing shows that work goes on and not how much is left, which no query tells.
    m_box = std::make_unique<QProgressDialog>(u"The report is being made."_s, u"&Cancel"_s, 0, 0, &m_window);
    ui::nameControl(*m_box, u"RunProgress"_s);
    m_box->setWindowTitle(u"Report"_s);
    m_box->setWindowModality(Qt::ApplicationModal);
    QObject::connect(m_box.get(), &QProgressDialog::canceled, m_box.get(), [this] { m_isCancelled = true; });
    m_box->show();
}

} // namespace norvane::reports
