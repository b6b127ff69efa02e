// The shared routines to the character, with the files that registers and tools leave behind.
#include "base/SharedRoutines.h"

#include "tests/platform/TestFolder.h"

namespace norvane
{
namespace
{

using test::failureOf;
using test::TestFolder;

/// The working directory is the program's folder.
class SharedRoutinesTest : public testing::Test
{
protected:
    SharedRoutinesTest() { m_values.appPath = m_values.customerPath = m_app.path(); }

    TestFolder m_app;
    test::WorkingDirectory m_here{m_app.path()};
    ApplicationValues m_values;
};

TEST_F(SharedRoutinesTest, ModelIndexesGiveTheConvertersWords)
{
    EXPECT_EQ(GetModelCode(m_values), u"Velmaro") << "without a settings file";
    for (const auto& [model, code] : {std::pair{" 0", u"Velmaro"},
                                      {"1", u"Velmaro"},
                                      {"2", u"Velmarn"},
                                      {"3", u"Dorvik"},
                                      {"-1", u"Dorvik"}}) {
        m_app.write("setup.ini", QByteArray("[SetupOption]\r\nECRModel=") + model);
        EXPECT_EQ(GetModelCode(m_values), code) << model;
    }
}

TEST_F(SharedRoutinesTest, PositionThreeIsARowOfTheRegisterAndNoBit)
{
    for (int digit = 0; digit < 10; ++digit) {
        EXPECT_EQ(DigitFlagSet(digit, 3), digit == 3 || digit == 5 || digit == 7) << digit;
        EXPECT_EQ(DigitFlagSet(digit, 4), digit < 8 && (digit & 4) != 0) << digit;
    }
}

TEST_F(SharedRoutinesTest, TextsAreBroughtToTheFormOfRecords)
{
    const struct {
        std::optional<QString> value;
        int width;
        int mode;
        const char16_t* field;
    } rows[] = {{QStringLiteral(" 12 "), 4, 0, u"0012"},
                {QStringLiteral("123456"), 4, 0, u"3456"},
                {{}, 3, 0, u"000"},
                {QStringLiteral("  ab "), 4, 1, u"ab  "},
                {QStringLiteral("123456"), 4, 1, u"1234"},
                {QStringLiteral("ab"), 5, 2, u"  ab "},
                {QStringLiteral("ab"), 7, 99, u"  ab   "}};
    for (auto [value, width, mode, field] : rows) {
        EXPECT_EQ(JustifyField(value, width, mode), field);
        EXPECT_EQ(value, QString::fromUtf16(field)) << "the caller's own value";
    }
    std::optional<QString> longer = QStringLiteral("abcdef");
    EXPECT_EQ(failureOf([&longer] { JustifyField(longer, 4, 2); }), 5);
    QString text = QStringLiteral("ýCola ý0.5ý");
    EXPECT_EQ(EscapeDelimiter(text), u"^Cola ^0.5^");
    EXPECT_EQ(UnescapeDelimiter(text), u"ýCola ý0.5ý");
    for (const auto& [given, stripped] : {std::pair{u" 0120 ", u"120"}, {u"0000", u""}, {u"0 5", u" 5"}}) {
        text = QString::fromUtf16(given);
        EXPECT_EQ(StripLeadingZero(text), stripped);
        EXPECT_EQ(text, stripped);
    }
}

TEST_F(SharedRoutinesTest, TheLastValueOfTheStatusFileCounts)
{
    // Neither an empty place nor the end mark hides the error.
    for (const auto& [content, status] : {std::pair{"", u""},
                                          {"8,0", u"0"},
                                          {" 0 , -13 \r\n", u"-13"},
                                          {"\"0\",\"a,b\"\r\n", u"a,b"},
                                          {"8\r\n\r\n\x1A", u"8"},
                                          {"8,,\r\n", u"8"},
                                          {"\"8,0\r\n", u"8,0"}}) {
        m_app.write("STATUS.OUT", content);
        EXPECT_EQ(ReadStatusOut(), status) << content;
    }
}

} // namespace
} // namespace norvane
