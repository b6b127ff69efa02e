// See RegisterLines.h.
#include "records/RegisterLines.h"

#include "records/RecordWriter.h"

namespace norvane::records
{

std::string forEachLine(const RegisterFile& file, store::Database& database, const RegisterTraits& traits,
                        const TakeLine& take)
{
    store::Recordset records = database.openTable(QLatin1String(file.table));
    records.setIndex(QLatin1String(file.index));
    records.moveFirst();
    RecordWriter writer(file.layout(), records, traits);
    records.readOnly(writer.fields());
    std::string line;
    for (; !records.atEnd(); records.moveNext()) {
        line.clear();
        writer.appendLine(line);
        take(line, records);
    }
    return writer.textWithComma();
}

} // namespace norvane::records
