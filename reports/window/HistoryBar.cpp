// See HistoryBar.h.
#include "reports/window/HistoryBar.h"

#include "reports/window/PreviewHistory.h"
#include "ui/Appearance.h"
#include "ui/FormKit.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QShortcut>

using namespace Qt::Literals::StringLiterals;

namespace norvane::reports
{

HistoryBar::HistoryBar(QWidget* parent)
    : QWidget(parent), m_back(makeButton(u"BackButton"_s, u"&Back"_s, u"Alt+Left"_s, -1)),
      m_forward(makeButton(u"ForwardButton"_s, u"For&ward"_s, u"Alt+Right"_s, 1)), m_path(new QLabel(this))
{
    ui::nameControl(*this, u"HistoryBar"_s);
    ui::nameControl(*m_path, u"HistoryPath"_s);
    auto* const row = new QHBoxLayout(this);
    row->setContentsMargins({});
    row->setSpacing(ui::spacing::controlGap);
    row->addWidget(m_back);
    row->addWidget(m_forward);
    row->addWidget(m_path, 1);
    // A long way is cut at its end; it must not make the window wider.
    m_path->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
    m_path->setTextFormat(Qt::PlainText);
    m_back->setEnabled(false);
    m_forward->setEnabled(false);
    hide();
}

QPushButton* HistoryBar::makeButton(const QString& name, const QString& caption, const QString& key,
                                    int steps)
{
    QPushButton* const button = ui::makeButton(name, caption, this);
    button->setMinimumWidth(ui::buttonWidth);
    button->setToolTip(key);
    connect(button, &QPushButton::clicked, this, [this, steps] { Q_EMIT goWanted(steps); });
    // A key works while the row is hidden as well: back cancels what the first report opens.
    connect(new QShortcut(QKeySequence(key), parentWidget()), &QShortcut::activated, button,
            &QPushButton::click);
    return button;
}

void HistoryBar::showHistory(const PreviewHistory& history, bool isOpening)
{
    setVisible(!history.isAlone());
    m_back->setEnabled(history.has(-1) || isOpening);
    m_forward->setEnabled(history.has(1));
    m_path->setText(history.path());
    m_path->setToolTip(history.path());
}

} // namespace norvane::reports
