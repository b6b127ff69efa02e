// See RowImage.h.
#include "store/engine/RowImage.h"

#include <sqlite3.h>

#include <algorithm>
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

    /// The bytes of a value.
    std::string_view skip()
    {
        const std::string_view from = m_rest;
        switch (static_cast<Mark>(take(1).front())) {
        case Mark::Null:
            break;
        case Mark::Whole:
            takeShort();
            break;
        case Mark::Number:
            take(sizeof(double));
            break;
        case Mark::Text:
            take(takeShort());
            break;
        }
        return from.substr(0, from.size() - m_rest.size());
    }

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

/// Rows that are this far ahead are found sooner by a step than by a search.
constexpr std::int64_t mostSteps = 8;

std::string selectRows(const QString& table, const QStringList& fields)
{
    std::string columns = "_rowid_";
    for (const QString& field : fields)
        columns += ", " + quotedName(field);
    return "SELECT " + columns + " FROM " + quotedName(table) + " WHERE _rowid_ >= ? ORDER BY _rowid_";
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
        // As a text, the engine would copy it first to add a zero byte.
        const auto* const text = static_cast<const char*>(sqlite3_value_blob(value));
        const auto length = static_cast<std::size_t>(sqlite3_value_bytes(value));
        image += static_cast<char>(Mark::Text);
        appendShort(image, length);
        image += std::string_view(text, length);
    }
}

void splitImage(std::string_view image, std::vector<std::string_view>& values)
{
    values.clear();
    for (ImageReader reader(image); !reader.atEnd();)
        values.push_back(reader.skip());
}

Value valueOf(std::string_view bytes)
{
    return ImageReader(bytes).next();
}

std::vector<Value> valuesOf(std::string_view image)
{
    std::vector<Value> values;
    for (ImageReader reader(image); !reader.atEnd();)
        values.push_back(reader.next());
    return values;
}

/// In the manner of FNV-1a, eight bytes at a time. Nobody chooses a row so that it looks like another.
std::uint64_t digestOf(std::string_view image)
{
    std::uint64_t digest = 14695981039346656037U ^ image.size();
    while (!image.empty()) {
        std::uint64_t word = 0;
        const std::size_t size = std::min(image.size(), sizeof word);
        std::memcpy(&word, image.data(), size);
        image.remove_prefix(size);
        digest = (digest ^ word) * 1099511628211U;
        digest ^= digest >> 29U; // or the highest bits would never change the others
    }
    return digest == 0 ? 1 : digest;
}

RowImages::RowImages(sqlite3* handle, const QString& table, const QStringList& fields)
    : m_select(handle, selectRows(table, fields), table)
{
}

void RowImages::step()
{
    m_isAtRow = m_select.step();
    m_rowId = m_isAtRow ? m_select.whole(0) : 0;
}

void RowImages::goTo(std::int64_t rowId)
{
    if (!m_isAtRow || rowId < m_rowId || rowId - m_rowId > mostSteps) {
        m_select.reset();
        m_select.bind(1, rowId);
        step();
    }
    while (m_isAtRow && m_rowId < rowId)
        step();
}

const std::string& RowImages::read(std::int64_t rowId)
{
    m_image.clear();
    goTo(rowId);
    if (m_isAtRow && m_rowId == rowId) {
        for (int column = 1; column < m_select.columnCount(); ++column)
            appendValue(m_image, m_select.stored(column));
    }
    return m_image;
}

QStringList storedFields(sqlite3* handle, const QString& table)
{
    const PreparedStatement all(handle, "SELECT * FROM " + quotedName(table), table);
    QStringList names;
    for (int column = 0; column < all.columnCount(); ++column)
        names << all.columnName(column);
    return names;
}

} // namespace norvane::store
