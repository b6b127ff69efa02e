// The register models by the two ways of reading the setting.
#include "register/RegisterModel.h"

#include "tests/platform/TestFolder.h"

namespace norvane
{
namespace
{

const struct {
    QString setting;
    int place;
    RegisterFamily family;
    bool hasCards;
} byNumber[] = {
    {u"0"_s, 0, RegisterFamily::Velmar, false},  {u"00"_s, 0, RegisterFamily::Velmar, false},
    {u" 2 "_s, 2, RegisterFamily::Velmar, true}, {u"3"_s, 3, RegisterFamily::Dorvik, true},
    {u"1.5"_s, 3, RegisterFamily::Dorvik, true}, {u"9"_s, 3, RegisterFamily::Dorvik, true},
};

TEST(RegisterModelTest, ANumberThatIsNotInTheListIsADorvik)
{
    for (const auto& [setting, place, family, hasCards] : byNumber) {
        const RegisterModel& model = modelOfNumber(setting);
        EXPECT_EQ(model.place, place) << setting.toStdString();
        EXPECT_EQ(model.family, family) << setting.toStdString();
        EXPECT_EQ(model.messageWidth, family == RegisterFamily::Velmar ? 40 : 32) << setting.toStdString();
        EXPECT_EQ(model.hasCards, hasCards) << setting.toStdString();
    }
    for (const QString& text : {u""_s, u"none"_s})
        EXPECT_EQ(test::failureOf([&] { (void)modelOfNumber(text); }), 13) << text.toStdString();
}

TEST(RegisterModelTest, OnlyTheVeryTextsOfTheListNameAModel)
{
    const struct {
        QString setting;
        bool hasCards, hasPoints;
    } rows[] = {{u"0"_s, false, false}, {u"00"_s, true, false},  {u"1"_s, true, false},
                {u"2"_s, true, true},   {u"02"_s, true, false},  {u"3"_s, true, true},
                {u"4"_s, true, false},  {u"none"_s, true, false}};
    for (const auto& [setting, hasCards, hasPoints] : rows) {
        EXPECT_EQ(modelOfText(setting).hasCards, hasCards) << setting.toStdString();
        EXPECT_EQ(modelOfText(setting).hasPoints, hasPoints) << setting.toStdString();
    }
}

} // namespace
} // namespace norvane
