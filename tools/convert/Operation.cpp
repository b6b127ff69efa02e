// The grammar of convert's command line: w<model> f<source> t<target> <operation>; see Operation.h.
#include "tools/convert/Operation.h"

#include "tools/bank/Layout.h"
#include "tools/bank/Reports.h"
#include "tools/bank/ToolFailure.h"

#include <algorithm>
#include <array>

namespace bank
{
namespace
{

constexpr int systemDescriptors = 19; ///< read from the register, never written
constexpr int employeeFile = 63;      ///< a Dorvik has a writing code of its own

ToolFailure wrong(const QString& text)
{
    return {BadArgument, text};
}

QString behindLetter(const QString& word, QChar letter)
{
    if (word.size() < 2 || !word.startsWith(letter))
        throw wrong(QStringLiteral("\"%1\" where %2... was expected").arg(word, QString(letter)));
    return word.mid(1);
}

QString twoDigits(int code)
{
    return QStringLiteral("%1").arg(code, 2, 10, QLatin1Char('0'));
}

/// Empty when the file is never written.
QString writingWord(int code, Model model)
{
    if (code == systemDescriptors || code == memoryFile || code == newerMemoryCode)
        return {};
    const bool ownCode = code == employeeFile && model == Model::Dorvik;
    return (ownCode ? QStringLiteral("d1") : QStringLiteral("d")) + twoDigits(code);
}

bool findOperation(Operation& operation)
{
    for (const int code : layoutCodes()) {
        const bool reads = operation.word == u'u' + twoDigits(code);
        if (reads || operation.word == writingWord(code, operation.model)) {
            operation.code = code;
            operation.direction = reads ? Operation::Direction::ToText : Operation::Direction::ToBinary;
            return true;
        }
    }
    for (const int report : reportFiles()) {
        if (operation.word == QStringLiteral("S%1").arg(report)) {
            operation.code = report;
            operation.direction = Operation::Direction::ReportToText;
            return true;
        }
    }
    return false;
}

} // namespace

Operation parseOperation(const QStringList& words)
{
    if (words.size() != 4)
        throw wrong(QStringLiteral("usage: convert w<model> f<source> t<target> <operation>"));
    Operation operation;
    const auto modelName = behindLetter(words.at(0), u'w');
    const auto model = modelOfWord(modelName);
    if (!model)
        throw wrong(QStringLiteral("unknown model \"%1\"").arg(modelName));
    operation.model = *model;
    operation.source = behindLetter(words.at(1), u'f');
    operation.target = behindLetter(words.at(2), u't');
    operation.word = words.at(3);
    if (!findOperation(operation))
        throw wrong(QStringLiteral("unknown operation \"%1\" for a %2").arg(operation.word, modelName));
    return operation;
}

} // namespace bank
