// See RegisterLines.h.
#include "records/RegisterLines.h"

#include "records/RecordWriter.h"

#include <vector>

namespace norvane::records
{

std::string forEachLine(const RegisterFile& file, store::Database& database, const RegisterTraits& traits,
                        const TakeLine& take, const QString& alsoRead)
{
    store::Recordset records = database.openTable(QLatin1String(file.table));
    records.setIndex(QLatin1String(file.index));
    records.moveFirst();
    RecordWriter writer(file.layout(), records, traits);
    std::vector<int> fields = writer.fields();
    if (!alsoRead.isEmpty())
        fields.push_back(records.fieldOrdinal(alsoRead));
    records.readOnly(fields);
    std::string line;
    for (; !records.atEnd(); records.moveNext()) {
        line.clear();
        writer.appendLine(line);
        take(line, records);
    }
    return writer.textWithComma();
}

} // namespace norvane::records
