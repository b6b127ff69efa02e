// What a file of records would change in a database.
#pragma once

#include "articles/SheetFile.h"
#include "platform/KeepGoing.h"
#include "store/engine/Database.h"

#include <QByteArray>

#include <functional>
#include <optional>
#include <string>
#include <vector>

namespace norvane::articles
{

/// A changed field of a record.
struct SheetFieldChange {
    const SheetColumn* column = nullptr;
    std::string before; ///< as the listing shows it; empty for what was never set
    std::string after;  ///< what will be stored
};

/// All changes of one record.
struct SheetChange {
    std::string number; ///< as the table holds it
    bool isNew = false;
    qint64 position = 0;                  ///< of a known one, in the order of the numbers, from 0
    std::vector<SheetFieldChange> fields; ///< in the order of the file's columns
};

/// A file compared with the records of a table. Of a change only the place in the file and the former values
/// are kept, so that a file of a million lines takes little more memory than its text.
class SheetComparison
{
public:
    /// A cell that reads as an export writes what is stored changes nothing and is never a mistake, even if
    /// a register would not accept it. An empty number, key or yes/no leaves things as they are; an empty
    /// text empties it.
    /// @param sheet, content must outlive this object
    /// @throws RuntimeFailure as the database reports, and with Failure::UserInterrupt when @p keepGoing
    /// returns false.
    SheetComparison(store::Database& database, const TableSheet& sheet, const QByteArray& content,
                    const SheetReading& reading = {}, const KeepGoing& keepGoing = {});

    [[nodiscard]] const TableSheet& sheet() const { return m_sheet; }
    /// With one of them nothing may be stored.
    [[nodiscard]] const SheetMistakes& mistakes() const { return m_mistakes; }
    /// Of known and new PLUs.
    [[nodiscard]] std::size_t changeCount() const { return m_changes.size(); }
    [[nodiscard]] std::size_t newCount() const { return m_newCount; }
    /// Lines that change nothing. Only of a file without mistakes.
    [[nodiscard]] std::size_t unchangedCount() const { return m_file.lines().size() - m_changes.size(); }
    /// Whether @p other, of the same file, found the same changes of the same values.
    [[nodiscard]] bool changesTheSame(const SheetComparison& other) const;
    /// Calls @p take with each change: by number, then new records in the order of the file.
    void forEach(const std::function<void(const SheetChange& change)>& take) const;

private:
    friend class SheetComparer;
    struct Change {
        std::uint32_t line;     ///< of the file, as an index
        std::uint32_t position; ///< of a known record
        std::uint16_t columns;  ///< how many are changed
        bool isNew;
        bool operator==(const Change&) const = default;
    };

    const TableSheet& m_sheet;
    SheetFile m_file;
    SheetMistakes m_mistakes;
    std::vector<Change> m_changes;
    std::size_t m_newCount = 0;
    /// For each change the number where the table spells it in its own way, and for each changed column of
    /// the file its place, from 1 in one byte, and the former value; a zero byte ends number and values.
    std::string m_former;
};

/// A stored value as a comparison has it before a change; empty for what was never set.
[[nodiscard]] std::string comparedValue(const SheetColumn& column, const store::Value& stored);
/// A value of the column as the listing shows it: prices with two places and a point, "Yes" and "No".
[[nodiscard]] QString shownSheetValue(const SheetColumn& column, const std::string& value);

} // namespace norvane::articles
