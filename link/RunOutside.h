// What a run of the tools needs of the world outside it.
#pragma once

#include "platform/Boxes.h"

#include <QString>

#include <functional>

namespace norvane::link
{

/// The world outside a sequence of the transfer tool and the converter; LinkForm hands out the one of a form.
struct RunOutside {
    /// Runs a tool's command line and waits for its end. @return false when the tool could not be started.
    std::function<bool(const QString& commandLine)> runAndWait;
    /// The last value of status.out.
    std::function<QString()> readStatus;
    /// Names the step in work.
    std::function<void(const QString& text)> showStep;
    /// Tells what the user should know but what does not stop the run; stands until the run ends.
    std::function<void(const QString& text)> showNotice;
    /// Asked before each step that may still be left out: whether the user is still there to want it.
    std::function<bool()> goOn;
    Boxes& boxes;
};

/// Runs a tool and tells the user when it could not be started. The run goes on all the same: status.out
/// keeps the previous result. @return whether the tool was started.
bool runTool(const RunOutside& outside, const QString& commandLine);

} // namespace norvane::link
