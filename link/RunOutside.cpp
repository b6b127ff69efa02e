// See RunOutside.h.
#include "link/RunOutside.h"

using namespace Qt::Literals::StringLiterals;

namespace norvane::link
{

ChildResult runTool(const RunOutside& outside, const QString& commandLine)
{
    const ChildResult result = outside.runAndWait(commandLine);
    const QString program = commandWords(commandLine).value(0);
    if (result == ChildResult::Crashed) {
        outside.showNotice(u"The program %1 crashed."_s.arg(program));
    } else if (result != ChildResult::Ended) {
        outside.showNotice(u"The program %1 was not found."_s.arg(program));
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
