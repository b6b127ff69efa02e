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
/// The values of an image in their order; digits and dates are texts.
[[nodiscard]] std::vector<Value> valuesOf(std::string_view image);
/// Of all values; never 0.
[[nodiscard]] std::uint64_t digestOf(std::string_view image);

/// Reads rows of a table by row id.
class RowImages
{
public:
    /// @param fields all fields in the order in which the engine keeps them, if empty.
    /// @throws RuntimeFailure with Failure::UnknownNameInQuery for a field that is missing.
    RowImages(sqlite3* handle, const QString& table, const QStringList& fields = {});

    [[nodiscard]] QStringList fields() const;
    /// Empty if there is no such row. Valid until the next call. @throws RuntimeFailure as the engine
    /// reports.
    [[nodiscard]] const std::string& read(std::int64_t rowId);

private:
    PreparedStatement m_select;
    std::string m_image;
};

} // namespace norvane::store
