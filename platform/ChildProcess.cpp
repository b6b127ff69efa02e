// Starting the external tools; see ChildProcess.h.
#include "platform/ChildProcess.h"

#include "platform/FilePaths.h"

#include <QDir>
#include <QElapsedTimer>
#include <QFileInfo>
#include <QProcess>

#ifdef Q_OS_LINUX
#include <csignal>
#include <sys/prctl.h>
#include <unistd.h>
#endif

namespace norvane
{
namespace
{

QStringList spellings(const QString& name)
{
#ifdef Q_OS_WIN
    return {name, name + QStringLiteral(".exe")};
#else
    return {name};
#endif
}

/// Where a bare name is looked for, in order.
QStringList searchFolders(const QString& programFolder)
{
    QStringList folders{programFolder, QDir::currentPath()};
    folders += qEnvironmentVariable("PATH").split(QDir::listSeparator(), Qt::SkipEmptyParts);
    return folders;
}

QString programAt(const QString& path)
{
    const QFileInfo file(existingPath(path));
    return file.isFile() && file.isExecutable() ? file.absoluteFilePath() : QString();
}

/// Short enough to keep a window responsive. A child that exits is noticed immediately.
constexpr int millisecondsBetweenLooks = 40;

void waitForEnd(QProcess& child, const ChildWatch& watch)
{
    QElapsedTimer running;
    running.start();
    // The watch may let events run, so that the child's end is noticed there.
    while (child.state() != QProcess::NotRunning && !child.waitForFinished(millisecondsBetweenLooks)) {
        if (watch.goOn && !watch.goOn(std::chrono::milliseconds(running.elapsed())))
            child.kill();
    }
}

/// Each piece is taken as it comes, also while the watch has a box open: a full pipe would block the child,
/// and a talkative one would fill the memory.
void passOutput(QProcess& child, const ChildWatch& watch)
{
    child.setProcessChannelMode(watch.output ? QProcess::MergedChannels : QProcess::ForwardedChannels);
    if (watch.output)
        QObject::connect(&child, &QProcess::readyRead, [&] { watch.output(child.readAll()); });
}

/// Ends the child when this program dies. Otherwise it would keep talking to the registers while the lock of
/// the run is released and the next run starts. Other platforms have no such signal; there the child keeps
/// running.
void bindToParent([[maybe_unused]] QProcess& child)
{
#ifdef Q_OS_LINUX
    child.setChildProcessModifier([parent = getpid()] {
        prctl(PR_SET_PDEATHSIG, SIGKILL);
        // It may have died before the signal was asked for.
        if (getppid() != parent)
            _exit(1);
    });
#endif
}

} // namespace

QStringList commandWords(const QString& commandLine)
{
    return QProcess::splitCommand(commandLine);
}

QString findProgram(const QString& name, const QString& programFolder)
{
    const bool hasFolder = name.contains(u'/') || name.contains(u'\\');
    const auto folders = hasFolder ? QStringList{QString()} : searchFolders(programFolder);
    for (const auto& folder : folders) {
        for (const auto& spelling : spellings(name)) {
            auto program = programAt(hasFolder ? spelling : joinPath(folder, spelling));
            if (!program.isEmpty())
                return program;
        }
    }
    return {};
}

ChildResult runAndWait(const QString& commandLine, const QString& programFolder, const ChildWatch& watch,
                       const QString& workingFolder)
{
    QStringList words = commandWords(commandLine);
    const QString program = words.isEmpty() ? QString() : findProgram(words.takeFirst(), programFolder);
    if (program.isEmpty())
        return ChildResult::NotFound;

    QProcess child;
    passOutput(child, watch);
    child.setStandardInputFile(QProcess::nullDevice());
    child.setWorkingDirectory(workingFolder);
    bindToParent(child);
    child.start(program, words);
    if (!child.waitForStarted(-1))
        return ChildResult::NotStarted;
    waitForEnd(child, watch);
    return child.exitStatus() == QProcess::NormalExit ? ChildResult::Ended : ChildResult::Crashed;
}

} // namespace norvane
