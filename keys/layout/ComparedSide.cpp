// See ComparedSide.h.
#include "keys/layout/ComparedSide.h"

#include "keys/layout/KeyCellDelegate.h"
#include "register/PluNumber.h"
#include "ui/Appearance.h"
#include "ui/FormKit.h"

#include <QBoxLayout>
#include <QComboBox>
#include <QHeaderView>
#include <QTableView>

using namespace Qt::Literals::StringLiterals;

namespace norvane::keys
{
namespace
{

constexpr int narrowestKey = 34;
constexpr int lowestKey = 26;
constexpr int keyFontPixels = 9;

/// Two keyboards side by side have no room for 17 digits.
class ShortModel : public KeyGridModel
{
public:
    using KeyGridModel::KeyGridModel;

    [[nodiscard]] QVariant data(const QModelIndex& index, int role) const override
    {
        QVariant content = KeyGridModel::data(index, role);
        const auto state = static_cast<KeyState>(KeyGridModel::data(index, StateRole).toInt());
        if (role != Qt::DisplayRole || (state != KeyState::Plu && state != KeyState::LookUp))
            return content;
        const QString text = content.toString().mid(1); // without its letter
        return unfilledNumber(text.section(u' ', 0, 0)) + u' ' + text.section(u' ', 1);
    }
};

void stretch(QHeaderView& header, int least)
{
    header.hide();
    header.setMinimumSectionSize(ui::scaled(least));
    header.setSectionResizeMode(QHeaderView::Stretch);
}

} // namespace

ComparedSide::ComparedSide(const KeyLevel& shown, std::shared_ptr<store::Database> database,
                           const QString& name, QWidget* parent)
    : QWidget(parent), m_shown(shown), m_level(shown.geometry(), std::move(database)),
      m_model(std::make_unique<ShortModel>(m_level, m_editor)), m_box(new QComboBox(this)),
      m_grid(new QTableView(this))
{
    ui::nameControl(*m_box, name + u"Level"_s, name + u" level"_s);
    for (int level = 1; level <= levelCount; ++level)
        m_box->addItem(u"Level %1"_s.arg(level), level);
    connect(m_box, &QComboBox::activated, this, [this](int row) { Q_EMIT levelWanted(row + 1); });
    m_level.read(shown.level());
    makeGrid(name);
    auto* const column = new QVBoxLayout(this);
    column->setContentsMargins({});
    column->setSpacing(ui::spacing::controlGap);
    column->addWidget(m_box, 0, Qt::AlignLeft);
    column->addWidget(m_grid, 1);
}

void ComparedSide::makeGrid(const QString& name)
{
    ui::nameControl(*m_grid, name + u"Keys"_s, name + u" keys"_s);
    m_grid->setModel(m_model.get());
    m_grid->setItemDelegate(new KeyCellDelegate(m_grid));
    QFont small = m_grid->font();
    small.setPixelSize(ui::scaled(keyFontPixels));
    m_grid->setFont(small);
    stretch(*m_grid->horizontalHeader(), narrowestKey);
    stretch(*m_grid->verticalHeader(), lowestKey);
    m_grid->setEditTriggers(QTableView::NoEditTriggers);
    m_grid->setSelectionMode(QTableView::SingleSelection);
    m_grid->setTabKeyNavigation(false);
    connect(m_grid->selectionModel(), &QItemSelectionModel::currentChanged, this,
            [this](const QModelIndex& current) { Q_EMIT cellChosen(KeyGridModel::cellOf(current)); });
    connect(m_grid, &QTableView::activated, this,
            [this](const QModelIndex& index) { Q_EMIT cellWanted(KeyGridModel::cellOf(index)); });
}

void ComparedSide::read(int level)
{
    m_level.read(level);
    if (level == m_shown.level()) {
        for (const KeyCell cell : m_level.geometry().walk())
            m_level.setKey(cell, m_shown.key(cell));
    }
    m_box->setCurrentIndex(level - 1);
    m_model->refresh();
}

void ComparedSide::mark(const KeyCells& cells)
{
    m_model->setFound(cells);
}

void ComparedSide::showCell(KeyCell cell)
{
    m_grid->setCurrentIndex(m_model->index(cell.row, cell.column));
}

} // namespace norvane::keys
