// Puts columns together; see RecordLayout.h.
#include "records/RecordLayout.h"

#include <algorithm>

namespace norvane::records
{
namespace
{

void numberName(std::string& name, int number)
{
    if (const auto star = name.find('*'); star != std::string::npos)
        name.replace(star, 1, std::to_string(number));
}

/// Puts the number into the names of all fields of the form.
template <typename Form>
void numberFields(Form& column, int number)
{
    if constexpr (requires { column.field; })
        numberName(column.field, number);
    if constexpr (requires { column.readField; })
        numberName(column.readField, number);
    if constexpr (requires { column.kindField; })
        numberName(column.kindField, number);
}

void numberFields(OptionsColumn& column, int number)
{
    for (auto& parts : column.digits) {
        for (DigitPart& part : parts)
            numberFields(part, number);
    }
}

} // namespace

ColumnGroup numbered(int times, const std::vector<Column>& columns)
{
    std::vector<Column> all;
    for (int number = 1; number <= times; ++number) {
        for (Column made : columns) {
            std::visit([number](auto& column) { numberFields(column, number); }, made);
            all.push_back(std::move(made));
        }
    }
    return all;
}

ColumnGroup hexBytes(std::size_t bytes, std::size_t width, const char* field)
{
    std::vector<Column> all;
    for (std::size_t byte = 0; byte < bytes; ++byte)
        all.emplace_back(HexByteColumn{width, field, byte});
    return all;
}

ColumnSet::ColumnSet(std::vector<int> recordNumbers, const std::vector<ColumnGroup>& groups)
    : records(std::move(recordNumbers))
{
    for (const ColumnGroup& group : groups)
        columns.insert(columns.end(), group.columns.begin(), group.columns.end());
}

RecordLayout::RecordLayout(std::string numberField, const std::vector<ColumnGroup>& groups,
                           const std::vector<ColumnSet>& others)
    : lineNumberField(std::move(numberField)), sets{ColumnSet({}, groups)}
{
    sets.insert(sets.end(), others.begin(), others.end());
}

std::size_t RecordLayout::setOf(std::int64_t record) const
{
    for (std::size_t set = 1; set < sets.size(); ++set) {
        const auto& numbers = sets[set].records;
        if (std::find(numbers.begin(), numbers.end(), record) != numbers.end())
            return set;
    }
    return 0;
}

} // namespace norvane::records
