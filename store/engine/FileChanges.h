// Whether a database file changed since it was last read.
#pragma once

#include <cstdint>
#include <optional>

namespace norvane::store
{

class Database;

/// The number that every transaction which changes the file raises, by whatever program. @return nothing for
/// a file in another journal mode, which does not count.
[[nodiscard]] std::optional<std::uint32_t> fileChanges(Database& database);

} // namespace norvane::store
