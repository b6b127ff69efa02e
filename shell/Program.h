// The application object with the outermost handler of failures.
#pragma once

#include "platform/Boxes.h"

#include <QApplication>

#include <exception>
#include <functional>

namespace norvane::shell
{

/// A failure that nothing caught: the number and the text that the user gets to see.
struct FatalFailure {
    int number;
    QString text;
};

/// What @p failure is to the user. A failure that is none of the program's own (out of memory, an error of a
/// library) has a number, too: 7 and 51.
[[nodiscard]] FatalFailure describeFailure(const std::exception_ptr& failure);

/// Whatever an event handler or the start of the program lets through ends here: the user sees "Run-time
/// error 'number':" with the text, and the process ends at once with exit code 1. At once, because the code
/// below a nested event loop, such as the caller of a modal dialog, must not go on as if all were well.
class Program : public QApplication
{
    Q_OBJECT

public:
    Program(int& argc, char** argv, Boxes& boxes);

    bool notify(QObject* receiver, QEvent* event) override;

    /// Runs what happens outside of the event loop under the same handler. @return what @p work returns.
    int guarded(const std::function<int()>& work);

private:
    [[noreturn]] void end(const std::exception_ptr& failure);

    Boxes& m_boxes;
    bool m_ending = false;
};

} // namespace norvane::shell
