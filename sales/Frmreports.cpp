// The report dialog's controls and its buttons; see Frmreports.h.
#include "sales/Frmreports.h"

#include "base/CustomerSettings.h"
#include "platform/FilePaths.h"
#include "platform/RuntimeFailure.h"
#include "reports/lines/SalesDays.h"
#include "sales/MoreReports.h"
#include "sales/PeriodChooser.h"
#include "store/engine/Database.h"
#include "ui/Announcement.h"
#include "ui/Appearance.h"
#include "ui/FormKit.h"

#include <QCalendarWidget>
#include <QGroupBox>
#include <QLabel>
#include <QPushButton>
#include <QRadioButton>
#include <QShortcut>
#include <QTextCharFormat>
#include <QVBoxLayout>

using namespace Qt::Literals::StringLiterals;

namespace norvane::sales
{
namespace
{

/// Room for the longest title in the caption, in device-independent pixels.
constexpr int contentWidth = 340;

QRadioButton* makeTarget(const QString& name, const QString& caption, QLayout& place)
{
    auto* const target = new QRadioButton(caption);
    ui::nameControl(*target, name);
    place.addWidget(target);
    return target;
}

reports::ReportRequest requestOf(const ReportEntry& entry, const ApplicationValues& values)
{
    reports::ReportRequest request;
    request.reportFile = joinPath(values.appPath, entry.file);
    request.programFolder = values.appPath;
    request.dataFile = values.databasePath;
    request.customer = customerOf(values, values.databasePath);
    request.selectionFormula = entry.formula;
    (entry.titleUse == TitleUse::Report ? request.reportTitle : request.windowTitle) = entry.title;
    return request;
}

} // namespace

Frmreports::Frmreports(const ApplicationValues& values, Boxes& boxes, const ReportEntry& entry,
                       reports::Runner runner, QWidget* parent)
    : QDialog(parent), m_values(values), m_boxes(boxes), m_runner(runner), m_entry(entry),
      m_request(requestOf(entry, values)), Report1(*this, boxes, std::move(runner)),
      CSCal(new QCalendarWidget(this)), m_legend(new QLabel(u"Days with sales are bold"_s, this))
{
    setObjectName(u"Frmreports"_s);
    setWindowTitle(entry.title);
    layOut();
    loadForm();
}

void Frmreports::layOut()
{
    ui::nameControl(*CSCal, u"CSCal"_s, u"Calendar"_s);
    CSCal->setGridVisible(false);
    CSCal->setFirstDayOfWeek(Qt::Sunday); // as the week of the reports to date
    CSCal->setVerticalHeaderFormat(QCalendarWidget::NoVerticalHeader);
    connect(CSCal, &QCalendarWidget::selectionChanged, this, &Frmreports::announceDay);
    connect(CSCal, &QCalendarWidget::currentPageChanged, this, &Frmreports::markDaysOfSales);
    colourDays();
    CSCal->findChild<QWidget*>(u"qt_calendar_prevmonth"_s)->setAccessibleName(u"Previous month"_s);
    CSCal->findChild<QWidget*>(u"qt_calendar_nextmonth"_s)->setAccessibleName(u"Next month"_s);
    auto* const Generate = ui::makeButton(u"CSCmdBtn1"_s, u"&Generate"_s, this);
    auto* const CmdExit = ui::makeButton(u"CmdExit"_s, u"&Exit"_s, this);
    Generate->setDefault(true);
    CmdExit->setAutoDefault(false);
    connect(Generate, &QPushButton::clicked, this, &Frmreports::generate);
    // The calendar takes the Enter key, so the default button would not get it.
    connect(CSCal, &QCalendarWidget::activated, this, &Frmreports::generate);
    connect(CmdExit, &QPushButton::clicked, this, &QDialog::reject);

    QVBoxLayout* const column = ui::makeFormColumn(*this, ui::spacing::groupGap);
    column->addWidget(CSCal);
    column->addWidget(m_legend);
    addPeriods(*column);
    column->addWidget(makeTargets());
    auto* const more = ui::makeButton(u"MoreReports"_s, u"&More Reports..."_s, this);
    more->setAutoDefault(false);
    more->setToolTip(u"Ctrl+R"_s);
    connect(new QShortcut(QKeySequence(u"Ctrl+R"_s), this), &QShortcut::activated, more, &QPushButton::click);
    connect(more, &QPushButton::clicked, this,
            [this] { MoreReports(m_values, m_boxes, m_runner, this).exec(); });
    column->addLayout(ui::makeButtonRow({Generate, CmdExit}, {more}));
}

void Frmreports::addPeriods(QVBoxLayout& column)
{
    if (dayFieldOf(m_entry).isEmpty())
        return;
    m_period = new PeriodChooser(periodOf(m_entry), this);
    column.addWidget(m_period);
    connect(m_period, &PeriodChooser::periodChanged, CSCal,
            [this] { CSCal->setEnabled(m_period->isOfMenu()); });
}

/// The calendar's own red and grey are too pale on some grounds.
void Frmreports::colourDays()
{
    QTextCharFormat weekend;
    weekend.setForeground(ui::colours::heading());
    CSCal->setWeekdayTextFormat(Qt::Saturday, weekend);
    CSCal->setWeekdayTextFormat(Qt::Sunday, weekend);
    QPalette palette = CSCal->palette();
    palette.setColor(QPalette::Disabled, QPalette::Text, palette.color(QPalette::PlaceholderText));
    CSCal->setPalette(palette);
}

QWidget* Frmreports::makeTargets()
{
    auto* const frame = new QGroupBox(u"Print to:-"_s, this);
    ui::nameControl(*frame, u"Frame1"_s);
    frame->setMinimumWidth(ui::scaled(contentWidth));
    auto* const row = new QHBoxLayout(frame);
    row->setSpacing(ui::spacing::groupGap);
    Option1 = makeTarget(u"Option1"_s, u"Screen"_s, *row);
    makeTarget(u"Option2"_s, u"Printer"_s, *row);
    row->addStretch();
    Option1->setChecked(true);
    return frame;
}

void Frmreports::loadForm()
{
    CSCal->setVisible(!m_values.reportMode.isEmpty());
    m_legend->setVisible(!m_values.reportMode.isEmpty());
    CSCal->setSelectedDate(QDate::currentDate());
    markDaysOfSales();
    announceDay();
}

/// Those of the month that is shown. A database that cannot be read marks none: the report says why.
void Frmreports::markDaysOfSales()
{
    const QDate first(CSCal->yearShown(), CSCal->monthShown(), 1);
    m_daysOfSales.clear();
    try {
        store::Database database(m_values.databasePath);
        m_daysOfSales = reports::collectedDays(database, {first, first.addMonths(1).addDays(-1), {}});
    } catch (const RuntimeFailure&) {
        m_legend->clear();
    }
    QTextCharFormat sold;
    sold.setFontWeight(QFont::Bold);
    CSCal->setDateTextFormat({}, {});
    for (const QDate day : m_daysOfSales)
        CSCal->setDateTextFormat(day, sold);
}

/// For screen readers: the fields of the calendar hold the numbers of days only.
void Frmreports::announceDay()
{
    QString day = locale().toString(CSCal->selectedDate());
    if (!m_daysOfSales.contains(CSCal->selectedDate()))
        day += u", no sales"_s;
    CSCal->findChild<QWidget*>(u"qt_calendar_calendarview"_s)
        ->setAccessibleName(u"Day of the report: "_s + day);
    if (isVisible())
        ui::announce(*CSCal, day);
}

/// In any other mode the formula of the menu entry is kept. Another period is not in the title of the entry.
void Frmreports::generate()
{
    if (const auto formula = formulaOfDay(m_values.reportMode, CSCal->selectedDate()))
        m_request.selectionFormula = *formula;
    reports::ReportRequest request = m_request;
    if (m_period != nullptr)
        request.comparedWith = m_period->comparedWith();
    if (m_period != nullptr && !m_period->isOfMenu()) {
        request.selectionFormula = m_period->formula(dayFieldOf(m_entry));
        request.reportTitle = titleWithoutPeriod(m_entry);
    }
    Report1.run(request, Option1->isChecked() ? reports::Destination::Window : reports::Destination::Printer);
}

/// The mode is set first: the dialog reads it when it is created. The price list sets none, so that after a
/// report by date it opens with the calendar and keeps that report's selection of a day.
void showReport(const ReportEntry& entry, ApplicationValues& values, Boxes& boxes, QWidget* parent,
                const reports::Runner& runner)
{
    if (entry.mode)
        values.reportMode = *entry.mode;
    Frmreports(values, boxes, entry, runner, parent).exec();
}

} // namespace norvane::sales
