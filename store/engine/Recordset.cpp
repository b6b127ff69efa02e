// Places and edits of a recordset; the walking itself is done by its cursor. See Recordset.h.
#include "store/engine/Recordset.h"

#include "platform/RuntimeFailure.h"
#include "store/engine/FieldConversion.h"
#include "store/engine/RecordsetPrivate.h"
#include "store/engine/SqlTranslation.h"

using namespace Qt::Literals::StringLiterals;

namespace norvane::store
{
namespace
{

/// The fields of a query's rows: those of tables as they are defined, computed ones as texts without a limit.
struct Columns {
    TableDefinition definition;
    std::vector<std::optional<FieldType>> types;
    QString table;     ///< the table of the first column
    bool plain = true; ///< every column is a field of that table under its own name
};

const FieldDefinition* originOf(Connection& connection, const PreparedStatement& select, int column)
{
    const auto shape = connection.findShape(select.originTable(column));
    const auto ordinal = shape ? shape->ordinal(select.originField(column)) : std::nullopt;
    // The shape remains in the database's cache.
    return ordinal ? &shape->definition().fields.at(*ordinal) : nullptr;
}

Columns columnsOf(Connection& connection, const PreparedStatement& select, const QString& query)
{
    Columns columns{{query, {}, {}}, {}, select.originTable(0)};
    for (int i = 0; i < select.columnCount(); ++i) {
        const auto* origin = originOf(connection, select, i);
        FieldDefinition field = origin ? *origin : FieldDefinition{};
        columns.plain = columns.plain && origin && select.originTable(i) == columns.table &&
                        origin->name.compare(select.columnName(i), Qt::CaseInsensitive) == 0;
        field.name = select.columnName(i);
        columns.types.push_back(origin ? std::optional(origin->type) : std::nullopt);
        columns.definition.fields.append(field);
    }
    return columns;
}

} // namespace

Recordset::Private::Private(Connection& connection, std::shared_ptr<const TableShape> table)
    : shape(std::move(table)), writer(std::make_unique<RowWriter>(connection, shape))
{
    auto walk = std::make_unique<TableCursor>(connection, shape);
    tableCursor = walk.get();
    cursor = std::move(walk);
    if (tableCursor->index())
        indexName = tableCursor->index()->names.value(0);
    moved(cursor->first(), Place::Empty);
}

Recordset::Private::Private(Connection& connection, const QString& query)
{
    openRows(connection, query);
    moved(cursor->first(), Place::Empty);
}

void Recordset::Private::openRows(Connection& connection, const QString& query)
{
    const auto sql = translateSql(query);
    PreparedStatement select(connection.handle(), sql.sql.toStdString(), query);
    if (!select.onlyReads() || select.columnCount() == 0)
        throw RuntimeFailure(Failure::UnknownNameInQuery, u"No query: %1"_s.arg(query));
    auto columns = columnsOf(connection, select, query);
    std::unique_ptr<ResultCursor> rows;
    if (columns.plain && !sql.withRowId.isEmpty()) {
        columns.definition.name = columns.table;
        shape = std::make_shared<const TableShape>(std::move(columns.definition));
        PreparedStatement keys(connection.handle(), sql.withRowId.toStdString(), query);
        rows = std::make_unique<RowsOfTable>(connection, keys, shape);
        writer = std::make_unique<RowWriter>(connection, shape);
    } else {
        shape = std::make_shared<const TableShape>(std::move(columns.definition));
        rows = std::make_unique<RowsInMemory>(select, columns.types);
    }
    resultCursor = rows.get();
    cursor = std::move(rows);
}

void Recordset::Private::moved(bool found, Place otherwise)
{
    place = found ? Place::OnRecord : otherwise;
}

void Recordset::Private::abandonEdit()
{
    mode = EditMode::None;
}

void Recordset::Private::failNoRecord() const
{
    throw RuntimeFailure(Failure::NoCurrentRecord, u"No current record. (%1)"_s.arg(shape->name()));
}

void Recordset::Private::needRecord() const
{
    if (place == Place::Deleted)
        throw RuntimeFailure(Failure::RecordDeleted, u"Record is deleted. (%1)"_s.arg(shape->name()));
    if (place != Place::OnRecord)
        failNoRecord();
}

void Recordset::Private::needWriter() const
{
    if (!writer) {
        throw RuntimeFailure(Failure::ReadOnlyRecords,
                             u"The records cannot be changed. (%1)"_s.arg(shape->name()));
    }
}

TableCursor& Recordset::Private::indexed() const
{
    if (!tableCursor || !tableCursor->index()) {
        throw RuntimeFailure(Failure::EngineFailure,
                             u"There is no index to seek by. (%1)"_s.arg(shape->name()));
    }
    return *tableCursor;
}

const IndexDefinition& Recordset::Private::indexNamed(const QString& name) const
{
    const auto* index = tableCursor ? shape->index(name) : nullptr;
    if (!index) {
        throw RuntimeFailure(Failure::UnknownName,
                             u"Item not found: %1 has no index %2."_s.arg(shape->name(), name));
    }
    return *index;
}

ResultCursor& Recordset::Private::result() const
{
    if (!resultCursor) {
        throw RuntimeFailure(Failure::EngineFailure,
                             u"The records of a table have no numbers. (%1)"_s.arg(shape->name()));
    }
    return *resultCursor;
}

Recordset::Recordset(std::unique_ptr<Private> implementation) : d(std::move(implementation)) {}
Recordset::Recordset(Recordset&& other) noexcept = default;
Recordset& Recordset::operator=(Recordset&& other) noexcept = default;
Recordset::~Recordset() = default;

void Recordset::setIndex(const QString& name)
{
    const IndexDefinition& index = d->indexNamed(name);
    d->abandonEdit();
    d->tableCursor->setIndex(&index);
    d->indexName = name;
    d->moved(d->cursor->first(), Private::Place::Empty);
}

void Recordset::changeOrder(const QString& name)
{
    d->tableCursor->changeOrder(d->indexNamed(name));
    d->indexName = name;
}

void Recordset::readOnly(const std::vector<int>& fields)
{
    d->indexed().limitTo(fields);
    d->abandonEdit();
    d->writer.reset();
    d->moved(d->cursor->first(), Private::Place::Empty);
}

QString Recordset::index() const
{
    return d->indexName;
}

void Recordset::moveFirst()
{
    d->abandonEdit();
    d->moved(d->cursor->first(), Private::Place::Empty);
    d->needRecord();
}

void Recordset::moveLast()
{
    d->abandonEdit();
    d->moved(d->cursor->last(), Private::Place::Empty);
    d->needRecord();
}

void Recordset::moveNext()
{
    using enum Private::Place;
    d->abandonEdit();
    if (d->place == OnRecord || d->place == Deleted) {
        d->moved(d->cursor->next(), AtEnd);
    } else if (d->place == AtBeginning) {
        d->moved(d->cursor->first(), Empty);
    } else {
        d->failNoRecord();
    }
}

void Recordset::movePrevious()
{
    using enum Private::Place;
    d->abandonEdit();
    if (d->place == OnRecord || d->place == Deleted) {
        d->moved(d->cursor->previous(), AtBeginning);
    } else if (d->place == AtEnd) {
        d->moved(d->cursor->last(), Empty);
    } else {
        d->failNoRecord();
    }
}

bool Recordset::moveTo(qint64 position)
{
    d->abandonEdit();
    d->moved(d->result().moveTo(position), Private::Place::Undefined);
    return hasCurrent();
}

bool Recordset::atEnd() const
{
    return d->place == Private::Place::AtEnd || d->place == Private::Place::Empty;
}

bool Recordset::atBeginning() const
{
    return d->place == Private::Place::AtBeginning || d->place == Private::Place::Empty;
}

bool Recordset::hasCurrent() const
{
    return d->place == Private::Place::OnRecord;
}

qint64 Recordset::recordCount() const
{
    return d->cursor->count();
}

bool Recordset::isUpdatable() const
{
    return d->writer != nullptr;
}

bool Recordset::seek(Seek comparison, const Value& key)
{
    d->abandonEdit();
    d->moved(d->indexed().seek(comparison, key), Private::Place::Undefined);
    return hasCurrent();
}

void Recordset::addNew()
{
    d->needWriter();
    if (d->resultCursor) {
        throw RuntimeFailure(Failure::ReadOnlyRecords,
                             u"A query takes no new records. (%1)"_s.arg(d->shape->name()));
    }
    d->shape->fillNew(d->edited);
    d->mode = EditMode::Adding;
}

void Recordset::edit()
{
    d->needWriter();
    d->needRecord();
    if (d->mode == EditMode::Editing)
        return;
    d->abandonEdit();
    if (!d->cursor->reread()) {
        d->place = Private::Place::Deleted;
        d->needRecord();
    }
    d->edited = d->cursor->row().values;
    d->mode = EditMode::Editing;
}

void Recordset::update()
{
    if (d->mode == EditMode::None)
        d->failNoRecord();
    if (d->mode == EditMode::Adding) {
        const auto rowId = d->writer->insert(d->edited);
        d->tableCursor->rowAdded(d->edited, rowId);
        d->place = Private::Place::OnRecord;
    } else {
        const auto& row = d->cursor->row();
        d->writer->update(row.rowId, row.values, d->edited);
        d->cursor->rowStored(d->edited);
    }
    d->abandonEdit();
}

void Recordset::cancelUpdate()
{
    d->abandonEdit();
}

void Recordset::deleteRecord()
{
    d->needWriter();
    d->needRecord();
    d->abandonEdit();
    d->writer->remove(d->cursor->row().rowId);
    d->place = Private::Place::Deleted;
    d->cursor->rowDeleted();
}

EditMode Recordset::editMode() const
{
    return d->mode;
}

int Recordset::fieldCount() const
{
    return static_cast<int>(d->shape->definition().fields.size());
}

const FieldDefinition& Recordset::field(int ordinal) const
{
    return d->shape->definition().fields.at(ordinal);
}

int Recordset::fieldOrdinal(const QString& name) const
{
    const auto ordinal = d->shape->ordinal(name);
    if (!ordinal) {
        throw RuntimeFailure(Failure::UnknownName,
                             u"Item not found: %1 has no field %2."_s.arg(d->shape->name(), name));
    }
    return *ordinal;
}

const Value& Recordset::value(int ordinal) const
{
    if (d->mode != EditMode::None)
        return d->edited.at(static_cast<std::size_t>(ordinal));
    d->needRecord();
    return d->cursor->row().values.at(static_cast<std::size_t>(ordinal));
}

void Recordset::setValue(int ordinal, Value&& value)
{
    if (d->mode == EditMode::None)
        d->failNoRecord();
    convertToField(value, d->shape->definition().fields.at(ordinal), d->shape->name());
    d->edited.at(static_cast<std::size_t>(ordinal)) = std::move(value);
}

} // namespace norvane::store
