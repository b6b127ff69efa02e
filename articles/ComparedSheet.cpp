// See ComparedSheet.h.
#include "articles/ComparedSheet.h"

#include "articles/PlannedChanges.h"

#include <utility>

namespace norvane::articles
{

std::unique_ptr<SheetComparison> ComparedSheet::compared(const SheetReading& reading,
                                                         const KeepGoing& keepGoing)
{
    std::optional<ExpectedDay> expected;
    if (m_day)
        expected.emplace(m_database, m_day->customerPath, m_day->day, m_day->messageWidth, keepGoing);
    return std::make_unique<SheetComparison>(m_database, m_sheet, m_content.text, reading, keepGoing);
}

void ComparedSheet::compare(SheetReading reading, const KeepGoing& keepGoing)
{
    reading.isFromSpreadsheet = m_content.isFromSpreadsheet;
    m_comparison = compared(reading, keepGoing);
    m_reading = std::move(reading);
}

bool ComparedSheet::isStillTrue(const KeepGoing& keepGoing)
{
    const auto before = std::exchange(m_comparison, compared(m_reading, keepGoing));
    return m_comparison->changesTheSame(*before);
}

} // namespace norvane::articles
