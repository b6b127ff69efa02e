// Splitting and building the text of register records; see RecordText.h.
#include "records/RecordText.h"

#include "platform/Numbers.h"
#include "platform/RuntimeFailure.h"
#include "platform/TextFields.h"
#include "platform/Windows1252.h"

#include <algorithm>

namespace norvane::records
{
namespace
{

/// The register's own mark in texts, and the character by which it is shown and edited.
constexpr char registerMark = '\xFD';
constexpr char shownMark = '^';

constexpr bool isDigit(char c)
{
    return c >= '0' && c <= '9';
}

} // namespace

std::string_view takeLine(std::string_view& text)
{
    const auto end = std::min(text.find_first_of("\r\n"), text.size());
    const auto line = text.substr(0, end);
    text.remove_prefix(end);
    text.remove_prefix(text.starts_with("\r\n") ? 2 : std::min<std::size_t>(text.size(), 1));
    return line;
}

std::string_view takeField(std::string_view& line)
{
    const auto comma = line.find(',');
    const auto field = line.substr(0, comma);
    line.remove_prefix(comma == std::string_view::npos ? line.size() : comma + 1);
    return field;
}

std::string_view stripLeadingZero(std::string_view text)
{
    for (auto trimmed = trimBlanks(text); trimmed.starts_with('0'); trimmed = trimBlanks(text))
        text = trimmed.substr(1);
    return text.empty() ? std::string_view("0") : text;
}

QString StripLeadingZero(QString& text)
{
    QStringView rest = text;
    for (auto trimmed = trimBlanks(rest); trimmed.startsWith(u'0'); trimmed = trimBlanks(rest))
        rest = trimmed.sliced(1);
    text = rest.isEmpty() ? QStringLiteral("0") : rest.toString();
    return text;
}

std::array<int, 2> optionDigits(std::string_view column)
{
    if (column.empty())
        return {0, 0};
    if (column.size() == 2 && isDigit(column[0]) && isDigit(column[1]))
        return {column[0] - '0', column[1] - '0'};
    const QString shown = QString::fromStdString(plainFromRegister(column));
    const std::string digits = formatNumber(shown, QStringLiteral("00")).toStdString();
    if (!isDigit(digits[0])) {
        throw RuntimeFailure(Failure::TypeMismatch,
                             QStringLiteral("Type mismatch: \"%1\" are no option digits").arg(shown));
    }
    return {digits[0] - '0', digits[1] - '0'};
}

void appendZeroFilled(std::string& out, std::string_view text, std::size_t width)
{
    text = trimBlanks(text);
    if (text.size() >= width) {
        out += text.substr(text.size() - width);
    } else {
        out.append(width - text.size(), '0').append(text);
    }
}

void appendPlainBlankFilled(std::string& out, std::string_view utf8, std::size_t width)
{
    const auto start = out.size();
    appendWindows1252FromUtf8(out, trimBlanks(utf8));
    out.resize(start + width, ' ');
}

void appendBlankFilled(std::string& out, std::string_view utf8, std::size_t width)
{
    const auto start = out.size();
    appendPlainBlankFilled(out, utf8, width);
    std::replace(out.begin() + static_cast<std::ptrdiff_t>(start), out.end(), shownMark, registerMark);
}

std::string textFromRegister(std::string_view bytes)
{
    std::string shown(bytes);
    std::replace(shown.begin(), shown.end(), registerMark, shownMark);
    return plainFromRegister(shown);
}

std::string plainFromRegister(std::string_view bytes)
{
    std::string utf8;
    utf8.reserve(bytes.size());
    appendUtf8FromWindows1252(utf8, bytes);
    return utf8;
}

} // namespace norvane::records
