// Values of the former engine's types; see FieldText.h.
#include "former/reader/FieldText.h"

#include <array>
#include <charconv>
#include <chrono>
#include <cmath>
#include <cstdio>
#include <memory>

namespace norvane::former
{
namespace
{

constexpr int secondsOfDay = 86'400;
/// Days from the engine's day 0, 1899-12-30, to 1970-01-01.
constexpr int daysToUnix = 25'569;
/// The engine's first and last day: 0100-01-01 and 9999-12-31.
constexpr double firstDay = -657'434;
constexpr double lastDay = 2'958'465;

struct FreeText {
    void operator()(char* text) const { g_free(text); }
};
using LibraryText = std::unique_ptr<char, FreeText>;

void setEscaped(std::string& text, std::string_view raw)
{
    text.clear();
    for (const char letter : raw) {
        switch (letter) {
        case '\t':
            text += "\\t";
            break;
        case '\r':
            text += "\\r";
            break;
        case '\n':
            text += "\\n";
            break;
        case '\\':
            text += "\\\\";
            break;
        case '\0':
            break;
        default:
            text += letter;
        }
    }
}

template <typename Number>
void setNumber(std::string& text, Number number)
{
    std::array<char, 64> digits{};
    const auto end = std::to_chars(digits.begin(), digits.end(), number).ptr;
    text.assign(digits.begin(), end);
}

/// Infinity and NaN cannot be shown.
template <typename Number>
void setBinaryNumber(std::string& text, Number number)
{
    if (std::isfinite(number)) {
        setNumber(text, number);
    } else {
        text = unreadableText;
    }
}

/// The whole part counts days, also backwards; the fraction always counts forwards from midnight.
void setDate(std::string& text, double stored)
{
    if (!(stored >= firstDay && stored < lastDay + 1)) {
        text = unreadableText;
        return;
    }
    double days = std::trunc(stored);
    auto seconds = static_cast<int>(std::lround(std::abs(stored - days) * secondsOfDay));
    if (seconds == secondsOfDay) {
        seconds = 0;
        days += 1;
    }
    const std::chrono::sys_days day{std::chrono::days{static_cast<int>(days) - daysToUnix}};
    const std::chrono::year_month_day date(day);
    std::array<char, 40> shown{};
    std::snprintf(shown.data(), shown.size(), "%04d-%02u-%02uT%02d:%02d:%02d", static_cast<int>(date.year()),
                  static_cast<unsigned>(date.month()), static_cast<unsigned>(date.day()), seconds / 3600,
                  seconds / 60 % 60, seconds % 60);
    text = shown.data();
}

/// A text of @p size bytes in the page. In UTF-8 a letter takes up to three bytes.
void setText(std::string& text, MdbHandle& file, const MdbField& field)
{
    std::array<char, std::size_t{4} * MDB_PGSIZE> utf8{};
    const int length = mdb_unicode2ascii(&file, static_cast<const char*>(field.value),
                                         static_cast<size_t>(field.siz), utf8.data(), utf8.size());
    setEscaped(text, {utf8.data(), static_cast<size_t>(std::max(length, 0))});
}

void setLibraryText(std::string& text, const LibraryText& made)
{
    if (made != nullptr) {
        setEscaped(text, made.get());
    } else {
        text = unreadableText;
    }
}

/// Bytes that a value of a fixed width has; 0 for the others.
int fixedWidth(int type)
{
    switch (type) {
    case MDB_BYTE:
        return 1;
    case MDB_INT:
        return 2;
    case MDB_LONGINT:
    case MDB_FLOAT:
        return 4;
    case MDB_MONEY:
    case MDB_DOUBLE:
    case MDB_DATETIME:
        return 8;
    case MDB_NUMERIC:
        return 17;
    default:
        return 0;
    }
}

/// A value of a fixed width that begins at @p start of the page.
void setFixedValue(std::string& text, MdbHandle& file, int start, const FieldShape& shape)
{
    switch (shape.type) {
    case MDB_BYTE:
        return setNumber(text, static_cast<int>(mdb_get_byte(file.pg_buf, start)));
    case MDB_INT:
        return setNumber(text, static_cast<std::int16_t>(mdb_get_int16(file.pg_buf, start)));
    case MDB_LONGINT:
        return setNumber(text, static_cast<std::int32_t>(mdb_get_int32(file.pg_buf, start)));
    case MDB_FLOAT:
        return setBinaryNumber(text, mdb_get_single(file.pg_buf, start));
    case MDB_DOUBLE:
        return setBinaryNumber(text, mdb_get_double(file.pg_buf, start));
    case MDB_DATETIME:
        return setDate(text, mdb_get_double(file.pg_buf, start));
    case MDB_MONEY:
        return setLibraryText(text, LibraryText(mdb_money_to_string(&file, start)));
    case MDB_NUMERIC:
        return setLibraryText(text, LibraryText(mdb_numeric_to_string(&file, start, 0, shape.scale)));
    default:
        text = unreadableText;
    }
}

} // namespace

std::string_view typeWord(int type)
{
    switch (type) {
    case MDB_BOOL:
        return "yesno";
    case MDB_BYTE:
    case MDB_INT:
    case MDB_LONGINT:
        return "whole";
    case MDB_FLOAT:
    case MDB_DOUBLE:
        return "number";
    case MDB_MONEY:
    case MDB_NUMERIC:
        return "decimal";
    case MDB_DATETIME:
        return "date";
    case MDB_TEXT:
    case MDB_MEMO:
        return "text";
    default:
        return "other";
    }
}

void setFieldText(std::string& text, MdbHandle& file, const MdbField& field, const FieldShape& shape)
{
    if (shape.type == MDB_BOOL) {
        text.assign(1, field.is_null != 0 ? '0' : '1');
        return;
    }
    if (field.is_null != 0) {
        text = nullText;
        return;
    }
    // A damaged row may promise more than its page holds.
    if (field.start < 0 || field.siz < fixedWidth(shape.type) || field.start + field.siz > MDB_PGSIZE) {
        text = unreadableText;
        return;
    }
    switch (shape.type) {
    case MDB_TEXT:
        return setText(text, file, field);
    case MDB_MEMO:
        return setLibraryText(
            text, LibraryText(mdb_col_to_string(&file, file.pg_buf, field.start, MDB_MEMO, field.siz)));
    default:
        setFixedValue(text, file, field.start, shape);
    }
}

} // namespace norvane::former
