// What a run of the tools needs from outside.
#pragma once

#include "link/FailedStep.h"
#include "link/RunProgress.h"
#include "platform/Boxes.h"
#include "platform/ChildProcess.h"

#include <QString>

#include <functional>

namespace norvane::link
{

/// What a run of the transfer tool and the converter calls; LinkForm::outside() gives that of a form.
struct RunOutside {
    /// Runs a tool's command line and waits until it exits. A tool that the user ended counts as crashed.
    std::function<ChildResult(const QString& commandLine)> runAndWait;
    /// The last value of status.out.
    std::function<QString()> readStatus;
    /// Shows the name of the current step.
    std::function<void(const QString& text)> showStep;
    /// Shows a notice that does not stop the run; it remains until the run ends.
    std::function<void(const QString& text)> showNotice;
    /// Asked before each step that may be left out. @return false when the user has left.
    std::function<bool()> goOn;
    Boxes& boxes;
    /// Called before a box that ends the run, once everything is stored and logged. The box may stay open all
    /// night, so the lock of the run is released here if no modem is connected.
    std::function<void()> beforeLastBox = [] {
    };
    /// Called when the run continues after a box that followed beforeLastBox(). @return false if another run
    /// is active; a message was shown then.
    std::function<bool()> beginAgain = [] {
        return true;
    };
    /// For how long the boxes have been open, which is not counted as work.
    std::function<qint64()> millisecondsOpen = [] {
        return qint64{0};
    };
    /// The last line that the last tool of the step said, shortened; empty if it said nothing.
    std::function<QString()> lastWords = [] {
        return QString();
    };
    /// Shows what a result means that has ended the run; called before the box that names it.
    std::function<void(const FailedStep& step)> explain = [](const FailedStep& /*step*/) {
    };
    /// Shows how far the run is.
    std::function<void(const RunProgress& progress)> showProgress = [](const RunProgress& /*progress*/) {
    };
};

/// How a tool ended that did not end by itself, for "The program convert ...": "crashed", "was not found",
/// "could not be started".
[[nodiscard]] QString endInWords(ChildResult result);

/// Runs a tool and shows a message if it could not be started or crashed. The run continues even then:
/// status.out keeps the previous result.
ChildResult runTool(const RunOutside& outside, const QString& commandLine);

/// Why a step failed, with the tool's own last line: "result 8: Time Out (register 2 does not answer)".
[[nodiscard]] QString withLastWords(const RunOutside& outside, const QString& reason);

/// Reports that the user's No to a question has ended the run.
void tellEndedByAnswer(const RunOutside& outside);

} // namespace norvane::link
