// See RowText.h.
#include "chain/RowText.h"

#include "platform/Dates.h"
#include "platform/Decimal.h"
#include "platform/RuntimeFailure.h"

#include <optional>

using namespace Qt::Literals::StringLiterals;

namespace norvane::chain
{
namespace
{

using store::Value;

/// PostgreSQL has no character 0.
std::string withoutNulls(const Value& value)
{
    std::string text = value.toUtf8();
    std::erase(text, '\0');
    return text;
}

QString trimmed(const Value& value)
{
    return QString::fromStdString(withoutNulls(value)).trimmed();
}

/// Nothing for a price that was never set.
std::optional<std::string> textOf(const Value& value, Content content)
{
    switch (content) {
    case Content::Number: {
        const auto number = Decimal::tryParse(value.toUtf8());
        return number ? std::optional(number->text()) : std::nullopt;
    }
    case Content::Time:
        return clockTime(trimmed(value)).toStdString();
    case Content::Text: // filled with blanks by a register
        return trimmed(value).toStdString();
    case Content::Key:
        return withoutNulls(value);
    case Content::Whole:
        break;
    }
    return value.toUtf8();
}

void appendEscaped(std::string& line, const std::string& text)
{
    static constexpr std::string_view special = "\\\t\n\r";
    static constexpr std::string_view letters = "\\tnr";
    for (const char c : text) {
        if (const auto at = special.find(c); at != std::string_view::npos) {
            line += '\\';
            line += letters[at];
        } else {
            line += c;
        }
    }
}

} // namespace

void appendValue(std::string& line, const Value& value, Content content)
{
    if (const auto text = value.isNull() ? std::nullopt : textOf(value, content)) {
        appendEscaped(line, *text);
    } else {
        line += "\\N";
    }
}

void appendSum(std::string& line, std::string_view sum, int places)
{
    if (places == 0) {
        line += sum;
        return;
    }
    const auto number = Decimal::parse(sum);
    if (!number)
        throw RuntimeFailure(Failure::Overflow, u"Overflow"_s);
    line += number->shifted(-places).text();
}

} // namespace norvane::chain
