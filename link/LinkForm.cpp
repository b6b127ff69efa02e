// See LinkForm.h.
#include "link/LinkForm.h"

#include "customers/RunLock.h"
#include "link/RunReport.h"
#include "link/SystemClock.h"
#include "link/ToolRun.h"
#include "ui/Announcement.h"
#include "ui/Appearance.h"
#include "ui/FormKit.h"
#include "ui/StatusLine.h"

#include <QHBoxLayout>
#include <QPushButton>
#include <QScopeGuard>

#include <algorithm>

namespace norvane::link
{

LinkForm::LinkForm(const char* name, const char* runCaption, const ApplicationValues& values, Boxes& boxes,
                   QWidget* parent)
    : QDialog(parent), m_values(values), m_boxes(boxes), m_timedBoxes(boxes),
      m_tool(this, boxes,
             [this](const QString& text) {
                 StatusBar1->setRunning(text);
                 showProgress();
             }),
      m_line(makeSerialLine()), m_clock(std::make_unique<SystemClock>())
{
    ui::nameControl(*this, QLatin1String(name));
    Communicate = addRunButton("Communicate", runCaption);
    Communicate->setDefault(true);
    connect(Communicate, &QPushButton::clicked, this, &LinkForm::communicate);
    CSCmdBtn1 = addButton("CSCmdBtn1", "E&xit");
    connect(CSCmdBtn1, &QPushButton::clicked, this, &LinkForm::reject);
    StatusBar1 = new ui::StatusLine(this);
    m_report = new RunReport(this);
    connect(m_report, &RunReport::cameOrWent, this, &LinkForm::fitFrame);
    m_tool.setExit(CSCmdBtn1,
                   [this](bool leaves) { StatusBar1->setNotice(leaves ? leavingNotice() : QString()); });
}

LinkForm::~LinkForm() = default;

void LinkForm::setSerialLine(std::unique_ptr<SerialLine> line)
{
    m_line = std::move(line);
}

void LinkForm::setClock(std::unique_ptr<Clock> clock)
{
    m_clock = std::move(clock);
}

QPushButton* LinkForm::addButton(const char* name, const char* caption)
{
    QPushButton* const button = ui::makeButton(QLatin1String(name), QLatin1String(caption), this);
    button->setAutoDefault(false);
    return button;
}

QPushButton* LinkForm::addRunButton(const char* name, const char* caption)
{
    m_runButtons << addButton(name, caption);
    return m_runButtons.back();
}

QHBoxLayout* LinkForm::buttonRow(const QList<QPushButton*>& others) const
{
    auto* row = new QHBoxLayout;
    row->setSpacing(ui::spacing::controlGap);
    for (QPushButton* button : others)
        row->addWidget(button);
    row->addStretch();
    row->addWidget(Communicate);
    row->addWidget(CSCmdBtn1);
    return row;
}

void LinkForm::layOut(QLayout* content, const QList<QPushButton*>& others)
{
    auto* inner = new QVBoxLayout;
    inner->addLayout(content);
    inner->addSpacing(ui::spacing::groupGap);
    inner->addLayout(buttonRow(others));
    inner->setContentsMargins(QMargins() + ui::spacing::formMargin);

    auto* whole = new QVBoxLayout(this);
    whole->setContentsMargins(0, 0, 0, 0);
    whole->addLayout(inner);
    whole->addWidget(StatusBar1);
    whole->addWidget(m_report);
    whole->setSizeConstraint(QLayout::SetFixedSize);
    tabToButtonsLast(others);
}

/// This class makes its buttons first, so that Tab would reach them before the form's own controls.
void LinkForm::tabToButtonsLast(const QList<QPushButton*>& others)
{
    const QList<QPushButton*> inOrder = others + QList<QPushButton*>{Communicate, CSCmdBtn1};
    for (QPushButton* button : inOrder)
        setTabOrder(previousInFocusChain(), button);
}

void LinkForm::communicate()
{
    if (m_work == Work::None && mayStart())
        runAs([this] { run(); });
}

bool LinkForm::runAs(const std::function<void()>& work)
{
    if (m_work != Work::None || !takeLock())
        return false;
    beginRun();
    bool leavesNow = false;
    {
        const auto ended = qScopeGuard([&] { leavesNow = endRun(); });
        work();
    }
    Q_EMIT runEnded();
    if (leavesNow)
        leave();
    return !leavesNow && !m_exitPressed;
}

bool LinkForm::takeLock()
{
    m_lock = customers::RunLock::take(m_values, m_boxes);
    return m_lock != nullptr;
}

void LinkForm::beginRun()
{
    m_work = Work::Preparing;
    m_exitPressed = false;
    StatusBar1->setNotice({});
    StatusBar1->setResult({});
    m_step.clear();
    m_report->empty();
    enableRuns(false);
}

/// @return whether the user asked to leave while tools were at work.
bool LinkForm::endRun()
{
    const bool leaves = m_exitPressed && m_work == Work::Moving;
    m_work = Work::None;
    m_progress = {};
    showProgress();
    m_lock.reset();
    m_waitPointer.reset();
    enableRuns(true);
    Communicate->setFocus();
    return leaves;
}

void LinkForm::enableRuns(bool enabled)
{
    for (QPushButton* button : m_runButtons)
        button->setEnabled(enabled);
}

void LinkForm::showStep(const QString& text)
{
    m_words.clear();
    m_step = text.trimmed();
    StatusBar1->setStep(text);
    ui::announce(*StatusBar1, text);
}

ChildResult LinkForm::runTool(const QString& commandLine, const QString& folder)
{
    m_words.clear();
    const ChildResult result = m_tool.run(m_values, commandLine, folder, &m_words);
    m_report->addWords(m_step, m_words.text());
    return result;
}

/// Counts down while a tool runs.
void LinkForm::showProgress()
{
    const std::chrono::milliseconds ago(m_sinceProgress.isValid() ? m_sinceProgress.elapsed() : 0);
    StatusBar1->setProgress(m_progress.inWords(ago));
}

/// The form has grown downwards, or shrunk. The frame of a child of the main window does not follow by
/// itself.
void LinkForm::fitFrame()
{
    QWidget& frame = isWindow() ? *this : *parentWidget();
    const QRect room = isWindow() ? ui::roomOnScreen(*this) : frame.parentWidget()->rect();
    m_report->setRoom(room.height() - (layout()->totalSizeHint().height() - m_report->sizeHint().height()));
    layout()->activate();
    if (!isWindow())
        frame.setFixedSize(frame.sizeHint());
    const int below = frame.geometry().bottom() - room.bottom();
    const int above = frame.geometry().top() - room.top();
    frame.move(frame.x(), frame.y() - std::clamp(below, 0, std::max(above, 0)));
}

int LinkForm::connectLink(const LinkSettings& link)
{
    m_link = link;
    m_waitPointer.emplace();
    m_modem = std::make_unique<Modem>(*m_line, *m_clock, [this](const QString& text) { showStep(text); });
    m_modem->setUpLine(m_link);
    m_isConnected = true;
    const int result = dial();
    if (!m_exitPressed)
        m_work = Work::Moving;
    return result;
}

int LinkForm::dial()
{
    if (!m_link.isModem())
        return 0;
    m_work = Work::Dialling;
    return m_modem->DialModem(m_link);
}

void LinkForm::disconnectLink()
{
    m_isConnected = false;
    if (m_link.isModem())
        m_modem->Dropphoneline();
}

void LinkForm::hangUp()
{
    if (m_isConnected)
        disconnectLink();
}

/// A run that started during an open call could not use the modem, and its own call would be ended with this
/// one.
void LinkForm::endBeforeLastBox()
{
    if (!m_isConnected || !m_link.isModem())
        m_lock.reset();
}

void LinkForm::reject()
{
    m_exitPressed = true;
    if (m_work == Work::Moving) {
        StatusBar1->setNotice(leavingNotice());
        return;
    }
    disconnectLink();
    leave();
}

void LinkForm::leave()
{
    m_waitPointer.reset();
    QDialog::reject();
}

RunOutside LinkForm::outside(const QString& folder)
{
    return {.runAndWait = [this, folder](const QString& line) { return runTool(line, folder); },
            .readStatus = [folder] { return readStatusOutIn(folder); },
            .showStep = [this](const QString& text) { showStep(text); },
            .showNotice = [this](const QString& text) { StatusBar1->setNotice(text); },
            .goOn = [this] { return !m_exitPressed; },
            .boxes = m_timedBoxes,
            .beforeLastBox = [this] { endBeforeLastBox(); },
            .beginAgain = [this] { return takeLock(); },
            .millisecondsOpen = [this] { return m_timedBoxes.millisecondsOpen(); },
            .lastWords = [this] { return m_words.lastLine(); },
            .explain = [this](const FailedStep& step) { m_report->explain(inWords(step)); },
            .showProgress =
                [this](const RunProgress& progress) {
                    m_progress = progress;
                    m_sinceProgress.start();
                    showProgress();
                }};
}

} // namespace norvane::link
