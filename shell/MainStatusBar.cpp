// The two texts of the status bar; see MainStatusBar.h.
#include "shell/MainStatusBar.h"

#include "shell/AboutLabels.h"
#include "ui/Appearance.h"

#include <QLabel>

namespace norvane::shell
{
namespace
{

constexpr int panelWidth = 120;

QLabel* statusLabel(const QString& name)
{
    QLabel* const label = makeTextLabel(name, {});
    label->setContentsMargins(ui::spacing::controlGap, 0, ui::spacing::controlGap, 0);
    return label;
}

} // namespace

MainStatusBar::MainStatusBar(QWidget* parent)
    : QStatusBar(parent), m_panel(statusLabel(QStringLiteral("Panel1"))),
      m_text(statusLabel(QStringLiteral("StatusText")))
{
    setObjectName(QStringLiteral("StatusBar1"));
    setAccessibleName(objectName());
    m_panel->setMinimumWidth(panelWidth);
    // A customer's name may be longer than the window is wide.
    m_text->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
    addWidget(m_panel);
    addWidget(m_text, 1);
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
}

QString MainStatusBar::statusText() const
{
    return m_text->text();
}

} // namespace norvane::shell
