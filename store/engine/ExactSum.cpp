// The engine's side of exact_sum; see ExactSum.h.
#include "store/engine/ExactSum.h"

#include "platform/DecimalTotal.h"
#include "platform/RuntimeFailure.h"

#include <sqlite3.h>

#include <memory>
#include <new>

namespace norvane::store
{
namespace
{

/// The engine keeps one for each group of rows and passes it zeroed at the first row.
struct Slot {
    bool used;
    alignas(DecimalTotal) std::byte room[sizeof(DecimalTotal)];

    [[nodiscard]] DecimalTotal* total() { return std::launder(reinterpret_cast<DecimalTotal*>(room)); }
};

DecimalTotal* totalOf(sqlite3_context* context)
{
    auto* slot = static_cast<Slot*>(sqlite3_aggregate_context(context, sizeof(Slot)));
    if (slot == nullptr)
        return nullptr;
    if (!slot->used) {
        new (slot->room) DecimalTotal;
        slot->used = true;
    }
    return slot->total();
}

std::string_view textOf(sqlite3_value* value)
{
    const auto* text = reinterpret_cast<const char*>(sqlite3_value_text(value));
    return {text, static_cast<std::size_t>(sqlite3_value_bytes(value))};
}

void addTo(DecimalTotal& total, sqlite3_value* value)
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

/// No exception may pass through the engine.
void addRow(sqlite3_context* context, int, sqlite3_value** values) noexcept
{
    DecimalTotal* total = totalOf(context);
    if (total == nullptr) {
        sqlite3_result_error_nomem(context);
        return;
    }
    try {
        addTo(*total, values[0]);
    } catch (const RuntimeFailure& failure) {
        sqlite3_result_error(context, failure.what(), -1);
    }
}

/// Called once for each slot, also when the query is given up half way.
void giveText(sqlite3_context* context) noexcept
{
    auto* slot = static_cast<Slot*>(sqlite3_aggregate_context(context, 0));
    if (slot == nullptr || !slot->used) {
        sqlite3_result_text(context, "0", -1, SQLITE_STATIC);
        return;
    }
    const std::string text = slot->total()->text();
    sqlite3_result_text(context, text.data(), static_cast<int>(text.size()), SQLITE_TRANSIENT);
    std::destroy_at(slot->total());
}

void giveTotal(sqlite3_context* context) noexcept
{
    auto* slot = static_cast<Slot*>(sqlite3_aggregate_context(context, 0));
    const auto whole =
        slot != nullptr && slot->used ? slot->total()->whole() : std::optional<std::int64_t>(0);
    giveText(context);
    if (whole)
        sqlite3_result_int64(context, *whole);
}

} // namespace

void addExactSum(sqlite3* handle)
{
    constexpr int options = SQLITE_UTF8 | SQLITE_DETERMINISTIC | SQLITE_INNOCUOUS;
    sqlite3_create_function_v2(handle, "exact_sum", 1, options, nullptr, nullptr, addRow, giveText, nullptr);
    sqlite3_create_function_v2(handle, "exact_total", 1, options, nullptr, nullptr, addRow, giveTotal,
                               nullptr);
}

} // namespace norvane::store
