// See RunReport.h.
#include "link/RunReport.h"

#include "ui/Announcement.h"
#include "ui/Appearance.h"
#include "ui/FormKit.h"

#include <QScrollBar>

#include <algorithm>

using namespace Qt::Literals::StringLiterals;

namespace norvane::link
{
namespace
{

/// Lines that show at once, where there is room: what a failed step says, and what its result means.
constexpr int linesShown = 8;
constexpr int fewestLines = 3;
/// Beyond these the first ones go: a tool may say much at each of a hundred steps.
constexpr int mostLines = 2000;

} // namespace

RunReport::RunReport(QWidget* parent) : QPlainTextEdit(parent)
{
    ui::nameControl(*this, u"RunReport"_s, u"About this run"_s);
    setReadOnly(true);
    setTabChangesFocus(true);
    setMaximumBlockCount(mostLines);
    setFrameShape(NoFrame);
    document()->setDocumentMargin(ui::spacing::controlGap);
    hide();
}

void RunReport::empty()
{
    clear();
    m_lastStep.clear();
    setShown(false);
}

void RunReport::addWords(const QString& step, const QString& words)
{
    if (words.isEmpty())
        return;
    if (!step.isEmpty() && step != m_lastStep)
        add(step + u':');
    m_lastStep = step;
    add(words);
}

void RunReport::explain(const QString& text)
{
    add(document()->isEmpty() ? text : u'\n' + text);
    ui::announce(*this, text);
}

void RunReport::add(const QString& text)
{
    appendPlainText(text);
    verticalScrollBar()->setValue(verticalScrollBar()->maximum());
    setShown(true);
}

void RunReport::setShown(bool isShown)
{
    if (isShown != isHidden())
        return;
    setVisible(isShown);
    Q_EMIT cameOrWent();
}

void RunReport::setRoom(int height)
{
    m_room = height;
    updateGeometry();
    verticalScrollBar()->setValue(verticalScrollBar()->maximum());
}

/// As wide as the form makes it.
QSize RunReport::sizeHint() const
{
    const int margins = qRound(2 * document()->documentMargin()) + 2 * frameWidth();
    const int lines = std::clamp((m_room - margins) / fontMetrics().lineSpacing(), fewestLines, linesShown);
    return {0, lines * fontMetrics().lineSpacing() + margins};
}

} // namespace norvane::link
