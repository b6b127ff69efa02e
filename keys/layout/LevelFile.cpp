// See LevelFile.h.
#include "keys/layout/LevelFile.h"

#include "keys/layout/KeyboardKeys.h"
#include "platform/Excerpt.h"
#include "register/PluNumber.h"

#include <QStringList>

#include <algorithm>
#include <optional>

using namespace Qt::Literals::StringLiterals;

namespace norvane::keys
{
namespace
{

constexpr QLatin1StringView firstLine{"Norvane keyboard level"};
constexpr QLatin1StringView keyboardMark{"Keyboard: "};
constexpr QLatin1StringView columnsLine{"Key\tKind\tNumber\tName"};
constexpr int columns = 4;

/// "Velmar, 169 keys".
QString keyboardName(const KeyGeometry& keyboard)
{
    const QString form = keyboard.form;
    return form.mid("KeyLayout"_L1.size()) + u", %1 keys"_s.arg(keyboard.keysPerLevel);
}

/// A name is what remains of its line.
QString onOneLine(QString text)
{
    for (QChar& c : text) {
        if (c.category() == QChar::Other_Control)
            c = u' ';
    }
    return text;
}

std::optional<ItemKind> kindOfWord(const QString& word)
{
    for (const ItemKind kind : {ItemKind::Function, ItemKind::Plu, ItemKind::LookUp}) {
        if (word.compare(kindWord(kind), Qt::CaseInsensitive) == 0)
            return kind;
    }
    return std::nullopt;
}

qsizetype mostDigits(ItemKind kind)
{
    switch (kind) {
    case ItemKind::Plu:
        return PluNumber::digits;
    case ItemKind::LookUp:
        return wluDigits;
    case ItemKind::Function:
        break;
    }
    return 3;
}

bool isNumberOf(ItemKind kind, const QString& number)
{
    const bool isDigits = std::ranges::all_of(number, [](QChar c) { return c >= u'0' && c <= u'9'; });
    // KEYLINK means another kind by some numbers.
    return !number.isEmpty() && isDigits && number.size() <= mostDigits(kind) &&
           (kind != ItemKind::Function || kindOf(number) == ItemKind::Function);
}

/// Not programmed, where the number is one that no item can have: the whole file would be refused.
KeyWords writtenWords(const Key& key)
{
    KeyWords words = wordsOf(key);
    if (!isExportable(key))
        words = {};
    return words;
}

[[noreturn]] void refuse(qsizetype line, const QString& why)
{
    throw LevelFileError(u"Line %1: %2"_s.arg(line).arg(why));
}

KeyWords wordsOfLine(const QStringList& cells, qsizetype line)
{
    KeyWords words{cells[1].trimmed(), unfilledNumber(cells[2].trimmed()), cells[3].trimmed()};
    if (words.kind.isEmpty())
        return {};
    const std::optional<ItemKind> kind = kindOfWord(words.kind);
    if (!kind)
        refuse(line, u"\"%1\" is not Function, PLU or Look-up."_s.arg(excerpt(words.kind)));
    if (!isNumberOf(*kind, words.number))
        refuse(line, u"\"%1\" is not a number of the kind %2."_s.arg(excerpt(cells[2]), kindWord(*kind)));
    words.kind = kindWord(*kind);
    return words;
}

/// @return the place of the line with the columns.
qsizetype checkHeading(const QStringList& lines, const KeyGeometry& keyboard)
{
    if (lines.isEmpty() || lines.first().trimmed() != firstLine)
        throw LevelFileError(u"This is not a file of a keyboard level."_s);
    const qsizetype at = lines.indexOf(columnsLine);
    if (at < 0)
        throw LevelFileError(u"The file has no line with the columns of the keys."_s);
    const QStringList heading = lines.first(at).filter(keyboardMark);
    const QString name = heading.isEmpty() ? QString() : heading.first().mid(keyboardMark.size()).trimmed();
    if (name != keyboardName(keyboard)) {
        throw LevelFileError(u"This level is of another keyboard (%1). The keyboard here is a %2."_s.arg(
            name.isEmpty() ? u"not named"_s : excerpt(name), keyboardName(keyboard)));
    }
    return at;
}

/// The number of the key in its line, from 1.
int keyOfLine(const QStringList& cells, qsizetype line, const std::vector<bool>& seen)
{
    const int key = cells.first().toInt();
    if (cells.size() != columns || key < 1 || static_cast<std::size_t>(key) > seen.size())
        refuse(line, u"this is not a key of this keyboard with its kind, number and name."_s);
    if (seen[static_cast<std::size_t>(key) - 1])
        refuse(line, u"key %1 is there twice."_s.arg(key));
    return key;
}

} // namespace

bool isExportable(const Key& key)
{
    const KeyWords words = wordsOf(key);
    return words.kind.isEmpty() || isNumberOf(kindOf(key.function), words.number);
}

QByteArray levelText(const KeyLevel& level, const QString& shop)
{
    QStringList lines{firstLine, keyboardMark + keyboardName(level.geometry()), u"Shop: "_s + onOneLine(shop),
                      u"Level: %1"_s.arg(level.level()), columnsLine};
    for (const PlacedKey& placed : keysOf(level)) {
        const KeyWords words = writtenWords(placed.key);
        lines +=
            QStringList{QString::number(placed.place.key), words.kind, words.number, onOneLine(words.name)}
                .join(u'\t');
    }
    return lines.join(u"\r\n"_s).toUtf8() + "\r\n";
}

std::vector<KeyWords> readLevelText(const QByteArray& text, const KeyGeometry& keyboard)
{
    QString content = QString::fromUtf8(text).remove(QChar(u'\ufeff'));
    const QStringList lines = content.remove(u'\r').split(u'\n');
    std::vector<KeyWords> keys(static_cast<std::size_t>(keyboard.keysPerLevel));
    std::vector<bool> seen(keys.size());
    for (qsizetype line = checkHeading(lines, keyboard) + 1; line < lines.size(); ++line) {
        if (lines[line].trimmed().isEmpty())
            continue;
        const QStringList cells = lines[line].split(u'\t');
        const auto key = static_cast<std::size_t>(keyOfLine(cells, line + 1, seen)) - 1;
        seen[key] = true;
        keys[key] = wordsOfLine(cells, line + 1);
    }
    if (const auto lost = std::ranges::find(seen, false); lost != seen.end())
        throw LevelFileError(u"The file has no line for key %1."_s.arg(lost - seen.begin() + 1));
    return keys;
}

} // namespace norvane::keys
