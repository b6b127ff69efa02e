// What the user sees of a failure that nothing caught, and how the process ends: in a real child process.
#include "shell/Program.h"

#include <gtest/gtest.h>
#include <QProcess>

using namespace Qt::Literals::StringLiterals;

namespace norvane::shell
{
namespace
{

TEST(ProgramTest, AFailureIsShownOnceAndEndsTheProcess)
{
    const auto box = [](const QString& number, const QString& text) {
        return applicationTitle() + u"|Run-time error '"_s + number + u"':\n\n"_s + text + QChar(u'\n');
    };
    const struct {
        QString kind;
        QString printed;
        int exitCode;
    } rows[] = {{u"start"_s, box(u"53"_s, u"File not found: mem.dat"_s), 1},
                {u"handler"_s, box(u"53"_s, u"File not found: mem.dat"_s), 1},
                {u"dialog"_s, box(u"53"_s, u"File not found: mem.dat"_s), 1},
                {u"library"_s, box(u"51"_s, u"Internal error: odd"_s), 1},
                {u"memory"_s, box(u"7"_s, u"Out of memory"_s), 1},
                {u"none"_s, QString(), 0}};
    for (const auto& row : rows) {
        QProcess program;
        program.start(QStringLiteral(FAILING_PROGRAM), {row.kind});
        ASSERT_TRUE(program.waitForFinished()) << row.kind.toStdString();
        EXPECT_EQ(QString::fromUtf8(program.readAllStandardOutput()), row.printed) << row.kind.toStdString();
        EXPECT_EQ(program.exitStatus(), QProcess::NormalExit);
        EXPECT_EQ(program.exitCode(), row.exitCode) << row.kind.toStdString();
    }
}

} // namespace
} // namespace norvane::shell
