// See RowImage.h.
#include "store/engine/RowImage.h"

#include <sqlite3.h>

#include <cstring>

using namespace Qt::Literals::StringLiterals;

namespace norvane::store
{
namespace
{

enum class Mark : char { Null, Whole, Number, Text };

/// Seven bits in each byte, the lowest first; the highest bit says that more follow.
void appendShort(std::string& image, std::uint64_t number)
{
    constexpr unsigned bits = 7;
    constexpr std::uint64_t mask = (1U << bits) - 1;
    for (; number > mask; number >>= bits)
        image += static_cast<char>((number & mask) | (mask + 1));
    image += static_cast<char>(number);
}

/// Small numbers of both signs are short.
std::uint64_t folded(std::int64_t number)
{
    return (static_cast<std::uint64_t>(number) << 1U) ^ static_cast<std::uint64_t>(number >> 63);
}

std::int64_t unfolded(std::uint64_t number)
{
    return static_cast<std::int64_t>((number >> 1U) ^ (~(number & 1U) + 1));
}

/// Takes values from the front of an image.
class ImageReader
{
public:
    explicit ImageReader(std::string_view image) : m_rest(image) {}

    [[nodiscard]] bool atEnd() const { return m_rest.empty(); }

    Value next()
    {
        switch (static_cast<Mark>(take(1).front())) {
        case Mark::Null:
            return {};
        case Mark::Whole:
            return Value::whole(unfolded(takeShort()));
        case Mark::Number:
            return Value::number(takeNumber());
        case Mark::Text:
            return Value::text(std::string(take(takeShort())));
        }
        return {};
    }

private:
    std::string_view take(std::uint64_t length)
    {
        const auto taken = m_rest.substr(0, length);
        m_rest.remove_prefix(taken.size());
        return taken;
    }

    std::uint64_t takeShort()
    {
        std::uint64_t number = 0;
        for (unsigned shift = 0;; shift += 7) {
            const auto byte = static_cast<unsigned char>(take(1).front());
            number |= static_cast<std::uint64_t>(byte & 0x7FU) << shift;
            if (byte <= 0x7F)
                return number;
        }
    }

    double takeNumber()
    {
        double number = 0;
        std::memcpy(&number, take(sizeof number).data(), sizeof number);
        return number;
    }

    std::string_view m_rest;
};

std::string selectRow(const QString& table, const QStringList& fields)
{
    std::string columns;
    for (const QString& field : fields)
        columns += (columns.empty() ? "" : ", ") + quotedName(field);
    return "SELECT " + (columns.empty() ? "*" : columns) + " FROM " + quotedName(table) +
           " WHERE _rowid_ = ?";
}

} // namespace

void appendValue(std::string& image, sqlite3_value* value)
{
    switch (sqlite3_value_type(value)) {
    case SQLITE_INTEGER:
        image += static_cast<char>(Mark::Whole);
        return appendShort(image, folded(sqlite3_value_int64(value)));
    case SQLITE_FLOAT: {
        const double number = sqlite3_value_double(value);
        image += static_cast<char>(Mark::Number);
        image.append(reinterpret_cast<const char*>(&number), sizeof number);
        return;
    }
    case SQLITE_NULL:
        image += static_cast<char>(Mark::Null);
        return;
    default:
        const auto* const text = reinterpret_cast<const char*>(sqlite3_value_text(value));
        const auto length = static_cast<std::size_t>(sqlite3_value_bytes(value));
        image += static_cast<char>(Mark::Text);
        appendShort(image, length);
        image.append(text, length);
    }
}

std::vector<Value> valuesOf(std::string_view image)
{
    std::vector<Value> values;
    for (ImageReader reader(image); !reader.atEnd();)
        values.push_back(reader.next());
    return values;
}

/// FNV-1a. Nobody chooses a row so that it looks like another.
std::uint64_t digestOf(std::string_view image)
{
    std::uint64_t digest = 14695981039346656037U;
    for (const char byte : image)
        digest = (digest ^ static_cast<unsigned char>(byte)) * 1099511628211U;
    return digest == 0 ? 1 : digest;
}

RowImages::RowImages(sqlite3* handle, const QString& table, const QStringList& fields)
    : m_select(handle, selectRow(table, fields), table)
{
}

QStringList RowImages::fields() const
{
    QStringList names;
    for (int column = 0; column < m_select.columnCount(); ++column)
        names << m_select.columnName(column);
    return names;
}

const std::string& RowImages::read(std::int64_t rowId)
{
    const StatementRun run(m_select);
    m_select.bind(1, rowId);
    m_image.clear();
    if (m_select.step()) {
        for (int column = 0; column < m_select.columnCount(); ++column)
            appendValue(m_image, m_select.stored(column));
    }
    return m_image;
}

} // namespace norvane::store
