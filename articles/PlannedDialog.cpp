// Controls of the window of planned changes; see PlannedDialog.h.
#include "articles/PlannedDialog.h"

#include "articles/SpreadsheetError.h"
#include "customers/RunLock.h"
#include "platform/ShownTime.h"
#include "ui/Appearance.h"
#include "ui/FilteredList.h"
#include "ui/FormKit.h"
#include "ui/ScreenShare.h"

#include <QFileInfo>
#include <QHeaderView>
#include <QLabel>
#include <QPushButton>
#include <QTableView>
#include <QTreeWidget>
#include <QVBoxLayout>

#include <algorithm>
#include <array>
#include <utility>

using namespace Qt::Literals::StringLiterals;

namespace norvane::articles
{
namespace
{

const auto plannedTitle = u"Planned Changes"_s;
constexpr QSize listsSize{640, 150};
constexpr QSize changesSize{640, 220};
/// Of the height of a small screen, where large type would make both higher.
constexpr double listsShare = 0.25;
constexpr double changesShare = 0.35;
constexpr std::array changePixels{72, 150, 150, 130};

} // namespace

PlannedDialog::PlannedDialog(ApplicationValues values, LabelsOf labelsOf, Boxes& boxes, QWidget* parent)
    : QDialog(parent), m_values(std::move(values)), m_labelsOf(std::move(labelsOf)), m_boxes(boxes),
      m_lists(new QTreeWidget(this)), m_changes(new DifferenceList(this))
{
    ui::nameControl(*this, u"PlannedDialog"_s);
    setWindowTitle(u"%1 of %2"_s.arg(plannedTitle, m_values.customerName));
    layOut();
    connect(m_lists, &QTreeWidget::currentItemChanged, this, &PlannedDialog::showChanges);
    listPlanned();
}

void PlannedDialog::layOut()
{
    ui::nameControl(*m_lists, u"PlannedLists"_s, plannedTitle);
    m_lists->setHeaderLabels({u"List"_s, u"Store on"_s, u"Table"_s, u"Records"_s, u"State"_s, u"From"_s});
    m_lists->setRootIsDecorated(false);
    m_lists->setAllColumnsShowFocus(true);
    m_lists->setMinimumSize(ui::scaledOnScreen(*this, listsSize, listsShare));
    m_lists->header()->setSectionResizeMode(QHeaderView::ResizeToContents);
    m_lists->header()->setStretchLastSection(false);
    QTableView* const changes = makeChanges();
    auto* const label = new QLabel(u"&What it changes:"_s, this);
    label->setBuddy(changes);
    QVBoxLayout* const column = ui::makeFormColumn(*this, ui::spacing::controlGap);
    column->addWidget(m_lists, 1);
    column->addWidget(label);
    column->addWidget(changes, 2);
    column->addLayout(makeButtons());
}

QTableView* PlannedDialog::makeChanges()
{
    QTableView* const view =
        ui::makeListTable(u"PlannedValues"_s, u"What the list changes"_s, m_changes, this);
    view->horizontalHeader()->show();
    view->horizontalHeader()->setDefaultAlignment(Qt::AlignLeft | Qt::AlignVCenter);
    view->setMinimumHeight(ui::scaledOnScreen(*this, changesSize, changesShare).height());
    for (std::size_t column = 0; column < changePixels.size(); ++column)
        view->setColumnWidth(static_cast<int>(column), ui::scaled(changePixels.at(column)));
    return view;
}

QPushButton* PlannedDialog::addButton(const QString& name, const QString& caption,
                                      void (PlannedDialog::*pressed)())
{
    QPushButton* const button = ui::makeButton(name, caption, this);
    button->setAutoDefault(false);
    connect(button, &QPushButton::clicked, this, pressed);
    return button;
}

QLayout* PlannedDialog::makeButtons()
{
    m_cancel = addButton(u"CancelList"_s, u"&Cancel List..."_s, &PlannedDialog::cancelList);
    m_again = addButton(u"PlanAgain"_s, u"&Plan Again"_s, &PlannedDialog::planAgain);
    QPushButton* const close = addButton(u"CloseButton"_s, u"Close"_s, &PlannedDialog::accept);
    return ui::makeButtonRow({close}, {m_cancel, m_again});
}

PlannedDialog::Row PlannedDialog::rowOf(const PlannedFile& file)
{
    const QString number = QString::number(file.number);
    try {
        const PlannedList list = file.read();
        return {file,
                list.day,
                {number, shownDay(list.day), list.table, QString::number(list.records.size()),
                 stateInWords(file.state), QFileInfo(list.source).fileName()}};
    } catch (const TextError& error) {
        return {file, {}, {number, {}, {}, {}, error.text(), QFileInfo(file.path).fileName()}};
    }
}

void PlannedDialog::listPlanned()
{
    const int former = chosen() != nullptr ? chosen()->file.number : 0;
    m_lists->clear();
    m_rows.clear();
    for (const PlannedFile& file : plannedFiles(m_values.customerPath)) {
        if (file.state != PlannedState::Done)
            m_rows.push_back(rowOf(file));
    }
    std::ranges::stable_sort(m_rows, {},
                             [](const Row& row) { return std::pair(!row.day.isValid(), row.day); });
    for (const Row& row : m_rows)
        (void)new QTreeWidgetItem(m_lists, row.texts);
    const auto again = std::ranges::find(m_rows, former, [](const Row& row) { return row.file.number; });
    m_lists->setCurrentItem(
        m_lists->topLevelItem(again == m_rows.end() ? 0 : static_cast<int>(again - m_rows.begin())));
    showChanges();
}

const PlannedDialog::Row* PlannedDialog::chosen() const
{
    const int place = m_lists->indexOfTopLevelItem(m_lists->currentItem());
    return place < 0 ? nullptr : &m_rows[static_cast<std::size_t>(place)];
}

void PlannedDialog::showChanges()
{
    const Row* const row = chosen();
    m_cancel->setEnabled(row != nullptr && row->file.state == PlannedState::Planned);
    m_again->setEnabled(row != nullptr && row->file.state == PlannedState::Cancelled);
    m_changes->clear();
    try {
        if (row != nullptr) {
            const PlannedList list = row->file.read();
            m_changes->list(list, m_labelsOf(list.table));
        }
    } catch (const TextError&) {
        // Damaged, or renamed since it was listed.
        return;
    }
}

void PlannedDialog::change(PlannedState from, const std::function<void(const PlannedFile& file)>& work)
{
    const PlannedFile file = chosen()->file;
    if (const auto lock = customers::RunLock::take(m_values, m_boxes)) {
        try {
            // A timer may have stored it meanwhile.
            if (QFileInfo::exists(file.path) && file.state == from)
                work(file);
        } catch (const TextError& error) {
            m_boxes.message(u"List %1: %2"_s.arg(file.number).arg(error.text()), plannedTitle,
                            BoxIcon::Critical);
        }
    }
    listPlanned();
}

void PlannedDialog::cancelList()
{
    const Row& row = *chosen();
    const QString question =
        u"List %1 will not be stored on its day.\r\rIts file is kept, and \"Plan Again\" plans it again "
        u"before that day.\r\rCancel it?"_s.arg(row.file.number);
    if (m_boxes.ask(question, plannedTitle, BoxIcon::Question, BoxAnswer::No)) {
        change(PlannedState::Planned,
               [this](const PlannedFile& file) { cancelPlannedList(m_values.customerPath, file); });
    }
}

void PlannedDialog::planAgain()
{
    if (chosen()->day < QDate::currentDate()) {
        m_boxes.message(u"The day of list %1 is past. Import its file again."_s.arg(chosen()->file.number),
                        plannedTitle, BoxIcon::Exclamation);
        return;
    }
    change(PlannedState::Cancelled,
           [this](const PlannedFile& file) { replanList(m_values.customerPath, file); });
}

} // namespace norvane::articles
