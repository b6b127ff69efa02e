// See FailedStep.h.
#include "link/FailedStep.h"

#include "link/ResultCodes.h"

#include <QStringList>

using namespace Qt::Literals::StringLiterals;

namespace norvane::link
{

QString inWords(const FailedStep& step)
{
    const ResultMeaning meaning = resultMeaning(step.result);
    QStringList lines{u"Result %1 at %2: %3."_s.arg(step.result).arg(step.place, meaning.happened)};
    if (step.isInTurn && meaning.isOfOneRegister)
        lines << u"The registers before this one have done the step, those after it have not."_s;
    lines << u"%1 %2"_s.arg(meaning.helps, step.next);
    return lines.join(u'\n');
}

} // namespace norvane::link
