// Controls and work of the dialog; see CopyToShopsDialog.h.
#include "programme/CopyToShopsDialog.h"

#include "base/CustomerSettings.h"
#include "base/LossQuestion.h"
#include "customers/CustomerFolders.h"
#include "platform/FilePaths.h"
#include "ui/Announcement.h"
#include "ui/Appearance.h"
#include "ui/FilteredList.h"
#include "ui/FormKit.h"

#include <QHeaderView>
#include <QLabel>
#include <QListWidget>
#include <QPushButton>
#include <QRadioButton>
#include <QScreen>
#include <QSignalBlocker>
#include <QStandardItemModel>
#include <QTableView>
#include <QVBoxLayout>

#include <numeric>
#include <utility>

using namespace Qt::Literals::StringLiterals;

namespace norvane::programme
{
namespace
{

constexpr QSize dialogSize{860, 500};
constexpr double roomOfScreen = 0.94;
constexpr int choiceWidth = 230;
constexpr int notesHeight = 84;
constexpr int listedLines = 500; ///< of each customer
constexpr int leastColumn = 72;
const QStringList headings{u"Customer"_s, u"Record"_s, u"Field"_s, u"Old"_s, u"New"_s};

ApplicationValues customerNamed(const QString& appPath, const QString& name)
{
    ApplicationValues values;
    values.appPath = appPath;
    values.customerName = name;
    values.customerPath = existingPath(joinPath(appPath, name));
    values.databasePath = customers::customerDatabase(values.customerPath);
    return values;
}

QLabel* labelOf(const QString& text, QWidget& control)
{
    auto* const label = new QLabel(text, control.parentWidget());
    label->setBuddy(&control);
    return label;
}

QString countOf(qint64 count, const QString& one, const QString& several)
{
    return u"%1 %2"_s.arg(count).arg(count == 1 ? one : several);
}

} // namespace

CopyToShopsDialog::CopyToShopsDialog(const ApplicationValues& from, ScreenContents contents, Boxes& boxes,
                                     QWidget* parent)
    : QDialog(parent), m_from(from), m_contents(std::move(contents)), m_boxes(boxes),
      m_database(from.databasePath), m_model(registerModel(from)), m_choice(new QWidget(this)),
      m_thisRecord(new QRadioButton(m_choice)), m_wholeTable(new QRadioButton(m_choice)),
      m_customers(new QListWidget(m_choice)),
      m_changes(new QStandardItemModel(0, static_cast<int>(headings.size()), this)),
      m_notes(new QListWidget(this)), m_state(new QLabel(this)),
      m_copy(ui::makeButton(u"CopyButton"_s, u"C&opy"_s, this)),
      m_close(ui::makeButton(u"CloseButton"_s, u"&Close"_s, this))
{
    ui::nameControl(*this, u"CopyToShopsDialog"_s);
    setWindowTitle(u"Copy to Other Customers"_s);
    layOut();
    listShops();
    connectChoice();
    showFound();
}

void CopyToShopsDialog::connectChoice()
{
    m_refresh.setSingleShot(true);
    connect(&m_refresh, &QTimer::timeout, this, &CopyToShopsDialog::refresh);
    connect(m_thisRecord, &QRadioButton::toggled, this, &CopyToShopsDialog::choiceChanged);
    connect(m_customers, &QListWidget::itemChanged, this, &CopyToShopsDialog::choiceChanged);
}

CopyToShopsDialog::~CopyToShopsDialog() = default;

void CopyToShopsDialog::layOut()
{
    constexpr int margin = ui::spacing::formMargin;
    auto* const choice = new QVBoxLayout(m_choice);
    choice->setContentsMargins(0, 0, 0, 0);
    choice->setSpacing(ui::spacing::controlGap);
    addChoice(*choice);
    auto* const found = new QVBoxLayout;
    found->setSpacing(ui::spacing::controlGap);
    addDifferences(*found);
    auto* const row = new QHBoxLayout;
    row->setSpacing(ui::spacing::groupGap);
    row->addWidget(m_choice);
    row->addLayout(found, 1);
    auto* const column = new QVBoxLayout(this);
    column->setContentsMargins(margin, margin, margin, margin);
    column->setSpacing(ui::spacing::groupGap);
    column->addLayout(row, 1);
    addButtons(*column);
    resize(ui::scaled(dialogSize).boundedTo(screen()->availableSize() * roomOfScreen));
}

void CopyToShopsDialog::addChoice(QBoxLayout& column)
{
    ui::nameControl(*m_thisRecord, u"ThisRecord"_s);
    ui::nameControl(*m_wholeTable, u"WholeTable"_s);
    ui::nameControl(*m_customers, u"CustomerList"_s, u"Customers"_s);
    const bool hasRecord = !m_contents.record.isEmpty();
    m_thisRecord->setText(hasRecord ? u"&This record: %1"_s.arg(m_contents.recordName) : u"&This record"_s);
    m_thisRecord->setEnabled(hasRecord);
    m_wholeTable->setText(u"&All records of this screen"_s);
    (hasRecord ? m_thisRecord : m_wholeTable)->setChecked(true);
    m_customers->setFixedWidth(ui::scaled(choiceWidth));
    column.addWidget(m_thisRecord);
    column.addWidget(m_wholeTable);
    column.addSpacing(ui::spacing::controlGap);
    column.addWidget(labelOf(u"C&ustomers"_s, *m_customers));
    column.addWidget(m_customers, 1);
}

void CopyToShopsDialog::addDifferences(QBoxLayout& column)
{
    m_changes->setHorizontalHeaderLabels(headings);
    m_table = ui::makeListTable(u"Changes"_s, u"Differences"_s, m_changes, this);
    m_table->setEditTriggers(QTableView::NoEditTriggers);
    m_table->horizontalHeader()->show();
    m_table->horizontalHeader()->setDefaultAlignment(Qt::AlignLeft | Qt::AlignVCenter);
    m_table->horizontalHeader()->setMinimumSectionSize(ui::scaled(leastColumn));
    ui::nameControl(*m_notes, u"NoteList"_s, u"Notes"_s);
    m_notes->setFixedHeight(ui::scaled(notesHeight));
    m_notes->setWordWrap(true);
    column.addWidget(labelOf(u"&Differences"_s, *m_table));
    column.addWidget(m_table, 1);
    column.addWidget(labelOf(u"&Notes"_s, *m_notes));
    column.addWidget(m_notes);
}

void CopyToShopsDialog::addButtons(QBoxLayout& column)
{
    ui::nameControl(*m_state, u"State"_s);
    m_state->setWordWrap(true);
    connect(m_copy, &QPushButton::clicked, this, &CopyToShopsDialog::copy);
    connect(m_close, &QPushButton::clicked, this, &CopyToShopsDialog::reject);
    m_copy->setAutoDefault(false);
    m_close->setAutoDefault(false);
    auto* const row = new QHBoxLayout;
    row->setSpacing(ui::spacing::controlGap);
    row->addWidget(m_state, 1);
    row->addWidget(m_copy);
    row->addWidget(m_close);
    column.addLayout(row);
}

void CopyToShopsDialog::listShops()
{
    for (const QString& name : receivingShops(m_from.appPath, m_from.customerPath)) {
        auto* const item = new QListWidgetItem(name, m_customers);
        item->setFlags(Qt::ItemIsEnabled | Qt::ItemIsSelectable | Qt::ItemIsUserCheckable);
        item->setCheckState(Qt::Unchecked);
    }
    m_customers->setCurrentRow(0);
    m_customers->setFocus();
}

QStringList CopyToShopsDialog::chosenShops() const
{
    QStringList names;
    for (int row = 0; row < m_customers->count(); ++row) {
        if (m_customers->item(row)->checkState() == Qt::Checked)
            names << m_customers->item(row)->text();
    }
    return names;
}

ChosenParts CopyToShopsDialog::chosenParts() const
{
    ChosenParts parts{{m_contents.table}, {}};
    if (m_thisRecord->isChecked())
        parts.records << m_contents.record;
    return parts;
}

/// Ends a comparison that is under way; the next one begins when it has ended.
void CopyToShopsDialog::choiceChanged()
{
    m_isStopped = true;
    m_copy->setEnabled(false);
    m_refresh.start(0);
}

void CopyToShopsDialog::refresh()
{
    if (m_isComparing)
        return m_refresh.start(ui::EventTurns::between);
    m_isStopped = false;
    m_isComparing = true;
    compareAll();
    m_isComparing = false;
    if (!m_isStopped)
        showFound();
}

void CopyToShopsDialog::compareAll()
{
    m_shops.clear();
    m_notes->clear();
    m_changes->removeRows(0, m_changes->rowCount());
    for (const QString& name : chosenShops()) {
        if (m_isStopped)
            return;
        try {
            compareWith(name);
        } catch (const RuntimeFailure& failure) {
            if (!m_isStopped)
                note(name, failure.text());
        }
    }
}

void CopyToShopsDialog::compareWith(const QString& name)
{
    m_state->setText(u"Comparing with %1..."_s.arg(name));
    auto shop = std::make_unique<ReceivingShop>(customerNamed(m_from.appPath, name));
    shop->compare({m_database, m_model}, chosenParts(), [this] { return keepsGoing(); });
    listChanges(*shop);
    listLeftOut(*shop);
    m_shops.push_back(std::move(shop));
}

void CopyToShopsDialog::listChanges(const ReceivingShop& shop)
{
    const int end = m_changes->rowCount() + listedLines;
    const auto list = [&](const RecordChange& change) {
        forEachLine(change, [&](const ChangeLine& line) { addLine(shop, change.record, line); });
        return m_changes->rowCount() < end;
    };
    if (shop.comparison().counts().all() > 0)
        shop.comparison().forEach(list, [this] { return keepsGoing(); });
    note(shop.name(), shop.comparison().counts().inWords() +
                          (m_changes->rowCount() < end ? QString() : u"; not all are listed"_s));
}

void CopyToShopsDialog::addLine(const ReceivingShop& shop, const QString& record, const ChangeLine& line)
{
    const QString label = m_contents.labelOf ? m_contents.labelOf(line.what) : QString();
    QList<QStandardItem*> items;
    for (const QString& text :
         {shop.name(), record, label.isEmpty() ? line.what : label, line.before, line.after})
        items << new QStandardItem(text);
    m_changes->appendRow(items);
}

void CopyToShopsDialog::listLeftOut(const ReceivingShop& shop)
{
    for (const LeftOut& what : shop.comparison().leftOut())
        note(shop.name(), u"left out: "_s + what.inWords());
}

void CopyToShopsDialog::showFound()
{
    if (m_contents.isUnsaved)
        note(m_contents.title, u"unsaved changes are not copied."_s);
    const auto changes =
        std::accumulate(m_shops.begin(), m_shops.end(), qint64{0},
                        [](qint64 sum, const auto& shop) { return sum + shop->comparison().counts().all(); });
    m_copy->setEnabled(changes > 0);
    say(m_customers->count() == 0 ? u"There is no other customer."_s
        : m_shops.empty()         ? u"Check the customers to copy to."_s
        : changes == 0            ? u"There are no differences."_s
                                  : u"Different: %1. Nothing is stored before you press Copy."_s.arg(
                                        countOf(changes, u"record"_s, u"records"_s)));
    for (int column = 0; column + 1 < headings.size(); ++column)
        m_table->resizeColumnToContents(column);
}

bool CopyToShopsDialog::mayCopy()
{
    const auto gone =
        std::accumulate(m_shops.begin(), m_shops.end(), qint64{0},
                        [](qint64 sum, const auto& shop) { return sum + shop->comparison().counts().gone; });
    return gone == 0 ||
           askBeforeLoss(m_boxes,
                         u"%1 that %2 does not have will be removed at other customers.\r\rCopy?"_s.arg(
                             countOf(gone, u"record"_s, u"records"_s), m_from.customerName));
}

void CopyToShopsDialog::copy()
{
    if (!mayCopy())
        return;
    m_choice->setEnabled(false);
    m_copy->setEnabled(false);
    m_isStopped = false;
    m_isCopying = true;
    m_notes->clear();
    copyAll();
    m_isCopying = false;
    beginAgain();
}

/// The notes remain, and say how each customer ended.
void CopyToShopsDialog::beginAgain()
{
    const QSignalBlocker quiet(m_customers);
    for (int row = 0; row < m_customers->count(); ++row)
        m_customers->item(row)->setCheckState(Qt::Unchecked);
    m_shops.clear();
    m_changes->removeRows(0, m_changes->rowCount());
    m_choice->setEnabled(true);
    m_close->setFocus();
}

void CopyToShopsDialog::copyAll()
{
    int copied = 0;
    for (const auto& shop : m_shops) {
        if (!m_isStopped && copyTo(*shop))
            ++copied;
    }
    say(u"Copied to %1 of %2."_s.arg(copied).arg(
        countOf(static_cast<qint64>(m_shops.size()), u"customer"_s, u"customers"_s)));
}

bool CopyToShopsDialog::copyTo(ReceivingShop& shop)
{
    m_state->setText(u"Copying to %1..."_s.arg(shop.name()));
    try {
        shop.lock();
        note(shop.name(), u"copied, "_s + shop.copy(m_from.customerName, [this] { return keepsGoing(); }));
        return true;
    } catch (const RuntimeFailure& failure) {
        note(shop.name(), u"nothing was copied. "_s + failure.text().simplified());
        return false;
    }
}

void CopyToShopsDialog::note(const QString& shop, const QString& text)
{
    m_notes->addItem(u"%1: %2"_s.arg(shop, text));
}

void CopyToShopsDialog::say(const QString& text)
{
    m_state->setText(text);
    ui::announce(*m_state, text);
}

bool CopyToShopsDialog::keepsGoing()
{
    if (m_turns.isDue())
        m_turns.run();
    return !m_isStopped;
}

void CopyToShopsDialog::reject()
{
    m_isStopped = true;
    if (!m_isCopying)
        QDialog::reject();
}

} // namespace norvane::programme
