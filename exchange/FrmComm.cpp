// The exchange dialog's controls and handlers.
#include "exchange/FrmComm.h"

#include "exchange/ExchangeRunner.h"
#include "exchange/ResultCodes.h"
#include "shell/SharedRoutines.h"
#include "ui/Appearance.h"

#include <QCheckBox>
#include <QHBoxLayout>
#include <QPushButton>
#include <QScopeGuard>
#include <QStatusBar>

namespace norvane::exchange
{
namespace
{

/// First boxes of the three columns, and the end.
constexpr std::array<int, 4> columnStarts{0, 13, 26, boxCount};
/// Room between the columns, in device-independent pixels.
constexpr int columnGap = 2 * ui::spacing::groupGap;

} // namespace

FrmComm::FrmComm(ApplicationValues& values, Boxes& boxes, QWidget* parent)
    : QDialog(parent), m_values(values), m_boxes(boxes), m_line(makeSerialLine()),
      m_clock(std::make_unique<SystemClock>())
{
    setObjectName(QStringLiteral("FrmComm"));
    setAccessibleName(objectName());
    setModal(true);
    buildBoxes();
    buildButtons();
    layOut();
}

FrmComm::~FrmComm() = default;

void FrmComm::setSerialLine(std::unique_ptr<SerialLine> line)
{
    m_line = std::move(line);
}

void FrmComm::setClock(std::unique_ptr<Clock> clock)
{
    m_clock = std::move(clock);
}

void FrmComm::buildBoxes()
{
    for (int box = 0; box < boxCount; ++box) {
        const auto index = static_cast<std::size_t>(box);
        check1[index] = new QCheckBox(QLatin1String(boxCaptions()[index]), this);
        check1[index]->setObjectName(QStringLiteral("check1_%1").arg(box));
        check1[index]->setAccessibleName(check1[index]->objectName());
    }
}

void FrmComm::buildButtons()
{
    CSCmdBtn2 = addButton("CSCmdBtn2", "&Select All", &FrmComm::selectAll);
    Communicate = addButton("Communicate", "&OK", &FrmComm::communicate);
    Communicate->setDefault(true);
    CSCmdBtn1 = addButton("CSCmdBtn1", "E&xit", &FrmComm::reject);
    StatusBar1 = new QStatusBar(this);
    StatusBar1->setObjectName(QStringLiteral("StatusBar1"));
    StatusBar1->setAccessibleName(QStringLiteral("StatusBar1"));
    StatusBar1->setSizeGripEnabled(false);
}

QPushButton* FrmComm::addButton(const char* name, const char* caption, void (FrmComm::*pressed)())
{
    auto* button = new QPushButton(QLatin1String(caption), this);
    button->setObjectName(QLatin1String(name));
    button->setAccessibleName(QLatin1String(name));
    button->setAutoDefault(false);
    button->setMinimumWidth(ui::buttonWidth);
    connect(button, &QPushButton::clicked, this, pressed);
    return button;
}

void FrmComm::layOut()
{
    auto* columns = new QHBoxLayout;
    columns->setSpacing(columnGap);
    for (std::size_t column = 0; column + 1 < columnStarts.size(); ++column) {
        auto* boxes = new QVBoxLayout;
        boxes->setSpacing(ui::spacing::controlGap);
        for (int box = columnStarts[column]; box < columnStarts[column + 1]; ++box) {
            boxes->addWidget(check1[static_cast<std::size_t>(box)]);
        }
        boxes->addStretch();
        columns->addLayout(boxes);
    }
    auto* buttons = new QHBoxLayout;
    buttons->setSpacing(ui::spacing::controlGap);
    buttons->addWidget(CSCmdBtn2);
    buttons->addStretch();
    buttons->addWidget(Communicate);
    buttons->addWidget(CSCmdBtn1);
    auto* content = new QVBoxLayout;
    content->addLayout(columns);
    content->addSpacing(ui::spacing::groupGap);
    content->addLayout(buttons);

    auto* whole = new QVBoxLayout(this);
    constexpr int margin = ui::spacing::formMargin;
    content->setContentsMargins(margin, margin, margin, margin);
    whole->setContentsMargins(0, 0, 0, 0);
    whole->addLayout(content);
    whole->addWidget(StatusBar1);
    whole->setSizeConstraint(QLayout::SetFixedSize);
}

void FrmComm::communicate()
{
    if (m_work != Work::None) {
        return;
    }
    m_exitPressed = false;
    m_notice.clear();
    Communicate->setEnabled(false);
    const auto ended = qScopeGuard([this] {
        m_work = Work::None;
        m_waitPointer.reset();
        Communicate->setEnabled(true);
        Communicate->setFocus();
        showStep({});
    });
    exchange();
}

/// The order of an OK: note, settings, dialling, sequence, hanging up.
void FrmComm::exchange()
{
    if (serialPortNoteDue(isTicked(serialPortBox) ? boxTicked : boxUnticked, m_values.exchangeMode)) {
        m_boxes.message(serialPortNote(), QStringLiteral("Please note...."), BoxIcon::Exclamation);
    }
    m_link = readLinkSettings(m_values);
    m_waitPointer.emplace();
    m_modem = std::make_unique<Modem>(*m_line, *m_clock, [this](const QString& text) { showStep(text); });
    m_modem->setUpLine(m_link);
    if (!m_link.isModem() || dial()) {
        runSequence();
    }
}

bool FrmComm::dial()
{
    m_work = Work::Dialling;
    const int result = m_modem->DialModem(m_link);
    if (m_exitPressed) {
        // Exit has hung up already, and who has left wants no more boxes.
        return false;
    }
    if (result == modemFailed) {
        m_modem->Dropphoneline();
        m_boxes.message(QStringLiteral("Modem Failure"), QStringLiteral("Communications Error"));
        return false;
    }
    return true;
}

void FrmComm::runSequence()
{
    m_work = Work::Moving;
    {
        // Also when a failure ends the sequence: a call that nobody hangs up costs the shop money.
        const auto hangUp = qScopeGuard([this] {
            if (m_link.isModem()) {
                m_modem->Dropphoneline();
            }
        });
        moveTicked();
    }
    if (m_exitPressed) {
        leave();
    }
}

void FrmComm::moveTicked()
{
    ExchangeRunner runner(m_values, m_link, *this,
                          {.runAndWait = [this](const QString& line) { return RunAndWait(m_values, line); },
                           .readStatus = ReadStatusOut,
                           .showStep = [this](const QString& text) { showStep(text); },
                           .showNotice = [this](const QString& text) { showNotice(text); },
                           .goOn = [this] { return !m_exitPressed; },
                           .boxes = m_boxes});
    if (m_values.exchangeMode == QLatin1String("UPLOAD")) {
        runner.UploadData();
    } else {
        runner.downloaddata();
    }
}

void FrmComm::selectAll()
{
    for (int box = 0; box < boxCount; ++box) {
        setTicked(box, true);
    }
}

void FrmComm::reject()
{
    m_exitPressed = true;
    if (m_work == Work::Moving) {
        showNotice(QStringLiteral("Leaving after this file ......."));
        return;
    }
    if (m_link.isModem()) {
        m_modem->Dropphoneline();
    }
    leave();
}

void FrmComm::leave()
{
    m_waitPointer.reset();
    QDialog::reject();
}

/// The command strings end in a carriage return, which a status bar would show as a blot.
void FrmComm::showStep(const QString& text)
{
    const QString step = text.trimmed();
    const QString blanks = step.isEmpty() || m_notice.isEmpty() ? QString() : QStringLiteral("    ");
    StatusBar1->showMessage(step + blanks + m_notice);
}

void FrmComm::showNotice(const QString& text)
{
    m_notice = text;
    showStep({});
}

bool FrmComm::isTicked(int box) const
{
    return check1.at(static_cast<std::size_t>(box))->isChecked();
}

void FrmComm::setTicked(int box, bool ticked)
{
    check1.at(static_cast<std::size_t>(box))->setChecked(ticked);
}

} // namespace norvane::exchange
