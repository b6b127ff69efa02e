// Splitting the text of register records; see RecordLines.h.
#include "records/RecordLines.h"

#include "platform/Excerpt.h"
#include "platform/Numbers.h"
#include "platform/RuntimeFailure.h"
#include "platform/Trimming.h"
#include "platform/Windows1252.h"
#include "register/RegisterMark.h"

#include <algorithm>

using namespace Qt::Literals::StringLiterals;

namespace norvane::records
{
namespace
{

/// Many times the widest column of any register.
constexpr std::size_t longestColumn = 4096;

constexpr bool isDigit(char c)
{
    return c >= '0' && c <= '9';
}

} // namespace

std::string_view Lines::next()
{
    if (m_lineFeed <= m_at)
        m_lineFeed = std::min(m_text.find('\n', m_at), m_text.size());
    const auto upToLineFeed = m_text.substr(m_at, m_lineFeed - m_at);
    const auto line = upToLineFeed.substr(0, upToLineFeed.find('\r'));
    m_at += line.size();
    const std::size_t lineEnd = m_text.substr(m_at).starts_with("\r\n") ? 2 : 1;
    m_at += lineEnd;
    return line;
}

std::string_view takeField(std::string_view& line)
{
    const auto field = line.substr(0, line.find(','));
    line.remove_prefix(std::min(field.size() + 1, line.size()));
    return field;
}

std::string_view StripLeadingZero(std::string_view text)
{
    for (auto trimmed = trimBlanks(text); trimmed.starts_with('0'); trimmed = trimBlanks(text))
        text = trimmed.substr(std::min(trimmed.find_first_not_of('0'), trimmed.size()));
    return text.empty() ? "0" : text;
}

void checkLength(std::string_view column)
{
    if (column.size() > longestColumn) {
        throw RuntimeFailure(
            Failure::TextTooLong,
            u"The text is too long. A column of %1 characters begins \"%2\"."_s.arg(column.size())
                .arg(shownFromRegister(column)));
    }
}

std::array<int, 2> optionDigits(std::string_view column)
{
    if (column.empty())
        return {0, 0};
    if (column.size() == 2 && isDigit(column[0]) && isDigit(column[1]))
        return {column[0] - '0', column[1] - '0'};
    const QString shown = QString::fromStdString(plainFromRegister(column));
    const std::string digits = formatNumber(shown, u"00").toStdString();
    if (!isDigit(digits[0])) {
        throw RuntimeFailure(Failure::TypeMismatch,
                             u"Type mismatch: \"%1\" are not option digits"_s.arg(shownFromRegister(column)));
    }
    return {digits[0] - '0', digits[1] - '0'};
}

std::string textFromRegister(std::string_view bytes)
{
    std::string shown(bytes);
    return plainFromRegister(EscapeDelimiter(shown));
}

QString shownFromRegister(std::string_view bytes)
{
    constexpr auto enough = static_cast<std::size_t>(excerptLength) + 1;
    return excerpt(QString::fromStdString(plainFromRegister(bytes.substr(0, enough))));
}

std::string plainFromRegister(std::string_view bytes)
{
    std::string utf8;
    utf8.reserve(bytes.size());
    appendUtf8FromWindows1252(utf8, bytes);
    return utf8;
}

} // namespace norvane::records
