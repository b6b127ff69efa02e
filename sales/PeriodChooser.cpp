// See PeriodChooser.h.
#include "sales/PeriodChooser.h"

#include "reports/formula/Period.h"
#include "ui/Appearance.h"
#include "ui/FormKit.h"

#include <QComboBox>
#include <QDateEdit>
#include <QFormLayout>
#include <QHBoxLayout>
#include <QLabel>

using namespace Qt::Literals::StringLiterals;

namespace norvane::sales
{
namespace
{

/// In place of the word of a period.
constexpr auto pickedDays = "from-to"_L1;

QDateEdit* makeDay(const QString& name, const QString& spoken, QDate day, QWidget* parent)
{
    auto* const edit = new QDateEdit(day, parent);
    ui::nameControl(*edit, name, spoken);
    edit->setCalendarPopup(true);
    edit->setDisplayFormat(edit->locale().dateFormat(QLocale::ShortFormat));
    return edit;
}

} // namespace

PeriodChooser::PeriodChooser(const QString& menuPeriod, QWidget* parent)
    : QWidget(parent), m_period(new QComboBox(this)), m_days(new QWidget(this)),
      m_from(makeDay(u"PeriodFrom"_s, u"From"_s, QDate::currentDate().addDays(-1), m_days)),
      m_to(makeDay(u"PeriodTo"_s, u"To"_s, QDate::currentDate(), m_days)), m_compared(new QComboBox(this))
{
    ui::nameControl(*m_period, u"Period"_s);
    ui::nameControl(*m_compared, u"ComparedWith"_s);
    fill(menuPeriod);
    layOut();
    showDays();
    connect(m_period, &QComboBox::currentIndexChanged, this, [this] {
        showDays();
        Q_EMIT periodChanged();
    });
    m_to->setMinimumDate(m_from->date());
    connect(m_from, &QDateEdit::dateChanged, m_to, &QDateEdit::setMinimumDate);
}

void PeriodChooser::fill(const QString& menuPeriod)
{
    if (!menuPeriod.isEmpty())
        m_period->addItem(menuPeriod, QString());
    const QDate today = QDate::currentDate();
    for (const auto& period : reports::namedPeriods()) {
        if (menuPeriod.isEmpty() || period.last(today) < today)
            m_period->addItem(period.name, QString(period.word));
    }
    m_period->addItem(u"Days from ... to ..."_s, QString(pickedDays));
    m_compared->addItem(u"Nothing"_s);
    m_compared->addItem(u"The period before"_s);
    m_compared->addItem(u"The same a year earlier"_s);
}

void PeriodChooser::layOut()
{
    auto* const days = new QHBoxLayout(m_days);
    days->setContentsMargins({});
    days->addWidget(m_from, 1);
    days->addWidget(new QLabel(u"to"_s, m_days));
    days->addWidget(m_to, 1);
    auto* const rows = new QFormLayout(this);
    rows->setContentsMargins({});
    rows->setSpacing(ui::spacing::controlGap);
    rows->addRow(u"&Period:"_s, m_period);
    rows->addRow(QString(), m_days);
    rows->addRow(u"&Compare with:"_s, m_compared);
}

void PeriodChooser::showDays()
{
    m_days->setVisible(m_period->currentData() == pickedDays);
}

bool PeriodChooser::isOfMenu() const
{
    return m_period->currentData().toString().isEmpty();
}

QString PeriodChooser::formula(const QString& field) const
{
    if (isOfMenu())
        return {};
    const QString word = m_period->currentData().toString();
    return word == pickedDays ? reports::formulaOf(field, {m_from->date(), m_to->date(), {}})
                              : u"%1 in %2"_s.arg(field, word);
}

reports::ComparedWith PeriodChooser::comparedWith() const
{
    return static_cast<reports::ComparedWith>(m_compared->currentIndex());
}

} // namespace norvane::sales
