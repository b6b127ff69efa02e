// Controls and work of the dialog; see CompareDialog.h.
#include "exchange/CompareDialog.h"

#include "customers/DataOwner.h"
#include "platform/RuntimeFailure.h"
#include "ui/Announcement.h"
#include "ui/Appearance.h"
#include "ui/FilteredList.h"
#include "ui/FormKit.h"

#include <QHeaderView>
#include <QLabel>
#include <QPushButton>
#include <QScopeGuard>
#include <QScreen>
#include <QShowEvent>
#include <QStandardItemModel>
#include <QTableView>
#include <QTimer>
#include <QVBoxLayout>

#include <utility>

using namespace Qt::Literals::StringLiterals;

namespace norvane::exchange
{
namespace
{

constexpr QSize dialogSize{860, 500};
constexpr double roomOfScreen = 0.94;
constexpr int leastColumn = 72;
constexpr int mostLines = 5000;
constexpr int keyRole = Qt::UserRole;
const QStringList headings{u"Table"_s, u"Record"_s, u"Field"_s, u"Here"_s, u"At the Register"_s, u"Remark"_s};

QLabel* labelFor(const QString& text, QWidget& control)
{
    auto* const label = new QLabel(text, control.parentWidget());
    label->setBuddy(&control);
    return label;
}

QString oneWayInWords(qint64 count)
{
    return count == 1 ? u"; 1 value in italics travels one way only"_s
                      : u"; %1 values in italics travel one way only"_s.arg(count);
}

QString differences(qint64 count)
{
    return count == 1 ? u"1 difference"_s : u"%1 differences"_s.arg(count);
}

} // namespace

CompareDialog::CompareDialog(std::unique_ptr<RegisterComparison> comparison, Boxes& boxes,
                             store::WorkHistory* history, QWidget* parent)
    : QDialog(parent), m_comparison(std::move(comparison)), m_boxes(boxes), m_history(history),
      m_lines(new QStandardItemModel(0, static_cast<int>(headings.size()), this)), m_notes(new QLabel(this)),
      m_state(new QLabel(this)), m_use(ui::makeButton(u"UseButton"_s, u"&Use the Register's Values"_s, this)),
      m_close(ui::makeButton(u"CloseButton"_s, u"&Close"_s, this))
{
    ui::nameControl(*this, u"CompareDialog"_s);
    setWindowTitle(
        u"%1 Compared with Register 1"_s.arg(customers::ownerOfData(m_comparison->customer()).customerName));
    layOut();
    showNotes();
    choiceChanged();
    m_table->setFocus();
}

CompareDialog::~CompareDialog() = default;

void CompareDialog::layOut()
{
    constexpr int margin = ui::spacing::formMargin;
    auto* const column = new QVBoxLayout(this);
    column->setContentsMargins(margin, margin, margin, margin);
    column->setSpacing(ui::spacing::controlGap);
    m_notes->setObjectName(u"Notes"_s);
    m_notes->setTextFormat(Qt::PlainText);
    m_notes->setWordWrap(true);
    column->addWidget(m_notes);
    column->addSpacing(ui::spacing::controlGap);
    addTable(*column);
    column->addSpacing(ui::spacing::controlGap);
    addButtons(*column);
    resize(ui::scaled(dialogSize).boundedTo(screen()->availableSize() * roomOfScreen));
}

void CompareDialog::addTable(QBoxLayout& column)
{
    m_lines->setHorizontalHeaderLabels(headings);
    m_table = ui::makeListTable(u"ComparedLines"_s, u"Differences"_s, m_lines, this);
    m_table->setEditTriggers(QTableView::NoEditTriggers);
    m_table->setSelectionMode(QTableView::ExtendedSelection);
    m_table->horizontalHeader()->show();
    m_table->horizontalHeader()->setDefaultAlignment(Qt::AlignLeft | Qt::AlignVCenter);
    m_table->horizontalHeader()->setMinimumSectionSize(ui::scaled(leastColumn));
    connect(m_table->selectionModel(), &QItemSelectionModel::selectionChanged, this,
            &CompareDialog::choiceChanged);
    column.addWidget(labelFor(u"&Differences"_s, *m_table));
    column.addWidget(m_table, 1);
}

void CompareDialog::addButtons(QBoxLayout& column)
{
    ui::nameControl(*m_state, u"State"_s);
    m_state->setWordWrap(true);
    connect(m_use, &QPushButton::clicked, this, &CompareDialog::useValues);
    connect(m_close, &QPushButton::clicked, this, &CompareDialog::reject);
    m_use->setAutoDefault(false);
    m_close->setAutoDefault(false);
    auto* const row = new QHBoxLayout;
    row->setSpacing(ui::spacing::controlGap);
    row->addWidget(m_state, 1);
    row->addWidget(m_use);
    row->addWidget(m_close);
    column.addLayout(row);
}

void CompareDialog::showEvent(QShowEvent* event)
{
    QDialog::showEvent(event);
    if (!std::exchange(m_isListed, true))
        QTimer::singleShot(0, this, &CompareDialog::list);
}

/// A customer whose tables cannot be read is reported in the dialog, which remains open.
void CompareDialog::list()
{
    m_isListing = true;
    const auto ended = qScopeGuard([this] {
        m_isListing = false;
        choiceChanged();
    });
    m_state->setText(u"Comparing..."_s);
    m_lines->removeRows(0, m_lines->rowCount());
    m_different = 0;
    m_oneWay = 0;
    try {
        m_comparison->forEach(
            [this](const ComparedLine& line) {
                addLine(line);
                return true;
            },
            [this] { return keepsGoing(); });
        showFound();
    } catch (const RuntimeFailure& failure) {
        m_state->setText(failure.text().simplified());
    }
}

/// Beyond some thousand lines they are only counted.
void CompareDialog::addLine(const ComparedLine& line)
{
    ++(line.isOneWay ? m_oneWay : m_different);
    if (m_lines->rowCount() >= mostLines)
        return;
    QFont font = m_table->font();
    font.setItalic(line.isOneWay);
    QList<QStandardItem*> items;
    for (const QString& text : {line.table, line.record, line.field, line.here, line.there, line.remark}) {
        items << new QStandardItem(text);
        items.back()->setFont(font);
        items.back()->setToolTip(text);
    }
    items.front()->setData(line.key, keyRole);
    m_lines->appendRow(items);
}

void CompareDialog::showNotes()
{
    const QStringList lines =
        m_comparison->notes()
        << u"A download would send the values here to the registers, an upload would bring "
           u"those of register 1. Points of PLUs are not compared."_s;
    m_notes->setText(lines.join(u'\n'));
}

void CompareDialog::showFound()
{
    QString text = m_different == 0 ? u"There are no differences"_s : differences(m_different);
    if (m_oneWay > 0)
        text += oneWayInWords(m_oneWay);
    if (m_different + m_oneWay > mostLines)
        text += u"; the first %1 are listed"_s.arg(mostLines);
    text = m_done.isEmpty() ? text + u'.' : u"%1. %2."_s.arg(m_done, text);
    m_state->setText(text);
    ui::announce(*m_state, text);
    for (int column = 0; column + 1 < headings.size(); ++column)
        m_table->resizeColumnToContents(column);
}

RegisterRecords CompareDialog::chosenRecords() const
{
    RegisterRecords records;
    for (const QModelIndex& row : m_table->selectionModel()->selectedRows()) {
        const QString key = row.data(keyRole).toString();
        QStringList& keys = records[row.data().toString()];
        if (!key.isEmpty() && !keys.contains(key))
            keys << key;
    }
    records.removeIf([](const auto& table) { return table.value().isEmpty(); });
    return records;
}

/// Of a record that the register does not have, there is nothing to use.
void CompareDialog::choiceChanged()
{
    m_use->setEnabled(!m_isListing && !chosenRecords().isEmpty());
}

void CompareDialog::useValues()
{
    const RegisterRecords records = chosenRecords();
    if (m_isListing || records.isEmpty())
        return;
    try {
        m_done = m_comparison->useRecords(records, m_boxes, m_history);
    } catch (const RuntimeFailure& failure) {
        m_done = u"Nothing was stored. %1"_s.arg(failure.text().simplified());
    }
    list();
    m_table->setFocus();
}

bool CompareDialog::keepsGoing()
{
    if (m_turns.isDue())
        m_turns.run();
    return !m_isStopped;
}

void CompareDialog::reject()
{
    m_isStopped = true;
    QDialog::reject();
}

} // namespace norvane::exchange
