// Both tables are read in the order of their keys, so that two of any length take no memory; see PartWalk.h.
#include "programme/PartWalk.h"

#include "platform/Decimal.h"
#include "platform/RuntimeFailure.h"
#include "programme/PartRules.h"
#include "register/PluNumber.h"
#include "store/catalogue/Catalogue.h"

#include <algorithm>
#include <string_view>
#include <utility>

using namespace Qt::Literals::StringLiterals;

namespace norvane::programme
{
namespace
{

using store::FieldType;
using store::Value;

std::string_view withoutBlanks(std::string_view text)
{
    const auto last = text.find_last_not_of(' ');
    return text.substr(0, last == std::string_view::npos ? 0 : last + 1);
}

std::string_view withoutZeros(std::string_view digits)
{
    const auto first = digits.find_first_not_of('0');
    return first == std::string_view::npos ? std::string_view() : digits.substr(first);
}

bool isSamePrice(const std::string& one, const std::string& other)
{
    const auto first = Decimal::tryParse(one.empty() ? "0" : one);
    const auto second = Decimal::tryParse(other.empty() ? "0" : other);
    return first && second && *first == *second;
}

/// Prices of PLUs are texts.
bool holdsPrice(const QString& table, const store::FieldDefinition& field)
{
    return table.compare("PLUDATA"_L1, Qt::CaseInsensitive) == 0 && field.type == FieldType::Text &&
           field.name.contains("PRICE"_L1, Qt::CaseInsensitive);
}

/// Prices have two places, as on the screen.
QString shownValue(FieldType type, bool isPrice, const Value& value)
{
    constexpr int priceDecimals = 2;
    if (type == FieldType::YesNo)
        return value.isTrue() ? u"Yes"_s : u"No"_s;
    const auto price = isPrice ? Decimal::tryParse(value.toUtf8()) : std::nullopt;
    if (price && price->scale() <= priceDecimals)
        return QString::fromStdString(price->text(priceDecimals));
    return value.toText().trimmed();
}

bool isEmpty(const Value& value)
{
    return value.isText() ? withoutBlanks(value.textView()).empty() : value.toNumber() == 0;
}

bool isSameOf(FieldType type, bool isPrice, const Value& one, const Value& other)
{
    if (one == other)
        return true;
    switch (type) {
    case FieldType::Digits:
        return withoutZeros(one.toUtf8()) == withoutZeros(other.toUtf8());
    case FieldType::Text:
        return withoutBlanks(one.toUtf8()) == withoutBlanks(other.toUtf8()) ||
               (isPrice && isSamePrice(one.toUtf8(), other.toUtf8()));
    case FieldType::Date:
        return false;
    default:
        return one.toNumber() == other.toNumber();
    }
}

int compareNumbers(double one, double other)
{
    return one < other ? -1 : static_cast<int>(one > other);
}

/// In the order in which the engine sorts keys.
int compareKeys(const Value& one, const Value& other)
{
    if (!one.isText() || !other.isText())
        return compareNumbers(one.toNumber(), other.toNumber());
    return qstrnicmp(one.textView().data(), static_cast<qsizetype>(one.textView().size()),
                     other.textView().data(), static_cast<qsizetype>(other.textView().size()));
}

/// Of every table that is copied.
QString keyOf(const QString& table)
{
    const auto* const known = store::catalogueTable(table);
    if (known == nullptr || known->indexes.isEmpty())
        throw RuntimeFailure(Failure::UnknownName, u"There is no table %1 with a key."_s.arg(table));
    return known->indexes.first().field;
}

} // namespace

bool isSameValue(const QString& table, const store::FieldDefinition& field, const Value& one,
                 const Value& other)
{
    return isSameOf(field.type, holdsPrice(table, field), one, other);
}

QString shownField(const QString& table, const store::FieldDefinition& field, const Value& value)
{
    return shownValue(field.type, holdsPrice(table, field), value);
}

bool RecordChange::isCopied() const
{
    const auto isStored = [](const FieldChange& field) {
        return field.refusal.isEmpty();
    };
    return refusal.isEmpty() && (kind != ChangeKind::Changed || std::ranges::any_of(fields, isStored));
}

PartWalk::PartWalk(const ShopData& from, const ShopData& to, const QString& table, const ChosenParts& parts)
    : m_from(from), m_to(to), m_table(table), m_parts(parts), m_source(from.database.openTable(table)),
      m_target(to.database.openTable(table))
{
    const QString key = keyOf(table);
    m_sourceKey = m_source.fieldOrdinal(key);
    m_targetKey = m_target.fieldOrdinal(key);
    m_isCounted = m_source.field(m_sourceKey).type == FieldType::Counter;
    chooseColumns();
    m_change.table = table;
}

bool PartWalk::isCompared(const QString& field) const
{
    return !belongsToShop(m_table, field) || (m_parts.isOneShop && !isCountedByRegisters(m_table, field));
}

void PartWalk::chooseColumns()
{
    const auto source = m_from.database.table(m_table);
    std::vector<int> sourceFields{m_sourceKey};
    std::vector<int> targetFields{m_targetKey};
    for (int target = 0; target < m_target.fieldCount(); ++target) {
        const auto& field = m_target.field(target);
        if (target == m_targetKey || !isCompared(field.name) ||
            store::fieldNamed(source, field.name) == nullptr)
            continue;
        const int ordinal = m_source.fieldOrdinal(field.name);
        m_columns.push_back({field.name, field.type, holdsPrice(m_table, field), ordinal, target});
        sourceFields.push_back(ordinal);
        targetFields.push_back(target);
    }
    m_source.readOnly(sourceFields);
    m_target.readOnly(targetFields);
}

void PartWalk::skipKeyless()
{
    m_isStarted = true;
    while (m_source.hasCurrent() && m_source.value(m_sourceKey).isNull())
        m_source.moveNext();
    while (m_target.hasCurrent() && m_target.value(m_targetKey).isNull())
        m_target.moveNext();
}

bool PartWalk::next(const KeepGoing& keepGoing)
{
    while (m_parts.records.isEmpty() ? advance() : takeNextRecord()) {
        stopUnless(keepGoing);
        if (describe())
            return true;
    }
    return false;
}

bool PartWalk::takeNextRecord()
{
    if (m_nextRecord == m_parts.records.size())
        return false;
    const QString& record = m_parts.records[m_nextRecord++];
    m_hasSource = m_source.seek(store::Seek::Equal, Value::text(record));
    if (!m_hasSource) {
        throw RuntimeFailure(Failure::RecordDeleted,
                             u"The record %1 of %2 was deleted meanwhile."_s.arg(record, m_table));
    }
    m_hasTarget = m_target.seek(store::Seek::Equal, Value::text(record));
    return true;
}

bool PartWalk::advance()
{
    if (m_isStarted) {
        leave();
    } else {
        skipKeyless();
    }
    const int which = order();
    m_hasSource = m_source.hasCurrent() && which <= 0;
    m_hasTarget = m_target.hasCurrent() && which >= 0;
    ++m_position;
    return m_hasSource || m_hasTarget;
}

void PartWalk::leave()
{
    if (m_hasSource)
        m_source.moveNext();
    if (m_hasTarget)
        m_target.moveNext();
}

/// @return less than 0 if the source's record is next, more than 0 if the target's is, 0 for both
int PartWalk::order() const
{
    if (!m_source.hasCurrent() || !m_target.hasCurrent())
        return static_cast<int>(m_target.hasCurrent()) - static_cast<int>(m_source.hasCurrent());
    return m_isCounted ? 0 : compareKeys(m_source.value(m_sourceKey), m_target.value(m_targetKey));
}

bool PartWalk::describe()
{
    const Value& number = key();
    m_number = m_isCounted ? m_position : number.isText() ? 0 : static_cast<int>(number.toNumber());
    m_change.fields.clear();
    m_change.kind = !m_hasTarget ? ChangeKind::New : !m_hasSource ? ChangeKind::Gone : ChangeKind::Changed;
    if (m_change.kind == ChangeKind::New) {
        listRefused();
    } else if (m_change.kind == ChangeKind::Changed) {
        compareFields();
        if (m_change.fields.isEmpty())
            return false;
    }
    m_change.record = m_isCounted ? QString::number(m_position) : shownKey(keyOf(m_table), number.toText());
    m_change.text = text();
    m_change.refusal = refusalOfRecord(m_table, m_number, m_from.model, m_to.model);
    return true;
}

void PartWalk::compareFields()
{
    for (const Column& column : m_columns) {
        if (!isSame(column)) {
            m_change.fields << FieldChange{
                column.name, shownValue(column.type, column.isPrice, m_target.value(column.target)),
                shownValue(column.type, column.isPrice, m_source.value(column.source)),
                refusalOfDifferent(column)};
        }
    }
}

/// Empty values make no difference in a new record.
void PartWalk::listRefused()
{
    for (const Column& column : m_columns) {
        const QString refusal = refusalOf(column);
        if (refusal.isEmpty() || isEmpty(m_source.value(column.source)))
            continue;
        const QString after = shownValue(column.type, column.isPrice, m_source.value(column.source));
        m_change.fields << FieldChange{column.name, {}, after, refusal};
    }
}

bool PartWalk::isSame(const Column& column) const
{
    return isSameOf(column.type, column.isPrice, m_source.value(column.source),
                    m_target.value(column.target));
}

QString PartWalk::refusalOf(const Column& column) const
{
    if (m_from.model.place == m_to.model.place)
        return {};
    QString text = m_source.value(column.source).toText();
    while (text.endsWith(u' '))
        text.chop(1);
    return refusalOfField({m_table, column.name, m_number, text}, m_from.model, m_to.model);
}

QString PartWalk::refusalOfDifferent(const Column& column) const
{
    QString refusal = refusalOf(column);
    if (refusal.isEmpty() && m_parts.refusal) {
        refusal = m_parts.refusal({m_table, column.name, targetKey(), m_source.value(column.source),
                                   m_target.value(column.target)});
    }
    return refusal;
}

const Value& PartWalk::key() const
{
    return m_hasSource ? m_source.value(m_sourceKey) : m_target.value(m_targetKey);
}

QString PartWalk::text() const
{
    for (const Column& column : m_columns) {
        if (column.type == FieldType::Text && !column.isPrice) {
            const Value& value = m_hasSource ? m_source.value(column.source) : m_target.value(column.target);
            return value.toText().trimmed();
        }
    }
    return {};
}

void PartWalk::forEachCopiedField(
    const std::function<void(const QString& field, const Value& value)>& take) const
{
    const bool isNew = m_change.kind == ChangeKind::New;
    if (isNew && !m_isCounted)
        take(m_target.field(m_targetKey).name, m_source.value(m_sourceKey));
    for (const Column& column : m_columns) {
        const auto listed = std::ranges::find(m_change.fields, column.name, &FieldChange::field);
        const bool isStored = listed == m_change.fields.end() ? isNew : listed->refusal.isEmpty();
        if (isStored)
            take(column.name, m_source.value(column.source));
    }
}

} // namespace norvane::programme
