// See UsesButton.h.
#include "ui/UsesButton.h"

#include "ui/Appearance.h"
#include "ui/FormKit.h"

#include <QFrame>
#include <QListWidget>
#include <QScreen>
#include <QTimer>
#include <QVBoxLayout>

using namespace Qt::Literals::StringLiterals;

namespace norvane::ui
{
namespace
{

constexpr int restMilliseconds = 80;
/// A group may have thousands of PLUs.
constexpr int listedUses = 500;
constexpr int visibleUses = 12;

QString captionOf(const std::optional<Uses>& uses)
{
    if (!uses)
        return u"Uses Not Known"_s;
    if (uses->count == 0)
        return u"Not Used Anywhere"_s;
    return uses->count == 1 ? u"Used in 1 Place..."_s : u"Used in %1 Places..."_s.arg(uses->count);
}

QListWidget* makeList(const Uses& uses, QWidget* parent)
{
    auto* const list = new QListWidget(parent);
    nameControl(*list, u"UsesList"_s, u"Where used"_s);
    list->setFrameShape(QFrame::NoFrame);
    list->setUniformItemSizes(true);
    list->setSpacing(1);
    list->addItems(uses.first);
    if (const auto more = uses.count - uses.first.size(); more > 0)
        list->addItem(u"and %1 more"_s.arg(more));
    list->setCurrentRow(0);
    const int rows = qMin(list->count(), visibleUses);
    list->setFixedHeight(rows * (list->sizeHintForRow(0) + 2 * list->spacing()) + 2);
    list->setMinimumWidth(list->sizeHintForColumn(0) + scaled(2 * spacing::groupGap));
    return list;
}

} // namespace

UsesButton::UsesButton(Reader reader, QWidget* parent)
    : QPushButton(captionOf(Uses{}), parent), m_read(std::move(reader)), m_rest(new QTimer(this))
{
    nameControl(*this, u"RecordUses"_s);
    setToolTip(u"Keys, look-ups, links, recipes and other records that use this one (Ctrl+R)"_s);
    setAutoDefault(true);
    setEnabled(false);
    m_rest->setSingleShot(true);
    m_rest->setInterval(restMilliseconds);
    connect(m_rest, &QTimer::timeout, this, &UsesButton::showCount);
    connect(this, &QPushButton::clicked, this, &UsesButton::showList);
}

void UsesButton::recount()
{
    m_rest->start();
}

void UsesButton::showCount()
{
    const auto uses = m_read(0);
    setText(captionOf(uses));
    setEnabled(uses && uses->count > 0);
}

void UsesButton::showList()
{
    showCount();
    const auto uses = m_read(listedUses);
    if (!uses || uses->count == 0)
        return;
    auto* const frame = new QFrame(this, Qt::Popup);
    nameControl(*frame, u"UsesFrame"_s);
    frame->setAttribute(Qt::WA_DeleteOnClose);
    frame->setFrameShape(QFrame::StyledPanel);
    frame->setWindowTitle(u"Where Used"_s);
    auto* const column = new QVBoxLayout(frame);
    column->setContentsMargins(1, 1, 1, 1);
    column->setSizeConstraint(QLayout::SetFixedSize);
    QListWidget* const list = makeList(*uses, frame);
    column->addWidget(list);
    placeList(*frame);
    frame->show();
    list->setFocus();
}

/// Below the button, or above it where the screen ends.
void UsesButton::placeList(QWidget& list) const
{
    list.adjustSize();
    const QPoint below = mapToGlobal(rect().bottomLeft());
    const int lowest = screen()->availableGeometry().bottom() - list.height();
    list.move(below.x(), below.y() <= lowest ? below.y() : mapToGlobal(rect().topLeft()).y() - list.height());
}

} // namespace norvane::ui
