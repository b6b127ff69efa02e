// Tools found and run as real child processes, in folders of the test's own.
#include "platform/ChildProcess.h"

#include "tests/platform/TestFolder.h"

#include <QScopeGuard>

#include <algorithm>
#include <csignal>
#include <sys/prctl.h>
#include <sys/wait.h>
#include <thread>
#include <unistd.h>

using namespace Qt::Literals::StringLiterals;

namespace norvane
{
namespace
{

using test::TestFolder;

void putProbe(const TestFolder& folder, const char* name)
{
    ASSERT_TRUE(QFile::copy(QStringLiteral(CHILD_PROBE), folder.path(name)));
}

TEST(ChildProcess, RunsAToolOfTheProgramFolderInTheWorkingDirectory)
{
    const TestFolder program;
    const TestFolder working;
    const test::WorkingDirectory here(working.path());
    const auto run = [&](const char* line) {
        return runAndWait(QString::fromUtf8(line), program.path());
    };
    putProbe(program, "VELMARCOMM");
    EXPECT_EQ(run("velmarcomm log out s9  c1 \"N 67.DAT\""), ChildResult::Ended);
    EXPECT_EQ(working.read("out"), QDir::currentPath().toLocal8Bit() + "\ns9\nc1\nN 67.DAT\n");
    const TestFolder elsewhere;
    EXPECT_EQ(runAndWait(u"velmarcomm log out"_s, program.path(), {}, elsewhere.path()), ChildResult::Ended);
    EXPECT_EQ(elsewhere.read("out"), elsewhere.path().toLocal8Bit() + "\n");
    EXPECT_EQ(run("VELMARCOMM crash"), ChildResult::Crashed);
    EXPECT_EQ(run("no_such_tool -U 52"), ChildResult::NotFound);
    EXPECT_EQ(run(""), ChildResult::NotFound);
    program.write("broken", QByteArray("\x7F"
                                       "ELF damaged"));
    ASSERT_TRUE(QFile::setPermissions(program.path("broken"), QFile::ReadOwner | QFile::ExeOwner));
    EXPECT_EQ(run("broken"), ChildResult::NotStarted);
}

TEST(ChildProcess, AWatchSeesTheChildRunAndCanEndIt)
{
    const TestFolder folder;
    const test::WorkingDirectory here(folder.path());
    putProbe(folder, "tool");
    std::vector<std::chrono::milliseconds> looks;
    const auto result = runAndWait(u"tool hang started"_s, folder.path(), {[&](auto running) {
                                       looks.push_back(running);
                                       return looks.size() < 3 || !QFile::exists(folder.path("started"));
                                   }});
    EXPECT_EQ(result, ChildResult::Crashed);
    EXPECT_GE(looks.size(), 3U);
    EXPECT_TRUE(std::is_sorted(looks.begin(), looks.end()));
    EXPECT_EQ(runAndWait(u"tool log out"_s, folder.path(), {[](auto) {
                             return true;
                         }}),
              ChildResult::Ended);
}

/// A child that is still running after this counts as hanging.
constexpr auto patience = std::chrono::seconds(10);

/// What @p script writes, run by a shell.
QByteArray outputOf(const QByteArray& script)
{
    QByteArray output;
    const TestFolder folder;
    const auto result = runAndWait(u"sh -c \"%1\""_s.arg(QString::fromUtf8(script)), folder.path(),
                                   {[](auto running) { return running < patience; },
                                    [&output](const QByteArray& bytes) {
                                        output += bytes;
                                    }});
    EXPECT_EQ(result, ChildResult::Ended) << script.toStdString();
    return output;
}

TEST(ChildProcess, WhatItWritesIsTakenWithoutMakingItWait)
{
    int pipeOfInput[2];
    ASSERT_EQ(pipe(pipeOfInput), 0);
    const int before = dup(STDIN_FILENO);
    dup2(pipeOfInput[0], STDIN_FILENO);
    const auto restore = qScopeGuard([before] { dup2(before, STDIN_FILENO); });
    EXPECT_EQ(outputOf("cat; echo end"), "end\n") << "nobody answers a question of a tool";
    EXPECT_EQ(outputOf("echo one; echo two >&2; exec >&- 2>&-; sleep 0.2"), "one\ntwo\n");
    EXPECT_EQ(outputOf("head -c 5000000 /dev/zero").size(), 5000000) << "more than any pipe holds";
    EXPECT_EQ(outputOf("sleep 30 & echo started"), "started\n") << "the pipe is still open";
    EXPECT_LT(outputOf("yes & echo started").size(), 5000000);
}

/// Killed as from outside, with its tool hanging. @return the number of the tool's process.
pid_t killOwnerOfATool(const TestFolder& folder)
{
    const pid_t owner = fork();
    if (owner == 0) {
        (void)runAndWait(u"tool hang started"_s, folder.path());
        _exit(0);
    }
    while (folder.read("started").isEmpty())
        std::this_thread::sleep_for(std::chrono::milliseconds(10));
    kill(owner, SIGKILL);
    waitpid(owner, nullptr, 0);
    return folder.read("started").split('\n').front().toInt();
}

TEST(ChildProcess, AToolDiesWithTheProgramThatStartedIt)
{
    const TestFolder folder;
    const test::WorkingDirectory here(folder.path());
    putProbe(folder, "tool");
    folder.write("started", "");
    prctl(PR_SET_CHILD_SUBREAPER, 1);
    const pid_t tool = killOwnerOfATool(folder);
    ASSERT_GT(tool, 0);
    int status = 0;
    pid_t ended = 0;
    for (int look = 0; look < 500 && ended == 0; ++look) {
        ended = waitpid(tool, &status, WNOHANG);
        std::this_thread::sleep_for(std::chrono::milliseconds(10));
    }
    QFile::remove(folder.path("started"));
    EXPECT_EQ(ended, tool);
    EXPECT_EQ(WTERMSIG(status), SIGKILL);
}

TEST(ChildProcess, TheProgramFolderComesBeforeTheWorkingDirectoryAndThePath)
{
    const TestFolder program;
    const TestFolder working;
    const TestFolder onPath;
    const test::WorkingDirectory here(working.path());
    const QByteArray before = qgetenv("PATH");
    const auto restore = qScopeGuard([&before] { qputenv("PATH", before); });
    qputenv("PATH", onPath.path().toLocal8Bit() + QDir::listSeparator().toLatin1() + before);
    const auto expectFound = [&](const char* name, const QString& file) {
        EXPECT_EQ(QFileInfo(findProgram(QString::fromUtf8(name), program.path())), QFileInfo(file))
            << qPrintable(file);
    };
    program.write("tool/x", "a folder");
    working.write("tool", "no program");
    putProbe(onPath, "tool");
    expectFound("tool", onPath.path("tool"));
    for (const auto* folder : {&onPath, &working, &program}) {
        putProbe(*folder, "Convert_nv");
        expectFound("convert_nv", folder->path("Convert_nv"));
    }
}

} // namespace
} // namespace norvane
