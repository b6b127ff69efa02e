// See StatusLine.h.
#include "ui/StatusLine.h"

#include "ui/Announcement.h"
#include "ui/FormKit.h"

using namespace Qt::Literals::StringLiterals;

namespace norvane::ui
{

StatusLine::StatusLine(QWidget* parent) : QStatusBar(parent)
{
    nameControl(*this, u"StatusBar1"_s);
    setSizeGripEnabled(false);
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
    showMessage(texts.join(u"    "_s));
}

} // namespace norvane::ui
