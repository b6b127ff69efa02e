// See PendingPanel.h.
#include "screens/table/PendingPanel.h"

#include "screens/table/EditsModel.h"
#include "screens/table/TableModel.h"
#include "screens/table/TableStore.h"
#include "ui/Appearance.h"
#include "ui/FormKit.h"

#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QPushButton>
#include <QShortcut>
#include <QTableView>
#include <QVBoxLayout>

#include <array>

using namespace Qt::Literals::StringLiterals;

namespace norvane::screens
{
namespace
{

/// Pixels at the usual font.
constexpr int listPixels = 110;
constexpr std::array<int, 4> columnPixels{130, 160, 200, 200};
constexpr int pendingRowPixels = 20;

} // namespace

PendingPanel::PendingPanel(TableModel& table, QWidget* parent)
    : QWidget(parent), m_table(table), m_model(new EditsModel(table, table.edits().all(), this)),
      m_view(new QTableView(this)), m_heading(new QLabel(this))
{
    layOutView();
    ui::nameControl(*m_heading, u"PendingHeading"_s);
    connect(&table, &TableModel::editsChanged, this, &PendingPanel::showChanges);
    auto* const row = new QHBoxLayout;
    row->addWidget(m_heading, 1);
    row->addWidget(makeTakeBackButton());
    auto* const column = new QVBoxLayout(this);
    column->setContentsMargins({});
    column->setSpacing(ui::spacing::controlGap);
    column->addLayout(row);
    column->addWidget(m_view);
    showChanges();
}

void PendingPanel::layOutView()
{
    ui::nameControl(*m_view, u"PendingView"_s, u"Changes that are not stored yet"_s);
    m_view->setModel(m_model);
    m_view->setSelectionBehavior(QTableView::SelectRows);
    m_view->setTabKeyNavigation(false);
    m_view->setFixedHeight(ui::scaled(listPixels));
    m_view->verticalHeader()->hide();
    m_view->verticalHeader()->setMinimumSectionSize(ui::scaled(pendingRowPixels));
    m_view->verticalHeader()->setDefaultSectionSize(ui::scaled(pendingRowPixels));
    m_view->horizontalHeader()->setStretchLastSection(true);
    for (std::size_t column = 0; column < columnPixels.size(); ++column)
        m_view->setColumnWidth(static_cast<int>(column), ui::scaled(columnPixels.at(column)));
}

QPushButton* PendingPanel::makeTakeBackButton()
{
    auto* const button = ui::makeButton(u"TakeBack"_s, u"&Take Back"_s, this);
    button->setToolTip(u"Takes the chosen changes back"_s);
    connect(button, &QPushButton::clicked, this, &PendingPanel::takeBack);
    connect(new QShortcut(QKeySequence::Delete, m_view, {}, {}, Qt::WidgetShortcut), &QShortcut::activated,
            this, &PendingPanel::takeBack);
    return button;
}

void PendingPanel::showChanges()
{
    m_model->showChanges();
    const auto& edits = m_table.edits().all();
    m_heading->setText(u"Not stored yet: "_s + amountOf(edits));
    setVisible(!edits.empty());
}

void PendingPanel::takeBack()
{
    std::vector<int> places;
    for (const QModelIndex& index : m_view->selectionModel()->selectedRows())
        places.push_back(index.row());
    m_table.changeEdits([&](PendingEdits& edits) { edits.remove(std::move(places)); });
}

} // namespace norvane::screens
