// See KeyCellDelegate.h.
#include "keys/layout/KeyCellDelegate.h"

#include "keys/layout/KeyGridModel.h"
#include "keys/layout/KeyText.h"
#include "ui/Appearance.h"
#include "ui/FormKit.h"

#include <QAbstractItemView>
#include <QPainter>
#include <QPainterPath>

#include <array>
#include <span>

using namespace Qt::Literals::StringLiterals;

namespace norvane::keys
{
namespace
{

namespace colours = ui::colours;

enum class Shape { None, Circle, Triangle, Square, Cross, Lock };

struct Look {
    QLatin1StringView words;
    QColor ground;
    QColor mark;
    Shape shape;
};

/// In the order of KeyState.
constexpr std::array<Look, 6> looks{{
    {"Unprogrammed"_L1, QColor(0xff, 0xff, 0xff), colours::greyedText, Shape::None},
    {"Function"_L1, colours::functionKey, colours::functionMark, Shape::Circle},
    {"PLU"_L1, colours::pluKey, colours::pluMark, Shape::Triangle},
    {"Look-up"_L1, colours::lookUpKey, colours::lookUpMark, Shape::Square},
    {"Missing item"_L1, colours::missingKey, colours::missingMark, Shape::Cross},
    {"Fixed"_L1, colours::fixedKey, colours::text, Shape::Lock},
}};

/// A key that is not programmed needs no explanation.
constexpr auto explainedLooks = std::span(looks).subspan(1);

constexpr int strongLine = 2;
constexpr int legendGap = 14;

KeyState stateOf(const QModelIndex& index)
{
    return static_cast<KeyState>(index.data(KeyGridModel::StateRole).toInt());
}

const Look& lookOf(const QModelIndex& index)
{
    return looks.at(static_cast<std::size_t>(stateOf(index)));
}

QColor groundOf(const Look& look)
{
    return colours::yielding(look.ground, QPalette::Base);
}

QColor textColour()
{
    return colours::yielding(colours::text, QPalette::Text);
}

QPainterPath lockPath(const QRectF& place)
{
    QPainterPath path;
    const double shackle = place.height() / 2;
    path.addRect(place.adjusted(0, shackle - 1, 0, 0));
    QPainterPath bow;
    bow.addEllipse(place.adjusted(1, 0, -1, -1));
    QPainterPath hole;
    hole.addEllipse(place.adjusted(2.5, 1.5, -2.5, -2.5));
    return path.united(bow.subtracted(hole));
}

QPainterPath crossPath(const QRectF& place)
{
    QPainterPath path(place.topLeft());
    path.lineTo(place.bottomRight());
    path.moveTo(place.topRight());
    path.lineTo(place.bottomLeft());
    QPainterPathStroker pen;
    pen.setWidth(2.2);
    return pen.createStroke(path);
}

QPainterPath markPath(Shape shape, const QRectF& place)
{
    QPainterPath path;
    switch (shape) {
    case Shape::Circle:
        path.addEllipse(place);
        break;
    case Shape::Triangle:
        path.addPolygon(QPolygonF{{place.bottomLeft(), QPointF(place.center().x(), place.top()),
                                   place.bottomRight(), place.bottomLeft()}});
        break;
    case Shape::Square:
        path.addRect(place);
        break;
    case Shape::Cross:
        path = crossPath(place);
        break;
    case Shape::Lock:
        path = lockPath(place);
        break;
    case Shape::None:
        break;
    }
    return path;
}

void paintMark(QPainter& painter, const Look& look, const QRectF& place)
{
    painter.setRenderHint(QPainter::Antialiasing);
    painter.fillPath(markPath(look.shape, place), colours::yielding(look.mark, QPalette::Text));
    painter.setRenderHint(QPainter::Antialiasing, false);
}

void paintText(QPainter& painter, const QStyleOptionViewItem& option, const QModelIndex& index)
{
    const KeyState state = stateOf(index);
    painter.setFont(option.font);
    painter.setPen(state == KeyState::Unprogrammed ? colours::yielding(colours::greyedText, QPalette::Text)
                                                   : textColour());
    paintKeyText(painter, option.rect, index.data().toString(), state);
}

void paintFrame(QPainter& painter, const QRect& cell, const QPen& pen, int inset)
{
    painter.setPen(pen);
    painter.setBrush(Qt::NoBrush);
    const int half = pen.width() / 2 + inset;
    painter.drawRect(cell.adjusted(half, half, -half - 1, -half - 1));
}

void paintFrames(QPainter& painter, const QStyleOptionViewItem& option, const QModelIndex& index)
{
    if (index.data(KeyGridModel::FoundRole).toBool())
        paintFrame(painter, option.rect, QPen(colours::found, strongLine), strongLine);
    if (index.data(KeyGridModel::PreviewRole).toBool())
        paintFrame(painter, option.rect, QPen(colours::yielding(colours::accent, QPalette::Highlight), 1), 1);
    if (index.data(KeyGridModel::MarkedRole).toBool())
        paintFrame(painter, option.rect, QPen(textColour(), 1, Qt::DashLine), strongLine);
    // Also while the keyboard is in a list: a choice there is for this key.
    const auto* const grid = qobject_cast<const QAbstractItemView*>(option.widget);
    if (grid != nullptr && grid->currentIndex() == index) {
        paintFrame(painter, option.rect,
                   QPen(colours::yielding(colours::accentDark, QPalette::Highlight), strongLine), 0);
    }
}

} // namespace

void KeyCellDelegate::paint(QPainter* painter, const QStyleOptionViewItem& option,
                            const QModelIndex& index) const
{
    const Look& look = lookOf(index);
    painter->save();
    painter->fillRect(option.rect, groundOf(look));
    if (option.state.testFlag(QStyle::State_Selected)) {
        QColor chosen = colours::yielding(colours::accent, QPalette::Highlight);
        chosen.setAlpha(90);
        painter->fillRect(option.rect, chosen);
    }
    paintText(*painter, option, index);
    paintMark(*painter, look, keyMarkPlace(option.rect, stateOf(index)));
    paintFrames(*painter, option, index);
    painter->restore();
}

KeyLegend::KeyLegend(QWidget* parent) : QWidget(parent)
{
    ui::nameControl(*this, u"KeyLegend"_s);
    QStringList words;
    for (const Look& look : explainedLooks)
        words += look.words;
    setAccessibleName(u"Keys are marked as: "_s + words.join(u", "_s));
    setSizePolicy(QSizePolicy::Minimum, QSizePolicy::Fixed);
}

QSize KeyLegend::sizeHint() const
{
    const QFontMetrics metrics(font());
    int width = 0;
    for (const Look& look : explainedLooks)
        width += metrics.horizontalAdvance(look.words) + keyMarkPixels() + 2 * keyPadding + legendGap;
    return {width, metrics.height() + 2 * keyPadding};
}

void KeyLegend::paintEvent(QPaintEvent* /*event*/)
{
    QPainter painter(this);
    const int mark = keyMarkPixels();
    int x = 0;
    for (const Look& look : explainedLooks) {
        const int words = painter.fontMetrics().horizontalAdvance(look.words);
        const QRect place(x, 0, mark + 3 * keyPadding + words, height());
        painter.fillRect(place, groundOf(look));
        painter.setPen(textColour());
        painter.drawText(place.adjusted(mark + 2 * keyPadding, 0, 0, 0), Qt::AlignVCenter, look.words);
        paintMark(painter, look, QRectF(x + keyPadding, (height() - mark) / 2.0, mark, mark));
        x += place.width() + legendGap - keyPadding;
    }
}

} // namespace norvane::keys
