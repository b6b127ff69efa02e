// See StatusLine.h.
#include "ui/StatusLine.h"

#include "ui/Announcement.h"
#include "ui/Appearance.h"
#include "ui/FormKit.h"

#include <QLabel>

using namespace Qt::Literals::StringLiterals;

namespace norvane::ui
{

StatusLine::StatusLine(QWidget* parent) : QStatusBar(parent), m_progress(new QLabel(this))
{
    nameControl(*this, u"StatusBar1"_s);
    setSizeGripEnabled(false);
    m_progress->setContentsMargins(0, 0, spacing::controlGap, 0);
    m_progress->setObjectName(u"Progress"_s);
    addPermanentWidget(m_progress);
    m_progress->hide();
}

/// A modem's commands end in a carriage return, which would show as a blot.
void StatusLine::setStep(const QString& text)
{
    m_step = text.trimmed();
    showAll();
}

void StatusLine::setRunning(const QString& text)
{
    m_running = text;
    showAll();
}

void StatusLine::setResult(const QString& text)
{
    m_result = text;
    showAll();
    announce(*this, text);
}

void StatusLine::setProgress(const QString& text)
{
    m_progress->setText(text);
    showAll();
}

void StatusLine::setNotice(const QString& text)
{
    m_notice = text;
    showAll();
    announce(*this, text);
}

void StatusLine::showAll()
{
    QStringList texts{m_step, m_running, m_result, m_notice};
    texts.removeAll(QString());
    const QString text = texts.join(u"    "_s);
    const int left = width() - fontMetrics().horizontalAdvance(text) - 2 * spacing::controlGap;
    m_progress->setVisible(!m_progress->text().isEmpty() && m_progress->sizeHint().width() <= left);
    showMessage(text);
}

} // namespace norvane::ui
