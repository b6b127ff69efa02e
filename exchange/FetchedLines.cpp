// See FetchedLines.h.
#include "exchange/FetchedLines.h"

#include "exchange/SendContent.h"
#include "platform/RuntimeFailure.h"
#include "records/FileProcedures.h"
#include "records/RegisterFiles.h"

#include <algorithm>
#include <string_view>

namespace norvane::exchange
{
namespace
{

/// Only lines that depend on their place depend on the firmware.
constexpr int anyGeneration = -1;

} // namespace

FetchedLines::FetchedLines(const ApplicationValues& values, int file)
    : m_values(values), m_file(file), m_digester(file),
      m_isComplete(records::hasExporter(file) && !m_digester.isPlaced())
{
}

void FetchedLines::add(const store::Recordset& record)
{
    if (!m_isComplete)
        return;
    try {
        addLine(record);
    } catch (const RuntimeFailure&) {
        // The import goes on with what a send could not make a line of.
        m_isComplete = false;
    }
}

/// Registers send their records in the order of the keys, each once. In another order, one might be the
/// second of its key.
void FetchedLines::addLine(const store::Recordset& record)
{
    if (!m_writer) {
        m_writer.emplace(records::registerFile(m_file)->layout(), record,
                         sendTraits(m_values, anyGeneration));
    }
    m_line.clear();
    m_writer->appendLine(m_line);
    const std::string_view key = std::string_view(m_line).substr(0, m_line.find(','));
    m_isComplete = key > m_key;
    m_key = key;
    m_lines.push_back(m_digester.next(m_line));
}

std::optional<Digests> FetchedLines::takeAll(store::Database& database)
{
    m_writer.reset();
    if (!m_isComplete || m_lines.empty() ||
        static_cast<qint64>(m_lines.size()) != sendLines(m_values, database, m_file))
        return std::nullopt;
    std::ranges::sort(m_lines);
    return std::move(m_lines);
}

} // namespace norvane::exchange
