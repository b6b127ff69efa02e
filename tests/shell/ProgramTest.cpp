// What the user sees of a failure that nothing caught, and how a real process ends with it.
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
    const QString notFound = u"53':\n\nFile not found: mem.dat\n"_s;
    const std::pair<QString, QString> rows[] = {{u"handler"_s, notFound},
                                                {u"dialog"_s, notFound},
                                                {u"library"_s, u"51':\n\nInternal error: odd\n"_s},
                                                {u"memory"_s, u"7':\n\nOut of memory\n"_s},
                                                {u"none"_s, QString()}};
    for (const auto& [kind, shown] : rows) {
        QProcess program;
        program.start(QLatin1StringView(FAILING_PROGRAM), {kind});
        ASSERT_TRUE(program.waitForFinished());
        EXPECT_EQ(QString::fromUtf8(program.readAllStandardOutput()),
                  shown.isEmpty() ? shown : applicationTitle() + u"|Run-time error '"_s + shown);
        EXPECT_EQ(program.exitStatus(), QProcess::NormalExit) << kind.toStdString();
        EXPECT_EQ(program.exitCode(), shown.isEmpty() ? 0 : 1) << kind.toStdString();
    }
}

} // namespace
} // namespace norvane::shell
