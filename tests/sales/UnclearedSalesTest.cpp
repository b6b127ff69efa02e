// What happens after a clear that failed: the sales are stored, and the registers still hold them.
#include "sales/UnclearedSales.h"

#include "tests/sales/CollectionTest.h"

namespace norvane::sales
{
namespace
{

class UnclearedSalesTest : public CollectionTest
{
};

TEST_F(UnclearedSalesTest, ClearsAgainRightAfterAClearThatFailed)
{
    boxes.answers = {true};
    collect("Command=clear\nResult=15\nNth=1");
    EXPECT_EQ(boxes.shown, (std::vector<ShownBox>{{u"Report Clear Error"_s, errorTitle}, clearAgain}));
    EXPECT_EQ(status(), done);
    EXPECT_FALSE(registersHoldSales());
    ring();
    collect("Command=clear\nResult=15");
    store::Database(values.databasePath).execute(u"delete * from FINANCIALSALES"_s);
    collect();
    EXPECT_TRUE(boxes.shown.empty()) << "sales that were taken out of the tables are stored again";
    EXPECT_EQ(takings(), 2 * 10005);
}

/// While the question waits, the lock is free for others.
TEST_F(UnclearedSalesTest, ClearsAgainOnlyWhatNoOtherRunHasTouched)
{
    std::unique_ptr<FolderLock> other;
    test::RecordingBoxes othersBoxes;
    boxes.whileOpen = [&](const ShownBox& box) {
        if (box == clearAgain)
            other = FolderLock::take(values.customerPath, othersBoxes);
    };
    boxes.answers = {true};
    collect("Command=clear\nResult=15\nNth=1");
    EXPECT_NE(other, nullptr);
    EXPECT_EQ(boxes.shown.size(), 3U) << "the failure, the question, and who is at work";
    EXPECT_TRUE(registersHoldSales());
    other.reset();

    boxes.whileOpen = [this](const ShownBox& box) {
        if (box == clearAgain)
            noteNewerSales(values);
    };
    QDir(folder.bankPath() + u"/1/consolidated"_s).removeRecursively();
    ring(2);
    boxes.answers = {false, true, true};
    collect("Command=clear\nResult=15\nNth=1");
    EXPECT_EQ(status(), "Clear Data at ECR    Another run was at work since. Nothing was cleared.");
    EXPECT_TRUE(registersHoldSales());
}

/// The day after a clear that failed at register 2: a new day is rung at both.
struct NextDay {
    const char* what;
    std::deque<bool> answers;
    const char* faults;
    std::vector<const char*> boxes; ///< a part of each
    int takings;                    ///< in all, of one register and day
    bool holdsSales = false;
};

const char* const clearThem =
    "are stored, but were not cleared at all registers (result 8: Time Out). Clear them first?";
const char* const again = "would be counted twice.\r\rCollect all the same?";
const NextDay nextDays[] = {
    {"cleared first", {true}, "", {clearThem}, 4},
    {"nothing done", {}, "", {clearThem, again}, 2, true},
    {"the clear fails again",
     {true},
     "Command=clear\nResult=15",
     {clearThem, "Report Clear", "Clear again?"},
     2,
     true},
    {"and goes through then",
     {true, true},
     "Command=clear\nResult=15\nNth=1",
     {clearThem, "Report Clear", "Clear again?"},
     4},
    {"the tool crashes",
     {true},
     "Command=clear\nCrash=1",
     {clearThem, "still hold would be counted", "Clear again?"},
     2,
     true},
    {"counted twice", {false, true}, "", {clearThem, again}, 4, true},
};

TEST_F(UnclearedSalesTest, AsksToClearStoredSalesBeforeItCollectsAgain)
{
    for (const NextDay& day : nextDays) {
        SCOPED_TRACE(day.what);
        QDir(folder.bankPath() + u"/2/consolidated"_s).removeRecursively();
        ring();
        store::Database(values.databasePath).execute(u"delete * from FINANCIALSALES"_s);
        collect("Command=clear\nRegister=2\nResult=8");
        EXPECT_EQ(takings(), 2 * 10005);
        ring(2);
        writeWholeFile(folder.appFile(u"status.out"_s), "0");
        boxes.answers = day.answers;
        collect(day.faults);
        ASSERT_EQ(boxes.shown.size(), day.boxes.size());
        expectAskedFirst(boxes.shown.front(), QString::fromLatin1(day.boxes.front()));
        for (std::size_t box = 1; box < day.boxes.size(); ++box)
            EXPECT_TRUE(boxes.shown[box].text.contains(QLatin1StringView(day.boxes[box]))) << box;
        EXPECT_EQ(takings(), day.takings * 10005);
        EXPECT_EQ(registersHoldSales(), day.holdsSales);
    }
}

/// Once newer sales were consolidated beside those that are stored, a clear would lose them.
TEST_F(UnclearedSalesTest, OffersNoClearThatWouldLoseNewerSales)
{
    collect("Command=clear\nRegister=2\nResult=8");
    ring(2);
    boxes.answers = {false, true};
    collect("Command=collect\nResult=8");
    collect();
    ASSERT_EQ(boxes.shown.size(), 1U);
    EXPECT_TRUE(boxes.shown[0].text.contains(u"newer sales, which clearing them now would lose"_s));
    EXPECT_EQ(takings(), 2 * 10005);
    EXPECT_TRUE(pathExists(bankPath("1/consolidated")));
}

} // namespace
} // namespace norvane::sales
