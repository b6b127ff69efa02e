// See PluNumber.h.
#include "register/PluNumber.h"

#include "platform/Trimming.h"

#include <charconv>

using namespace Qt::Literals::StringLiterals;

namespace norvane
{

std::optional<PluNumber> PluNumber::parse(std::string_view text)
{
    const std::string_view number = trimBlanks(text);
    if (number.size() > digits)
        return std::nullopt;
    const char* const end = number.data() + number.size();
    std::uint64_t value = 0;
    const auto [read, error] = std::from_chars(number.data(), end, value);
    return error == std::errc() && read == end ? std::optional(PluNumber(value)) : std::nullopt;
}

std::string PluNumber::text() const
{
    const std::string number = std::to_string(m_value);
    return std::string(digits - number.size(), '0') + number;
}

QString filledPluNumber(const QString& text)
{
    return text.rightJustified(PluNumber::digits, u'0');
}

QString fittedPluNumber(const QString& text)
{
    return filledPluNumber(text.right(PluNumber::digits));
}

QString unfilledNumber(const QString& text)
{
    qsizetype zeros = 0;
    while (zeros + 1 < text.size() && text[zeros] == u'0')
        ++zeros;
    return text.sliced(zeros);
}

bool isPluNumberField(const QString& name)
{
    return name.compare("PLUNUMBER"_L1, Qt::CaseInsensitive) == 0;
}

QString shownKey(const QString& keyField, const QString& key)
{
    return isPluNumberField(keyField) ? unfilledNumber(key) : key;
}

} // namespace norvane
