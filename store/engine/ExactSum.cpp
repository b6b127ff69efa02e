// The engine's side of exact_sum; see ExactSum.h.
#include "store/engine/ExactSum.h"

#include "platform/DecimalTotal.h"
#include "platform/RuntimeFailure.h"

#include <sqlite3.h>

#include <memory>
#include <new>
#include <vector>

namespace norvane::store
{
namespace
{

using Totals = std::vector<DecimalTotal>;

/// The engine keeps one for each group of rows and passes it zeroed at the first row.
template <typename Content>
struct Slot {
    bool used;
    alignas(Content) std::byte room[sizeof(Content)];

    [[nodiscard]] Content* content() { return std::launder(reinterpret_cast<Content*>(room)); }
};

/// @param arguments of the content's constructor, at the first row.
template <typename Content, typename... Arguments>
Content* contentOf(sqlite3_context* context, Arguments... arguments)
{
    auto* slot = static_cast<Slot<Content>*>(sqlite3_aggregate_context(context, sizeof(Slot<Content>)));
    if (slot == nullptr)
        return nullptr;
    if (!slot->used) {
        new (slot->room) Content(arguments...);
        slot->used = true;
    }
    return slot->content();
}

std::string_view textOf(sqlite3_value* value)
{
    const auto* text = reinterpret_cast<const char*>(sqlite3_value_text(value));
    return {text, static_cast<std::size_t>(sqlite3_value_bytes(value))};
}

/// No exception may pass through the engine.
void addRow(sqlite3_context* context, int, sqlite3_value** values) noexcept
{
    auto* total = contentOf<DecimalTotal>(context);
    if (total == nullptr) {
        sqlite3_result_error_nomem(context);
        return;
    }
    try {
        addExactly(*total, values[0]);
    } catch (const RuntimeFailure& failure) {
        sqlite3_result_error(context, failure.what(), -1);
    }
}

void addColumns(sqlite3_context* context, int count, sqlite3_value** values) noexcept
{
    auto* totals = contentOf<Totals>(context, static_cast<std::size_t>(count));
    if (totals == nullptr) {
        sqlite3_result_error_nomem(context);
        return;
    }
    try {
        for (DecimalTotal& total : *totals)
            addExactly(total, *values++);
    } catch (const RuntimeFailure& failure) {
        sqlite3_result_error(context, failure.what(), -1);
    }
}

/// Called once for each slot, also when the query is given up half way.
void giveText(sqlite3_context* context) noexcept
{
    auto* slot = static_cast<Slot<DecimalTotal>*>(sqlite3_aggregate_context(context, 0));
    if (slot == nullptr || !slot->used) {
        sqlite3_result_text(context, "0", -1, SQLITE_STATIC);
        return;
    }
    const std::string text = slot->content()->text();
    sqlite3_result_text(context, text.data(), static_cast<int>(text.size()), SQLITE_TRANSIENT);
    std::destroy_at(slot->content());
}

void giveTexts(sqlite3_context* context) noexcept
{
    auto* slot = static_cast<Slot<Totals>*>(sqlite3_aggregate_context(context, 0));
    if (slot == nullptr || !slot->used)
        return;
    std::string texts;
    for (const DecimalTotal& total : *slot->content())
        texts.append(texts.empty() ? 0 : 1, '\t').append(total.text());
    sqlite3_result_text(context, texts.data(), static_cast<int>(texts.size()), SQLITE_TRANSIENT);
    std::destroy_at(slot->content());
}

void giveTotal(sqlite3_context* context) noexcept
{
    auto* slot = static_cast<Slot<DecimalTotal>*>(sqlite3_aggregate_context(context, 0));
    const auto whole =
        slot != nullptr && slot->used ? slot->content()->whole() : std::optional<std::int64_t>(0);
    giveText(context);
    if (whole)
        sqlite3_result_int64(context, *whole);
}

} // namespace

void addExactly(DecimalTotal& total, sqlite3_value* value)
{
    switch (sqlite3_value_type(value)) {
    case SQLITE_FLOAT:
        total.add(sqlite3_value_double(value));
        break;
    case SQLITE_INTEGER:
        total.add(std::int64_t{sqlite3_value_int64(value)});
        break;
    case SQLITE_TEXT:
        total.add(textOf(value));
        break;
    default: // null and blobs are not numbers
        break;
    }
}

void addExactSum(sqlite3* handle)
{
    constexpr int options = SQLITE_UTF8 | SQLITE_DETERMINISTIC | SQLITE_INNOCUOUS;
    sqlite3_create_function_v2(handle, "exact_sum", 1, options, nullptr, nullptr, addRow, giveText, nullptr);
    sqlite3_create_function_v2(handle, "exact_total", 1, options, nullptr, nullptr, addRow, giveTotal,
                               nullptr);
    sqlite3_create_function_v2(handle, "exact_sums", -1, options, nullptr, nullptr, addColumns, giveTexts,
                               nullptr);
}

} // namespace norvane::store
