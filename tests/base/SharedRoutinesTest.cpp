// The shared routines to the character, with the files that registers and tools write.
#include "base/SharedRoutines.h"

#include "base/FieldText.h"
#include "tests/platform/TestFolder.h"
#include "tests/support/RecordingBoxes.h"

namespace norvane
{
namespace
{

/// The working directory is the program's folder.
class SharedRoutinesTest : public testing::Test
{
protected:
    SharedRoutinesTest() { m_values.appPath = m_values.customerPath = m_app.path(); }

    test::TestFolder m_app;
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

TEST_F(SharedRoutinesTest, TheLengthOfTheMemoryFileTellsTheFirmware)
{
    test::RecordingBoxes boxes;
    EXPECT_EQ(test::failureOf([&] { (void)GetFirmwareGeneration(m_values, boxes); }), 53);
    for (const auto& [length, generation] : {std::pair{0, -1}, {1, 2}, {77, 2}, {78, 3}, {32767, 3}}) {
        m_app.write("MEM.dat", QByteArray(length, 'x'));
        EXPECT_EQ(GetFirmwareGeneration(m_values, boxes), generation) << length;
    }
    EXPECT_EQ(boxes.shown.size(), 1U) << "for the empty one";
    m_app.write("MEM.dat", QByteArray(32768, 'x'));
    EXPECT_EQ(test::failureOf([&] { (void)GetFirmwareGeneration(m_values, boxes); }), 6);
}

TEST_F(SharedRoutinesTest, TheLastValueOfTheStatusFileCounts)
{
    EXPECT_EQ(test::failureOf([] { (void)ReadStatusOut(); }), 53) << "no file yet";
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

const struct {
    std::optional<QString> text;
    int width;
    int mode;
    QString field;
} justified[] = {{u" 12 "_s, 4, 0, u"0012"_s},  {u"123456"_s, 4, 0, u"3456"_s}, {{}, 3, 0, u"000"_s},
                 {u"  ab "_s, 4, 1, u"ab  "_s}, {u"123456"_s, 4, 1, u"1234"_s}, {u"ab"_s, 5, 2, u"  ab "_s},
                 {u"ab"_s, 7, 99, u"  ab   "_s}};

TEST(FieldTextTest, ATextIsBroughtToTheWidthOfItsField)
{
    for (auto [value, width, mode, field] : justified) {
        EXPECT_EQ(JustifyField(value, width, mode), field);
        EXPECT_EQ(value, field) << "the caller's own value";
    }
    std::optional<QString> longer = u"abcdef"_s;
    EXPECT_EQ(test::failureOf([&longer] { JustifyField(longer, 4, 2); }), 5);
}

} // namespace
} // namespace norvane
