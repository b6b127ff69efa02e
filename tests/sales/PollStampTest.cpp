// The stamp of the PLU report, from the file that the transfer tool leaves.
#include "sales/PollStamp.h"

#include "tests/platform/TestFolder.h"

namespace norvane::sales
{
namespace
{

TEST(PollStampTest, TheStampIsTheFifthByteOfThePollFile)
{
    const test::TestFolder app;
    ApplicationValues values;
    values.appPath = app.path();
    EXPECT_EQ(ReadPoll194Stamp(values), u"20");
    EXPECT_EQ(app.read("poll194.dll"), "") << "made by the query, and empty";
    app.write("poll194.dll", "1234\x1Fz");
    EXPECT_EQ(ReadPoll194Stamp(values), u"115");
    EXPECT_EQ(app.read("poll194.dll"), "1234\x1Fz");
}

} // namespace
} // namespace norvane::sales
