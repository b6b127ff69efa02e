// What a shop manager sees and keeps when an exchange goes wrong, through the real dialog.
#include "tests/road/Shop.h"
#include "tests/support/FormTest.h"

using namespace Qt::Literals::StringLiterals;

namespace norvane
{
namespace
{

using test::BoxNumbers;

class ExchangeFaults : public testing::Test
{
protected:
    [[nodiscard]] bool keeps(const char* file) const
    {
        return QFile::exists(m_shop.values().customerPath + QLatin1String(file));
    }

    test::Shop m_shop{2, 1};
};

/// A register that does not answer in the midst of a box: what came before stays, the box and all later ones
/// are still to do.
TEST_F(ExchangeFaults, ARegisterThatGoesOffLeavesTheRestTicked)
{
    m_shop.folder().setFaults("[off]\nTool=VELMARCOMM\nCommand=fetch\nFile=9\nResult=8\n");
    EXPECT_EQ(m_shop.upload({1, 4, 5, 6}), (BoxNumbers{4, 5, 6}));
    EXPECT_EQ(m_shop.boxes().shown,
              (std::vector{test::ShownBox{u"Communications Error 8"_s, u"Communication result"_s}}));
    EXPECT_GT(m_shop.rowsOf("PLUSTATUS"), 0);
    EXPECT_TRUE(keeps("/8.dat"));
    EXPECT_FALSE(keeps("/10.dat"));

    m_shop.boxes().shown.clear();
    m_shop.folder().setFaults("");
    EXPECT_EQ(m_shop.upload({4, 5, 6}), BoxNumbers());
    EXPECT_EQ(m_shop.boxes().shown.size(), 1U) << "what is still to do";

    m_shop.boxes().shown.clear();
    m_shop.folder().setFaults("[off]\nTool=VELMARCOMM\nCommand=send\nFile=9\nResult=8\n");
    EXPECT_EQ(m_shop.download({1, 4, 5, 6}), (BoxNumbers{4, 5, 6}));
    EXPECT_EQ(m_shop.boxes().shown.size(), 1U);
}

/// After a Yes to a conversion that failed: without any text the program ends with the missing file's failure
/// and the table stays as it was, later the text of the former upload fills the table again.
TEST_F(ExchangeFaults, AFailedConversionReadsTheOldTextAfterAQuestion)
{
    const char* const fault = "[bad]\nTool=convert\nCommand=u01\nResult=1\n";
    const char* const name = "select DESCRIPTION from GROUPS where GROUPNO=1";
    m_shop.folder().setFaults(fault);
    m_shop.boxes().answers = {true};
    (void)m_shop.upload({2});
    const auto failure = test::takeFailure();
    ASSERT_TRUE(failure.has_value());
    EXPECT_EQ(failure->number(), 53);
    EXPECT_TRUE(failure->text().contains(u"1.txt"_s));
    EXPECT_EQ(m_shop.rowsOf("GROUPS"), 0);

    m_shop.folder().setFaults("");
    EXPECT_EQ(m_shop.upload({2}), BoxNumbers());
    const QString before = m_shop.stored(name);
    m_shop.execute("update GROUPS set DESCRIPTION='Renamed' where GROUPNO=1");
    m_shop.folder().setFaults(fault);
    m_shop.boxes().shown.clear();
    EXPECT_EQ(m_shop.upload({2}), BoxNumbers{2});
    EXPECT_EQ(m_shop.stored(name), u"Renamed"_s);
    m_shop.boxes().answers = {true};
    EXPECT_EQ(m_shop.upload({2}), BoxNumbers());
    EXPECT_EQ(m_shop.stored(name), before);
    EXPECT_EQ(m_shop.boxes().shown.size(), 3U) << "two questions, and what the first of the two left";
}

} // namespace
} // namespace norvane
