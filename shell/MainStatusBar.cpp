// The two texts of the status bar; see MainStatusBar.h.
#include "shell/MainStatusBar.h"

#include "shell/AboutLabels.h"
#include "ui/Announcement.h"
#include "ui/Appearance.h"
#include "ui/FormKit.h"

#include <QLabel>

using namespace Qt::Literals::StringLiterals;

namespace norvane::shell
{
namespace
{

constexpr int panelWidth = 120;
/// Room for the customer's name beside a notice; a longer name is cut and shown in the tool tip.
constexpr int widestText = 300;

QLabel* statusLabel(const QString& name)
{
    QLabel* const label = makeTextLabel(name, {});
    label->setContentsMargins(ui::spacing::controlGap, 0, ui::spacing::controlGap, 0);
    return label;
}

} // namespace

QString readyText()
{
    return u"Ready....."_s;
}

MainStatusBar::MainStatusBar(QWidget* parent)
    : QStatusBar(parent), m_panel(statusLabel(u"Panel1"_s)), m_text(statusLabel(u"StatusText"_s)),
      m_notice(statusLabel(u"Notice"_s)), m_dataInUse(statusLabel(u"DataInUse"_s))
{
    ui::nameControl(*this, u"StatusBar1"_s);
    m_panel->setMinimumWidth(ui::scaled(panelWidth));
    // A long text must not widen the window.
    for (QLabel* const label : {m_text, m_notice})
        label->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
    addWidget(m_panel);
    addWidget(m_text, 1);
    addWidget(m_notice, 3);
    addPermanentWidget(m_dataInUse);
    QFont bold = m_dataInUse->font();
    bold.setBold(true);
    m_dataInUse->setFont(bold);
    m_dataInUse->setToolTip(u"End the program and start it again to work on the data of another customer."_s);
    m_dataInUse->hide();
}

void MainStatusBar::setPanel(const QString& text)
{
    m_panel->setText(text);
}

QString MainStatusBar::panel() const
{
    return m_panel->text();
}

void MainStatusBar::setStatusText(const QString& text)
{
    m_text->setText(text);
    m_text->setToolTip(text);
    m_text->setMinimumWidth(qMin(m_text->sizeHint().width(), ui::scaled(widestText)));
}

QString MainStatusBar::statusText() const
{
    return m_text->text();
}

void MainStatusBar::setNotice(const QString& text)
{
    m_notice->setText(text);
    m_notice->setToolTip(text);
    ui::announce(*m_notice, text);
}

QString MainStatusBar::notice() const
{
    return m_notice->text();
}

void MainStatusBar::setDataInUse(const QString& customer)
{
    m_dataInUse->setText(u"Screens and exchange: data of "_s + customer);
    m_dataInUse->setVisible(!customer.isEmpty());
}

} // namespace norvane::shell
