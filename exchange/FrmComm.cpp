// The exchange dialog's controls and handlers.
#include "exchange/FrmComm.h"

#include "customers/DataOwner.h"
#include "exchange/CompareDialog.h"
#include "exchange/ExchangeRunner.h"
#include "link/ResultCodes.h"
#include "platform/RuntimeFailure.h"
#include "ui/Appearance.h"
#include "ui/FittingArea.h"
#include "ui/FormKit.h"
#include "ui/StatusLine.h"

#include <QCheckBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QScopeGuard>
#include <QShowEvent>

using namespace Qt::Literals::StringLiterals;

namespace norvane::exchange
{
namespace
{

/// First boxes of the three columns, and the end.
constexpr std::array<int, 4> columnStarts{0, 13, 26, boxCount};
/// What is above and below the boxes, in device-independent pixels.
constexpr int aboveAndBelow = 220;
/// Space between the columns, in device-independent pixels.
constexpr int columnGap = 2 * ui::spacing::groupGap;

/// What is wrong with the settings is reported when OK is pressed.
QString registersOf(const ApplicationValues& values)
{
    try {
        return link::registersInWords(link::readLinkSettings(values));
    } catch (const RuntimeFailure&) {
        return u"the registers"_s;
    }
}

} // namespace

FrmComm::FrmComm(QString exchangeMode, const ApplicationValues& values, Boxes& boxes, QWidget* parent)
    : LinkForm("FrmComm", "&OK", values, boxes, parent), m_exchangeMode(std::move(exchangeMode)),
      m_way(new QLabel(this)), m_changes(new QLabel(this))
{
    setModal(true);
    m_way->setObjectName(u"Way"_s);
    m_way->setTextFormat(Qt::PlainText);
    m_way->setWordWrap(true);
    // A long name of a customer must not widen the dialog.
    m_way->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
    buildBoxes();
    CSCmdBtn2 = addButton("CSCmdBtn2", "&Select All");
    connect(CSCmdBtn2, &QPushButton::clicked, this, &FrmComm::selectAll);
    auto* const content = new QVBoxLayout;
    content->setSpacing(ui::spacing::groupGap);
    content->addWidget(m_way);
    content->addWidget(areaOfBoxes());
    content->addWidget(m_changes);
    buildTickChanged();
    QPushButton* const comparing = addRunButton("CompareButton", "Co&mpare with Register...");
    connect(comparing, &QPushButton::clicked, this, &FrmComm::compare);
    layOut(content, isUpload() ? QList{CSCmdBtn2, comparing} : QList{CSCmdBtn2, m_tickChanged, comparing});
    check1.front()->setFocus();
}

void FrmComm::buildBoxes()
{
    for (int box = 0; box < boxCount; ++box) {
        const auto index = static_cast<std::size_t>(box);
        check1[index] = new QCheckBox(QLatin1String(boxCaptions()[index]), this);
        ui::nameControl(*check1[index], u"check1_%1"_s.arg(box));
        m_dots[index] = new ChangeDot(this);
        m_dots[index]->setObjectName(u"Dot_%1"_s.arg(box));
    }
    m_changes->setObjectName(u"Changes"_s);
    m_changes->setTextFormat(Qt::PlainText);
    // A long reason must not widen the dialog.
    m_changes->setWordWrap(true);
    m_changes->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
}

void FrmComm::buildTickChanged()
{
    if (isUpload())
        return;
    m_tickChanged = addButton("TickChanged", "Tick &What Changed");
    m_tickChanged->setEnabled(false);
    connect(m_tickChanged, &QPushButton::clicked, this, &FrmComm::tickChanged);
}

/// The buttons remain reachable on a small screen in large type.
QWidget* FrmComm::areaOfBoxes() const
{
    auto* const boxes = new QWidget;
    auto* const columns = new QHBoxLayout(boxes);
    columns->setContentsMargins({});
    columns->setSpacing(columnGap);
    for (std::size_t column = 0; column + 1 < columnStarts.size(); ++column)
        columns->addLayout(columnOfBoxes(columnStarts[column], columnStarts[column + 1]));
    return new ui::FittingArea(boxes, aboveAndBelow);
}

QLayout* FrmComm::columnOfBoxes(int first, int end) const
{
    auto* column = new QVBoxLayout;
    column->setSpacing(ui::spacing::controlGap);
    for (auto box = static_cast<std::size_t>(first); box < static_cast<std::size_t>(end); ++box) {
        auto* const row = new QHBoxLayout;
        row->setSpacing(ui::spacing::controlGap);
        row->addWidget(m_dots[box]);
        row->addWidget(check1[box], 1);
        column->addLayout(row);
    }
    column->addStretch();
    return column;
}

bool FrmComm::isUpload() const
{
    return m_exchangeMode == "UPLOAD"_L1;
}

Direction FrmComm::direction() const
{
    return isUpload() ? Direction::Upload : Direction::Download;
}

void FrmComm::showWay()
{
    m_way->setText(wayInWords());
    QFont font = m_way->font();
    font.setBold(customers::isDataOfAnother(m_values));
    m_way->setFont(font);
}

QString FrmComm::wayInWords() const
{
    const QString owner = customers::ownerOfData(m_values).customerName;
    const QString chosen = customers::ofChosenCustomer(m_values);
    return isUpload() ? u"From register 1%1 to the tables of %2"_s.arg(chosen, owner)
                      : u"From the tables of %1 to %2%3"_s.arg(owner, registersOf(m_values), chosen);
}

bool FrmComm::mayStart()
{
    return customers::mayUseOpenData(
        m_values, m_boxes,
        isUpload()
            ? u"The upload would replace the tables of %1 with those of a register of %2, and keep the "
              u"files of the register for %2."_s
            : u"The download would send the tables of %1 to the registers of %2."_s);
}

void FrmComm::showEvent(QShowEvent* event)
{
    showWay();
    if (!event->spontaneous())
        tickUnfinished();
    LinkForm::showEvent(event);
    lookForChanges();
}

void FrmComm::tickUnfinished()
{
    for (const int box : offerUnfinishedExchange(m_values, direction(), m_boxes))
        setTicked(box, true);
}

void FrmComm::lookForChanges()
{
    m_changes->setText(u"Looking for changes that were not sent ..."_s);
    m_look.look(m_values);
}

/// Without dots: OK reports what is wrong once more.
void FrmComm::showFound(const FoundChanges& found)
{
    showChanges(found.changes);
    if (found.failure)
        m_changes->setText(u"What was not sent is not known: %1"_s.arg(found.failure->text().simplified()));
}

/// An upload loses what was changed here, but nothing that only some registers have.
void FrmComm::showChanges(const AllChanges& changes)
{
    bool isAny = false;
    for (int box = 0; box < boxCount; ++box) {
        BoxChanges shown = changes.at(static_cast<std::size_t>(box));
        if (isUpload())
            shown.mayBeAtSome = shown.isNotAtAll = false;
        showChanges(box, shown);
        isAny = isAny || shown.isUnsent();
    }
    if (m_tickChanged != nullptr)
        m_tickChanged->setEnabled(isAny);
    if (!isAny) {
        m_changes->setText(u"There are no changes that were not sent."_s);
    } else if (isUpload()) {
        m_changes->setText(u"A dot marks changes that were not sent: an upload replaces them."_s);
    } else {
        m_changes->setText(u"A dot marks what was not sent to all registers."_s);
    }
}

void FrmComm::showChanges(int box, const BoxChanges& changes)
{
    const auto index = static_cast<std::size_t>(box);
    const QString words = changesInWords(changes);
    check1.at(index)->setToolTip(words);
    check1.at(index)->setAccessibleDescription(words);
    m_dots.at(index)->setToolTip(words);
    const auto mark = changes.mayBeAtSome ? ChangeDot::Mark::Ring : ChangeDot::Mark::Filled;
    m_dots.at(index)->setMark(changes.isUnsent() ? mark : ChangeDot::Mark::None);
}

void FrmComm::tickChanged()
{
    for (int box = 0; box < boxCount; ++box) {
        if (m_dots.at(static_cast<std::size_t>(box))->mark() != ChangeDot::Mark::None)
            setTicked(box, true);
    }
}

void FrmComm::run()
{
    // A finished run shows what it moved and no step; the ticks that are left say what did not move.
    m_look.stop();
    const auto ended = qScopeGuard([this] {
        StatusBar1->setStep({});
        lookForChanges();
    });
    exchange();
}

/// The order of an OK: note, settings, dialling, sequence, hanging up.
void FrmComm::exchange()
{
    noteSerialPort();
    const link::LinkSettings link = link::readLinkSettings(m_values);
    ExchangeRunner runner(m_values, link, *this, outside());
    if (connects(link, &runner))
        runSequence(runner);
}

/// @param runner logs a call that failed; nullptr for work that is not logged.
bool FrmComm::connects(const link::LinkSettings& link, ExchangeRunner* runner)
{
    const int result = connectLink(link);
    // Exit has hung up; show nothing.
    if (exitPressed())
        return false;
    if (result != link::modemFailed)
        return true;
    if (runner != nullptr)
        runner->endWithoutCall(direction());
    hangUp();
    endBeforeLastBox();
    m_boxes.message(u"Modem Failure"_s, u"Communications Error"_s);
    return false;
}

/// The ticks remain: a comparison moves nothing.
void FrmComm::compare()
{
    if (tickedBoxes(*this).isEmpty()) {
        m_boxes.message(u"Tick what to compare first."_s, u"Compare with Register"_s, BoxIcon::Information);
        return;
    }
    std::unique_ptr<RegisterComparison> found;
    const bool remains = runAs([&] { found = fetchToCompare(); });
    if (!remains || found == nullptr)
        return;
    CompareDialog dialog(std::move(found), m_boxes, m_history, this);
    dialog.exec();
    lookForChanges();
}

/// @return nothing after a failed call, and if nothing came; a message was shown then.
std::unique_ptr<RegisterComparison> FrmComm::fetchToCompare()
{
    const link::LinkSettings link = link::readLinkSettings(m_values);
    if (!connects(link, nullptr))
        return nullptr;
    const auto ended = qScopeGuard([this] {
        hangUp();
        StatusBar1->setStep({});
    });
    QString failure;
    try {
        auto scratch = std::make_unique<ScratchShop>(m_values);
        FetchedFiles fetched =
            RegisterFetch(m_values, link, *scratch, outside(scratch->folder())).fetch(tickedBoxes(*this));
        if (fetched.wasLeft || !fetched.files.isEmpty())
            return std::make_unique<RegisterComparison>(m_values, std::move(scratch), std::move(fetched));
        failure = u"Stopped at %1."_s.arg(fetched.stopped);
    } catch (const RuntimeFailure& error) {
        failure = error.text();
    }
    hangUp();
    endBeforeLastBox();
    m_boxes.message(u"Nothing was compared. "_s + failure, u"Compare with Register"_s, BoxIcon::Exclamation);
    return nullptr;
}

void FrmComm::noteSerialPort()
{
    if (serialPortNoteDue(isTicked(serialPortBox) ? boxTicked : boxUnticked, m_exchangeMode))
        m_boxes.message(serialPortNote(), u"Please note...."_s, BoxIcon::Exclamation);
}

void FrmComm::runSequence(ExchangeRunner& runner)
{
    // Also when a failure ends the sequence: an open call costs the shop money.
    const auto ended = qScopeGuard([this] { hangUp(); });
    if (isUpload()) {
        runner.UploadData();
    } else {
        runner.downloaddata();
    }
    StatusBar1->setResult(runner.resultInWords());
}

QString FrmComm::leavingNotice() const
{
    return u"Leaving after this file ......."_s;
}

void FrmComm::selectAll()
{
    for (int box = 0; box < boxCount; ++box)
        setTicked(box, true);
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
