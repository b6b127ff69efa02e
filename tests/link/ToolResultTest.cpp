// What a tool's end and its result code say to the user.
#include "link/ResultCodes.h"
#include "link/RunOutside.h"
#include "tests/support/RecordingBoxes.h"

#include <gtest/gtest.h>

using namespace Qt::Literals::StringLiterals;

namespace norvane::link
{
namespace
{

TEST(ToolResult, HasATextThatBeginsWithItsNumber)
{
    for (int code = 1; code <= 11; ++code) {
        const QString number = u"%1. "_s.arg(code);
        EXPECT_TRUE(resultText(code, 0).startsWith(number)) << code;
        EXPECT_EQ(resultInWords(code), u"result %1: "_s.arg(code) + resultText(code, 0).mid(number.size()));
    }
    EXPECT_EQ(resultText(12, 0), u"Machine Busy"_s);
    EXPECT_EQ(resultText(modemFailed, 0), u"Modem Failure"_s);
    EXPECT_EQ(resultText(16, 7), u"Error 7 Sorry Error Unknown"_s);
    EXPECT_EQ(resultInWords(16), u"result 16: unknown"_s);
}

TEST(ToolResult, IsReportedWhenTheToolCrashedOrIsMissing)
{
    test::RecordingBoxes boxes;
    QStringList notices;
    for (const ChildResult result :
         {ChildResult::Ended, ChildResult::Crashed, ChildResult::NotFound, ChildResult::NotStarted}) {
        const RunOutside outside{.runAndWait = [result](const QString&) { return result; },
                                 .readStatus = [] { return QString(); },
                                 .showStep = [](const QString&) {},
                                 .showNotice = [&notices](const QString& text) { notices << text; },
                                 .goOn = [] { return true; },
                                 .boxes = boxes};
        EXPECT_EQ(runTool(outside, u"convert w1 f1.dat"_s), result);
    }
    EXPECT_EQ(notices,
              QStringList({u"The program convert crashed."_s, u"The program convert was not found."_s,
                           u"The program convert could not be started."_s}));
}

} // namespace
} // namespace norvane::link
