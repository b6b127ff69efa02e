// See CustomerRun.h.
#include "command/CustomerRun.h"

#include "command/StopSignals.h"
#include "command/TerminalBoxes.h"
#include "platform/RuntimeFailure.h"
#include "reports/data/ReportError.h"

using namespace Qt::Literals::StringLiterals;

namespace norvane::command
{

void attempt(const std::function<void()>& work, const FailureNote& note)
{
    stopIfSignalled();
    try {
        work();
    } catch (const CommandError& error) {
        note(error.code(), error.text());
    } catch (const RuntimeFailure& failure) {
        if (failure.failure() == Failure::UserInterrupt)
            throw;
        note(codeOf(failure), failure.text());
    } catch (const reports::TargetError& error) {
        note(ExitCode::Unwritable, error.text());
    } catch (const TextError& error) {
        note(ExitCode::Failed, error.text());
    } catch (const std::exception& failure) {
        note(ExitCode::Failed, u"Internal error: %1"_s.arg(QString::fromLocal8Bit(failure.what())));
    }
}

void CustomerRun::forEach(const QStringList& names, const std::function<void(const QString& name)>& work,
                          const std::function<void()>& show)
{
    try {
        for (const QString& name : names)
            attempt(name, [&] { work(name); });
    } catch (const RuntimeFailure&) {
        show();
        throw;
    }
    show();
    end();
}

void CustomerRun::attempt(const QString& name, const std::function<void()>& work)
{
    command::attempt(work, [&](ExitCode code, const QString& text) {
        note(name, code, u"%1 %2"_s.arg(m_undone, text).trimmed());
    });
}

void CustomerRun::note(const QString& name, ExitCode code, const QString& text)
{
    printMessage(u"%1: %2"_s.arg(name, text));
    if (m_code == ExitCode::Done)
        m_code = code;
}

void CustomerRun::end() const
{
    if (m_code != ExitCode::Done)
        throw CommandError(m_code, {});
}

} // namespace norvane::command
