// The run, the leaving and the status bar of the forms that speak with the registers; see LinkForm.h.
#include "link/LinkForm.h"

#include "base/SharedRoutines.h"
#include "ui/Appearance.h"
#include "ui/FormKit.h"
#include "ui/StatusLine.h"

#include <QHBoxLayout>
#include <QPushButton>
#include <QScopeGuard>

namespace norvane::link
{

LinkForm::LinkForm(const char* name, const char* runCaption, ApplicationValues& values, Boxes& boxes,
                   QWidget* parent)
    : QDialog(parent), m_values(values), m_boxes(boxes), m_line(makeSerialLine()),
      m_clock(std::make_unique<SystemClock>())
{
    ui::nameControl(*this, QLatin1String(name));
    Communicate = addButton("Communicate", runCaption);
    Communicate->setDefault(true);
    connect(Communicate, &QPushButton::clicked, this, &LinkForm::communicate);
    CSCmdBtn1 = addButton("CSCmdBtn1", "E&xit");
    connect(CSCmdBtn1, &QPushButton::clicked, this, &LinkForm::reject);
    StatusBar1 = new ui::StatusLine(this);
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

void LinkForm::layOut(QLayout* content, const QList<QPushButton*>& others)
{
    auto* buttons = new QHBoxLayout;
    buttons->setSpacing(ui::spacing::controlGap);
    for (QPushButton* button : others) {
        buttons->addWidget(button);
    }
    buttons->addStretch();
    buttons->addWidget(Communicate);
    buttons->addWidget(CSCmdBtn1);
    auto* inner = new QVBoxLayout;
    inner->addLayout(content);
    inner->addSpacing(ui::spacing::groupGap);
    inner->addLayout(buttons);
    constexpr int margin = ui::spacing::formMargin;
    inner->setContentsMargins(margin, margin, margin, margin);

    auto* whole = new QVBoxLayout(this);
    whole->setContentsMargins(0, 0, 0, 0);
    whole->addLayout(inner);
    whole->addWidget(StatusBar1);
    whole->setSizeConstraint(QLayout::SetFixedSize);
    // The base makes its buttons first, so that they would come ahead of the form's own controls.
    const QList<QPushButton*> inOrder = others + QList<QPushButton*>{Communicate, CSCmdBtn1};
    for (QPushButton* button : inOrder) {
        setTabOrder(previousInFocusChain(), button);
    }
}

void LinkForm::communicate()
{
    if (m_work != Work::None) {
        return;
    }
    m_work = Work::Preparing;
    m_exitPressed = false;
    StatusBar1->setNotice({});
    Communicate->setEnabled(false);
    bool leavesAtEnd = false;
    {
        const auto ended = qScopeGuard([this, &leavesAtEnd] {
            leavesAtEnd = m_exitPressed && m_work == Work::Moving;
            m_work = Work::None;
            m_waitPointer.reset();
            Communicate->setEnabled(true);
            Communicate->setFocus();
        });
        run();
    }
    if (leavesAtEnd) {
        leave();
    }
}

int LinkForm::connectLink(const LinkSettings& link)
{
    m_link = link;
    m_waitPointer.emplace();
    m_modem = std::make_unique<Modem>(*m_line, *m_clock,
                                      [this](const QString& text) { StatusBar1->setStep(text); });
    m_modem->setUpLine(m_link);
    int result = 0;
    if (m_link.isModem()) {
        m_work = Work::Dialling;
        result = m_modem->DialModem(m_link);
    }
    if (!m_exitPressed) {
        m_work = Work::Moving;
    }
    return result;
}

void LinkForm::disconnectLink()
{
    if (m_link.isModem()) {
        m_modem->Dropphoneline();
    }
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

RunOutside LinkForm::outside()
{
    return {.runAndWait = [this](const QString& line) { return RunAndWait(m_values, line); },
            .readStatus = ReadStatusOut,
            .showStep = [this](const QString& text) { StatusBar1->setStep(text); },
            .showNotice = [this](const QString& text) { StatusBar1->setNotice(text); },
            .goOn = [this] { return !m_exitPressed; },
            .boxes = m_boxes};
}

} // namespace norvane::link
