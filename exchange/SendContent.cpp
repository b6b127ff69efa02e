// See SendContent.h.
#include "exchange/SendContent.h"

#include "base/CustomerSettings.h"
#include "exchange/KeptFiles.h"
#include "platform/FilePaths.h"
#include "platform/RuntimeFailure.h"
#include "platform/SilentBoxes.h"
#include "records/FileProcedures.h"
#include "records/RegisterLines.h"
#include "register/Firmware.h"

#include <algorithm>

namespace norvane::exchange
{
namespace
{

qint64 recordCount(store::Database& database, const records::RegisterFile& file)
{
    return database.openTable(QLatin1String(file.table)).recordCount();
}

} // namespace

int generationIn(const QString& folder)
{
    try {
        SilentBoxes boxes;
        return GetFirmwareGeneration(folder, boxes);
    } catch (const RuntimeFailure&) {
        return -1;
    }
}

records::RegisterTraits sendTraits(const ApplicationValues& values, int generation)
{
    const auto width = [&values, known = 0]() mutable {
        if (known == 0)
            known = registerModel(values).messageWidth;
        return static_cast<std::size_t>(known);
    };
    return {width, [generation] {
                return generation;
            }};
}

std::optional<Digests> keptContent(const ApplicationValues& values, int file)
{
    const QString path = joinPath(values.customerPath, dataFile(file));
    const QByteArray bytes = pathExists(path) ? readWholeFile(path) : QByteArray();
    if (bytes.isEmpty())
        return std::nullopt;
    return Digests{digestOf({bytes.data(), static_cast<std::size_t>(bytes.size())})};
}

void forEachSendLine(const ApplicationValues& values, store::Database& database, const SendLines& lines,
                     const std::function<void(std::uint64_t line, const store::Value& key)>& take)
{
    const records::RegisterFile& file = *records::registerFile(lines.file);
    if (recordCount(database, file) == 0)
        return;
    LineDigester digester(file.number);
    const store::Value none;
    const auto takeLine = [&](std::string_view line, const store::Recordset& record) {
        take(digester.next(line), lines.keyField.isEmpty() ? none : record.value(lines.keyField));
    };
    records::forEachLine(file, database, sendTraits(values, lines.generation), takeLine, lines.keyField);
}

std::optional<Digests> sendContent(const ApplicationValues& values, store::Database& database, int file,
                                   int generation)
{
    if (!records::hasExporter(file))
        return keptContent(values, file);
    Digests lines;
    forEachSendLine(values, database, {file, generation},
                    [&lines](std::uint64_t line, const auto&) { lines.push_back(line); });
    if (lines.empty())
        return std::nullopt;
    std::ranges::sort(lines);
    return lines;
}

qint64 sendLines(const ApplicationValues& values, store::Database& database, int file)
{
    if (!records::hasExporter(file))
        return keptContent(values, file) ? 1 : 0;
    return recordCount(database, *records::registerFile(file));
}

} // namespace norvane::exchange
