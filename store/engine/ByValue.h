// Numbers of many digits that are stored as texts, compared by their value.
#pragma once

struct sqlite3;

namespace norvane::store
{

/// Adds the function by_value(x) to a connection. Registers fill numbers up with zeros and blanks; without
/// these "007", " 7" and 7 are the same text. Of zeros alone one is left, null remains null.
void addByValue(sqlite3* handle);

} // namespace norvane::store
