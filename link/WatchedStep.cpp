// See WatchedStep.h.
#include "link/WatchedStep.h"

#include "base/LossQuestion.h"

using namespace Qt::Literals::StringLiterals;

namespace norvane::link
{

WatchedStep::WatchedStep(const RunOutside& outside, const QStringList& expected)
    : m_outside(outside), m_expected(expected)
{
}

void WatchedStep::run(const QString& commandLine)
{
    const ChildResult result = runTool(m_outside, commandLine);
    m_expected.keepLatestSpellings();
    if (m_result == ChildResult::Ended) {
        m_result = result;
        m_tool = commandWords(commandLine).value(0);
    }
}

bool WatchedStep::isComplete() const
{
    return m_result == ChildResult::Ended && m_expected.allWritten();
}

bool WatchedStep::mayGoOn(const QString& consequence) const
{
    if (isComplete())
        return true;
    const QString question = u"%1\r\r%2\r\r%3\r\rGo on all the same?"_s.arg(
        whatWentWrong(), doubtfulFiles().join(u'\r'), consequence);
    const bool goesOn = askBeforeLoss(m_outside.boxes, question);
    if (!goesOn)
        tellEndedByAnswer(m_outside);
    return goesOn;
}

QString WatchedStep::whatWentWrong() const
{
    if (m_result == ChildResult::Ended)
        return u"The program %1 did not write what this step needs. Found:"_s.arg(m_tool);
    const bool hasRun = m_result == ChildResult::Crashed;
    return u"The program %1 %2. %3:"_s.arg(m_tool, endInWords(m_result),
                                           hasRun ? u"Found"_s : u"Found of earlier runs"_s);
}

/// A crashed tool may have stopped in the middle of any of its files.
QStringList WatchedStep::doubtfulFiles() const
{
    QStringList files;
    for (const QString& name : m_expected.names()) {
        if (!m_expected.wasWritten(name)) {
            files << fileAndAge(name);
        } else if (m_result != ChildResult::Ended) {
            files << u"%1, which may be incomplete"_s.arg(name);
        }
    }
    return files;
}

} // namespace norvane::link
