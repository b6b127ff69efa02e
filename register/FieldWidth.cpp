// See FieldWidth.h.
#include "register/FieldWidth.h"

#include "platform/Excerpt.h"
#include "platform/Numbers.h"
#include "platform/RuntimeFailure.h"

using namespace Qt::Literals::StringLiterals;

namespace norvane
{
namespace
{

/// An odd rest is split by half-even rounding.
void appendCentred(std::u16string& out, std::u16string_view text, std::size_t width)
{
    text = trimBlanks(text);
    if (text.size() > width) {
        throw RuntimeFailure(
            Failure::InvalidArgument,
            u"Invalid argument: \"%1\" is longer than %2 characters"_s.arg(excerpt(text)).arg(width));
    }
    const int pad = roundHalfEven(static_cast<double>(width - text.size()) / 2);
    out.append(static_cast<std::size_t>(pad), u' ').append(text).resize(width, u' ');
}

} // namespace

QString JustifyField(std::optional<QString>& value, int width, int mode)
{
    const std::u16string text = value.value_or(QString()).toStdU16String();
    const auto characters = static_cast<std::size_t>(std::max(width, 0));
    std::u16string field;
    switch (mode) {
    case 0:
        appendZeroFilled(field, text, characters);
        break;
    case 1:
        appendBlankFilled(field, text, characters);
        break;
    default:
        appendCentred(field, text, characters);
    }
    value = QString::fromStdU16String(field);
    return *value;
}

} // namespace norvane
