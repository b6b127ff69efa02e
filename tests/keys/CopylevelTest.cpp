// The dialog that copies levels as a user works it.
#include "keys/layout/copylevel.h"

#include "customers/SafetyCopies.h"
#include "keys/layout/LevelCopy.h"
#include "tests/keys/KeyShop.h"
#include "tests/support/FormTest.h"

namespace norvane::keys
{
namespace
{

using norvane::test::press;

/// Chooses by the arrow keys, as often as the level is far from the list's top.
void choose(QDialog& form, const char* list, int level)
{
    auto& box = norvane::test::child<QComboBox>(form, list);
    EXPECT_EQ(box.currentIndex(), -1) << list;
    for (int step = 0; step < level; ++step)
        QTest::keyClick(&box, Qt::Key_Down);
}

TEST(Copylevel, CopiesOnceBothLevelsAreChosenAndAsksIfLevelsAreElsewhere)
{
    for (const KeyGeometry* const keyboard : {&velmarKeyboard(), &dorvikKeyboard()}) {
        const test::KeyShop shop;
        shop.addKeyboard(keyboard->keysPerLevel);
        const std::string before = shop.column("KEYLINK", "KEYLINK");
        const auto database = shop.open();
        norvane::test::RecordingBoxes boxes;
        copylevel form(*database, *keyboard, shop.values, boxes);
        form.show();
        for (const QLabel* const label : form.findChildren<QLabel*>()) {
            EXPECT_TRUE(!label->buddy() || label->geometry().right() < label->buddy()->x())
                << "before its list";
        }
        press(form, "CSCmdBtn1");
        choose(form, "CopyFrom", 5);
        press(form, "CSCmdBtn1");
        choose(form, "CopyTo", 2);
        EXPECT_TRUE(form.isVisible()) << "greyed until now";
        const bool asks = keyboard == &velmarKeyboard();
        if (asks) {
            press(form, "CSCmdBtn1");
            EXPECT_TRUE(form.isVisible());
            EXPECT_EQ(boxes.shown.back().preset, BoxAnswer::No);
            EXPECT_TRUE(boxes.shown.back().text.contains(u"copy keys 126 to 169 of Level 4 and keys 1 to 114 "
                                                         u"of Level 5 over keys 159 to 169 of Level 1 "
                                                         "and keys 1 to 147 of Level 2."_s));
            EXPECT_TRUE(shop.column("KEYLINK", "KEYLINK").starts_with("1001|1002")) << "No copies nothing";
        }
        boxes.answers = {true};
        press(form, "CSCmdBtn1");
        EXPECT_EQ(boxes.shown.size(), asks ? 2U : 0U);
        EXPECT_EQ(form.result(), QDialog::Accepted);
        EXPECT_EQ(form.copiedTo(), 2);
        const auto links = QString::fromStdString(shop.column("KEYLINK", "KEYLINK")).split(u'|');
        const auto numbers = QString::fromStdString(shop.column("NLU", "NLU")).split(u'|');
        for (const auto& [row, onVelmar, onDorvik] :
             {std::tuple(157, 1158, 1158), {158, 4126, 5001}, {315, 5114, 5158}, {316, 2148, 3001}}) {
            EXPECT_EQ(links.at(row).toInt(), asks ? onVelmar : onDorvik) << row;
            EXPECT_EQ(numbers.at(row).toInt(), asks ? onVelmar : onDorvik) << row;
        }
        const auto copies = customers::safetyCopies(shop.values.customerPath);
        ASSERT_EQ(copies.size(), 1);
        customers::restoreSafetyCopy(shop.values.customerPath, copies.front());
        EXPECT_TRUE(shop.column("KEYLINK", "KEYLINK") == before);
    }
}

TEST(Copylevel, ChangesNothingWhenATableIsTooShort)
{
    const test::KeyShop shop("3");
    shop.addKeyboard(dorvikKeyboard().keysPerLevel, 2);
    shop.execute("delete * from nlu where id = 316");
    const auto links = shop.column("KEYLINK", "KEYLINK");
    const auto numbers = shop.column("NLU", "NLU");
    for (const LevelCopy copy : {LevelCopy{1, 2}, LevelCopy{2, 1}, LevelCopy{1, 5}}) {
        const QString message = test::failureTextOf([&] { copy.run(*shop.open()); });
        EXPECT_TRUE(message.startsWith(u"3021 "_s) && message.contains(u"from the ECR first."_s));
        EXPECT_EQ(shop.column("KEYLINK", "KEYLINK"), links);
        EXPECT_EQ(shop.column("NLU", "NLU"), numbers);
    }
}

} // namespace
} // namespace norvane::keys
