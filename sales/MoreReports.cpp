// See MoreReports.h.
#include "sales/MoreReports.h"

#include "base/CustomerSettings.h"
#include "sales/PeriodChooser.h"
#include "ui/Appearance.h"
#include "ui/FormKit.h"

#include <QHeaderView>
#include <QPushButton>
#include <QTreeWidget>
#include <QVBoxLayout>

using namespace Qt::Literals::StringLiterals;

namespace norvane::sales
{
namespace
{

/// At the usual font, in pixels.
constexpr QSize listSize(620, 260);
constexpr int titleWidth = 200;

} // namespace

MoreReports::MoreReports(const ApplicationValues& values, Boxes& boxes, reports::Runner runner,
                         QWidget* parent)
    : QDialog(parent), m_values(values), m_report(*this, boxes, std::move(runner)),
      m_reports(otherReports(values)), m_list(new QTreeWidget(this)),
      m_period(new PeriodChooser(QString(), this)), m_show(ui::makeButton(u"ShowReport"_s, u"&Show"_s, this)),
      m_print(ui::makeButton(u"PrintReport"_s, u"P&rint"_s, this))
{
    setObjectName(u"MoreReports"_s);
    setWindowTitle(u"More Reports"_s);
    fillList();
    layOut();
    connect(m_list, &QTreeWidget::currentItemChanged, this, &MoreReports::showChoice);
    // Enter reaches the default button as well, so it is left to that.
    connect(m_list, &QTreeWidget::itemDoubleClicked, this, [this] { run(reports::Destination::Window); });
    connect(m_show, &QPushButton::clicked, this, [this] { run(reports::Destination::Window); });
    connect(m_print, &QPushButton::clicked, this, [this] { run(reports::Destination::Printer); });
    m_list->setCurrentItem(m_list->topLevelItem(0));
    showChoice();
}

void MoreReports::fillList()
{
    ui::nameControl(*m_list, u"Layouts"_s, u"Reports"_s);
    m_list->setHeaderLabels({u"Report"_s, u"Of"_s, u"What it shows"_s});
    m_list->setRootIsDecorated(false);
    m_list->setAllColumnsShowFocus(true);
    m_list->setMinimumSize(ui::scaled(listSize));
    const QString shop = customerOf(m_values, m_values.databasePath);
    for (const OtherReport& report : m_reports) {
        auto* const item = new QTreeWidgetItem(
            m_list, {report.title, report.isOfShop ? shop : u"Program"_s, report.description});
        item->setToolTip(2, report.description);
    }
    m_list->header()->resizeSection(0, ui::scaled(titleWidth));
}

void MoreReports::layOut()
{
    auto* const exit = ui::makeButton(u"ExitReports"_s, u"E&xit"_s, this);
    connect(exit, &QPushButton::clicked, this, &QDialog::reject);
    m_show->setDefault(true);
    for (QPushButton* const other : {m_print, exit})
        other->setAutoDefault(false);
    QVBoxLayout* const column = ui::makeFormColumn(*this, ui::spacing::groupGap);
    column->addWidget(m_list);
    column->addWidget(m_period);
    column->addLayout(ui::makeButtonRow({m_show, m_print, exit}));
}

const OtherReport* MoreReports::chosen() const
{
    const int row = m_list->indexOfTopLevelItem(m_list->currentItem());
    return row < 0 ? nullptr : &m_reports[static_cast<std::size_t>(row)];
}

/// Lists of records have no period.
void MoreReports::showChoice()
{
    const OtherReport* const report = chosen();
    m_period->setEnabled(report != nullptr && !report->dayField.isEmpty());
    for (QPushButton* const button : {m_show, m_print})
        button->setEnabled(report != nullptr && !report->isFaulty);
}

void MoreReports::run(reports::Destination destination)
{
    const OtherReport* const report = chosen();
    if (report == nullptr || report->isFaulty)
        return;
    reports::ReportRequest request;
    request.reportFile = report->path;
    request.programFolder = m_values.appPath;
    request.dataFile = m_values.databasePath;
    request.customer = customerOf(m_values, m_values.databasePath);
    if (!report->dayField.isEmpty()) {
        request.selectionFormula = m_period->formula(report->dayField);
        request.comparedWith = m_period->comparedWith();
    }
    m_report.run(request, destination);
}

} // namespace norvane::sales
