// The exchange dialog's controls and handlers.
#include "exchange/FrmComm.h"

#include "exchange/ExchangeRunner.h"
#include "link/ResultCodes.h"
#include "ui/Appearance.h"
#include "ui/StatusLine.h"

#include <QCheckBox>
#include <QHBoxLayout>
#include <QPushButton>
#include <QScopeGuard>

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
    : LinkForm("FrmComm", "&OK", values, boxes, parent)
{
    setModal(true);
    buildBoxes();
    CSCmdBtn2 = addButton("CSCmdBtn2", "&Select All");
    connect(CSCmdBtn2, &QPushButton::clicked, this, &FrmComm::selectAll);
    layOut(columnsOfBoxes(), {CSCmdBtn2});
    check1.front()->setFocus();
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

QLayout* FrmComm::columnsOfBoxes() const
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
    return columns;
}

void FrmComm::run()
{
    // The ticks that are left tell how it went.
    const auto ended = qScopeGuard([this] { StatusBar1->setStep({}); });
    exchange();
}

/// The order of an OK: note, settings, dialling, sequence, hanging up.
void FrmComm::exchange()
{
    if (serialPortNoteDue(isTicked(serialPortBox) ? boxTicked : boxUnticked, m_values.exchangeMode)) {
        m_boxes.message(serialPortNote(), QStringLiteral("Please note...."), BoxIcon::Exclamation);
    }
    const link::LinkSettings link = link::readLinkSettings(m_values);
    const int result = connectLink(link);
    if (exitPressed()) {
        // Exit has hung up already, and who has left wants no more boxes.
        return;
    }
    if (result == link::modemFailed) {
        disconnectLink();
        m_boxes.message(QStringLiteral("Modem Failure"), QStringLiteral("Communications Error"));
        return;
    }
    runSequence(link);
}

void FrmComm::runSequence(const link::LinkSettings& link)
{
    // Also when a failure ends the sequence: a call that nobody hangs up costs the shop money.
    const auto hangUp = qScopeGuard([this] { disconnectLink(); });
    moveTicked(link);
}

void FrmComm::moveTicked(const link::LinkSettings& link)
{
    ExchangeRunner runner(m_values, link, *this, outside());
    if (m_values.exchangeMode == QLatin1String("UPLOAD")) {
        runner.UploadData();
    } else {
        runner.downloaddata();
    }
}

QString FrmComm::leavingNotice() const
{
    return QStringLiteral("Leaving after this file .......");
}

void FrmComm::selectAll()
{
    for (int box = 0; box < boxCount; ++box) {
        setTicked(box, true);
    }
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
