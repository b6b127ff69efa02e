// The engine's side of by_value; see ByValue.h.
#include "store/engine/ByValue.h"

#include <sqlite3.h>

#include <algorithm>
#include <string_view>

namespace norvane::store
{
namespace
{

std::string_view withoutFill(std::string_view text)
{
    const auto first = text.find_first_not_of(' ');
    if (first == std::string_view::npos)
        return {};
    text = text.substr(first, text.find_last_not_of(' ') + 1 - first);
    const auto digit = text.find_first_not_of('0');
    return text.substr(std::min(digit, text.size() - 1));
}

void giveValue(sqlite3_context* context, int, sqlite3_value** values) noexcept
{
    const auto* const text = reinterpret_cast<const char*>(sqlite3_value_text(values[0]));
    if (text == nullptr)
        return;
    const auto value = withoutFill({text, static_cast<std::size_t>(sqlite3_value_bytes(values[0]))});
    sqlite3_result_text(context, value.empty() ? "" : value.data(), static_cast<int>(value.size()),
                        SQLITE_TRANSIENT);
}

} // namespace

void addByValue(sqlite3* handle)
{
    constexpr int options = SQLITE_UTF8 | SQLITE_DETERMINISTIC | SQLITE_INNOCUOUS;
    sqlite3_create_function_v2(handle, "by_value", 1, options, nullptr, giveValue, nullptr, nullptr, nullptr);
}

} // namespace norvane::store
