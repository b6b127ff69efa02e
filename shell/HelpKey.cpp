// See HelpKey.h.
#include "shell/HelpKey.h"

#include "platform/Boxes.h"
#include "shell/GuideWindow.h"
#include "shell/HelpTopics.h"

#include <QApplication>
#include <QFileInfo>
#include <QKeyEvent>

using namespace Qt::Literals::StringLiterals;

namespace norvane::shell
{
namespace
{

bool isHelpKey(const QEvent& event)
{
    if (event.type() != QEvent::KeyPress || QApplication::activePopupWidget())
        return false;
    const auto& key = static_cast<const QKeyEvent&>(event);
    return key.key() == Qt::Key_F1 && key.modifiers() == Qt::NoModifier;
}

/// Of the innermost form around the focus; a box without a chapter uses that of the form below it.
QString placeOf(const QWidget* control)
{
    QString anchor;
    for (; control && anchor.isEmpty(); control = control->parentWidget()) {
        anchor = helpAnchor(control->objectName());
        if (anchor.isEmpty() && control->isWindow())
            anchor = helpAnchor(control->windowTitle());
    }
    return anchor;
}

} // namespace

HelpKey::HelpKey(QString guide, Boxes& boxes) : m_guide(std::move(guide)), m_boxes(boxes)
{
    qApp->installEventFilter(this);
}

bool HelpKey::eventFilter(QObject* /*watched*/, QEvent* event)
{
    if (!isHelpKey(*event))
        return false;
    QWidget* const window = QApplication::activeWindow();
    if (!window || qobject_cast<GuideWindow*>(window))
        return false;
    const QWidget* const focus = QApplication::focusWidget();
    showGuide(*window, placeOf(focus ? focus : window));
    return true;
}

void HelpKey::showGuide(QWidget& window, const QString& anchor)
{
    if (!QFileInfo(m_guide).isFile()) {
        m_boxes.message(
            u"The user guide is missing:\r%1\r\rInstall the program again to have it."_s.arg(m_guide),
            u"Help"_s, BoxIcon::Exclamation);
        return;
    }
    auto* guide = window.findChild<GuideWindow*>(QString(), Qt::FindDirectChildrenOnly);
    if (!guide)
        guide = new GuideWindow(m_guide, &window);
    guide->showPlace(anchor);
}

} // namespace norvane::shell
