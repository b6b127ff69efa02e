// What a file of PLUs would change in a database.
#pragma once

#include "articles/PluFile.h"
#include "platform/KeepGoing.h"
#include "store/engine/Database.h"

#include <QByteArray>

#include <functional>
#include <optional>
#include <string>
#include <vector>

namespace norvane::articles
{

/// A changed field of a PLU.
struct PluFieldChange {
    const PluColumn* column = nullptr;
    std::string before; ///< as the listing shows it; empty for what was never set
    std::string after;  ///< what will be stored
};

/// All changes of one PLU.
struct PluChange {
    std::string number; ///< as the table holds it
    bool isNew = false;
    qint64 position = 0;                ///< of a known one, in the order of the numbers, from 0
    std::vector<PluFieldChange> fields; ///< in the order of the file's columns
};

/// A file compared with the PLUs of a database. Of a change only the place in the file and the former values
/// are kept, so that a file of a million lines takes little more memory than its text.
class PluComparison
{
public:
    /// A cell that reads as an export writes what is stored changes nothing and is never a mistake, even if
    /// a register would not accept it. An empty price, group or status leaves things as they are; an empty
    /// description empties it.
    /// @param content must outlive this object
    /// @param separator as for PluFile
    /// @throws RuntimeFailure as the database reports, and with Failure::UserInterrupt when @p keepGoing
    /// returns false.
    PluComparison(store::Database& database, const QByteArray& content, std::optional<char> separator = {},
                  const KeepGoing& keepGoing = {});

    /// With one of them nothing may be stored.
    [[nodiscard]] const PluMistakes& mistakes() const { return m_mistakes; }
    /// Of known and new PLUs.
    [[nodiscard]] std::size_t changeCount() const { return m_changes.size(); }
    [[nodiscard]] std::size_t newCount() const { return m_newCount; }
    /// Calls @p take with each change: by number, then new PLUs in the order of the file.
    void forEach(const std::function<void(const PluChange& change)>& take) const;

private:
    friend class PluComparer;
    struct Change {
        std::uint32_t line;     ///< of the file, as an index
        std::uint32_t position; ///< of a known PLU
        std::uint16_t columns;  ///< a bit for each column of the file
        bool isNew;
    };

    PluFile m_file;
    PluMistakes m_mistakes;
    std::vector<Change> m_changes;
    std::size_t m_newCount = 0;
    /// For each change the number where the table spells it in its own way, and the former value of each
    /// changed column; a zero byte ends each.
    std::string m_former;
};

/// A value of the column as the listing shows it: prices with two places and a point.
[[nodiscard]] QString shownPluValue(const PluColumn& column, const std::string& value);

} // namespace norvane::articles
