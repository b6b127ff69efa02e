// The shared routines to the character, with the files that registers and tools leave behind.
#include "shell/SharedRoutines.h"

#include "tests/platform/TestFolder.h"
#include "tests/support/RecordingBoxes.h"

namespace norvane
{
namespace
{

using test::failureOf;
using test::TestFolder;
using test::WorkingDirectory;

class SharedRoutinesTest : public testing::Test
{
protected:
    SharedRoutinesTest()
    {
        m_values.appPath = m_app.path();
        m_values.customerPath = m_app.path("Cafe");
    }

    TestFolder m_app;
    WorkingDirectory m_here{m_app.path()};
    ApplicationValues m_values;
    test::RecordingBoxes m_boxes;
};

TEST_F(SharedRoutinesTest, ModelIndexesGiveTheConvertersWords)
{
    EXPECT_EQ(GetModelCode(m_values), u"Velmaro") << "without a settings file";
    for (const auto& [model, code] : {std::pair{" 0", u"Velmaro"},
                                      {"1", u"Velmaro"},
                                      {"2", u"Velmarn"},
                                      {"3", u"Dorvik"},
                                      {"-1", u"Dorvik"},
                                      {"17", u"Dorvik"}}) {
        m_app.write("Cafe/setup.ini", QByteArray("[SetupOption]\r\nECRModel=") + model);
        EXPECT_EQ(GetModelCode(m_values), code) << model;
    }
    for (const char* model : {"", "two", "2x"}) {
        m_app.write("Cafe/setup.ini", QByteArray("[SetupOption]\r\nECRModel=") + model);
        EXPECT_EQ(failureOf([this] { (void)GetModelCode(m_values); }), 13) << model;
    }
}

TEST_F(SharedRoutinesTest, AMemoryFileBeyondASmallNumberHasNoGeneration)
{
    m_app.write("MEM.dat", QByteArray(32'767, 'm'));
    EXPECT_EQ(GetFirmwareGeneration(m_values, m_boxes), 3);
    m_app.write("MEM.dat", QByteArray(32'768, 'm'));
    EXPECT_EQ(failureOf([this] { (void)GetFirmwareGeneration(m_values, m_boxes); }), 6);
    EXPECT_TRUE(m_boxes.shown.empty());
}

TEST_F(SharedRoutinesTest, PositionThreeIsARowOfTheRegisterAndNoBit)
{
    for (int digit = 0; digit < 10; ++digit) {
        EXPECT_EQ(DigitFlagSet(digit, 3), digit == 3 || digit == 5 || digit == 7) << digit;
        EXPECT_EQ(DigitFlagSet(digit, 4), digit < 8 && (digit & 4) != 0) << digit;
    }
}

TEST_F(SharedRoutinesTest, FieldsAreBroughtToTheirWidth)
{
    const struct {
        const char* value;
        int width;
        int mode;
        const char* field;
    } rows[] = {{" 12 ", 4, 0, "0012"},   {"123456", 4, 0, "3456"},          {"-5", 4, 0, "00-5"},
                {"", 3, 1, "   "},        {"  ab ", 4, 1, "ab  "},           {"123456", 4, 1, "1234"},
                {"Größe", 5, 1, "Größe"}, {"\ta\u00A0", 4, 1, "\ta\u00A0 "}, {"ab", 5, 2, "  ab "},
                {"ab", 7, 99, "  ab   "}};
    for (const auto& row : rows) {
        std::optional<QString> value = QString::fromUtf8(row.value);
        const QString field = QString::fromUtf8(row.field);
        EXPECT_EQ(JustifyField(value, row.width, row.mode), field) << row.value << ", mode " << row.mode;
        EXPECT_EQ(value, field) << "the caller's own value";
    }
    std::optional<QString> nothing;
    EXPECT_EQ(JustifyField(nothing, 3, 0), u"000");
    std::optional<QString> longer = QStringLiteral("abcdef");
    EXPECT_EQ(failureOf([&longer] { JustifyField(longer, 4, 2); }), 5);
}

TEST_F(SharedRoutinesTest, TheRegistersMarkIsShownAsACircumflex)
{
    QString text = QStringLiteral("ýCola ý0.5ý");
    EXPECT_EQ(EscapeDelimiter(text), u"^Cola ^0.5^");
    EXPECT_EQ(text, u"^Cola ^0.5^");
    EXPECT_EQ(UnescapeDelimiter(text), QStringLiteral("ýCola ý0.5ý"));
}

TEST_F(SharedRoutinesTest, AllLeadingZerosGo)
{
    for (const auto& [given, stripped] :
         {std::pair{u" 0120 ", u"120"}, {u"0000", u""}, {u"", u""}, {u" 12 ", u"12"}, {u"0 5", u" 5"}}) {
        QString text = QString::fromUtf16(given);
        EXPECT_EQ(StripLeadingZero(text), stripped);
        EXPECT_EQ(text, stripped);
    }
}

TEST_F(SharedRoutinesTest, TheLastValueOfTheStatusFileCounts)
{
    EXPECT_EQ(failureOf([] { (void)ReadStatusOut(); }), 53);
    // Neither an empty place nor the end mark hides the error.
    for (const auto& [content, status] : {std::pair{"", u""},
                                          {"0\r\n8\r\n", u"8"},
                                          {"8,0", u"0"},
                                          {" 0 , -13 \r\n", u"-13"},
                                          {"\"0\",\"a,b\"\r\n", u"a,b"},
                                          {"8\r\n\r\n\x1A", u"8"},
                                          {"8,,\r\n", u"8"},
                                          {"\r\n , \r\n", u""}}) {
        m_app.write("STATUS.OUT", content);
        EXPECT_EQ(ReadStatusOut(), status) << content;
    }
}

TEST_F(SharedRoutinesTest, TheStampIsTheFifthByteOfThePollFile)
{
    EXPECT_EQ(ReadPoll194Stamp(m_values), u"20");
    EXPECT_EQ(m_app.names(), QStringList{QStringLiteral("poll194.dll")}) << "made by the query, and empty";
    EXPECT_EQ(m_app.read("poll194.dll"), "");
    m_app.write("poll194.dll", "1234\x1Fz");
    EXPECT_EQ(ReadPoll194Stamp(m_values), u"115");
    EXPECT_EQ(m_app.read("poll194.dll"), "1234\x1Fz");
    EXPECT_EQ(NibbleDigits("\x23\xFF"), u"231515");
}

} // namespace
} // namespace norvane
