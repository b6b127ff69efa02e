// The result file of the transfer tool.
#include "link/ToolRun.h"

#include "tests/platform/TestFolder.h"

namespace norvane::link
{
namespace
{

TEST(ToolRunTest, TheLastValueOfTheStatusFileCounts)
{
    test::TestFolder folder;
    const test::WorkingDirectory here{folder.path()};
    EXPECT_EQ(test::failureOf([] { (void)ReadStatusOut(); }), 53) << "no file yet";
    // Neither an empty place nor the end mark hides the error.
    for (const auto& [content, status] : {std::pair{"", u""},
                                          {"8,0", u"0"},
                                          {" 0 , -13 \r\n", u"-13"},
                                          {"\"0\",\"a,b\"\r\n", u"a,b"},
                                          {"8\r\n\r\n\x1A", u"8"},
                                          {"8,,\r\n", u"8"},
                                          {"\"8,0\r\n", u"8,0"}}) {
        folder.write("STATUS.OUT", content);
        EXPECT_EQ(ReadStatusOut(), status) << content;
    }
}

} // namespace
} // namespace norvane::link
