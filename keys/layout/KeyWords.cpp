// See KeyWords.h.
#include "keys/layout/KeyWords.h"

#include "register/PluNumber.h"

using namespace Qt::Literals::StringLiterals;

namespace norvane::keys
{
namespace
{

/// In the order of ItemKind.
constexpr QLatin1StringView kindWords[] = {"Function"_L1, "PLU"_L1, "Look-up"_L1};

/// The text of a PLU or look-up begins with its number.
QString nameOf(const Key& key)
{
    if (key.state == KeyState::Missing)
        return {};
    const bool isNumbered = kindOf(key.function) != ItemKind::Function;
    return (isNumbered ? key.text.section(u' ', 1) : key.text).trimmed();
}

} // namespace

QString kindWord(ItemKind kind)
{
    return kindWords[static_cast<std::size_t>(kind)];
}

QString shownItemNumber(const Key& key)
{
    return kindOf(key.function) == ItemKind::Function ? key.function
                                                      : unfilledNumber(itemNumber(key.function, key.lookUp));
}

KeyWords wordsOf(const Key& key)
{
    if (key.function.isEmpty())
        return {};
    return {kindWord(kindOf(key.function)), shownItemNumber(key), nameOf(key)};
}

QString keyInWords(const Key& key)
{
    const auto [kind, number, name] = wordsOf(key);
    if (kind.isEmpty())
        return u"not programmed"_s;
    const QString item = number.isEmpty() ? kind + u" without a number"_s : kind + u' ' + number;
    return key.state == KeyState::Missing ? item + u", which does not exist"_s : item + u' ' + name;
}

} // namespace norvane::keys
