// Reads files 16, 17 and 57; see Keyboard.h.
#include "tools/ringsales/Keyboard.h"

#include <algorithm>

using namespace Qt::Literals::StringLiterals;

namespace bank
{
namespace
{

constexpr int linkFile = 16;
constexpr int numberFile = 17;
constexpr int windowFile = 57;
constexpr qsizetype keyLevels = 5;
constexpr qsizetype windowDigits = 4;
/// A window's lines are pairs of columns after its description.
constexpr qsizetype firstLine = 6;
const QByteArray pluLink = "0200"_ba;
const QByteArray windowLink = "0300"_ba;
const QByteArray functionLine = "40"_ba;

QByteArrayList articlesIn(const QByteArrayList& window)
{
    QByteArrayList numbers;
    for (qsizetype column = firstLine; column + 1 < window.size(); column += 2) {
        if (window.at(column) != functionLine && window.at(column + 1).toLongLong() != 0)
            numbers += window.at(column + 1);
    }
    return numbers;
}

} // namespace

QByteArray KeyPlace::text() const
{
    return QByteArray::number(level) + '/' + QByteArray::number(key);
}

std::optional<KeyPlace> KeyPlace::of(const QString& text)
{
    const auto words = text.split(u'/');
    const KeyPlace place{words.first().toInt(), words.last().toInt()};
    if (words.size() != 2 || place.level < 1 || place.key < 1)
        return {};
    return place;
}

Keyboard::Keyboard(const Register& of)
{
    const auto links = of.records(linkFile);
    const auto numbers = of.records(numberFile);
    for (qsizetype row = 0; row < std::min(links.size(), numbers.size()); ++row)
        m_keys += Code{links.at(row).first(), numbers.at(row).first()};
    m_keysALevel = m_keys.size() / keyLevels;
    const auto windows = of.records(windowFile);
    for (const auto& window : windows)
        m_windows += articlesIn(window);
    noteKeys(pluLink);
    noteKeys(windowLink);
}

KeyPlace Keyboard::placeOf(qsizetype row) const
{
    return {static_cast<int>(row / m_keysALevel) + 1, static_cast<int>(row % m_keysALevel) + 1};
}

QByteArrayList Keyboard::articlesOf(const Code& code) const
{
    if (code.link == pluLink)
        return {code.number};
    return code.link == windowLink ? m_windows.value(code.number.left(windowDigits).toInt() - 1)
                                   : QByteArrayList();
}

/// Existing notes are kept.
void Keyboard::noteKeys(const QByteArray& link)
{
    for (qsizetype row = 0; row < m_keysALevel * keyLevels; ++row) {
        if (m_keys.at(row).link != link)
            continue;
        for (const auto& number : articlesOf(m_keys.at(row))) {
            if (!m_keyOf.contains(number))
                m_keyOf.insert(number, placeOf(row));
        }
    }
}

std::optional<KeyPlace> Keyboard::keyOf(const QByteArray& number) const
{
    const auto found = m_keyOf.constFind(number);
    return found == m_keyOf.cend() ? std::nullopt : std::optional(*found);
}

QByteArrayList Keyboard::articlesOn(const KeyPlace& place) const
{
    if (place.level > keyLevels || place.key > m_keysALevel)
        return {};
    return articlesOf(m_keys.at((place.level - 1) * m_keysALevel + place.key - 1));
}

} // namespace bank
