// The last failure of the process; see Program.h.
#include "shell/Program.h"

#include "platform/FailureBox.h"

#include <cstdio>
#include <cstdlib>
#include <new>

using namespace Qt::Literals::StringLiterals;

namespace norvane::shell
{
namespace
{

constexpr int outOfMemory = 7;
constexpr int internalError = 51;
constexpr int failedExit = 1;

} // namespace

FatalFailure describeFailure(const std::exception_ptr& failure)
{
    try {
        std::rethrow_exception(failure);
    } catch (const RuntimeFailure& runtimeFailure) {
        return {runtimeFailure.number(), runtimeFailure.text()};
    } catch (const std::bad_alloc&) {
        return {outOfMemory, u"Out of memory"_s};
    } catch (const std::exception& other) {
        return {internalError, u"Internal error: "_s + QString::fromLocal8Bit(other.what())};
    } catch (...) {
        return {internalError, u"Internal error"_s};
    }
}

Program::Program(int& argc, char** argv, Boxes& boxes) : QApplication(argc, argv), m_boxes(boxes)
{
    // Only the main window ends the program. Between splash and customer dialog no window is open.
    setQuitOnLastWindowClosed(false);
}

bool Program::notify(QObject* receiver, QEvent* event)
{
    try {
        return QApplication::notify(receiver, event);
    } catch (...) {
        // A window that cannot be painted fails again while the box is open. One box is enough.
        if (m_ending)
            return true;
        end(std::current_exception());
    }
}

int Program::guarded(const std::function<int()>& work)
{
    try {
        return work();
    } catch (...) {
        end(std::current_exception());
    }
}

void Program::end(const std::exception_ptr& failure)
{
    m_ending = true;
    const FatalFailure shown = describeFailure(failure);
    while (overrideCursor())
        restoreOverrideCursor();
    showFailure(shown.number, shown.text, m_boxes);
    // No destructors: the windows are in the middle of an operation. The system closes all files, and a
    // database remains intact.
    std::fflush(nullptr);
    std::_Exit(failedExit);
}

} // namespace norvane::shell
