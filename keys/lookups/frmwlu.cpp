// See frmwlu.h.
#include "keys/lookups/frmwlu.h"

#include "base/CustomerSettings.h"
#include "base/LossQuestion.h"
#include "keys/ItemUsesButton.h"
#include "keys/KeyDatabase.h"
#include "keys/KeyPlaces.h"
#include "keys/lookups/LookUpFields.h"
#include "keys/lookups/LookUpGridModel.h"
#include "keys/RecordPicker.h"
#include "keys/SaveOrTell.h"
#include "paper/Length.h"
#include "platform/Boxes.h"
#include "platform/Numbers.h"
#include "ui/Appearance.h"
#include "ui/FittingArea.h"
#include "ui/FormKit.h"
#include "ui/StatusLine.h"

#include <QCloseEvent>
#include <QHeaderView>
#include <QItemSelectionModel>
#include <QLabel>
#include <QPushButton>
#include <QShortcut>
#include <QTableView>
#include <QVBoxLayout>

using namespace Qt::Literals::StringLiterals;

namespace norvane::keys
{
namespace
{

constexpr double rowHeightTwips = 500;
/// The last column is wider: it takes what is left of the form.
constexpr double columnWidthsTwips[] = {300, 1100, 1900};
constexpr int cellPadding = 9;
constexpr int rowsInView = 11;

/// As a key's number in table nlu begins.
QString fourDigits(const QString& number)
{
    return formatNumber(number, u"0000"_s);
}

QTableView* makeGrid(LookUpGridModel* model, QWidget* form)
{
    auto* const grid = new QTableView(form);
    ui::nameControl(*grid, u"Grid1"_s, u"Lines of the look-up"_s);
    grid->setModel(model);
    grid->setTabKeyNavigation(false);
    grid->setSelectionBehavior(QTableView::SelectRows);
    grid->setSelectionMode(QTableView::SingleSelection);
    grid->setDragDropMode(QTableView::InternalMove);
    grid->setDragDropOverwriteMode(false);
    grid->setDropIndicatorShown(true);
    grid->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    grid->setToolTip(u"Enter leads to the lists. Alt and the arrows, or the mouse, move a line."_s);
    return grid;
}

int columnPixels(int column)
{
    return ui::scaled(paper::screenPixels(paper::twips(columnWidthsTwips[column])));
}

void sizeGrid(QTableView& grid)
{
    const int rowHeight = ui::scaled(paper::screenPixels(paper::twips(rowHeightTwips)));
    grid.horizontalHeader()->hide();
    grid.horizontalHeader()->setMinimumSectionSize(1);
    grid.horizontalHeader()->setStretchLastSection(true);
    grid.verticalHeader()->hide();
    grid.verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
    grid.verticalHeader()->setDefaultSectionSize(rowHeight);
    // Two digits do not fit into the width planned for a smaller font.
    const int digits = grid.fontMetrics().horizontalAdvance(u"50"_s) + cellPadding;
    grid.setColumnWidth(LookUpGridModel::LineColumn, qMax(digits, columnPixels(LookUpGridModel::LineColumn)));
    grid.setColumnWidth(LookUpGridModel::WordColumn, columnPixels(LookUpGridModel::WordColumn));
    grid.setMinimumHeight(rowsInView * rowHeight);
}

} // namespace

frmwlu::frmwlu(ApplicationValues& values, Boxes& boxes, QWidget* parent)
    : QDialog(parent), m_boxes(boxes), m_database(openCustomerDatabase(values)),
      m_keyboard(keyboardOf(registerModel(values).family)), m_records(m_database),
      m_picker(new RecordPicker(u"selectwlu"_s, u"Select WLU"_s, this)), m_lines(new LookUpGridModel(this)),
      m_fields(new LookUpFields(this)), Grid1(makeGrid(m_lines, this)),
      m_lists(new LookUpLists(m_database, this)), m_status(new ui::StatusLine(this)),
      m_uses(makeUsesButton(
          *m_database, m_keyboard, ItemKind::LookUp, [this] { return m_records.storedNumber(); }, this))
{
    setObjectName(u"frmwlu"_s);
    setWindowTitle(u"WLU Programming"_s);
    sizeGrid(*Grid1);
    layOut();
    connectControls();
    m_picker->setItems(m_records.readItems());
    updategrid();
    goToLine(0);
    Grid1->setFocus();
}

void frmwlu::layOut()
{
    auto* const left = new QVBoxLayout;
    left->setSpacing(ui::spacing::groupGap);
    left->addLayout(makePickerRow());
    left->addWidget(m_fields);
    left->addWidget(Grid1, 1);
    auto* const contents = new QWidget;
    auto* const upper = new QHBoxLayout(contents);
    upper->setContentsMargins({});
    upper->setSpacing(ui::spacing::groupGap);
    upper->addLayout(left);
    upper->addWidget(m_lists, 1);
    auto* const column = new QVBoxLayout(this);
    constexpr int margin = ui::spacing::formMargin;
    column->setContentsMargins(margin, margin, margin, 0);
    column->setSpacing(ui::spacing::groupGap);
    column->addWidget(new ui::FittingArea(contents), 1);
    column->addLayout(makeButtons());
    column->addWidget(m_status);
}

QHBoxLayout* frmwlu::makePickerRow()
{
    auto* const label = new QLabel(u"Select WLU"_s, this);
    label->setBuddy(m_picker);
    auto* const row = new QHBoxLayout;
    row->setSpacing(ui::spacing::controlGap);
    row->addWidget(label);
    row->addWidget(m_picker, 1);
    return row;
}

QHBoxLayout* frmwlu::makeButtons()
{
    const auto button = [this](const QString& name, const QString& caption, void (frmwlu::*pressed)()) {
        QPushButton* const made = ui::makeButton(name, caption, this);
        // Enter belongs to grid and lists.
        made->setAutoDefault(false);
        connect(made, &QPushButton::clicked, this, pressed);
        return made;
    };
    auto* const previous = button(u"PreviousRecord"_s, u"Previous"_s, &frmwlu::previousRecord);
    auto* const next = button(u"NextRecord"_s, u"&Next"_s, &frmwlu::nextRecord);
    auto* const remove = button(u"CSCmdBtn3"_s, u"Delete Line"_s, &frmwlu::deleteLine);
    auto* const save = button(u"CSCmdBtn1"_s, u"&Save"_s, &frmwlu::saveChanges);
    auto* const exit = button(u"CSCmdBtn2"_s, u"E&xit"_s, &frmwlu::leave);
    return ui::makeButtonRow({remove, save, exit}, {previous, next, m_uses});
}

void frmwlu::connectControls()
{
    connect(m_picker, &QComboBox::activated, this, &frmwlu::selectwlu_Click);
    connect(m_fields, &LookUpFields::allowedChanged, this, &frmwlu::showLists);
    connect(m_lists, &LookUpLists::clicked, this, &frmwlu::fillLine);
    connect(m_lists, &LookUpLists::entered, this, [this](ItemKind kind, const QString& number) {
        fillLine(kind, number);
        Grid1->setFocus();
    });
    connect(m_lines, &LookUpGridModel::moved, this, &frmwlu::goToLine);
    connect(Grid1, &QTableView::activated, m_lists, &LookUpLists::enter);
    connect(Grid1->selectionModel(), &QItemSelectionModel::currentChanged, this,
            [this](const QModelIndex& current) { goToLine(current.row()); });
    for (const int step : {-1, 1}) {
        const QKeySequence keys(Qt::ALT | (step < 0 ? Qt::Key_Up : Qt::Key_Down));
        auto* const shortcut = new QShortcut(keys, this);
        connect(shortcut, &QShortcut::activated, this, [this, step] { moveLineBy(step); });
    }
}

int frmwlu::currentLine() const
{
    return Grid1->currentIndex().row();
}

/// The current cell is always the one of the item.
void frmwlu::goToLine(int line)
{
    const QModelIndex cell = m_lines->index(line, LookUpGridModel::ItemColumn);
    if (cell.isValid() && Grid1->currentIndex() != cell)
        Grid1->setCurrentIndex(cell);
}

void frmwlu::moveLineBy(int step)
{
    m_lines->move(currentLine(), currentLine() + step);
}

void frmwlu::updategrid()
{
    const LookUp lookUp = m_records.read();
    m_picker->showRecord(lookUp.number);
    m_fields->setLookUp(lookUp);
    m_fields->showKeys(placesText(findKeys(*m_database, m_keyboard, lookUpLink, fourDigits(lookUp.number))));
    m_lines->setLines(lookUp.lines);
    m_shown = entered();
    m_status->setNotice({});
    m_uses->recount();
    showLists();
}

void frmwlu::showLists()
{
    LookUp shown;
    m_fields->read(shown);
    m_lists->reach(ItemKind::Plu, shown.allowsCondiments || shown.allowsPlus);
    m_lists->reach(ItemKind::Function, shown.allowsFunctions);
}

void frmwlu::fillLine(ItemKind kind, const QString& number)
{
    const int line = currentLine();
    if (line < 0)
        return;
    LookUpLine content = m_lines->lines().at(static_cast<std::size_t>(line));
    m_records.fill(content, kind, number);
    m_lines->setLine(line, content);
}

void frmwlu::saveChanges()
{
    if (m_boxes.ask(u"Save Changes?"_s, u"Save Details."_s))
        SaveGrid();
}

void frmwlu::deleteLine()
{
    if (currentLine() >= 0)
        m_lines->setLine(currentLine(), {});
    SaveGrid();
}

LookUp frmwlu::entered() const
{
    LookUp lookUp;
    lookUp.lines = m_lines->lines();
    m_fields->read(lookUp);
    return lookUp;
}

/// @return false when nothing was stored.
bool frmwlu::SaveGrid()
{
    LookUp lookUp = entered();
    if (!mayStore(lookUp) || !saveOrTell(m_boxes, [&] { m_records.save(lookUp); }))
        return false;
    m_picker->setItems(m_records.readItems());
    updategrid();
    m_status->setNotice(u"Saved WLU No "_s + m_records.storedNumber());
    return true;
}

/// Registers count their look-ups by the order of the numbers: another number moves all in between.
bool frmwlu::mayStore(const LookUp& lookUp)
{
    const QString stored = m_records.storedNumber();
    if (fourDigits(lookUp.number) == fourDigits(stored))
        return true;
    if (const auto other = m_records.find(lookUp.number)) {
        offerInstead(*other);
        return false;
    }
    return askBeforeLoss(m_boxes,
                         u"This look-up is WLU No %1 at the register and would become \"%2\" here. With the "
                         "next download, keys that open a look-up may open another one.\n\nSave it "
                         "all the same?"_s.arg(stored, lookUp.number));
}

void frmwlu::offerInstead(const ListedItem& other)
{
    if (askBeforeLoss(
            m_boxes, u"WLU No %1, \"%2\", exists already, and no two look-ups can have one number. "
                     "Nothing was saved.\n\nGo to WLU No %1 instead? What was changed in WLU No %3 is "
                     "lost then."_s.arg(other.number, other.description.trimmed(), m_records.storedNumber())))
        goTo(other.number);
}

/// Without any question: what is not saved is lost.
void frmwlu::leave()
{
    done(Rejected);
}

bool frmwlu::mayLeave()
{
    if (entered() == m_shown)
        return true;
    const auto answer = m_boxes.askBeforeGoingOn(u"Save Changes?"_s, u"Save Details."_s);
    return answer == true ? SaveGrid() : answer.has_value();
}

void frmwlu::reject()
{
    if (m_lists->leave()) {
        Grid1->setFocus();
    } else {
        close();
    }
}

void frmwlu::closeEvent(QCloseEvent* event)
{
    event->setAccepted(mayLeave());
    if (event->isAccepted())
        done(Rejected);
}

/// Saving changes first fills the list again, so that the row may be another one by then.
void frmwlu::selectwlu_Click(int row)
{
    const QString number = m_picker->itemData(row).toString();
    if (mayLeave()) {
        goTo(number);
    } else {
        m_picker->showRecord(m_records.storedNumber());
    }
}

void frmwlu::showRecord(const QString& number)
{
    if (m_records.find(number))
        goTo(number);
}

void frmwlu::goTo(const QString& number)
{
    m_records.moveTo(number);
    updategrid();
    goToLine(0);
}

void frmwlu::nextRecord()
{
    if (!m_records.next())
        return reportNoMoreRecords();
    updategrid();
    goToLine(0);
}

void frmwlu::previousRecord()
{
    if (!m_records.previous())
        reportNoMoreRecords();
    updategrid();
    goToLine(0);
}

void frmwlu::reportNoMoreRecords()
{
    m_boxes.message(u"No more records.."_s, u"Information"_s, BoxIcon::Information);
}

} // namespace norvane::keys
