// The application object, which shows the failures that nothing else caught.
#pragma once

#include "platform/Boxes.h"

#include <QApplication>

#include <exception>
#include <functional>

namespace norvane::shell
{

/// What the user sees of a failure.
struct FatalFailure {
    int number;
    QString text;
};

/// Number and text of @p failure: 7 if out of memory, 51 for an error of a library.
[[nodiscard]] FatalFailure describeFailure(const std::exception_ptr& failure);

/// Shows a failure that an event handler or the start of the program did not catch as "Run-time error
/// 'number':" with its text, then ends the process with exit code 1. It ends immediately, because the caller
/// of a modal dialog must not continue as if nothing had happened.
class Program : public QApplication
{
    Q_OBJECT

public:
    Program(int& argc, char** argv, Boxes& boxes);

    bool notify(QObject* receiver, QEvent* event) override;

    /// Runs @p work, which is outside of the event loop, with the same handler. @return what @p work returns.
    int guarded(const std::function<int()>& work);

private:
    [[noreturn]] void end(const std::exception_ptr& failure);

    Boxes& m_boxes;
    bool m_ending = false;
};

} // namespace norvane::shell
