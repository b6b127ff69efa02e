// What a recordset holds; shared by Recordset.cpp and Database.cpp, which opens recordsets.
#pragma once

#include "store/engine/Recordset.h"
#include "store/engine/ResultCursor.h"
#include "store/engine/RowWriter.h"
#include "store/engine/TableCursor.h"

#include <memory>
#include <vector>

namespace norvane::store
{

class Recordset::Private
{
public:
    Private(Connection& connection, std::shared_ptr<const TableShape> table);
    Private(Connection& connection, const QString& query);

    enum class Place {
        OnRecord,
        Deleted,     ///< the record was deleted; its place still leads to the next and previous ones
        AtBeginning, ///< before the first
        AtEnd,       ///< after the last
        Empty,       ///< no records: at the beginning and at the end
        Undefined,   ///< after a seek that found nothing
    };

    void moved(bool found, Place otherwise);
    void abandonEdit();
    [[nodiscard]] TableCursor& indexed() const;
    [[nodiscard]] const IndexDefinition& indexNamed(const QString& name) const;
    [[nodiscard]] ResultCursor& result() const;
    void needRecord() const;
    void needWriter() const;
    [[noreturn]] void failNoRecord() const;

    std::shared_ptr<const TableShape> shape; ///< the fields of a record
    std::unique_ptr<Cursor> cursor;
    TableCursor* tableCursor = nullptr;   ///< the cursor, when it walks a table by index
    ResultCursor* resultCursor = nullptr; ///< the cursor, when it walks a query's rows
    std::unique_ptr<RowWriter> writer;    ///< nullptr if rows cannot be changed
    Place place = Place::Empty;
    EditMode mode = EditMode::None;
    std::vector<Value> edited; ///< the record being edited or added
    QString indexName;

private:
    void openRows(Connection& connection, const QString& query);
};

} // namespace norvane::store
