// See MoreReports.h.
#include "sales/MoreReports.h"

#include "base/CustomerSettings.h"
#include "platform/Boxes.h"
#include "sales/PeriodChooser.h"
#include "sales/ShopLayouts.h"
#include "ui/Appearance.h"
#include "ui/FormKit.h"

#include <QDir>
#include <QEvent>
#include <QHeaderView>
#include <QPushButton>
#include <QTreeWidget>
#include <QVBoxLayout>

#include <algorithm>

using namespace Qt::Literals::StringLiterals;

namespace norvane::sales
{
namespace
{

/// At the usual font, in pixels.
constexpr QSize goodSize(960, 480);
constexpr QSize leastListSize(400, 200);
constexpr int titleWidth = 200;
constexpr int sourceWidth = 100;
constexpr int periodWidth = 60;

} // namespace

MoreReports::MoreReports(const ApplicationValues& values, Boxes& boxes, reports::Runner runner,
                         QWidget* parent)
    : QDialog(parent), m_values(values), m_boxes(boxes), m_report(*this, boxes, std::move(runner)),
      m_reports(otherReports(values)), m_list(new QTreeWidget(this)),
      m_period(new PeriodChooser(QString(), this)),
      m_copy(ui::makeButton(u"CopyLayout"_s, u"Cop&y and Open"_s, this)),
      m_open(ui::makeButton(u"OpenLayout"_s, u"&Open"_s, this)),
      m_show(ui::makeButton(u"ShowReport"_s, u"&Show"_s, this)),
      m_print(ui::makeButton(u"PrintReport"_s, u"P&rint"_s, this))
{
    setObjectName(u"MoreReports"_s);
    setWindowTitle(u"More Reports"_s);
    layOut();
    fillList();
    connect(m_list, &QTreeWidget::currentItemChanged, this, &MoreReports::showChoice);
    // Enter reaches the default button as well, so it is left to that.
    connect(m_list, &QTreeWidget::itemDoubleClicked, this, [this] { run(reports::Destination::Window); });
    connect(m_show, &QPushButton::clicked, this, [this] { run(reports::Destination::Window); });
    connect(m_print, &QPushButton::clicked, this, [this] { run(reports::Destination::Printer); });
    connect(m_copy, &QPushButton::clicked, this, &MoreReports::copyAndOpen);
    connect(m_open, &QPushButton::clicked, this, &MoreReports::openLayout);
    m_list->setCurrentItem(m_list->topLevelItem(0));
    showChoice();
}

void MoreReports::fillList()
{
    m_list->clear();
    const QString shop = customerOf(m_values, m_values.databasePath);
    for (const OtherReport& report : m_reports) {
        auto* const item = new QTreeWidgetItem(m_list, {report.title, report.isOfShop ? shop : u"Program"_s,
                                                        report.dayField.isEmpty() ? u"None"_s : u"Any"_s,
                                                        report.description});
        item->setToolTip(3, report.description);
    }
}

void MoreReports::changeEvent(QEvent* event)
{
    QDialog::changeEvent(event);
    if (event->type() != QEvent::ActivationChange || !isActiveWindow())
        return;
    auto reports = otherReports(m_values);
    const OtherReport* const now = chosen();
    if (reports != m_reports)
        showReports(std::move(reports), now == nullptr ? QString() : QString(now->path));
}

void MoreReports::showReports(std::vector<OtherReport> reports, const QString& chosenPath)
{
    m_reports = std::move(reports);
    fillList();
    const auto found = std::ranges::find(m_reports, chosenPath, &OtherReport::path);
    m_list->setCurrentItem(m_list->topLevelItem(static_cast<int>(found - m_reports.begin())));
}

void MoreReports::layOut()
{
    ui::nameControl(*m_list, u"Layouts"_s, u"Reports"_s);
    m_list->setHeaderLabels({u"Report"_s, u"Of"_s, u"Period"_s, u"What it shows"_s});
    m_list->setRootIsDecorated(false);
    m_list->setAllColumnsShowFocus(true);
    m_list->setMinimumSize(ui::scaled(leastListSize));
    m_list->header()->resizeSection(0, ui::scaled(titleWidth));
    m_list->header()->resizeSection(1, ui::scaled(sourceWidth));
    m_list->header()->resizeSection(2, ui::scaled(periodWidth));
    QVBoxLayout* const column = ui::makeFormColumn(*this, ui::spacing::groupGap);
    column->setSizeConstraint(QLayout::SetDefaultConstraint); // descriptions are long
    column->addWidget(m_list);
    column->addWidget(m_period);
    addButtons(*column);
    ui::centreOnScreen(*this, ui::scaled(goodSize));
}

void MoreReports::addButtons(QVBoxLayout& column)
{
    auto* const exit = ui::makeButton(u"ExitReports"_s, u"E&xit"_s, this);
    connect(exit, &QPushButton::clicked, this, &QDialog::reject);
    m_show->setDefault(true);
    for (QPushButton* const other : {m_print, m_copy, m_open, exit})
        other->setAutoDefault(false);
    m_copy->setToolTip(u"Puts a copy into the customer's folder and opens it in an editor"_s);
    m_open->setToolTip(u"Opens a layout of the customer's folder in an editor"_s);
    column.addLayout(ui::makeButtonRow({m_show, m_print, exit}, {m_copy, m_open}));
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
    m_copy->setEnabled(report != nullptr);
    m_open->setEnabled(report != nullptr && report->isOfShop);
}

reports::ReportRequest MoreReports::requestOf(const OtherReport& report) const
{
    reports::ReportRequest request;
    request.reportFile = report.path;
    request.programFolder = m_values.appPath;
    request.dataFile = m_values.databasePath;
    request.customer = customerOf(m_values, m_values.databasePath);
    if (!report.dayField.isEmpty()) {
        request.selectionFormula = m_period->formula(report.dayField);
        request.comparedWith = m_period->comparedWith();
    }
    return request;
}

void MoreReports::run(reports::Destination destination)
{
    const OtherReport* const report = chosen();
    if (report != nullptr && !report->isFaulty)
        m_report.run(requestOf(*report), destination);
}

void MoreReports::copyAndOpen()
{
    const OtherReport* const report = chosen();
    if (report == nullptr)
        return;
    reports::withReportBox(m_boxes, [&] {
        const QString copy = copyLayout(report->path, m_values.customerPath);
        showReports(otherReports(m_values), copy);
        openLayout();
    });
}

void MoreReports::openLayout()
{
    const OtherReport* const report = chosen();
    if (report == nullptr)
        return;
    const QString path = report->path;
    m_report.runAndFollow(requestOf(*report));
    openInEditor(path, *this, [this, path] {
        m_boxes.message(
            u"The system has no editor for this file:\r%1\r\rOpen it in any editor for plain "
            "text. The preview follows it each time it is saved."_s.arg(QDir::toNativeSeparators(path)),
            u"More Reports"_s, BoxIcon::Information);
    });
}

} // namespace norvane::sales
