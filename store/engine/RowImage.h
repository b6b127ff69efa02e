// All values of a row as bytes, and a digest to recognise them by.
#pragma once

#include "store/engine/PreparedStatement.h"

#include <QStringList>

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

struct sqlite3_value;

namespace norvane::store
{

/// Appends a value as the engine holds it.
void appendValue(std::string& image, sqlite3_value* value);
/// Replaces the contents of @p values by the bytes of each value of @p image, in their order. They are valid
/// as long as the image.
void splitImage(std::string_view image, std::vector<std::string_view>& values);
/// The value that such bytes hold; digits and dates are texts.
[[nodiscard]] Value valueOf(std::string_view bytes);
/// All values of an image.
[[nodiscard]] std::vector<Value> valuesOf(std::string_view image);
/// Of all values; never 0.
[[nodiscard]] std::uint64_t digestOf(std::string_view image);

/// Reads rows of a table by row id. A row that is found shortly after the one before is not sought, so all
/// rows of a table are read as fast as in a walk. Meanwhile the file remains locked for reading.
class RowImages
{
public:
    /// @throws RuntimeFailure with Failure::UnknownNameInQuery for a field that is missing.
    RowImages(sqlite3* handle, const QString& table, const QStringList& fields);

    /// Empty if there is no such row. Valid until the next call. @throws RuntimeFailure as the engine
    /// reports.
    [[nodiscard]] const std::string& read(std::int64_t rowId);

private:
    void goTo(std::int64_t rowId);
    void step();

    PreparedStatement m_select;
    bool m_isAtRow = false;
    std::int64_t m_rowId = 0; ///< of the row that the statement is at
    std::string m_image;
};

/// The fields of a table in the order in which the engine keeps them.
[[nodiscard]] QStringList storedFields(sqlite3* handle, const QString& table);

} // namespace norvane::store
