// See RunOutside.h.
#include "link/RunOutside.h"

#include "platform/ChildProcess.h"

using namespace Qt::Literals::StringLiterals;

namespace norvane::link
{

bool runTool(const RunOutside& outside, const QString& commandLine)
{
    const bool started = outside.runAndWait(commandLine);
    if (!started)
        outside.showNotice(u"The program %1 was not found."_s.arg(commandWords(commandLine).value(0)));
    return started;
}

} // namespace norvane::link
