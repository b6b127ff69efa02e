// See LevelMap.h.
#include "keys/layout/LevelMap.h"

#include "keys/layout/KeyWords.h"
#include "paper/PageDevice.h"
#include "platform/ShownTime.h"
#include "reports/pages/PageStyles.h"

#include <QBuffer>
#include <QPdfWriter>

#include <algorithm>
#include <array>

using namespace Qt::Literals::StringLiterals;

namespace norvane::keys
{
namespace
{

using reports::Alignment, reports::TextStyle;

/// Lengths in mm.
constexpr double edge = 10;
constexpr double headingHeight = 13;
constexpr double legendHeight = 6;
constexpr double pad = 0.8;
constexpr double numberSize = 2.1;
constexpr double largestName = 3.0;
constexpr double leastName = 1.9;
constexpr double nameStep = 0.1;
constexpr double namePitch = 1.12;
constexpr double swatch = 4;

struct Ground {
    QColor grey;
    QLatin1StringView words; ///< in the legend
};

/// In the order of KeyState.
constexpr std::array<Ground, 6> grounds{{
    {QColor(0xff, 0xff, 0xff), {}},
    {QColor(0xe4, 0xe4, 0xe4), "Function"_L1},
    {QColor(0xff, 0xff, 0xff), "PLU"_L1},
    {QColor(0xc8, 0xc8, 0xc8), "Look-up"_L1},
    {QColor(0xff, 0xff, 0xff), "Item does not exist"_L1},
    {QColor(0xb0, 0xb0, 0xb0), "Fixed key"_L1},
}};

const TextStyle smallStyle{numberSize, false, QColor(0x50, 0x50, 0x50)};

const Ground& groundOf(KeyState state)
{
    return grounds.at(static_cast<std::size_t>(state));
}

void paintBox(QPainter& painter, const QRectF& place, KeyState state)
{
    painter.fillRect(place, groundOf(state).grey);
    painter.setPen(QPen(QColor(0x40, 0x40, 0x40), reports::thinLine));
    painter.drawRect(place);
    if (state != KeyState::Missing)
        return;
    painter.setPen(QPen(QColor(0xa0, 0xa0, 0xa0), reports::thinLine));
    painter.drawLine(place.topLeft(), place.bottomRight());
    painter.drawLine(place.topRight(), place.bottomLeft());
}

/// The item's number, for a PLU or look-up; what is missing is named whole.
QString mapNumberOf(const Key& key)
{
    const KeyWords words = wordsOf(key);
    const bool isNumbered = key.state == KeyState::Plu || key.state == KeyState::LookUp;
    return isNumbered ? words.number : QString();
}

QString nameOnMap(const Key& key)
{
    switch (key.state) {
    case KeyState::Unprogrammed:
        return {};
    case KeyState::Missing:
        return wordsOf(key).kind + u' ' + wordsOf(key).number;
    case KeyState::Fixed:
        return QString(key.text).replace(u'\r', u' ');
    default:
        return wordsOf(key).name;
    }
}

std::vector<Key> allKeys(const KeyLevel& level)
{
    std::vector<Key> keys;
    for (int row = 0; row < level.geometry().rows; ++row) {
        for (int column = 0; column < level.geometry().columns; ++column)
            keys.push_back(level.key({row, column}));
    }
    return keys;
}

} // namespace

LevelMap::LevelMap(const KeyLevel& level, QString shop, const QDateTime& printed)
    : m_keyboard(level.geometry()), m_level(level.level()), m_keys(allKeys(level)), m_shop(std::move(shop)),
      m_printed(printed)
{
}

QString LevelMap::title() const
{
    const QString form = m_keyboard.form;
    return u"Keyboard %1, level %2"_s.arg(form.mid("KeyLayout"_L1.size())).arg(m_level);
}

QString LevelMap::keyText(KeyCell cell) const
{
    const auto number = m_keyboard.keyNumber(cell);
    return number ? u"Key %1: %2"_s.arg(*number).arg(keyInWords(key(cell))) : nameOnMap(key(cell));
}

QRectF LevelMap::placeOf(KeyCell cell) const
{
    const QRectF body = mapSheet.rect().adjusted(edge, edge + headingHeight, -edge, -edge - legendHeight);
    const QSizeF size(body.width() / m_keyboard.columns, body.height() / m_keyboard.rows);
    return {body.left() + cell.column * size.width(), body.top() + cell.row * size.height(), size.width(),
            size.height()};
}

void LevelMap::paint(QPainter& painter) const
{
    painter.setRenderHint(QPainter::Antialiasing);
    paintHeading(painter);
    for (int row = 0; row < m_keyboard.rows; ++row) {
        for (int column = 0; column < m_keyboard.columns; ++column)
            paintKey(painter, {row, column});
    }
    paintLegend(painter);
}

void LevelMap::paintHeading(QPainter& painter) const
{
    QRectF row(edge, edge, mapSheet.rect().width() - 2 * edge, headingHeight / 2);
    m_font.draw(painter, row, title(), reports::titleStyle, Alignment::Left);
    m_font.draw(painter, row, m_shop, reports::subtitleBoldStyle, Alignment::Right);
    row.moveTop(row.bottom());
    m_font.draw(painter, row, u"Printed "_s + shownTime(m_printed), reports::subtitleStyle, Alignment::Right);
}

void LevelMap::paintKey(QPainter& painter, KeyCell cell) const
{
    const QRectF place = placeOf(cell);
    paintBox(painter, place, key(cell).state);
    paintNumbers(painter, cell);
    paintName(painter, place.adjusted(pad, pad + numberSize * namePitch, -pad, -pad / 2),
              nameOnMap(key(cell)));
}

void LevelMap::paintNumbers(QPainter& painter, KeyCell cell) const
{
    QRectF row = placeOf(cell).adjusted(pad, pad / 2, -pad, 0);
    row.setHeight(numberSize * namePitch);
    const auto number = m_keyboard.keyNumber(cell);
    const QString shown = number ? QString::number(*number) : QString();
    m_font.draw(painter, row, shown, smallStyle, Alignment::Left);
    row.setLeft(row.left() + m_font.width(shown, smallStyle) + pad);
    m_font.draw(painter, row, mapNumberOf(key(cell)), {numberSize, true}, Alignment::Right);
}

/// In the largest letters in which no word is broken and all rows fit; in the smallest ones what is left over
/// is cut.
void LevelMap::paintName(QPainter& painter, const QRectF& place, const QString& name) const
{
    TextStyle style{largestName};
    QStringList rows;
    const auto isTooLarge = [&] {
        rows = m_font.wrappedWords(name, style, place.width());
        return static_cast<double>(rows.size()) * style.size * namePitch > place.height() ||
               std::ranges::any_of(
                   rows, [&](const QString& row) { return m_font.width(row, style) > place.width(); });
    };
    while (isTooLarge() && style.size > leastName)
        style.size -= nameStep;
    rows = m_font.wrapped(name, style, place.width());
    QRectF row(place.topLeft(), QSizeF(place.width(), style.size * namePitch));
    for (const QString& text : std::as_const(rows)) {
        if (row.bottom() > place.bottom() + pad)
            break;
        m_font.draw(painter, row, text, style, Alignment::Left);
        row.moveTop(row.bottom());
    }
}

void LevelMap::paintLegend(QPainter& painter) const
{
    QRectF place(edge, mapSheet.rect().height() - edge - swatch, swatch, swatch);
    for (std::size_t state = 0; state < grounds.size(); ++state) {
        const Ground& ground = grounds[state];
        if (ground.words.isEmpty())
            continue;
        paintBox(painter, place, static_cast<KeyState>(state));
        const QString words = ground.words;
        const double width = m_font.width(words, reports::subtitleStyle);
        m_font.draw(painter, {place.right() + pad, place.top(), width, swatch}, words, reports::subtitleStyle,
                    Alignment::Left);
        place.translate(swatch + width + 3 * swatch, 0);
    }
}

bool LevelMap::print(QPagedPaintDevice& device) const
{
    paper::PageDevice paper(device, QPageSize(QPageSize::A4), mapSheet.orientation);
    paint(paper.nextPage());
    return paper.finish();
}

QByteArray LevelMap::pdf() const
{
    QBuffer content;
    content.open(QIODevice::WriteOnly);
    QPdfWriter writer(&content);
    writer.setTitle(title());
    return print(writer) ? content.data() : QByteArray();
}

} // namespace norvane::keys
