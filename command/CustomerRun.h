// Work at several customers, one after another.
#pragma once

#include "command/ExitCode.h"

#include <QString>
#include <QStringList>

#include <functional>

namespace norvane::command
{

/// Receives the exit code and the text of a failure; the text is empty if a box has already shown it.
using FailureNote = std::function<void(ExitCode code, const QString& text)>;

/// Does @p work and gives its failure to @p note, so that other work can follow.
/// @throws RuntimeFailure with Failure::UserInterrupt after a signal.
void attempt(const std::function<void()>& work, const FailureNote& note);

/// Reports failures with the name of their customer on standard error. The first one decides the exit code.
class CustomerRun
{
public:
    /// @param undone what a failure leaves undone, as a sentence: "not copied."
    explicit CustomerRun(QString undone) : m_undone(std::move(undone)) {}

    /// Does @p work for each customer, whatever happens with one, then @p show, also after a signal.
    /// @throws CommandError with the exit code of the first failure; RuntimeFailure after a signal.
    void forEach(const QStringList& names, const std::function<void(const QString& name)>& work,
                 const std::function<void()>& show);
    /// Does @p work for one customer. @throws RuntimeFailure after a signal.
    void attempt(const QString& name, const std::function<void()>& work);
    /// Reports a failure that did not end the work of its customer.
    void note(const QString& name, ExitCode code, const QString& text);
    /// @throws CommandError with the exit code of the first failure.
    void end() const;

private:
    QString m_undone;
    ExitCode m_code = ExitCode::Done;
};

} // namespace norvane::command
