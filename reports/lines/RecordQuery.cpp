// The part of a query that reads sums and records apart; see ReportQuery.h. A day's sums take a few
// milliseconds, the names and the order of 5,000 lines three times as long, and they are the same in the next
// report.
#include "reports/lines/LineSums.h"
#include "reports/lines/ReportQuery.h"
#include "store/engine/FileChanges.h"
#include "store/engine/QuotedName.h"

#include <algorithm>

namespace norvane::reports
{
namespace
{

/// Where there are more, only those with sales are worth to be put in order.
constexpr double mostRecords = 20'000;
/// Places in a statement for keys without a record.
constexpr std::size_t mostOthers = 10'000;

/// The lines without names: their key first, then the fields of the table itself.
LineSource sumsOf(const LineSource& source)
{
    LineSource sums;
    sums.table = source.table;
    sums.keys = source.keys;
    sums.where = source.where;
    sums.slotOf(source.keys.front());
    for (const auto& field : source.fields) {
        if (field.table == source.table)
            sums.slotOf(field);
    }
    return sums;
}

/// Puts the sums and the record of one line into the slots of the report.
class LineJoiner
{
public:
    LineJoiner(const LineSource& source, LineSource sums) : m_fields(source.fields.size())
    {
        std::size_t joined = 0;
        for (const auto& field : source.fields) {
            const bool isOwn = field.table == source.table;
            m_places.push_back({isOwn, isOwn ? static_cast<std::size_t>(sums.slotOf(field)) : ++joined});
        }
    }
    const LineFields& join(LineFields& sums, const LineFields& record)
    {
        for (std::size_t i = 0; i < m_fields.size(); ++i) {
            if (m_places[i].isOwn) {
                std::swap(m_fields[i], sums[m_places[i].at]);
            } else {
                m_fields[i] = record[m_places[i].at];
            }
        }
        return m_fields;
    }

private:
    struct Place {
        bool isOwn;
        std::size_t at;
    };
    std::vector<Place> m_places;
    LineFields m_fields;
};

LineFields rowOf(store::BoundQuery& query, std::size_t size)
{
    LineFields row;
    row.reserve(size);
    for (std::size_t i = 0; i < size; ++i)
        row.push_back(query.value(static_cast<int>(i)));
    return row;
}

} // namespace

bool ReportQuery::hasFewRecords(const Join* join)
{
    if (join == nullptr)
        return false;
    double count = 0;
    read({"SELECT count(*) FROM " + store::quotedName(join->table->name), {}},
         [&count](store::BoundQuery& query) { count = query.value(0).toNumber(); });
    return count <= mostRecords;
}

void ReportQuery::runByRecords(const LineSource& source, const std::function<void(const LineFields&)>& take)
{
    const LineSource sums = sumsOf(source);
    LineSums added;
    read(makeRowStatement(sums, m_condition, monthRows(sums)),
         [&added](store::BoundQuery& query) { added.add(query); });
    std::vector<LineFields> lines = added.lines();
    const auto records = recordsFor(source, lines);
    if (!records)
        return runWhole(source, take);
    std::vector<LineFields*> places(records->rows().size());
    for (auto& line : lines)
        places[records->placeOf(line.front()).value()] = &line;
    LineJoiner joiner(source, sums);
    for (std::size_t place = 0; place < places.size(); ++place) {
        if (places[place] != nullptr)
            take(joiner.join(*places[place], records->rows()[place]));
    }
}

/// @return nullptr if too many keys have no record.
std::shared_ptr<const RecordRows> ReportQuery::recordsFor(const LineSource& source,
                                                          const std::vector<LineFields>& lines)
{
    const auto changes = store::fileChanges(m_database);
    const RecordCache::State state{m_dataFile, changes.value_or(0)};
    const std::string statement = makeRecordStatement(source, m_layout.joins, {}).sql;
    auto records = changes ? m_records->find(state, statement) : nullptr;
    if (!records)
        records = readRecords(source, {});
    auto others = records->others;
    const std::size_t known = others.size();
    for (const auto& line : lines) {
        if (!records->placeOf(line.front()))
            others.push_back(line.front());
    }
    if (others.size() > mostOthers)
        return nullptr;
    if (others.size() > known)
        records = readRecords(source, std::move(others));
    if (changes)
        m_records->keep(state, statement, records);
    return records;
}

std::shared_ptr<RecordRows> ReportQuery::readRecords(const LineSource& source,
                                                     std::vector<store::Value> others)
{
    const auto size =
        static_cast<std::size_t>(std::ranges::count_if(
            source.fields, [&source](const FieldName& field) { return field.table != source.table; })) +
        1;
    auto records = std::make_shared<RecordRows>();
    read(makeRecordStatement(source, m_layout.joins, others),
         [&](store::BoundQuery& query) { records->add(rowOf(query, size)); });
    records->others = std::move(others);
    return records;
}

} // namespace norvane::reports
