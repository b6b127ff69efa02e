// Checks on a file before the engine may touch it, and the settings of every connection; see DatabaseFile.h.
#include "store/engine/DatabaseFile.h"

#include "platform/RuntimeFailure.h"
#include "store/engine/ByValue.h"
#include "store/engine/ExactSum.h"
#include "store/engine/FieldConversion.h"
#include "store/engine/Schema.h"
#include "store/engine/SqliteFailures.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <sqlite3.h>
#include <SQLiteCpp/Exception.h>

#include <array>
#include <cstring>
#include <filesystem>

using namespace Qt::Literals::StringLiterals;

namespace norvane::store
{
namespace
{

/// Every file of the engine begins with its mark; our format version and our mark follow.
constexpr std::size_t headerSize = 100;
constexpr char engineMark[] = "SQLite format 3";
constexpr std::size_t formatVersionAt = 60;
constexpr std::size_t applicationIdAt = 68;

using Header = std::array<unsigned char, headerSize>;

std::uint32_t bigEndian(const Header& header, std::size_t at)
{
    std::uint32_t number = 0;
    for (std::size_t i = 0; i < sizeof number; ++i)
        number = (number << 8) | header.at(at + i);
    return number;
}

QString shown(const QString& path)
{
    return QDir::toNativeSeparators(path);
}

[[noreturn]] void failNotOurs(const QString& path, const char* why)
{
    throw RuntimeFailure(Failure::NotOurDatabase, u"Unrecognized database format. %1 %2."_s.arg(
                                                      shown(path), QString::fromLatin1(why)));
}

/// Reads through the engine's own file handle: closing a second handle would drop the locks that another
/// connection of this process holds. Locks and writes nothing.
Header readHeader(sqlite3* handle)
{
    Header header{};
    sqlite3_file* file = nullptr;
    sqlite3_file_control(handle, "main", SQLITE_FCNTL_FILE_POINTER, &file);
    if (file && file->pMethods)
        file->pMethods->xRead(file, header.data(), static_cast<int>(header.size()), 0);
    return header;
}

void checkHeader(sqlite3* handle, const QString& path)
{
    const Header header = readHeader(handle);
    if (std::memcmp(header.data(), engineMark, sizeof engineMark) != 0) {
        failNotOurs(path,
                    "is not a database of this program, is damaged, or was made by a former version of it");
    }
    if (bigEndian(header, applicationIdAt) != applicationId)
        failNotOurs(path, "is a database of another program");
    if (bigEndian(header, formatVersionAt) > formatVersion)
        failNotOurs(path, "was made by a later version of this program");
}

int compareInEngine(void*, int leftSize, const void* left, int rightSize, const void* right)
{
    return compareDigits({static_cast<const char*>(left), static_cast<std::size_t>(leftSize)},
                         {static_cast<const char*>(right), static_cast<std::size_t>(rightSize)});
}

void run(sqlite3* handle, const char* sql, const QString& path)
{
    if (sqlite3_exec(handle, sql, nullptr, nullptr, nullptr) != SQLITE_OK)
        failWithSqlite(handle, shown(path));
}

/// A commit returns once it is on the disk. Deleted rows are not overwritten: they hold no secrets, and every
/// import empties its table first.
constexpr const char* settings[] = {
    "PRAGMA synchronous = FULL",
    "PRAGMA secure_delete = OFF",
    "PRAGMA cache_size = -8000",
};

void prepareConnection(SQLite::Database& database, const QString& path)
{
    sqlite3* handle = database.getHandle();
    sqlite3_extended_result_codes(handle, 1);
    // A double-quoted word is a name or a fault, never silently a text.
    sqlite3_db_config(handle, SQLITE_DBCONFIG_DQS_DML, 0, nullptr);
    sqlite3_db_config(handle, SQLITE_DBCONFIG_DQS_DDL, 0, nullptr);
    sqlite3_create_collation_v2(handle, digitsCollation, SQLITE_UTF8, nullptr, compareInEngine, nullptr);
    addExactSum(handle);
    addByValue(handle);
    for (const char* sql : settings)
        run(handle, sql, path);
}

/// The engine's count of its own memory is unused and takes a lock at every allocation. It can only be
/// switched off before the first connection.
void stopCountingMemory()
{
    static const int result = sqlite3_config(SQLITE_CONFIG_MEMSTATUS, 0);
    Q_UNUSED(result)
}

SQLite::Database openEngine(const QString& path, int flags, int wait = busyMilliseconds)
{
    stopCountingMemory();
    try {
        // An absolute path is never taken for a web-like address.
        return SQLite::Database(QFileInfo(path).absoluteFilePath().toStdString(), flags, wait);
    } catch (const SQLite::Exception& failure) {
        throw RuntimeFailure(Failure::PathOrFileAccess, u"Path/File access error: %1 (%2)"_s.arg(
                                                            shown(path), QString::fromUtf8(failure.what())));
    }
}

void writeTables(const QString& path, const QVector<TableDefinition>& tables)
{
    auto database = openEngine(path, SQLite::OPEN_READWRITE | SQLite::OPEN_CREATE);
    prepareConnection(database, path);
    run(database.getHandle(), "BEGIN IMMEDIATE", path);
    Schema schema(database.getHandle());
    schema.prepareFile();
    for (const auto& table : tables)
        schema.addTable(table);
    run(database.getHandle(), "COMMIT", path);
}

/// The journal of a deleted file must not be applied to the new one.
void putInPlace(const QString& from, const QString& to)
{
    QFile::remove(to + u"-journal"_s);
    std::error_code error;
    std::filesystem::rename(from.toStdU16String(), to.toStdU16String(), error);
    if (error) {
        throw RuntimeFailure(Failure::PathOrFileAccess,
                             u"Path/File access error: %1 (%2)"_s.arg(
                                 shown(to), QString::fromLocal8Bit(error.message().c_str())));
    }
}

} // namespace

SQLite::Database openUnreadDatabaseFile(const QString& path, int wait)
{
    if (!QFileInfo::exists(path))
        throw RuntimeFailure(Failure::FileNotFound, u"File not found: %1"_s.arg(shown(path)));
    // A connection is never shared between threads, so the engine need not lock itself at every call; that is
    // a fifth of the time of an import.
    auto database = openEngine(path, SQLite::OPEN_READWRITE | SQLite::OPEN_NOMUTEX, wait);
    checkHeader(database.getHandle(), path);
    prepareConnection(database, path);
    return database;
}

SQLite::Database openDatabaseFile(const QString& path, int wait)
{
    auto database = openUnreadDatabaseFile(path, wait);
    // The first look at the tables finds a file that was cut short or is damaged at its root.
    run(database.getHandle(), "SELECT 1 FROM norvane_field LIMIT 1", path);
    return database;
}

void createDatabaseFile(const QString& path, const QVector<TableDefinition>& tables)
{
    const QString unfinished = path + u".new"_s;
    QFile::remove(unfinished);
    QFile::remove(unfinished + u"-journal"_s);
    try {
        writeTables(unfinished, tables);
        putInPlace(unfinished, path);
    } catch (const RuntimeFailure&) {
        QFile::remove(unfinished);
        throw;
    }
}

} // namespace norvane::store
