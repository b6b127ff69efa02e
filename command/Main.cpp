// Entry of the command line.
#include "base/ProgramFolder.h"
#include "command/Invocation.h"
#include "command/StopSignals.h"
#include "command/TerminalBoxes.h"
#include "command/Workplace.h"
#include "platform/RuntimeFailure.h"
#include "reports/data/ReportError.h"

#include <QDir>
#include <QGuiApplication>

#include <csignal>

#ifdef Q_OS_UNIX
#include <fcntl.h>
#endif

using namespace norvane;
using namespace norvane::command;
using namespace Qt::Literals::StringLiterals;

namespace
{

void run(const QStringList& words)
{
    if (const auto help = requestedHelp(words)) {
        print(help->toLocal8Bit());
        return;
    }
    const auto [verb, invocation] = parse(words);
    const QString started = QDir::currentPath();
    const QString folder = invocation.has("folder"_L1)
                               ? QDir(started).absoluteFilePath(invocation.value("folder"_L1))
                               : programFolder();
    // The tools are found there, and leave their files there.
    if (!QDir::setCurrent(folder))
        throw CommandError(ExitCode::Usage, u"There is no folder %1."_s.arg(folder));
    TerminalBoxes boxes(invocation.options.keys());
    verb->run({QDir::cleanPath(folder), started, invocation.has("json"_L1), boxes}, invocation);
}

ExitCode stopped()
{
    const auto code = stopSignal() == SIGTERM ? ExitCode::Terminated : ExitCode::Interrupted;
    printMessage(u"Stopped by %1."_s.arg(code == ExitCode::Terminated ? u"SIGTERM" : u"SIGINT"));
    return code;
}

ExitCode guarded(const QStringList& words)
{
    try {
        run(words);
        return ExitCode::Done;
    } catch (const CommandError& error) {
        if (!error.text().isEmpty())
            printMessage(error.text());
        return error.code();
    } catch (const reports::TargetError& error) {
        printMessage(error.text());
        return ExitCode::Unwritable;
    } catch (const reports::ReportError& error) {
        printMessage(u"Report Error: %1"_s.arg(error.text()));
    } catch (const RuntimeFailure& failure) {
        if (failure.failure() == Failure::UserInterrupt)
            return stopped();
        printMessage(u"Run-time error '%1': %2"_s.arg(failure.number()).arg(failure.text()));
        return codeOf(failure);
    } catch (const std::exception& failure) {
        printMessage(u"Internal error: %1"_s.arg(QString::fromLocal8Bit(failure.what())));
    }
    return ExitCode::Failed;
}

/// Otherwise the next file that is opened would take the number of a stream that the caller has closed, and
/// receive what is printed.
void occupyStandardStreams()
{
#ifdef Q_OS_UNIX
    for (int stream = 0; stream <= 2; ++stream) {
        if (::fcntl(stream, F_GETFD) < 0)
            (void)::open("/dev/null", O_RDONLY);
    }
#endif
}

/// The toolkit's notices about the machine must not end up in a script's mail.
void keepToolkitQuiet(QtMsgType type, const QMessageLogContext& /*place*/, const QString& text)
{
    if (type == QtCriticalMsg || type == QtFatalMsg)
        printMessage(text);
}

} // namespace

int main(int argc, char** argv)
{
    occupyStandardStreams();
    qInstallMessageHandler(keepToolkitQuiet);
    // Pages are painted with the fonts of the system, but no window opens.
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QGuiApplication application(argc, argv);
    QCoreApplication::setApplicationVersion(QLatin1StringView(NORVANE_VERSION));
    return static_cast<int>(guarded(QCoreApplication::arguments().mid(1)));
}
