// See RunProgress.h.
#include "reports/window/RunProgress.h"

#include "ui/FormKit.h"

#include <QMainWindow>
#include <QStatusBar>

using namespace Qt::Literals::StringLiterals;

namespace norvane::reports
{
namespace
{

/// Most reports are ready within this time, and a box would only flash.
constexpr std::chrono::milliseconds beforeBox{400};

} // namespace

RunProgress::RunProgress(QWidget& window, QString work, QString title)
    : m_window(window), m_work(std::move(work)), m_title(std::move(title)),
      m_boxTime(std::chrono::steady_clock::now() + beforeBox)
{
}

RunProgress::~RunProgress()
{
    if (QStatusBar* const bar = statusBar(); bar && !m_step.isEmpty())
        bar->clearMessage();
}

void RunProgress::showStep(const QString& step)
{
    m_step = step;
    if (QStatusBar* const bar = statusBar())
        bar->showMessage(step);
    if (m_box)
        m_box->setLabelText(step);
}

/// Nothing if the form has no main window above it.
QStatusBar* RunProgress::statusBar() const
{
    for (QWidget* widget = &m_window; widget != nullptr; widget = widget->parentWidget()) {
        if (auto* const main = qobject_cast<QMainWindow*>(widget))
            return main->statusBar();
    }
    return nullptr;
}

bool RunProgress::goOn()
{
    if (m_turns.isDue())
        handleEvents();
    return !m_isCancelled;
}

void RunProgress::handleEvents()
{
    if (!m_box && std::chrono::steady_clock::now() >= m_boxTime)
        showBox();
    m_turns.run(m_box ? QEventLoop::AllEvents : QEventLoop::ExcludeUserInputEvents);
}

void RunProgress::showBox()
{
    // An empty range shows a moving bar: queries do not report how much is left.
    const QString text = m_step.isEmpty() ? m_work : m_step;
    m_box = std::make_unique<QProgressDialog>(text, u"&Cancel"_s, 0, 0, &m_window);
    ui::nameControl(*m_box, u"RunProgress"_s);
    m_box->setWindowTitle(m_title);
    m_box->setWindowModality(Qt::ApplicationModal);
    QObject::connect(m_box.get(), &QProgressDialog::canceled, m_box.get(), [this] { m_isCancelled = true; });
    m_box->show();
}

} // namespace norvane::reports
