// See StatusLine.h.
#include "ui/StatusLine.h"

#include "ui/FormKit.h"

using namespace Qt::Literals::StringLiterals;

namespace norvane::ui
{

StatusLine::StatusLine(QWidget* parent) : QStatusBar(parent)
{
    nameControl(*this, u"StatusBar1"_s);
    setSizeGripEnabled(false);
}

/// The command strings of a modem end in a carriage return, which a status bar would show as a blot.
void StatusLine::setStep(const QString& text)
{
    m_step = text.trimmed();
    showBoth();
}

void StatusLine::setNotice(const QString& text)
{
    m_notice = text;
    showBoth();
}

void StatusLine::showBoth()
{
    const bool both = !m_step.isEmpty() && !m_notice.isEmpty();
    showMessage(m_step + (both ? u"    "_s : u""_s) + m_notice);
}

} // namespace norvane::ui
