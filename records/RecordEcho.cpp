// See RecordEcho.h.
#include "records/RecordEcho.h"

#include "platform/RuntimeFailure.h"

namespace norvane::records
{

using store::Value;

namespace
{

store::Recordset inOrderOf(const RegisterFile& file, store::Database& database)
{
    store::Recordset records = database.openTable(QLatin1String(file.table));
    records.setIndex(QLatin1String(file.index));
    return records;
}

int keyOrdinal(const RegisterFile& file, const store::Database& database, const store::Recordset& records)
{
    const auto table = database.table(QLatin1String(file.table));
    for (const auto& index : table.indexes) {
        if (index.names.contains(QLatin1String(file.index), Qt::CaseInsensitive))
            return records.fieldOrdinal(index.field);
    }
    return 0;
}

} // namespace

/// Only a layout that numbers its lines has columns or texts that depend on the number.
RecordEcho::RecordEcho(const RegisterFile& file, store::Database& database, store::Database& scratch,
                       RegisterTraits traits)
    : m_layout(file.layout()), m_traits(std::move(traits)), m_records(inOrderOf(file, database)),
      m_echo(inOrderOf(file, scratch)), m_key(keyOrdinal(file, database, m_records)),
      m_isNumbered(!m_layout.lineNumberField.empty()), m_reader(m_layout, m_echo, m_traits)
{
    restart();
}

void RecordEcho::restart()
{
    m_writer.emplace(m_layout, m_records, m_traits);
    m_number = 0;
    if (m_records.recordCount() > 0)
        m_records.moveFirst();
}

const Value* RecordEcho::value(const Value& key, const QString& field)
{
    if (!m_current || *m_current != key) {
        m_current = key;
        m_isReadBack = goTo(key) && readBack();
    }
    return m_isReadBack ? &m_echo.value(field) : nullptr;
}

bool RecordEcho::goTo(const Value& key)
{
    if (!m_isNumbered)
        return m_records.seek(store::Seek::Equal, key);
    if (walkTo(key))
        return true;
    restart();
    return walkTo(key);
}

/// Every line before it is written too: what is sent of some records depends on those before them.
bool RecordEcho::walkTo(const Value& key)
{
    while (m_records.hasCurrent()) {
        if (m_records.value(m_key) == key)
            return true;
        m_line.clear();
        m_writer->appendLine(m_line);
        ++m_number;
        m_records.moveNext();
    }
    return false;
}

/// A value that cannot be sent or read back, such as a text with a comma, has no echo.
bool RecordEcho::readBack()
{
    try {
        m_line.clear();
        m_writer->appendLine(m_line);
        ++m_number;
        if (m_isNumbered)
            m_records.moveNext();
        std::string_view line(m_line);
        line.remove_suffix(2);
        m_echo.addNew();
        m_reader.read(line, m_isNumbered ? m_number : 1);
        return true;
    } catch (const RuntimeFailure&) {
        return false;
    }
}

} // namespace norvane::records
