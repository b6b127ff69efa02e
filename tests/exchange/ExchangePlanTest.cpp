// The rows of the exchange plans that differ from their neighbours.
#include "exchange/ExchangePlan.h"

#include <gtest/gtest.h>

#include <set>

namespace norvane::exchange
{
namespace
{

TEST(ExchangePlan, CopiesAndSkipsRowByRow)
{
    std::set<int> olderLaidOver;
    std::set<int> skipped;
    for (const DownloadRow& row : downloadPlan()) {
        if (row.copy == Copy::FromCustomerAfter) {
            olderLaidOver.insert(row.file);
        }
        if (row.skip == Skip::WhenTableEmpty) {
            skipped.insert(row.file);
        }
        EXPECT_EQ(row.copy == Copy::FromCustomerBefore, row.writer == nullptr) << row.file;
        EXPECT_EQ(row.copy == Copy::None, row.file == 58);
        EXPECT_EQ(row.skip == Skip::WhenFileEmpty, row.file == 83);
    }
    EXPECT_EQ(olderLaidOver, (std::set<int>{15, 29, 64, 32, 17, 16, 33, 34, 85, 86, 71}));
    EXPECT_EQ(skipped, (std::set<int>{23, 24, 25, 26, 70, 85, 86, 71}));
}

} // namespace
} // namespace norvane::exchange
