// Operations of a screen on its table; see RecordEditor.h.
#include "screens/RecordEditor.h"

#include "platform/FailurePlace.h"
#include "register/PluNumber.h"
#include "screens/FieldContents.h"
#include "store/engine/ShortWait.h"

#include <algorithm>
#include <array>

using namespace Qt::Literals::StringLiterals;

namespace norvane::screens
{
namespace
{

/// Runs @p act and names the screen file in its failure: most failures are slips in that file.
template <typename Act>
decltype(auto) namingFile(const QString& file, Act act)
{
    const auto explain = [&](const QString& text) {
        return u"%1 (%2)"_s.arg(text, file);
    };
    return atPlace(explain, act);
}

using KindOrder = std::array<ControlKind, 5>;
constexpr KindOrder showOrder{ControlKind::Text, ControlKind::Combo, ControlKind::Integer,
                              ControlKind::Decimal, ControlKind::Check};
constexpr KindOrder saveOrder{ControlKind::Text, ControlKind::Combo, ControlKind::Decimal,
                              ControlKind::Integer, ControlKind::Check};

/// The kinds one after the other; controls without a field are left out.
template <typename Fields, typename Act>
void forEachBound(Fields& fields, const KindOrder& order, Act act)
{
    for (const ControlKind kind : order) {
        for (auto& field : fields) {
            if (field.kind == kind && !field.dataField.trimmed().isEmpty())
                act(field);
        }
    }
}

} // namespace

/// Runs @p act. When it fails because the table is empty, the failure names that table.
template <typename Act>
decltype(auto) RecordEditor::needingRecords(Act act)
{
    try {
        return act();
    } catch (const RuntimeFailure& failure) {
        if (failure.failure() != Failure::NoCurrentRecord || !isEmpty())
            throw;
        throw RuntimeFailure(
            failure.failure(),
            u"The table %1 is empty. Upload its file from the ECR first."_s.arg(m_table.table));
    }
}

RecordEditor::RecordEditor(std::shared_ptr<store::Database> database, ScreenTable table, QString screenFile)
    : m_database(std::move(database)), m_table(std::move(table)), m_screenFile(std::move(screenFile)),
      m_records(namingFile(m_screenFile, [&] { return m_database->openTable(m_table.table); }))
{
    namingFile(m_screenFile, [&] { m_records.setIndex(m_table.firstIndex); });
}

void RecordEditor::showFields(BoundFields& fields)
{
    const auto showField = [this](BoundField& field) {
        field.content = shownValue(field, m_records.value(field.dataField));
    };
    needingRecords([&] { namingFile(m_screenFile, [&] { forEachBound(fields, showOrder, showField); }); });
    remember();
}

void RecordEditor::remember()
{
    m_seen.clear();
    for (int field = 0; m_records.hasCurrent() && field < m_records.fieldCount(); ++field)
        m_seen.push_back(m_records.value(field));
}

bool RecordEditor::isEmpty() const
{
    return !isAdding() && m_records.recordCount() == 0;
}

void RecordEditor::showNothing(BoundFields& fields)
{
    forEachBound(fields, showOrder, [](BoundField& field) { field.content = blankValue(field.kind); });
    m_seen.clear();
}

void RecordEditor::add(BoundFields& fields)
{
    showNothing(fields);
    m_records.addNew();
}

void RecordEditor::copyUnshown(const std::vector<store::Value>& record, const BoundFields& shown)
{
    QStringList bound{searchedField(1).name};
    for (const BoundField& field : shown)
        bound += field.dataField.trimmed();
    for (int ordinal = 0; ordinal < static_cast<int>(record.size()); ++ordinal) {
        if (!bound.contains(m_records.field(ordinal).name, Qt::CaseInsensitive))
            m_records.setValue(ordinal, store::Value(record[static_cast<std::size_t>(ordinal)]));
    }
    m_seen = record;
}

/// Reads the record again, even if an earlier save was refused and has left its edit open.
void RecordEditor::beginEdit()
{
    if (isAdding())
        return;
    m_records.cancelUpdate();
    m_records.edit();
}

bool RecordEditor::isOverwritten(const BoundField& field) const
{
    const int ordinal = m_records.fieldOrdinal(field.dataField);
    const store::Value& now = m_records.value(ordinal);
    return !field.readOnly && now != m_seen.at(static_cast<std::size_t>(ordinal)) &&
           (now.isNull() || shownValue(field, now).toText() != field.content.toText());
}

bool RecordEditor::wouldOverwrite(const BoundFields& fields)
{
    if (isAdding() || m_seen.empty() || !reread())
        return false;
    return std::any_of(fields.cbegin(), fields.cend(), [this](const BoundField& field) {
        return !field.dataField.trimmed().isEmpty() && isOverwritten(field);
    });
}

bool RecordEditor::isNumber(const BoundField& field) const
{
    return field.dataField.trimmed().compare(searchedField(1).name, Qt::CaseInsensitive) == 0;
}

const store::Value& RecordEditor::numberIn(const std::vector<store::Value>& record) const
{
    static const store::Value none;
    const int ordinal = m_records.fieldOrdinal(searchedField(1).name);
    return record.empty() ? none : record.at(static_cast<std::size_t>(ordinal));
}

std::optional<NewNumber> RecordEditor::newNumber(const BoundFields& fields)
{
    const store::ShortWait wait(*m_database);
    const auto typed = std::ranges::find_if(
        fields, [this](const auto& field) { return !field.readOnly && isNumber(field); });
    const store::Value before = numberIn(m_seen);
    if (isAdding() || typed == fields.end() || before.isNull() || !reread())
        return {};
    const auto& definition = searchedField(1);
    const auto filled = [&](const store::Value& value) {
        return isPluNumberField(definition.name) ? store::Value::text(fittedPluNumber(value.toText()))
                                                 : value;
    };
    const store::Value after = filled(valueToStore(*typed, definition));
    if (after.toText() == filled(before).toText() || hasRecord(m_table.firstIndex, store::Seek::Equal, after))
        return {};
    return NewNumber{before, after};
}

void RecordEditor::restoreNumber(BoundFields& fields) const
{
    for (BoundField& field : fields) {
        if (isNumber(field))
            field.content = shownValue(field, numberIn(m_seen));
    }
}

std::optional<RuntimeFailure> RecordEditor::save(BoundFields& fields)
{
    const store::ShortWait wait(*m_database);
    try {
        storeFields(fields);
        return std::nullopt;
    } catch (const RuntimeFailure& failure) {
        return failure;
    }
}

void RecordEditor::storeFields(BoundFields& fields)
{
    beginEdit();
    forEachBound(fields, saveOrder, [this](BoundField& field) { storeField(field); });
    m_records.update();
    remember();
}

void RecordEditor::storeField(BoundField& field)
{
    if (field.kind == ControlKind::Text && isPluNumberField(field.dataField))
        field.content = store::Value::text(fittedPluNumber(field.content.toText()));
    if (field.readOnly)
        return;
    const int ordinal = m_records.fieldOrdinal(field.dataField);
    m_records.setValue(ordinal, valueToStore(field, m_records.field(ordinal)));
}

void RecordEditor::deleteRecord()
{
    if (isAdding()) {
        // The user sees the new record, so it is deleted; the stored record is kept.
        m_records.cancelUpdate();
    } else {
        deleteCurrent();
    }
    goToFirst();
}

void RecordEditor::deleteCurrent()
{
    try {
        m_records.deleteRecord();
    } catch (const RuntimeFailure& failure) {
        // Another screen was first: the record is already deleted, as the user asked.
        if (failure.failure() != Failure::RecordDeleted)
            throw;
    }
}

bool RecordEditor::isStillThere()
{
    try {
        beginEdit();
        m_records.cancelUpdate();
        return true;
    } catch (const RuntimeFailure&) {
        if (m_records.hasCurrent())
            throw;
        return false;
    }
}

bool RecordEditor::reread()
{
    const store::ShortWait wait(*m_database);
    try {
        if (isStillThere())
            return true;
        if (!m_seen.empty())
            return goBackTo(m_seen);
        m_records.moveFirst();
        return true;
    } catch (const RuntimeFailure&) {
        return false; // what needs the record next reports it
    }
}

void RecordEditor::goToFirst()
{
    needingRecords([this] { m_records.moveFirst(); });
}

bool RecordEditor::goBackTo(const std::vector<store::Value>& seen)
{
    const store::Value key = numberIn(seen);
    if (seen.empty() || !hasRecord(m_table.firstIndex, store::Seek::Equal, key))
        return false;
    const QString order = m_records.index();
    m_records.changeOrder(m_table.firstIndex);
    const bool found = m_records.seek(store::Seek::Equal, key);
    m_records.changeOrder(order);
    return found;
}

bool RecordEditor::next()
{
    return needingRecords([this] {
        m_records.moveNext();
        if (!m_records.atEnd())
            return true;
        m_records.moveLast();
        return false;
    });
}

bool RecordEditor::previous()
{
    return needingRecords([this] {
        m_records.movePrevious();
        if (!m_records.atBeginning())
            return true;
        m_records.moveFirst();
        return false;
    });
}

const QString& RecordEditor::indexOf(int button) const
{
    return button == 2 ? m_table.secondIndex : m_table.firstIndex;
}

const store::FieldDefinition& RecordEditor::searchedField(int button) const
{
    const auto indexes = m_database->table(m_table.table).indexes;
    const auto index = std::find_if(indexes.cbegin(), indexes.cend(), [&](const auto& known) {
        return known.names.contains(indexOf(button), Qt::CaseInsensitive);
    });
    const QString field = index == indexes.cend() ? QString() : index->field;
    return namingFile(m_screenFile, [&]() -> const store::FieldDefinition& {
        return m_records.field(m_records.fieldOrdinal(field));
    });
}

QString RecordEditor::key() const
{
    if (isAdding() || !m_records.hasCurrent())
        return {};
    return m_records.value(searchedField(1).name).toText();
}

/// On a separate recordset: a search without result would lose the position.
bool RecordEditor::hasRecord(const QString& index, store::Seek comparison, const store::Value& key) const
{
    store::Recordset records = m_database->openTable(m_table.table);
    records.setIndex(index);
    try {
        return records.seek(comparison, key);
    } catch (const RuntimeFailure& failure) {
        if (failure.failure() != Failure::Conversion)
            throw;
        return false; // "two" is not a key among numbers
    }
}

FindOutcome RecordEditor::find(int button, const QString& text)
{
    const QString& index = indexOf(button);
    namingFile(m_screenFile, [&] { m_records.changeOrder(index); });
    const auto key = store::Value::text(isPluNumberField(index) ? fittedPluNumber(text) : text);
    if (!hasRecord(index, store::Seek::AtOrAfter, key) || !m_records.seek(store::Seek::AtOrAfter, key))
        return FindOutcome::Nothing;
    return text.isEmpty() || isAt(searchedField(button), key) ? FindOutcome::Found : FindOutcome::Next;
}

/// A user who looks for a name types its beginning.
bool RecordEditor::isAt(const store::FieldDefinition& field, const store::Value& key) const
{
    if (field.type != store::FieldType::Text || isPluNumberField(field.name))
        return hasRecord(m_records.index(), store::Seek::Equal, key);
    return m_records.value(field.name).toText().startsWith(key.toText(), Qt::CaseInsensitive);
}

} // namespace norvane::screens
