// convert: turns a register's binary file into comma text and back, and collected reports into text. The exit
// code is not zero when anything does not fit; the target is then left as it was.
#include "tools/bank/Bank.h"
#include "tools/bank/FaultList.h"
#include "tools/bank/Files.h"
#include "tools/bank/Layout.h"
#include "tools/bank/RegisterFile.h"
#include "tools/bank/Reports.h"
#include "tools/bank/TextRecords.h"
#include "tools/bank/ToolFailure.h"
#include "tools/convert/Operation.h"

#include <QCoreApplication>
#include <QDir>

#include <cstdio>

using namespace Qt::Literals::StringLiterals;

namespace
{

using namespace bank;

QByteArray toText(const Operation& operation, const QByteArray& bytes)
{
    const bool memory = operation.code == newerMemoryCode;
    const auto file = fromBytes(bytes, memory ? memoryFile : operation.code, operation.model);
    const auto columns = columnsOf(operation.code, operation.model);
    if (file.recordLength != packedLength(columns)) {
        throw ToolFailure(FileSizeMismatch, u"records of %1 bytes, %2 expected by %3"_s.arg(file.recordLength)
                                                .arg(packedLength(columns))
                                                .arg(operation.word));
    }
    return unpackText(file.records, columns);
}

QByteArray toBinary(const Operation& operation, const QByteArray& text)
{
    const auto columns = columnsOf(operation.code, operation.model);
    return toBytes({operation.code, operation.model, packedLength(columns), packText(text, columns)});
}

QByteArray converted(const Operation& operation, const QByteArray& source)
{
    switch (operation.direction) {
    case Operation::Direction::ToText:
        return toText(operation, source);
    case Operation::Direction::ToBinary:
        return toBinary(operation, source);
    case Operation::Direction::ReportToText:
        break;
    }
    return reportText(fromBytes(source, operation.code, operation.model));
}

QString place(const Operation& operation, const TextFault& fault)
{
    const auto line = u"%1, line %2"_s.arg(operation.source).arg(fault.line());
    return fault.column() == 0 ? line : line + u", column %1"_s.arg(fault.column());
}

void obeyFaults(const Operation& operation)
{
    const auto found = Bank::find(QCoreApplication::applicationDirPath());
    if (!found)
        return;
    const int file = operation.code == newerMemoryCode ? memoryFile : operation.code;
    const auto fault = dueFault(found->folder(), {u"convert"_s, operation.word, file});
    if (!fault)
        return;
    suffer(*fault);
    if (fault->result != Done)
        throw ToolFailure(fault->result, u"fault file: %1 fails"_s.arg(operation.word));
}

void run(const Operation& operation)
{
    obeyFaults(operation);
    const QString folder = QDir::currentPath();
    const auto source = readFile(pathOf(folder, operation.source));
    try {
        writeFile(pathOf(folder, operation.target), converted(operation, source));
    } catch (const TextFault& fault) {
        throw ToolFailure(FileInformationWrong,
                          u"%1: %2"_s.arg(place(operation, fault), QString::fromUtf8(fault.what())));
    }
}

} // namespace

int main(int argc, char* argv[])
{
    const QCoreApplication application(argc, argv);
    try {
        run(parseOperation(QCoreApplication::arguments().mid(1)));
    } catch (const ToolFailure& failure) {
        std::fprintf(stderr, "convert: %s\n", failure.what());
        return failure.code() > 0 ? failure.code() : 1;
    }
    return 0;
}
