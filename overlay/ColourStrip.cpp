// See ColourStrip.h.
#include "overlay/ColourStrip.h"

#include "ui/Appearance.h"
#include "ui/FormKit.h"

#include <QGuiApplication>
#include <QHBoxLayout>
#include <QMouseEvent>
#include <QPainter>
#include <QToolButton>

#include <algorithm>

using namespace Qt::Literals::StringLiterals;

namespace norvane::overlay
{
namespace
{

constexpr int fieldSize = 14;

QIcon iconOf(const QColor& colour)
{
    QPixmap picture(fieldSize, fieldSize);
    picture.fill(colour);
    QPainter painter(&picture);
    painter.setPen(ui::colours::greyedText);
    painter.drawRect(0, 0, fieldSize - 1, fieldSize - 1);
    return QIcon(picture);
}

} // namespace

ColourStrip::ColourStrip(QWidget* parent) : QWidget(parent)
{
    ui::nameControl(*this, u"ColourStrip"_s);
    auto* const row = new QHBoxLayout(this);
    row->setContentsMargins(0, 0, 0, 0);
    row->setSpacing(0);
    for (std::size_t place = 0; place < m_fields.size(); ++place) {
        auto* const field = new QToolButton(this);
        ui::nameControl(*field, u"RecentColour_%1"_s.arg(place + 1));
        field->setIconSize({fieldSize, fieldSize});
        field->setAutoRaise(true);
        field->setToolTip(
            u"A colour used before. Click: background. Right click, or Shift and click: text"_s);
        field->installEventFilter(this);
        connect(field, &QToolButton::clicked, this, [this, field] {
            choose(*field, QGuiApplication::keyboardModifiers().testFlag(Qt::ShiftModifier));
        });
        row->addWidget(field);
        m_fields.at(place) = field;
    }
    showColours();
}

void ColourStrip::remember(const QColor& colour)
{
    m_colours.removeAll(colour);
    m_colours.prepend(colour);
    m_colours.resize(qMin(m_colours.size(), static_cast<qsizetype>(m_fields.size())));
    showColours();
}

void ColourStrip::showColours()
{
    for (std::size_t place = 0; place < m_fields.size(); ++place) {
        const bool isUsed = static_cast<qsizetype>(place) < m_colours.size();
        m_fields.at(place)->setEnabled(isUsed);
        m_fields.at(place)->setAccessibleName(u"Colour %1: %2"_s.arg(
            QString::number(place + 1),
            isUsed ? m_colours.at(static_cast<qsizetype>(place)).name() : u"none yet"_s));
        m_fields.at(place)->setIcon(isUsed ? iconOf(m_colours.at(static_cast<qsizetype>(place))) : QIcon());
    }
}

void ColourStrip::choose(const QToolButton& field, bool forText)
{
    const auto* const place = std::ranges::find(m_fields, &field);
    const QColor colour = m_colours.at(place - m_fields.begin());
    if (forText) {
        Q_EMIT textColourChosen(colour);
    } else {
        Q_EMIT backgroundChosen(colour);
    }
}

bool ColourStrip::eventFilter(QObject* watched, QEvent* event)
{
    auto* const field = qobject_cast<QToolButton*>(watched);
    const bool isRightClick = event->type() == QEvent::MouseButtonRelease &&
                              static_cast<QMouseEvent*>(event)->button() == Qt::RightButton;
    if (!field || !isRightClick || !field->isEnabled())
        return false;
    choose(*field, true);
    return true;
}

} // namespace norvane::overlay
