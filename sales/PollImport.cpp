// The five readers as one table, and the engine that reads by it; see PollImport.h.
#include "sales/PollImport.h"

#include "platform/CommaValues.h"
#include "platform/Decimal.h"
#include "platform/FailurePlace.h"
#include "platform/FilePaths.h"
#include "platform/Numbers.h"
#include "platform/RuntimeFailure.h"
#include "records/RecordLines.h"
#include "sales/PollStamp.h"
#include "store/catalogue/SalesTables.h"
#include "store/engine/CommitOnExit.h"
#include "store/engine/Database.h"
#include "store/engine/Recordset.h"
#include "store/sales/RowAppend.h"
#include "store/sales/SalesTotals.h"

#include <algorithm>
#include <array>
#include <string>

using namespace Qt::Literals::StringLiterals;

namespace norvane::sales
{
namespace
{

using store::Value;

constexpr const char* itemFields[] = {"quantity", "value"};
constexpr const char* mixFields[] = {"quantity"};
constexpr const char* pluFields[] = {"ID",     "promo",  "waste",  "count1", "value1", "count2",
                                     "value2", "count3", "value3", "count4", "value4"};

// clang-format off
constexpr PollFile readers[] = {
    {"poll190.txt", store::salestable::financials, itemFields, Numbering::Running, RecordForm::Fixed,   false, 0, false},
    {"poll194.txt", store::salestable::plus,       pluFields,  Numbering::ByText,  RecordForm::Stamped, true,  0, false},
    {"poll191.txt", store::salestable::times,      itemFields, Numbering::Running, RecordForm::Fixed,   false, 0, false},
    {"poll218.txt", store::salestable::mixes,      mixFields,  Numbering::Running, RecordForm::Fixed,   false, 2, true},
    {"poll192.txt", store::salestable::clerks,     itemFields, Numbering::ByBlock, RecordForm::Fixed,   false, 0, false},
};
// clang-format on

/// Records of one clerk.
constexpr std::int64_t blockLength = 118;

/// How many price levels the PLU report has by its stamp. The first row that fits counts, so that a last
/// digit of 0 means one level whatever the first digit is.
struct StampLayout {
    enum { First, Last } place;
    char digit;
    std::size_t levels;
};
constexpr StampLayout stampLayouts[] = {
    {StampLayout::Last, '0', 1},  {StampLayout::First, '1', 1}, {StampLayout::First, '2', 2},
    {StampLayout::First, '3', 3}, {StampLayout::First, '4', 4},
};
/// Values of a PLU record before its levels, and of each level.
constexpr std::size_t pluHead = 3;
constexpr std::size_t levelValues = 2;

/// @return 0 when the stamp fits no layout.
std::size_t valuesByStamp(const QString& stamp)
{
    const auto* const layout =
        std::find_if(std::begin(stampLayouts), std::end(stampLayouts), [&stamp](const StampLayout& each) {
            const QChar digit = each.place == StampLayout::First ? stamp.front() : stamp.back();
            return digit == QLatin1Char(each.digit);
        });
    return layout == std::end(stampLayouts) ? 0 : pluHead + levelValues * layout->levels;
}

/// A text for a message, where a file of another kind can be one value as a whole.
QString shown(std::string_view text)
{
    constexpr std::size_t longest = 40;
    return QString::fromStdString(records::plainFromRegister(text.substr(0, longest)));
}

[[noreturn]] void failNoNumber(std::string_view text)
{
    throw RuntimeFailure(Failure::TypeMismatch, u"Type mismatch: \"%1\" is not a number"_s.arg(shown(text)));
}

double numberOf(std::string_view text)
{
    if (const auto plain = Decimal::plain(text))
        return plain->toDouble();
    const QString spelled = QString::fromLatin1(text.data(), static_cast<qsizetype>(text.size()));
    try {
        return toNumber(spelled);
    } catch (const RuntimeFailure& failure) {
        if (failure.failure() == Failure::TypeMismatch)
            failNoNumber(text);
        throw;
    }
}

/// The point moves in decimal: a hundred times 0.07 is 7 exactly.
double shiftedNumberOf(std::string_view text, int shift)
{
    const auto number = Decimal::parse(text);
    if (!number)
        failNoNumber(text);
    return number->shifted(shift).toDouble();
}

/// Stores one record after another.
class PollReader
{
public:
    PollReader(const PollFile& file, store::Recordset& records, const ApplicationValues& values,
               QDate collected);

    [[nodiscard]] ImportedReport storeAll(CommaValues& text);

private:
    [[nodiscard]] QString placed(const QString& what) const;
    void storeRecord(CommaValues& text);
    void count();
    void needLayout() const;
    void readValues(CommaValues& text);
    [[nodiscard]] Value valueOf(std::size_t at, std::string_view text);
    void addRow();
    [[nodiscard]] int ordinal(const char* field) const
    {
        return m_records.fieldOrdinal(QLatin1StringView(field));
    }

    const PollFile& m_file;
    store::Recordset& m_records;
    QDate m_collected;
    QString m_stamp;
    std::size_t m_valuesOfRecord;
    std::array<int, std::size(pluFields)> m_ordinals{};
    int m_date;
    int m_id;
    int m_clerk = -1;

    std::int64_t m_record = 0; ///< its number in the file, from 1
    std::int64_t m_itemId = 0;
    std::int64_t m_clerkId = 1;
    std::array<Value, std::size(pluFields)> m_values;
    bool m_allZero = true; ///< of the record
    bool m_hasSales = false;
    qint64 m_rows = 0;
};

PollReader::PollReader(const PollFile& file, store::Recordset& records, const ApplicationValues& values,
                       QDate collected)
    : m_file(file), m_records(records), m_collected(collected), m_valuesOfRecord(file.fields.size()),
      m_date(ordinal(store::salestable::day)), m_id(ordinal("ID"))
{
    if (file.form == RecordForm::Stamped) {
        m_stamp = ReadPoll194Stamp(values).trimmed();
        m_valuesOfRecord = valuesByStamp(m_stamp);
    }
    if (file.numbering == Numbering::ByBlock)
        m_clerk = ordinal("CLERKID");
    for (std::size_t at = 0; at < file.fields.size(); ++at)
        m_ordinals.at(at) = ordinal(file.fields[at]);
}

ImportedReport PollReader::storeAll(CommaValues& text)
{
    while (!text.atEnd()) {
        count();
        atPlace([this](const QString& what) { return placed(what); }, [&] { storeRecord(text); });
    }
    return {m_record, m_hasSales, m_rows};
}

QString PollReader::placed(const QString& what) const
{
    return u"%1, record %2: %3"_s.arg(QLatin1StringView(m_file.name)).arg(m_record).arg(what);
}

void PollReader::storeRecord(CommaValues& text)
{
    needLayout();
    readValues(text);
    m_hasSales = m_hasSales || !m_allZero;
    if (m_file.keepsZeros || !m_allZero)
        addRow();
}

/// Skipped records count too, so that an item keeps its number.
void PollReader::count()
{
    ++m_record;
    ++m_itemId;
    if (m_file.numbering == Numbering::ByBlock && m_itemId > blockLength) {
        m_itemId = 1;
        ++m_clerkId;
    }
}

void PollReader::needLayout() const
{
    if (m_valuesOfRecord == 0) {
        throw RuntimeFailure(Failure::RequiredFieldIsNull,
                             u"The stamp %1 of poll194.dll fits no layout of the PLU sales."_s.arg(m_stamp));
    }
}

void PollReader::readValues(CommaValues& text)
{
    m_allZero = true;
    for (std::size_t at = 0; at < m_valuesOfRecord; ++at) {
        const auto next = text.next();
        if (!next) {
            throw RuntimeFailure(
                Failure::InputPastEnd,
                u"Input past end of file: the record has %1 of %2 values"_s.arg(at).arg(m_valuesOfRecord));
        }
        m_values.at(at) = valueOf(at, *next);
    }
}

Value PollReader::valueOf(std::size_t at, std::string_view text)
{
    if (at == 0 && m_file.numbering == Numbering::ByText && !text.empty())
        return Value::text(records::plainFromRegister(text));
    const double number = m_file.shift == 0 ? numberOf(text) : shiftedNumberOf(text, m_file.shift);
    m_allZero = m_allZero && number == 0;
    return Value::number(number);
}

void PollReader::addRow()
{
    m_records.addNew();
    if (m_file.numbering != Numbering::ByText)
        m_records.setValue(m_id, Value::whole(m_itemId));
    if (m_clerk >= 0)
        m_records.setValue(m_clerk, Value::whole(m_clerkId));
    m_records.setValue(m_date, Value::date(m_collected));
    for (std::size_t at = 0; at < m_valuesOfRecord; ++at)
        m_records.setValue(m_ordinals.at(at), std::move(m_values.at(at)));
    m_records.update();
    ++m_rows;
}

/// The first collection of a month adds up the one before, so that reports need not. Reports reach back to
/// the beginning of the year at most; after a longer absence they add up the rest themselves, and if adding
/// up fails here they read the rows: a day's sales are never refused for it.
void addUpEndedMonths(store::Database& database, const QString& table, QDate collected)
{
    const QDate month(collected.year(), collected.month(), 1);
    store::SalesTotals(database, table).addUpMissing({month.addYears(-1), month.addDays(-1)}, collected);
}

} // namespace

std::span<const PollFile> pollFiles()
{
    return readers;
}

ImportedReport importPollFile(const PollFile& file, store::Database& database,
                              const ApplicationValues& values, QDate collected)
{
    store::CommitOnExit transaction(database);
    store::Recordset records = database.openTable(QLatin1StringView(file.table));
    const QByteArray content = readWholeFile(joinPath(values.appPath, QLatin1StringView(file.name)));
    CommaValues text({content.constData(), static_cast<std::size_t>(content.size())});
    const ImportedReport report = [&] {
        const store::RowAppend append(database, transaction, QLatin1StringView(file.table));
        return PollReader(file, records, values, collected).storeAll(text);
    }();
    addUpEndedMonths(database, QLatin1StringView(file.table), collected);
    transaction.commit();
    return report;
}

} // namespace norvane::sales
