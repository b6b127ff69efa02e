// See SendContent.h.
#include "exchange/SendContent.h"

#include "base/CustomerSettings.h"
#include "exchange/KeptFiles.h"
#include "platform/FilePaths.h"
#include "records/FileProcedures.h"
#include "records/RegisterLines.h"

#include <algorithm>

namespace norvane::exchange
{
namespace
{

qint64 recordCount(store::Database& database, const records::RegisterFile& file)
{
    return database.openTable(QLatin1String(file.table)).recordCount();
}

Digests linesOf(const ApplicationValues& values, store::Database& database, const records::RegisterFile& file,
                int generation)
{
    Digests lines;
    LineDigester digester(file.number);
    const auto width = static_cast<std::size_t>(registerModel(values).messageWidth);
    records::forEachLine(file, database,
                         {[width] { return width; },
                          [generation] {
                              return generation;
                          }},
                         [&](std::string_view line, const auto&) { lines.push_back(digester.next(line)); });
    std::ranges::sort(lines);
    return lines;
}

} // namespace

std::optional<Digests> keptContent(const ApplicationValues& values, int file)
{
    const QString path = joinPath(values.customerPath, dataFile(file));
    const QByteArray bytes = pathExists(path) ? readWholeFile(path) : QByteArray();
    if (bytes.isEmpty())
        return std::nullopt;
    return Digests{digestOf({bytes.data(), static_cast<std::size_t>(bytes.size())})};
}

std::optional<Digests> sendContent(const ApplicationValues& values, store::Database& database, int file,
                                   int generation)
{
    if (!records::hasExporter(file))
        return keptContent(values, file);
    const records::RegisterFile& known = *records::registerFile(file);
    if (recordCount(database, known) == 0)
        return std::nullopt;
    return linesOf(values, database, known, generation);
}

qint64 sendLines(const ApplicationValues& values, store::Database& database, int file)
{
    if (!records::hasExporter(file))
        return keptContent(values, file) ? 1 : 0;
    return recordCount(database, *records::registerFile(file));
}

} // namespace norvane::exchange
