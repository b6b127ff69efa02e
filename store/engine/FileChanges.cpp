// See FileChanges.h. The file is read through the engine: closing it otherwise would drop the engine's locks.
#include "store/engine/FileChanges.h"

#include "store/engine/Connection.h"

#include <sqlite3.h>

#include <array>

namespace norvane::store
{
namespace
{

constexpr std::size_t journalAt = 18; ///< both versions are 1 in a file with a rollback journal
constexpr std::size_t changesAt = 24;
constexpr std::size_t bytesRead = 28;

} // namespace

std::optional<std::uint32_t> fileChanges(Database& database)
{
    sqlite3_file* file = nullptr;
    std::array<unsigned char, bytesRead> header{};
    sqlite3_file_control(connectionOf(database).handle(), "main", SQLITE_FCNTL_FILE_POINTER, &file);
    if (file == nullptr || file->pMethods == nullptr ||
        file->pMethods->xRead(file, header.data(), static_cast<int>(header.size()), 0) != SQLITE_OK)
        return std::nullopt;
    if (header[journalAt] != 1 || header[journalAt + 1] != 1)
        return std::nullopt;
    std::uint32_t changes = 0;
    for (std::size_t at = changesAt; at < bytesRead; ++at)
        changes = changes << 8U | header[at];
    return changes;
}

} // namespace norvane::store
