// The length of the file and the engine's own check of its pages; see DatabaseCheck.h.
#include "store/catalogue/DatabaseCheck.h"

#include "platform/Excerpt.h"
#include "platform/RuntimeFailure.h"
#include "store/catalogue/Catalogue.h"
#include "store/engine/DatabaseFile.h"
#include "store/engine/PreparedStatement.h"

#include <QFile>
#include <QFileInfo>

#include <algorithm>
#include <optional>

using namespace Qt::Literals::StringLiterals;

namespace norvane::store
{
namespace
{

/// A file up to this many bytes is checked as a whole, in less than a fifth of a second.
constexpr qint64 smallFile = qint64{32} * 1024 * 1024;

std::optional<SQLite::Database> openIfOurs(const QString& path)
{
    try {
        return openUnreadDatabaseFile(path);
    } catch (const RuntimeFailure&) {
        return std::nullopt;
    }
}

class PageCheck
{
public:
    PageCheck(sqlite3* handle, QString path) : m_handle(handle), m_path(std::move(path)) {}

    [[nodiscard]] QString damage() const
    {
        // While this reads, no other program can change the file between two looks.
        run("BEGIN");
        const qint64 wanted = number("PRAGMA page_count") * number("PRAGMA page_size");
        const qint64 length = QFileInfo(m_path).size();
        if (length != wanted)
            return u"The file has %1 bytes and should have %2."_s.arg(length).arg(wanted);
        return length <= smallFile ? faultOf({}) : faultOfProgramme();
    }

private:
    [[nodiscard]] PreparedStatement prepare(const std::string& sql) const { return {m_handle, sql, m_path}; }

    void run(const std::string& sql) const { prepare(sql).run(); }

    [[nodiscard]] qint64 number(const std::string& sql) const
    {
        auto select = prepare(sql);
        return select.step() ? select.whole(0) : 0;
    }

    /// The first fault that the engine finds in a table and its indexes, or in the whole file.
    [[nodiscard]] QString faultOf(const QString& table) const
    {
        auto check = prepare(table.isEmpty() ? "PRAGMA quick_check(1)"
                                             : "PRAGMA quick_check(" + quotedName(table) + ')');
        const QString found = check.step() ? check.text(0) : QString();
        return found == u"ok"_s ? QString() : excerpt(found.simplified());
    }

    [[nodiscard]] QString faultOfProgramme() const
    {
        auto tables = prepare("SELECT name FROM sqlite_schema WHERE type = 'table'");
        while (tables.step()) {
            const QString name = tables.text(0);
            const auto* known = catalogueTable(name);
            const bool growsForEver = known != nullptr && !known->searchedField.isEmpty();
            QString fault = growsForEver ? QString() : faultOf(name);
            if (!fault.isEmpty())
                return fault;
        }
        return {};
    }

    sqlite3* m_handle;
    QString m_path;
};

} // namespace

QString damageOf(const QString& path)
{
    const auto database = openIfOurs(path);
    if (!database)
        return {};
    try {
        return PageCheck(database->getHandle(), path).damage();
    } catch (const RuntimeFailure& failure) {
        const bool isDamage =
            failure.failure() == Failure::NotOurDatabase || failure.failure() == Failure::DeviceIo;
        return isDamage ? failure.text() : QString();
    }
}

bool isFormerDatabase(const QString& path)
{
    static constexpr QByteArrayView beginning("\0\1\0\0Standard ", 13);
    QFile file(path);
    return file.open(QIODevice::ReadOnly) && file.read(beginning.size()) == beginning;
}

} // namespace norvane::store
