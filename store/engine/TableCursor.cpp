// The statements of each move and the rows read ahead; see TableCursor.h.
#include "store/engine/TableCursor.h"

#include "store/engine/FieldConversion.h"
#include "store/engine/RowReading.h"

#include <algorithm>
#include <string_view>

using namespace Qt::Literals::StringLiterals;

namespace norvane::store
{
namespace
{

/// Beyond this many rows a batch saves no more time.
constexpr std::size_t mostAhead = 128;
/// A user takes a few steps and must see what is stored now; a longer walk is a program's.
constexpr int stepsBeforeReadingAhead = 8;
/// A user cannot store on one screen and move on another within this time.
constexpr std::chrono::milliseconds freshTime{50};

std::string withKeyName(std::string_view sql, const std::string& key)
{
    std::string result;
    for (const char c : sql) {
        if (c == '%') {
            result += key;
        } else {
            result += c;
        }
    }
    return result;
}

} // namespace

// "%" is the key; ?1 is a key and ?2 a row id. Records without a key come before all others, and a comparison
// never finds them, so they have separate statements.
const std::array<TableCursor::AccessSql, TableCursor::AccessCount> TableCursor::accesses = {{
    /* First */ {" ORDER BY %, _rowid_", " ORDER BY _rowid_"},
    /* Last */ {" ORDER BY % DESC, _rowid_ DESC", " ORDER BY _rowid_ DESC"},
    /* Next */
    {" WHERE (%, _rowid_) > (?1, ?2) ORDER BY %, _rowid_", " WHERE _rowid_ > ?2 ORDER BY _rowid_"},
    /* Previous */
    {" WHERE (%, _rowid_) < (?1, ?2) ORDER BY % DESC, _rowid_ DESC",
     " WHERE _rowid_ < ?2 ORDER BY _rowid_ DESC"},
    /* NextNull */ {" WHERE % IS NULL AND _rowid_ > ?2 ORDER BY _rowid_", nullptr},
    /* PreviousNull */ {" WHERE % IS NULL AND _rowid_ < ?2 ORDER BY _rowid_ DESC", nullptr},
    /* FirstKey */ {" WHERE % IS NOT NULL ORDER BY %, _rowid_", nullptr},
    /* LastNull */ {" WHERE % IS NULL ORDER BY _rowid_ DESC", nullptr},
    /* SeekEqual */ {" WHERE % = ?1 ORDER BY _rowid_", nullptr},
    /* SeekAtOrAfter */ {" WHERE % >= ?1 ORDER BY %, _rowid_", nullptr},
    /* ByRowId */ {" WHERE _rowid_ = ?2", " WHERE _rowid_ = ?2"},
}};

TableCursor::TableCursor(Connection& connection, std::shared_ptr<const TableShape> shape)
    : m_connection(connection), m_shape(std::move(shape))
{
    const auto& fields = m_shape->definition().fields;
    const auto counter = std::find_if(fields.cbegin(), fields.cend(), [](const FieldDefinition& field) {
        return field.type == FieldType::Counter;
    });
    m_counterOrdinal = counter == fields.cend() ? -1 : static_cast<int>(counter - fields.cbegin());
    const auto& indexes = m_shape->definition().indexes;
    setIndex(indexes.isEmpty() ? nullptr : &indexes.first());
}

void TableCursor::setIndex(const IndexDefinition* index)
{
    m_index = index;
    m_keyOrdinal = index ? m_shape->ordinal(index->field).value_or(-1) : -1;
    chooseFields();
    m_statements = {};
    m_filled = 0;
}

void TableCursor::changeOrder(const IndexDefinition& index)
{
    setIndex(&index);
}

PreparedStatement& TableCursor::statement(Access access)
{
    auto& statement = m_statements.at(access);
    if (!statement) {
        const auto& words = accesses.at(access);
        const std::string sql =
            selectFields(*m_shape, m_fields) +
            (m_index ? withKeyName(words.withKey, quotedName(m_index->field)) : words.withoutKey);
        statement = std::make_unique<PreparedStatement>(
            m_connection.handle(), sql, u"%1, table %2."_s.arg(m_connection.path(), m_shape->name()));
    }
    return *statement;
}

void TableCursor::limitTo(const std::vector<int>& fields)
{
    m_onlyFields = fields;
    m_rows.clear();
    m_spare.clear();
    setIndex(m_index);
}

/// Those asked for and the key, each once.
void TableCursor::chooseFields()
{
    m_fields = m_onlyFields.empty() ? allOrdinals(*m_shape) : m_onlyFields;
    if (m_keyOrdinal >= 0)
        m_fields.push_back(m_keyOrdinal);
    std::sort(m_fields.begin(), m_fields.end());
    m_fields.erase(std::unique(m_fields.begin(), m_fields.end()), m_fields.end());
}

/// Reads up to @p most rows and moves to the first. If there is none, nothing changes.
bool TableCursor::read(Access access, const Value& key, std::int64_t rowId, std::size_t most)
{
    auto& select = statement(access);
    const StatementRun run(select);
    select.bindIfUsed(1, key);
    select.bindIfUsed(2, rowId);
    std::size_t count = 0;
    for (; count < most && select.step(); ++count) {
        if (count == m_spare.size())
            m_spare.emplace_back();
        readFields(select, *m_shape, m_fields, m_spare[count]);
    }
    if (count == 0)
        return false;
    m_rows.swap(m_spare);
    m_filled = count;
    m_at = 0;
    stampNow();
    return true;
}

const Value& TableCursor::placeKey() const
{
    static const Value none;
    return m_keyOrdinal < 0 ? none : row().values[static_cast<std::size_t>(m_keyOrdinal)];
}

void TableCursor::stampNow()
{
    m_stamp.changes = m_connection.changes();
    m_stamp.transaction = m_connection.transactionNumber();
    // Inside a transaction the time does not count, and an import would ask for it at every row.
    if (m_stamp.transaction == 0)
        m_stamp.time = std::chrono::steady_clock::now();
}

bool TableCursor::isFresh() const
{
    if (m_filled == 0 || m_stamp.changes != m_connection.changes())
        return false;
    // Inside a transaction no other connection can store.
    const auto transaction = m_connection.transactionNumber();
    if (transaction != 0)
        return transaction == m_stamp.transaction;
    return std::chrono::steady_clock::now() - m_stamp.time < freshTime;
}

bool TableCursor::placeHasNoKey() const
{
    return m_keyOrdinal >= 0 && placeKey().isNull();
}

bool TableCursor::first()
{
    m_steps = 0;
    return read(First, {}, 0);
}

bool TableCursor::last()
{
    return read(Last, {}, 0);
}

bool TableCursor::next()
{
    const bool fresh = isFresh();
    if (fresh && m_at + 1 < m_filled) {
        ++m_at;
        return true;
    }
    m_steps = fresh ? m_steps + 1 : 0;
    m_ahead = m_steps < stepsBeforeReadingAhead ? 1 : std::min(m_ahead * 2, mostAhead);
    if (!placeHasNoKey())
        return read(Next, placeKey(), row().rowId, m_ahead);
    return read(NextNull, {}, row().rowId, m_ahead) || read(FirstKey, {}, 0, m_ahead);
}

bool TableCursor::previous()
{
    if (placeHasNoKey())
        return read(PreviousNull, {}, row().rowId);
    return read(Previous, placeKey(), row().rowId) || (m_keyOrdinal >= 0 && read(LastNull, {}, 0));
}

bool TableCursor::seek(Seek comparison, const Value& key)
{
    m_steps = 0;
    const auto& field = m_shape->definition().fields.at(m_keyOrdinal);
    const Value sought = indexKey(key, field, m_shape->name());
    if (sought.isNull())
        return comparison == Seek::AtOrAfter && first();
    return read(comparison == Seek::Equal ? SeekEqual : SeekAtOrAfter, sought, 0);
}

qint64 TableCursor::count()
{
    PreparedStatement select(m_connection.handle(), "SELECT count(*) FROM " + quotedName(m_shape->name()),
                             m_shape->name());
    select.step();
    return select.whole(0);
}

bool TableCursor::reread()
{
    const bool mineAlone = m_connection.transactionNumber() != 0;
    return (mineAlone && isFresh()) || read(ByRowId, {}, row().rowId);
}

/// The rows read ahead remain valid if this recordset's change to one row is the only change since.
void TableCursor::keepReadAhead()
{
    if (m_stamp.changes + 1 == m_connection.changes())
        ++m_stamp.changes;
}

/// Whether the file gave the row a number that @p values do not know.
bool TableCursor::wasCounted(const std::vector<Value>& values) const
{
    return m_counterOrdinal >= 0 && values[static_cast<std::size_t>(m_counterOrdinal)].isNull();
}

void TableCursor::rowAdded(std::vector<Value>& values, std::int64_t rowId)
{
    m_steps = 0;
    if (wasCounted(values)) {
        read(ByRowId, {}, rowId);
        return;
    }
    if (m_rows.empty())
        m_rows.emplace_back();
    m_rows[0].values.swap(values);
    m_rows[0].rowId = rowId;
    m_filled = 1;
    m_at = 0;
    stampNow();
}

void TableCursor::rowStored(std::vector<Value>& values)
{
    const auto key = static_cast<std::size_t>(std::max(m_keyOrdinal, 0));
    const bool staysInPlace = m_keyOrdinal < 0 || m_rows[m_at].values[key] == values[key];
    m_rows[m_at].values.swap(values);
    if (staysInPlace)
        keepReadAhead();
}

void TableCursor::rowDeleted()
{
    keepReadAhead();
}

} // namespace norvane::store
