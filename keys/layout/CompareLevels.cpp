// See CompareLevels.h.
#include "keys/layout/CompareLevels.h"

#include "keys/layout/ComparedSide.h"
#include "keys/layout/KeyWords.h"
#include "platform/FailureBox.h"
#include "ui/Appearance.h"
#include "ui/FilteredList.h"
#include "ui/FormKit.h"

#include <QBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QPushButton>
#include <QStandardItemModel>
#include <QTableView>

#include <algorithm>

using namespace Qt::Literals::StringLiterals;

namespace norvane::keys
{
namespace
{

constexpr QSize comparisonSize(1320, 700);
constexpr int listHeight = 150;

int levelBeside(int level)
{
    return level < levelCount ? level + 1 : level - 1;
}

QString countText(std::size_t differences)
{
    if (differences == 0)
        return u"Both levels do the same."_s;
    return differences == 1 ? u"1 key is different"_s : u"%1 keys are different"_s.arg(differences);
}

QList<QStandardItem*> rowOf(const KeyDifference& difference)
{
    QList<QStandardItem*> row;
    for (const QString& text :
         {u"Key %1"_s.arg(difference.number), keyInWords(difference.left), keyInWords(difference.right)}) {
        row += new QStandardItem(text);
        row.back()->setEditable(false);
    }
    return row;
}

} // namespace

CompareLevels::CompareLevels(const KeyLevel& shown, const std::shared_ptr<store::Database>& database,
                             Boxes& boxes, QWidget* parent)
    : QDialog(parent), m_boxes(boxes), m_left(new ComparedSide(shown, database, u"Left"_s, this)),
      m_right(new ComparedSide(shown, database, u"Right"_s, this)),
      m_differences(new QStandardItemModel(0, 3, this)), m_count(new QLabel(this))
{
    setObjectName(u"CompareLevels"_s);
    setWindowTitle(u"Compare Levels"_s);
    setWindowFlag(Qt::WindowMaximizeButtonHint);
    ui::nameControl(*m_count, u"DifferenceCount"_s);
    m_left->read(shown.level());
    m_right->read(levelBeside(shown.level()));
    makeList();
    layOut();
    connectSide(*m_left, *m_right);
    connectSide(*m_right, *m_left);
    compare();
    ui::centreOnScreen(*this, ui::scaled(comparisonSize));
    m_list->setFocus();
}

void CompareLevels::makeList()
{
    m_list = ui::makeListTable(u"DifferenceList"_s, u"Differences"_s, m_differences, this);
    ui::fitFirstColumn(*m_list, u"Key 169"_s);
    m_list->horizontalHeader()->setSectionResizeMode(1, QHeaderView::Stretch);
    m_list->setFixedHeight(ui::scaled(listHeight));
    m_list->horizontalHeader()->show();
    connect(m_list->selectionModel(), &QItemSelectionModel::currentRowChanged, this,
            [this](const QModelIndex& current) {
                if (current.isValid())
                    showCell(m_found[static_cast<std::size_t>(current.row())].cell);
            });
    connect(m_list, &QTableView::activated, this, [this] { goTo(*m_left); });
}

void CompareLevels::layOut()
{
    auto* const sides = new QHBoxLayout;
    sides->setSpacing(ui::spacing::groupGap);
    sides->addWidget(m_left);
    sides->addWidget(m_right);
    m_goLeft = ui::makeButton(u"GoLeft"_s, {}, this); // after the list, as Tab goes
    m_goRight = ui::makeButton(u"GoRight"_s, {}, this);
    QPushButton* const leave = ui::makeButton(u"CloseCompare"_s, u"&Close"_s, this);
    connect(leave, &QPushButton::clicked, this, &QDialog::reject);
    connect(m_goLeft, &QPushButton::clicked, this, [this] { goTo(*m_left); });
    connect(m_goRight, &QPushButton::clicked, this, [this] { goTo(*m_right); });
    for (QPushButton* const button : {m_goLeft, m_goRight, leave})
        button->setAutoDefault(false); // Enter belongs to the keys and the list
    auto* const column = new QVBoxLayout(this);
    column->setSpacing(ui::spacing::controlGap);
    column->addLayout(sides, 1);
    column->addWidget(m_count);
    column->addWidget(m_list);
    column->addLayout(ui::makeButtonRow({leave}, {m_goLeft, m_goRight}));
}

void CompareLevels::connectSide(ComparedSide& side, ComparedSide& other)
{
    connect(&side, &ComparedSide::levelWanted, this, [this, &side](int level) { changeLevel(side, level); });
    connect(&side, &ComparedSide::cellWanted, this, [this, &side] { goTo(side); });
    connect(&side, &ComparedSide::cellChosen, this, [this, &other](const KeyCell& cell) {
        other.showCell(cell);
        const auto line = std::ranges::find(m_found, cell, &KeyDifference::cell);
        if (line == m_found.end()) {
            m_list->clearSelection();
        } else {
            m_list->selectRow(static_cast<int>(line - m_found.begin()));
        }
    });
}

/// A level that cannot be read leaves the one shown before.
void CompareLevels::changeLevel(ComparedSide& side, int level)
{
    const int before = side.level().level();
    bool isRead = false;
    openOrTell(m_boxes, [&] {
        side.read(level);
        isRead = true;
    });
    if (!isRead)
        side.read(before);
    compare();
}

void CompareLevels::compare()
{
    m_found = differencesOf(m_left->level(), m_right->level());
    KeyCells cells;
    for (const KeyDifference& difference : m_found)
        cells.push_back(difference.cell);
    m_left->mark(cells);
    m_right->mark(cells);
    listDifferences();
    m_goLeft->setText(u"&Go to Level %1"_s.arg(m_left->level().level()));
    m_goRight->setText(u"Go &to Level %1"_s.arg(m_right->level().level()));
}

void CompareLevels::listDifferences()
{
    m_differences->setRowCount(0);
    m_differences->setHorizontalHeaderLabels(
        {u"Key"_s, u"Level %1"_s.arg(m_left->level().level()), u"Level %1"_s.arg(m_right->level().level())});
    for (const KeyDifference& difference : m_found)
        m_differences->appendRow(rowOf(difference));
    m_count->setText(countText(m_found.size()));
    if (!m_found.empty())
        m_list->selectRow(0);
}

void CompareLevels::showCell(KeyCell cell)
{
    m_left->showCell(cell);
    m_right->showCell(cell);
}

void CompareLevels::goTo(const ComparedSide& side)
{
    m_cell = KeyGridModel::cellOf(side.grid().currentIndex());
    m_wanted = {side.level().level(), side.level().geometry().keyNumber(m_cell).value_or(0)};
    accept();
}

} // namespace norvane::keys
