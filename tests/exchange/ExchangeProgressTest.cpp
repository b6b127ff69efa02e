// What an exchange says about the time that it will take.
#include "exchange/ExchangeProgress.h"

#include "tests/platform/TestFolder.h"

#include <gtest/gtest.h>

using namespace Qt::Literals::StringLiterals;

namespace norvane::exchange
{
namespace
{

/// An exchange whose time passes as the test says.
class ExchangeProgressTest : public testing::Test
{
protected:
    ExchangeProgressTest() { m_values.customerPath = m_folder.path(); }

    /// @return what is shown at each of @p files, which take @p seconds.
    QStringList shown(Direction direction, const QList<std::pair<int, int>>& files)
    {
        qint64 passed = 0;
        ExchangeProgress progress(m_values, [&passed] { return -1000 * passed; });
        QList<int> numbers;
        for (const auto& [file, seconds] : files)
            numbers << file;
        progress.begin(direction, numbers);
        QStringList texts;
        for (const auto& [file, seconds] : files) {
            texts << progress.beginFile(file).inWords();
            passed += seconds;
            progress.endFile();
        }
        progress.end();
        return texts;
    }

    test::TestFolder m_folder;
    ApplicationValues m_values;
};

TEST_F(ExchangeProgressTest, KnowsTheTimeOfFilesThatMovedBefore)
{
    const QList<std::pair<int, int>> first{{67, 300}, {65, 3}, {1, 40}};
    EXPECT_EQ(shown(Direction::Download, first),
              QStringList({u"file 1 of 3"_s, u"file 2 of 3"_s, u"file 3 of 3"_s}));
    EXPECT_EQ(shown(Direction::Download, {{65, 3}, {1, 20}}),
              QStringList({u"file 1 of 2, about 45 s left"_s, u"file 2 of 2, about 40 s left"_s}));
    EXPECT_EQ(shown(Direction::Download, {{67, 600}, {1, 1}}),
              QStringList({u"file 1 of 2, about 5 min left"_s, u"file 2 of 2, about 40 s left"_s}))
        << "the time of last time, at the pace of this exchange";
    EXPECT_EQ(shown(Direction::Download, {{65, 1}, {2, 1}, {1, 1}}),
              QStringList({u"file 1 of 3"_s, u"file 2 of 3"_s, u"file 3 of 3, about 1 s left"_s}))
        << "file 2 is new";
    EXPECT_EQ(shown(Direction::Upload, {{65, 1}}), QStringList({u"file 1 of 1"_s}));
}

TEST(ExchangeFiles, ArePlannedAsTheyWillMove)
{
    EXPECT_EQ(filesOfBoxes(downloadPlan(), {0, 2, 34}, true), QList<int>({67, 1, 85, 71}));
    EXPECT_EQ(filesOfBoxes(uploadPlan(), {0, 2, 34}, false), QList<int>({67, 1}));
}

TEST(ExchangeFiles, CountDownWhileOneMoves)
{
    using namespace std::chrono_literals;
    const link::RunProgress progress{12, 36, 38s};
    EXPECT_EQ(progress.inWords(), u"file 12 of 36, about 40 s left");
    EXPECT_EQ(progress.inWords(32s), u"file 12 of 36, about 6 s left");
    EXPECT_EQ(progress.inWords(38s), u"file 12 of 36");
    EXPECT_EQ(link::RunProgress().inWords(), QString());
}

} // namespace
} // namespace norvane::exchange
