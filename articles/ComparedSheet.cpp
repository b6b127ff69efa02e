// See ComparedSheet.h.
#include "articles/ComparedSheet.h"

#include <utility>

namespace norvane::articles
{

void ComparedSheet::compare(SheetReading reading, const KeepGoing& keepGoing)
{
    reading.isFromSpreadsheet = m_content.isFromSpreadsheet;
    m_comparison = std::make_unique<SheetComparison>(m_database, m_sheet, m_content.text, reading, keepGoing);
    m_reading = std::move(reading);
}

bool ComparedSheet::isStillTrue(const KeepGoing& keepGoing)
{
    const auto before =
        std::exchange(m_comparison, std::make_unique<SheetComparison>(m_database, m_sheet, m_content.text,
                                                                      m_reading, keepGoing));
    return m_comparison->changesTheSame(*before);
}

} // namespace norvane::articles
