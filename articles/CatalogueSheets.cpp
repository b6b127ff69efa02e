// The sheets of all tables, made from the catalogue and the registers' records; see TableSheet.h.
#include "articles/TableSheet.h"
#include "records/RegisterFiles.h"
#include "store/catalogue/Catalogue.h"
#include "store/catalogue/RecordReferences.h"

#include <algorithm>
#include <map>
#include <type_traits>

using namespace Qt::Literals::StringLiterals;

namespace norvane::articles
{
namespace
{

using store::FieldType;

constexpr int largestCode = 255; ///< of a character

/// What the register's record says about a field.
struct RecordLimit {
    Decimal most{};
    int decimals = 0;
    bool isFilled = false;
    bool isHexadecimal = false;
    bool isMessage = false;
    bool isFlag = false;
};
using RecordLimits = std::map<QString, RecordLimit>; ///< by the field in small letters

Decimal largestOf(std::size_t digits, int decimals = 0)
{
    std::int64_t power = 1;
    for (auto digit = std::min<std::size_t>(digits, Decimal::mostDigits); digit > 0; --digit)
        power *= 10;
    return {power - 1, decimals};
}

/// Takes the limits of the columns of a record. Of several columns of a field the first counts.
class LimitReader
{
public:
    explicit LimitReader(RecordLimits& limits) : m_limits(limits) {}

    void operator()(const records::NumberColumn& column)
    {
        for (const auto& field : {column.field, column.readField})
            add(field, {.most = largestOf(column.width), .isFilled = column.raw});
    }
    void operator()(const records::ScaledColumn& column)
    {
        add(column.field, {.most = largestOf(column.width, column.scale), .decimals = column.scale});
    }
    void operator()(const records::CodeColumn& column)
    {
        add(column.field, {.most = largestOf(column.width)});
    }
    void operator()(const records::LeftBoundColumn& column)
    {
        add(column.field, {.most = largestOf(column.width)});
    }
    void operator()(const records::MessageColumn& column) { add(column.field, {.isMessage = true}); }
    void operator()(const records::OptionsColumn& column)
    {
        for (const auto& digit : column.digits) {
            for (const auto& part : digit) {
                const bool isFlag = part.value == records::DigitPart::Value::Flag;
                add(part.field, {.most = Decimal(largestChoice(part), 0), .isFlag = isFlag});
            }
        }
    }
    void operator()(const records::SymbolColumn& column)
    {
        add(column.field, {.most = Decimal(largestCode, 0)});
    }
    void operator()(const records::HexByteColumn& column) { add(column.field, {.isHexadecimal = true}); }
    void operator()(const records::PieceColumn& column)
    {
        const auto point = std::min(column.pattern.find('.'), column.pattern.size());
        const auto places = column.pattern.size() - std::min(point + 1, column.pattern.size());
        add(column.field, {.most = largestOf(point + places, static_cast<int>(places)),
                           .decimals = static_cast<int>(places)});
    }
    void operator()(const records::TextColumn& /*column*/) {}
    void operator()(const records::SpareColumn& /*column*/) {}

private:
    static int largestChoice(const records::DigitPart& part)
    {
        constexpr int largestDigit = 9;
        const auto largest = std::ranges::max_element(part.choices, {}, &records::DigitChoice::value);
        return largest == part.choices.end() ? largestDigit : largest->value;
    }
    void add(const std::string& field, const RecordLimit& limit)
    {
        m_limits.try_emplace(QString::fromStdString(field).toLower(), limit);
    }

    RecordLimits& m_limits;
};

/// Some records have other columns than most: the largest number of any counts.
void merge(RecordLimits& limits, const RecordLimits& others)
{
    for (const auto& [field, limit] : others) {
        const auto [known, isNew] = limits.try_emplace(field, limit);
        if (!isNew && known->second.most < limit.most)
            known->second = limit;
    }
}

/// The files in which registers keep the records of @p table; none for what they only report.
std::vector<const records::RegisterFile*> filesOf(const store::TableDefinition& table)
{
    std::vector<const records::RegisterFile*> files;
    for (const records::RegisterFile& file : records::registerFiles()) {
        if (table.name.compare(QLatin1StringView(file.table), Qt::CaseInsensitive) == 0)
            files.push_back(&file);
    }
    return files;
}

RecordLimits limitsOf(const std::vector<const records::RegisterFile*>& files)
{
    RecordLimits limits;
    for (const auto* const file : files) {
        for (const records::ColumnSet& set : file->layout().sets) {
            RecordLimits ofSet;
            for (const records::Column& column : set.columns)
                std::visit(LimitReader(ofSet), column);
            merge(limits, ofSet);
        }
    }
    return limits;
}

CellContent contentOf(FieldType type)
{
    switch (type) {
    case FieldType::YesNo:
        return CellContent::YesNo;
    case FieldType::Digits:
        return CellContent::Digits;
    case FieldType::Text:
        return CellContent::Text;
    case FieldType::Date:
        return CellContent::Day;
    default:
        return CellContent::Number;
    }
}

void setLimit(SheetColumn& column, const RecordLimit& limit, int messageWidth)
{
    if (limit.isMessage) {
        column.longest = messageWidth;
    } else if (limit.isHexadecimal) {
        column.content = CellContent::Hexadecimal;
    } else if (limit.isFlag) {
        column.content = CellContent::YesNo;
    } else if (column.content == CellContent::Text) {
        column.content = CellContent::Digits;
        column.isFilled = limit.isFilled;
        column.mayBeNone = true;
    }
    if (column.content == CellContent::Number) {
        column.most = limit.most;
        column.decimals = limit.decimals;
    }
}

/// What neither catalogue nor record say: a time of the day ends at midnight.
void setTime(SheetColumn& column, const QString& table)
{
    constexpr int midnight = 2400;
    if (table == "TIMEPERIOD"_L1 && column.field.endsWith("TIME"_L1))
        column.most = Decimal(midnight, 0);
}

/// Links to PLUs are not checked: they may have been made for PLUs that come later.
void setReference(SheetColumn& column, const QString& table)
{
    const auto* const reference = store::referenceOf(table, column.field);
    if (reference == nullptr || column.content != CellContent::Number)
        return;
    column.content = CellContent::Key;
    column.word = u"%1 record"_s.arg(reference->to);
    column.table = reference->to;
    column.tableKey = store::catalogueTable(reference->to)->indexes.front().field;
    column.mayBeNone = true;
}

SheetColumn columnOf(const store::FieldDefinition& field, const QString& table, const RecordLimits& limits,
                     int messageWidth)
{
    SheetColumn column{.heading = field.name, .field = field.name, .content = contentOf(field.type)};
    column.longest = field.size;
    column.most = largestOf(field.type == FieldType::Digits ? Decimal::mostDigits : 9);
    column.isOnScreen = column.content != CellContent::Digits;
    const auto limit = limits.find(field.name.toLower());
    if (limit != limits.end())
        setLimit(column, limit->second, messageWidth);
    setTime(column, table);
    setReference(column, table);
    return column;
}

} // namespace

TableSheet tableSheet(const store::TableDefinition& table, int messageWidth)
{
    TableSheet sheet = pluSheet();
    if (table.name != sheet.table)
        sheet = {table.name, table.name, {}, {}, false};
    const auto files = filesOf(table);
    const RecordLimits limits = limitsOf(files);
    for (const store::FieldDefinition& field : table.fields) {
        if (std::ranges::find(sheet.columns, field.name, &SheetColumn::field) == sheet.columns.end())
            sheet.columns.push_back(columnOf(field, table.name, limits, messageWidth));
    }
    if (!files.empty()) {
        sheet.index = table.indexes.front().names.front();
        sheet.columns.front().content = CellContent::RecordNumber;
    }
    return sheet;
}

} // namespace norvane::articles
