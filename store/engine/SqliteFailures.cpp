// Result codes and what they mean to the user; see SqliteFailures.h.
#include "store/engine/SqliteFailures.h"

#include "platform/RuntimeFailure.h"

#include <sqlite3.h>

#include <algorithm>
#include <iterator>

using namespace Qt::Literals::StringLiterals;

namespace norvane::store
{
namespace
{

struct Meaning {
    int code;
    Failure failure;
    const char* text;
};

/// Extended codes come before their plain codes.
constexpr Meaning meanings[] = {
    {SQLITE_CONSTRAINT_DATATYPE, Failure::Conversion, "Data type conversion error."},
    {SQLITE_CONSTRAINT, Failure::DuplicateKey, "A record with the same key exists already."},
    {SQLITE_MISMATCH, Failure::Conversion, "Data type conversion error."},
    {SQLITE_NOTADB, Failure::NotOurDatabase, "The file is not a database of this program, or it is damaged."},
    {SQLITE_CORRUPT, Failure::NotOurDatabase, "The database is damaged."},
    {SQLITE_BUSY, Failure::DatabaseLocked, "The database is in use by another program."},
    {SQLITE_LOCKED, Failure::DatabaseLocked, "The database is in use."},
    {SQLITE_READONLY, Failure::PathOrFileAccess, "The database or its folder is read only."},
    {SQLITE_CANTOPEN, Failure::PathOrFileAccess, "The database or its folder cannot be opened."},
    {SQLITE_PERM, Failure::PathOrFileAccess, "The database may not be opened."},
    {SQLITE_FULL, Failure::DiskFull, "The disk is full."},
    {SQLITE_IOERR, Failure::DeviceIo, "The database cannot be read or written."},
    {SQLITE_ERROR, Failure::UnknownNameInQuery, "Unknown name or faulty statement."},
};

/// A screen file or a query names a table that was never there, or another program has taken it away.
[[noreturn]] void failMissing(const QString& table, const QString& what)
{
    throw RuntimeFailure(Failure::UnknownNameInQuery, u"The database has no table %1. %2"_s.arg(table, what));
}

} // namespace

void failWithSqlite(sqlite3* handle, const QString& what)
{
    constexpr auto missing = "no such table: "_L1;
    const QString words = QString::fromUtf8(sqlite3_errmsg(handle));
    if (words.startsWith(missing))
        failMissing(words.mid(missing.size()), what);
    const int code = sqlite3_extended_errcode(handle);
    const auto* meaning = std::find_if(std::begin(meanings), std::end(meanings), [code](const Meaning& row) {
        return row.code == code || row.code == (code & 0xFF);
    });
    const bool known = meaning != std::end(meanings);
    throw RuntimeFailure(
        known ? meaning->failure : Failure::EngineFailure,
        u"%1 %2 (%3)"_s.arg(QString::fromLatin1(known ? meaning->text : "The database failed."), what,
                            words));
}

} // namespace norvane::store
