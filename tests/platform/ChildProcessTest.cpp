// Tools found and run as real child processes, in folders of the test's own.
#include "platform/ChildProcess.h"

#include "tests/platform/TestFolder.h"

namespace norvane
{
namespace
{

using test::TestFolder;
using test::WorkingDirectory;

/// The program's folder, a working directory apart from it, and a folder on the search path.
class ChildProcessTest : public testing::Test
{
protected:
    ChildProcessTest()
    {
        qputenv("PATH", m_onPath.path().toLocal8Bit() + QDir::listSeparator().toLatin1() + m_pathBefore);
    }
    ~ChildProcessTest() override { qputenv("PATH", m_pathBefore); }

    static void putProbe(const TestFolder& folder, const char* name)
    {
        ASSERT_TRUE(QFile::copy(QStringLiteral(CHILD_PROBE), folder.path(name)));
    }
    [[nodiscard]] ChildResult run(const char* commandLine) const
    {
        return runAndWait(QString::fromUtf8(commandLine), m_program.path());
    }
    [[nodiscard]] QByteArray workingPath() const { return QDir::currentPath().toLocal8Bit() + '\n'; }

    TestFolder m_program;
    TestFolder m_working;
    TestFolder m_onPath;

private:
    QByteArray m_pathBefore = qgetenv("PATH");
    WorkingDirectory m_here{m_working.path()};
};

TEST_F(ChildProcessTest, RunsTheToolInTheWorkingDirectoryAndWaits)
{
    putProbe(m_program, "VELMARCOMM");
    EXPECT_EQ(run("velmarcomm log out s9  c1 \"N 67.DAT\""), ChildResult::Ended);
    EXPECT_EQ(m_working.read("out"), workingPath() + "s9\nc1\nN 67.DAT\n");
    EXPECT_EQ(run("VELMARCOMM late later"), ChildResult::Ended);
    EXPECT_EQ(m_working.read("later"), workingPath());
}

TEST_F(ChildProcessTest, TheProgramFolderComesBeforeTheWorkingDirectoryAndThePath)
{
    const auto found = [this](const char* name) {
        return QFileInfo(findProgram(QString::fromUtf8(name), m_program.path()));
    };
    m_program.write("tool/x", "a folder");
    m_working.write("tool", "no program");
    putProbe(m_onPath, "tool");
    EXPECT_EQ(found("tool"), QFileInfo(m_onPath.path("tool")));
    for (const auto* folder : {&m_onPath, &m_working, &m_program}) {
        putProbe(*folder, "Convert_nv");
        EXPECT_EQ(found("convert_nv"), QFileInfo(folder->path("Convert_nv")));
    }
}

TEST_F(ChildProcessTest, HowAToolEndsIsNoFailure)
{
    putProbe(m_program, "tool");
    EXPECT_EQ(run("tool crash"), ChildResult::Ended);
    EXPECT_EQ(run("tool exit 8"), ChildResult::Ended);
    EXPECT_EQ(run("no_such_tool -U 52"), ChildResult::NotFound);
    EXPECT_EQ(run(""), ChildResult::NotFound);
    m_program.write("broken", QByteArray("\x7F"
                                         "ELF damaged"));
    ASSERT_TRUE(QFile::setPermissions(m_program.path("broken"), QFile::ReadOwner | QFile::ExeOwner));
    EXPECT_EQ(run("broken"), ChildResult::NotStarted);
}

} // namespace
} // namespace norvane
