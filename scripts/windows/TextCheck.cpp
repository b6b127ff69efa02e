// See TextCheck.h.
#include "scripts/windows/TextCheck.h"

#include "scripts/windows/ShownTexts.h"

#include <QHash>
#include <QLabel>
#include <QScrollArea>
#include <QToolBar>
#include <QToolButton>

#include <algorithm>
#include <cmath>

using namespace Qt::Literals::StringLiterals;

namespace norvane::windows
{
namespace
{

/// Rounding of widths, which no eye sees.
constexpr int slack = 1;

/// Whether the parents show the whole of @p place, or can be scrolled to.
bool isInView(const QWidget& control, QRect place, const QWidget& window)
{
    for (const QWidget* widget = &control; widget != &window; widget = widget->parentWidget()) {
        if (!widget->rect().contains(place))
            return false;
        const QWidget* const parent = widget->parentWidget();
        if (qobject_cast<const QScrollArea*>(parent->parentWidget()))
            return true;
        place.translate(widget->pos());
    }
    return window.rect().contains(place);
}

bool mayBeCut(const ShownText& text)
{
    return text.control->toolTip() == text.text;
}

/// Cells and headings may be partly outside a table that scrolls.
bool isOfView(const ShownText& text)
{
    return qobject_cast<const QAbstractScrollArea*>(text.control->parentWidget()) != nullptr;
}

QString cutBy(const ShownText& text, const QWidget& window)
{
    const QSize has = text.room.size();
    if (text.need.width() > has.width() + slack || text.need.height() > has.height() + slack) {
        return u"needs %1 x %2, has %3 x %4"_s.arg(text.need.width())
            .arg(text.need.height())
            .arg(has.width())
            .arg(has.height());
    }
    const QRect place = text.letters.isValid() ? text.letters : text.room;
    return isOfView(text) || isInView(*text.control, place, window) ? QString() : u"cut by its parents"_s;
}

QRect inWindow(const ShownText& text, const QWidget& window, const QRect& place)
{
    return {text.control->mapTo(&window, place.topLeft()), place.size()};
}

/// What a control keeps others away from: a label only its letters.
QRect occupied(const ShownText& text)
{
    return qobject_cast<const QLabel*>(text.control) ? text.letters : text.control->rect();
}

bool overlap(const ShownText& left, const ShownText& right, const QWidget& window)
{
    const QRect both = inWindow(left, window, occupied(left)) & inWindow(right, window, occupied(right));
    // The leading above and below the letters may touch.
    return both.width() > slack && both.height() > 3 * slack;
}

double luminance(QRgb colour)
{
    const auto linear = [](int part) {
        const double share = part / 255.0;
        return share <= 0.03928 ? share / 12.92 : std::pow((share + 0.055) / 1.055, 2.4);
    };
    return 0.2126 * linear(qRed(colour)) + 0.7152 * linear(qGreen(colour)) + 0.0722 * linear(qBlue(colour));
}

double contrast(QRgb left, QRgb right)
{
    const auto [dark, bright] = std::minmax({luminance(left), luminance(right)});
    return (bright + 0.05) / (dark + 0.05);
}

/// Strongest contrast to the most frequent colour.
double contrastIn(const QImage& letters)
{
    QHash<QRgb, int> counts;
    for (int y = 0; y < letters.height(); ++y) {
        for (int x = 0; x < letters.width(); ++x)
            ++counts[letters.pixel(x, y)];
    }
    const auto isRarer = [&](QRgb left, QRgb right) {
        return counts.value(left) < counts.value(right);
    };
    const auto colours = counts.keys();
    const QRgb ground = *std::ranges::max_element(colours, isRarer);
    double strongest = 1;
    for (const QRgb colour : colours)
        strongest = std::max(strongest, contrast(ground, colour));
    return strongest;
}

QRect visiblePart(const ShownText& text, const QWidget& window)
{
    QRect place = text.letters;
    for (const QWidget* widget = text.control; widget != &window; widget = widget->parentWidget()) {
        place &= widget->rect();
        place.translate(widget->pos());
    }
    return place & window.rect();
}

QString tooPale(const ShownText& text, const QWidget& window, const QImage& picture)
{
    constexpr int leastPixels = 5; ///< what is in view of the text, or nothing can be said
    const QRect seen = visiblePart(text, window);
    if (!text.control->isEnabledTo(nullptr) || text.text.trimmed().isEmpty() || seen.width() < leastPixels ||
        seen.height() < leastPixels)
        return {};
    const double scale = picture.devicePixelRatio();
    const QRect pixels(seen.topLeft() * scale, seen.size() * scale);
    const double found = contrastIn(picture.copy(pixels));
    return found < leastContrast ? u"contrast %1"_s.arg(found, 0, 'f', 1) : QString();
}

QString described(const ShownText& text, const QString& fault)
{
    QString name = text.control->objectName();
    if (name.isEmpty() || name.startsWith(u"qt_"_s))
        name = text.control->parentWidget() ? text.control->parentWidget()->objectName() : QString();
    return u"%1 \"%2\": %3"_s.arg(name, text.text.left(60).simplified(), fault);
}

/// Tools that do not fit are hidden in an arrow menu.
QStringList hiddenTools(const QWidget& window)
{
    QStringList faults;
    for (const auto* const bar : window.findChildren<QToolBar*>()) {
        const auto* const more = bar->findChild<QToolButton*>(u"qt_toolbar_ext_button"_s);
        if (more && more->isVisibleTo(&window))
            faults += u"%1: not all tools fit"_s.arg(bar->objectName());
    }
    return faults;
}

QStringList coveredTexts(const QVector<ShownText>& texts, const QWidget& window)
{
    QStringList faults;
    for (qsizetype left = 0; left < texts.size(); ++left) {
        for (qsizetype right = left + 1; right < texts.size(); ++right) {
            const bool areSiblings = texts[left].control != texts[right].control &&
                                     texts[left].control->parent() == texts[right].control->parent();
            if (areSiblings && overlap(texts[left], texts[right], window))
                faults += described(texts[left], u"overlaps "_s + described(texts[right], {}));
        }
    }
    return faults;
}

} // namespace

QStringList unreadableTexts(const QWidget& window, const QImage& picture)
{
    const QVector<ShownText> texts = shownTexts(window);
    QStringList faults = hiddenTools(window) + coveredTexts(texts, window);
    for (const ShownText& text : texts) {
        const QString cut = mayBeCut(text) ? QString() : cutBy(text, window);
        for (const QString& fault : {cut, tooPale(text, window, picture)}) {
            if (!fault.isEmpty())
                faults += described(text, fault);
        }
    }
    return faults;
}

} // namespace norvane::windows
