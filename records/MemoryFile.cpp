// See MemoryFile.h.
#include "records/MemoryFile.h"

#include "base/CustomerSettings.h"
#include "records/ImportTransaction.h"
#include "records/RecordLayouts.h"
#include "records/TextImport.h"
#include "register/Firmware.h"
#include "store/engine/CommitOnExit.h"

using namespace Qt::Literals::StringLiterals;

namespace norvane::records
{
namespace
{

/// Not in the catalogue: no box of an exchange stands for it, and its binary file has a name of its own.
constexpr RegisterFile memoryFile{52,
                                  "memoryallocation",
                                  nullptr,
                                  nullptr,
                                  "u52",
                                  nullptr,
                                  EmptyTable::Fails,
                                  Upload::ReplacesTable,
                                  memoryAllocationLayout};
constexpr auto newerOperation = "u352"_L1;

QString conversionLine(const ProcedureContext& context)
{
    const bool isOlder = GetFirmwareGeneration(context.values.appPath, context.boxes) == olderGeneration;
    return u"convert w%1 fMEM.dat t52.txt %2"_s.arg(
        GetModelCode(context.values), isOlder ? QLatin1String(memoryFile.importOperation) : newerOperation);
}

} // namespace

bool FileMemory(const ProcedureContext& context)
{
    if (!context.convert({conversionLine(context), textName(memoryFile),
                          u"The memory allocation would be read from it, though it may be another "
                          u"register's."_s}))
        return false;
    store::Database database(context.values.databasePath);
    store::CommitOnExit transaction(database);
    ImportCounts counts;
    importOrPutBack(
        transaction, context.boxes, [&] { return keepQuestion(memoryFile, counts); },
        [&] { importText(memoryFile, database, context, counts); });
    transaction.commit();
    return true;
}

} // namespace norvane::records
