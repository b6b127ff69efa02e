// The grammar of convert's command line: w<model> f<source> t<target> <operation>; see Operation.h.
#include "tools/convert/Operation.h"

#include "tools/bank/Layout.h"
#include "tools/bank/Reports.h"
#include "tools/bank/ToolFailure.h"

#include <algorithm>
#include <array>

using namespace Qt::Literals::StringLiterals;

namespace bank
{
namespace
{

constexpr int systemDescriptors = 19; ///< read from the register, never written
constexpr int employeeFile = 63;      ///< a Dorvik has a different writing code

ToolFailure wrong(const QString& text)
{
    return {BadArgument, text};
}

QString behindLetter(const QString& word, QChar letter)
{
    if (word.size() < 2 || !word.startsWith(letter))
        throw wrong(u"\"%1\" where %2... was expected"_s.arg(word, QString(letter)));
    return word.mid(1);
}

Model knownModel(const QString& name)
{
    const auto model = modelOfWord(name);
    if (!model)
        throw wrong(u"unknown model \"%1\""_s.arg(name));
    return *model;
}

QString twoDigits(int code)
{
    return u"%1"_s.arg(code, 2, 10, QChar(u'0'));
}

/// Empty when the file is never written.
QString writingWord(int code, Model model)
{
    if (code == systemDescriptors || code == memoryFile || code == newerMemoryCode)
        return {};
    const bool ownCode = code == employeeFile && model == Model::Dorvik;
    return (ownCode ? u"d1"_s : u"d"_s) + twoDigits(code);
}

bool findRegisterFile(Operation& operation)
{
    for (const int code : layoutCodes()) {
        const bool reads = operation.word == u'u' + twoDigits(code);
        if (reads || operation.word == writingWord(code, operation.model)) {
            operation.code = code;
            operation.direction = reads ? Operation::Direction::ToText : Operation::Direction::ToBinary;
            return true;
        }
    }
    return false;
}

bool findReport(Operation& operation)
{
    const auto& reports = reportFiles();
    const auto report = std::find_if(reports.begin(), reports.end(),
                                     [&](int each) { return operation.word == u"S%1"_s.arg(each); });
    if (report == reports.end())
        return false;
    operation.code = *report;
    operation.direction = Operation::Direction::ReportToText;
    return true;
}

} // namespace

Operation parseOperation(const QStringList& words)
{
    if (words.size() != 4)
        throw wrong(u"usage: convert w<model> f<source> t<target> <operation>"_s);
    Operation operation;
    const auto modelName = behindLetter(words.at(0), u'w');
    operation.model = knownModel(modelName);
    operation.source = behindLetter(words.at(1), u'f');
    operation.target = behindLetter(words.at(2), u't');
    operation.word = words.at(3);
    if (!findRegisterFile(operation) && !findReport(operation))
        throw wrong(u"unknown operation \"%1\" for a %2"_s.arg(operation.word, modelName));
    return operation;
}

} // namespace bank
