// See RegisterTools.h.
#include "command/RegisterTools.h"

#include "command/StopSignals.h"
#include "command/TerminalBoxes.h"
#include "link/ToolRun.h"

namespace norvane::command
{

/// After a signal no further tool starts, and the running one is killed. The child may have received the
/// signal as well, so a crash is not reported then; a tool that still ended by itself counts.
ChildResult RegisterTools::run(const QString& line)
{
    stopIfSignalled();
    m_words.clear();
    const ChildResult result = link::RunAndWait(m_values, line,
                                                {.goOn = [](auto) { return stopSignal() == 0; },
                                                 .output =
                                                     [this](const QByteArray& bytes) {
                                                         m_words.add(bytes);
                                                     }},
                                                m_folder);
    if (const QString words = m_words.text(); !words.isEmpty())
        m_workplace.message(words);
    if (result != ChildResult::Ended)
        stopIfSignalled();
    return result;
}

link::RunOutside RegisterTools::outside()
{
    return {.runAndWait = [this](const QString& line) { return run(line); },
            .readStatus = [this] { return link::readStatusOutIn(m_folder); },
            .showStep =
                [this](const QString& text) {
                    m_words.clear();
                    printStep(text);
                },
            .showNotice = [this](const QString& text) { m_workplace.message(text); },
            .goOn =
                [] {
                    stopIfSignalled();
                    return true;
                },
            .boxes = m_workplace.boxes,
            .lastWords = [this] { return m_words.lastLine(); },
            .explain =
                [this](const link::FailedStep& step) {
                    m_failed = step;
                    m_workplace.message(inWords(step));
                }};
}

} // namespace norvane::command
