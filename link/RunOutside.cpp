// See RunOutside.h.
#include "link/RunOutside.h"

using namespace Qt::Literals::StringLiterals;

namespace norvane::link
{

QString endInWords(ChildResult result)
{
    switch (result) {
    case ChildResult::Ended:
        break;
    case ChildResult::Crashed:
        return u"crashed"_s;
    case ChildResult::NotFound:
        return u"was not found"_s;
    case ChildResult::NotStarted:
        return u"could not be started"_s;
    }
    return {};
}

ChildResult runTool(const RunOutside& outside, const QString& commandLine)
{
    const ChildResult result = outside.runAndWait(commandLine);
    if (result != ChildResult::Ended) {
        outside.showNotice(
            u"The program %1 %2."_s.arg(commandWords(commandLine).value(0), endInWords(result)));
    }
    return result;
}

QString withLastWords(const RunOutside& outside, const QString& reason)
{
    const QString words = outside.lastWords();
    return words.isEmpty() ? reason : u"%1 (%2)"_s.arg(reason, words);
}

void tellEndedByAnswer(const RunOutside& outside)
{
    outside.showNotice(u"Ended at your answer No."_s);
}

} // namespace norvane::link
