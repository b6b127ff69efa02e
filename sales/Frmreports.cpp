// The report dialog's controls and its buttons; see Frmreports.h.
#include "sales/Frmreports.h"

#include "base/CustomerSettings.h"
#include "platform/FilePaths.h"
#include "ui/Announcement.h"
#include "ui/Appearance.h"
#include "ui/FormKit.h"

#include <QCalendarWidget>
#include <QGroupBox>
#include <QPushButton>
#include <QRadioButton>
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

} // namespace

Frmreports::Frmreports(const ApplicationValues& values, Boxes& boxes, reports::ReportRequest request,
                       reports::Runner runner, QWidget* parent)
    : QDialog(parent), m_values(values), m_request(std::move(request)),
      Report1(*this, boxes, std::move(runner)), CSCal(new QCalendarWidget(this))
{
    setObjectName(u"Frmreports"_s);
    m_request.customer = customerOf(values, values.databasePath);
    layOut();
    loadForm();
}

void Frmreports::layOut()
{
    ui::nameControl(*CSCal, u"CSCal"_s, u"Calendar"_s);
    CSCal->setGridVisible(false);
    CSCal->setFirstDayOfWeek(Qt::Sunday); // as the week of the reports to date
    CSCal->setVerticalHeaderFormat(QCalendarWidget::NoVerticalHeader);
    connect(CSCal, &QCalendarWidget::selectionChanged, this, &Frmreports::tellDay);
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
    column->addWidget(makeTargets());
    column->addLayout(ui::makeButtonRow({Generate, CmdExit}));
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
    CSCal->setSelectedDate(QDate::currentDate());
    tellDay();
}

/// For screen readers: the fields of the calendar hold the numbers of days only.
void Frmreports::tellDay()
{
    const QString day = locale().toString(CSCal->selectedDate());
    CSCal->findChild<QWidget*>(u"qt_calendar_calendarview"_s)
        ->setAccessibleName(u"Day of the report: "_s + day);
    if (isVisible())
        ui::announce(*CSCal, day);
}

/// In any other mode the formula of the menu entry is kept.
void Frmreports::generate()
{
    if (const auto formula = formulaOfDay(m_values.reportMode, CSCal->selectedDate()))
        m_request.selectionFormula = *formula;
    Report1.run(m_request,
                Option1->isChecked() ? reports::Destination::Window : reports::Destination::Printer);
}

/// The mode is set first: the dialog reads it when it is created. The price list sets none, so that after a
/// report by date it opens with the calendar and keeps that report's selection of a day.
void showReport(const ReportEntry& entry, ApplicationValues& values, Boxes& boxes, QWidget* parent,
                const reports::Runner& runner)
{
    if (entry.mode)
        values.reportMode = *entry.mode;
    reports::ReportRequest request;
    request.reportFile = joinPath(values.appPath, entry.file);
    request.dataFile = values.databasePath;
    request.selectionFormula = entry.formula;
    (entry.titleUse == TitleUse::Report ? request.reportTitle : request.windowTitle) = entry.title;
    Frmreports form(values, boxes, std::move(request), runner, parent);
    form.setWindowTitle(entry.title);
    form.exec();
}

} // namespace norvane::sales
