// What the rows of a table are after a piece of work.
#pragma once

#include "store/engine/RowImage.h"

#include <QStringList>

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace norvane::store
{

/// Of a row that was changed only the fields are read that the work may have changed: the others are as they
/// were.
class RowsAfter
{
public:
    /// @param fields all of the table @param isChanged whether the work may have changed them.
    /// @throws RuntimeFailure as RowImages
    RowsAfter(sqlite3* handle, const QString& table, const QStringList& fields,
              const std::vector<bool>& isChanged);

    /// @param before what the row was; empty for one that was added
    /// @return all values, an empty image for a row that was deleted. Valid until the next call.
    /// @throws RuntimeFailure as the engine reports.
    [[nodiscard]] const std::string& read(std::int64_t rowId, std::string_view before);

private:
    RowImages m_all;
    RowImages m_changed;
    std::vector<std::size_t> m_places; ///< of the fields that may have changed
    std::vector<std::string_view> m_old;
    std::vector<std::string_view> m_new;
    std::string m_after;
};

} // namespace norvane::store
