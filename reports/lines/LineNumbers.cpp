// See LineNumbers.h.
#include "reports/lines/LineNumbers.h"

#include "reports/formula/ExactNumbers.h"

#include <algorithm>

namespace norvane::reports
{

bool isRecordNumber(const LineSource& source, const FieldName& field)
{
    const auto& indexes = field.table->indexes;
    const bool isIndexed = !indexes.isEmpty() && indexes.first().field == field.name();
    return field.table != source.table || source.isKey(field) || isIndexed;
}

void SlotTotals::add(const std::vector<std::string>& numbers)
{
    for (std::size_t i = 0; i < numbers.size(); ++i) {
        if (numbers[i] != "0")
            m_totals[i].add(std::string_view(numbers[i]));
    }
}

std::vector<std::string> SlotTotals::texts() const
{
    std::vector<std::string> texts;
    for (const auto& total : m_totals)
        texts.push_back(total.text());
    return texts;
}

LineNumbers::LineNumbers(const ReportLayout& layout)
    : m_isUsed(layout.source.fields.size()), m_isValue(layout.source.fields.size()),
      m_numbers(layout.source.fields.size(), "0")
{
    for (const auto& column : layout.columns) {
        if (column.number)
            column.number->markSlots(m_isUsed);
        for (const auto& expression : column.shownIf)
            expression.markSlots(m_isUsed);
    }
    for (const auto& expression : layout.zeroIn)
        expression.markSlots(m_isUsed);
    if (layout.classes)
        layout.classes->by.markSlots(m_isUsed);
    for (const auto& chart : layout.charts) {
        if (chart.from != PointSource::Query)
            chart.value->markSlots(m_isUsed);
    }
    for (std::size_t i = 0; i < m_isValue.size(); ++i) {
        m_isValue[i] = m_isUsed[i] && !isRecordNumber(layout.source, layout.source.fields[i]);
        m_isSum.push_back(layout.source.isSum(layout.source.fields[i]));
    }
}

void LineNumbers::read(const LineFields& fields)
{
    for (std::size_t i = 0; i < fields.size(); ++i) {
        if (m_isUsed[i] && m_isSum[i]) {
            m_numbers[i].assign(fields[i].textView());
        } else if (m_isUsed[i]) {
            m_numbers[i] = exactText(fields[i]);
        }
    }
}

bool LineNumbers::areZero() const
{
    for (std::size_t i = 0; i < m_numbers.size(); ++i) {
        if (m_isValue[i] && m_numbers[i] != "0")
            return false;
    }
    return true;
}

} // namespace norvane::reports
