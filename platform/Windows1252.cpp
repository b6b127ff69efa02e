// Conversion between the registers' bytes and Unicode; see Windows1252.h.
#include "platform/Windows1252.h"

#include <algorithm>
#include <array>

namespace norvane
{
namespace
{

/// The characters of bytes 80 to 9F. Every other byte is the Unicode character of its number.
constexpr std::array<char16_t, 32> upperControls{
    0x20AC, 0x0081, 0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021, 0x02C6, 0x2030, 0x0160,
    0x2039, 0x0152, 0x008D, 0x017D, 0x008F, 0x0090, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022,
    0x2013, 0x2014, 0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x009D, 0x017E, 0x0178};

constexpr int notOnRegister = -1;

constexpr char32_t characterOf(unsigned char byte)
{
    return byte >= 0x80 && byte < 0xA0 ? upperControls[byte - 0x80u] : byte;
}

int byteOf(char32_t character)
{
    if (character < 0x80 || (character >= 0xA0 && character <= 0xFF))
        return static_cast<int>(character);
    const auto* const found = std::find(upperControls.begin(), upperControls.end(), character);
    if (found == upperControls.end())
        return notOnRegister;
    return 0x80 + static_cast<int>(found - upperControls.begin());
}

bool isAscii(char byte)
{
    return static_cast<unsigned char>(byte) < 0x80;
}

/// The registers' characters take three bytes at most.
void appendUtf8(std::string& out, char32_t character)
{
    if (character < 0x80) {
        out.push_back(static_cast<char>(character));
        return;
    }
    if (character < 0x800) {
        out.push_back(static_cast<char>(0xC0u | (character >> 6)));
    } else {
        out.push_back(static_cast<char>(0xE0u | (character >> 12)));
        out.push_back(static_cast<char>(0x80u | ((character >> 6) & 0x3Fu)));
    }
    out.push_back(static_cast<char>(0x80u | (character & 0x3Fu)));
}

/// Calls @p take once for each Unicode character.
template <typename Take>
void forEachCharacter(QStringView text, Take take)
{
    for (qsizetype i = 0; i < text.size(); ++i) {
        const bool pair = text[i].isHighSurrogate() && i + 1 < text.size() && text[i + 1].isLowSurrogate();
        take(pair ? QChar::surrogateToUcs4(text[i], text[i + 1]) : char32_t{text[i].unicode()});
        i += pair ? 1 : 0;
    }
}

char byteOrQuestionMark(char32_t character)
{
    const int byte = byteOf(character);
    return byte == notOnRegister ? '?' : static_cast<char>(byte);
}

bool isContinuation(unsigned char byte)
{
    return (byte & 0xC0u) == 0x80;
}

/// Decodes a character of two or three bytes; registers have none that are longer.
/// @return 0 when the bytes are anything else.
char32_t shortCharacter(std::string_view utf8)
{
    const auto byte = [&utf8](std::size_t i) {
        return static_cast<unsigned char>(utf8[i]);
    };
    if (utf8.size() == 2 && byte(0) >= 0xC2 && byte(0) < 0xE0)
        return ((byte(0) & 0x1Fu) << 6) | (byte(1) & 0x3Fu);
    if (utf8.size() == 3 && byte(0) >= 0xE0 && byte(0) < 0xF0)
        return ((byte(0) & 0x0Fu) << 12) | ((byte(1) & 0x3Fu) << 6) | (byte(2) & 0x3Fu);
    return 0;
}

} // namespace

QString fromWindows1252(QByteArrayView bytes)
{
    QString text(bytes.size(), Qt::Uninitialized);
    std::transform(bytes.begin(), bytes.end(), text.begin(),
                   [](char byte) { return QChar(characterOf(static_cast<unsigned char>(byte))); });
    return text;
}

QByteArray toWindows1252(QStringView text)
{
    QByteArray bytes;
    bytes.reserve(text.size());
    forEachCharacter(text, [&bytes](char32_t character) { bytes.append(byteOrQuestionMark(character)); });
    return bytes;
}

void appendUtf8FromWindows1252(std::string& out, std::string_view bytes)
{
    // Most texts are ASCII, which both sides spell alike.
    const auto* const other = std::find_if_not(bytes.begin(), bytes.end(), isAscii);
    out.append(bytes.begin(), other);
    std::for_each(other, bytes.end(),
                  [&out](char byte) { appendUtf8(out, characterOf(static_cast<unsigned char>(byte))); });
}

void appendWindows1252FromUtf8(std::string& out, std::string_view utf8)
{
    for (std::size_t i = 0; i < utf8.size();) {
        if (isAscii(utf8[i])) {
            out.push_back(utf8[i++]);
            continue;
        }
        const auto start = i++;
        while (i < utf8.size() && isContinuation(static_cast<unsigned char>(utf8[i])))
            ++i;
        const char32_t character = shortCharacter(utf8.substr(start, i - start));
        out.push_back(character == 0 ? '?' : byteOrQuestionMark(character));
    }
}

bool fitsWindows1252(QStringView text)
{
    bool fits = true;
    forEachCharacter(text,
                     [&fits](char32_t character) { fits = fits && byteOf(character) != notOnRegister; });
    return fits;
}

} // namespace norvane
