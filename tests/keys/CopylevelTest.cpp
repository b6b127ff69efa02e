// The dialog that copies levels as a user works it.
#include "keys/copylevel.h"

#include "customers/SafetyCopies.h"
#include "tests/keys/KeyShop.h"
#include "tests/support/RecordingBoxes.h"

#include <QComboBox>
#include <QLabel>
#include <QPushButton>
#include <QTest>

namespace norvane::keys
{
namespace
{

using namespace Qt::Literals::StringLiterals;

void press(QDialog& form, const char* button)
{
    QTest::mouseClick(form.findChild<QPushButton*>(QLatin1StringView(button)), Qt::LeftButton);
}

/// Chooses by the arrow keys, as often as the level is far from the list's top.
void choose(QDialog& form, const char* list, int level)
{
    auto& box = *form.findChild<QComboBox*>(QLatin1StringView(list));
    EXPECT_EQ(box.currentIndex(), -1) << list;
    for (int step = 0; step < level; ++step)
        QTest::keyClick(&box, Qt::Key_Down);
}

TEST(Copylevel, CopiesOnceBothLevelsAreChosenAndAsksWhereLevelsLieElsewhere)
{
    for (const KeyGeometry* const keyboard : {&velmarKeyboard(), &dorvikKeyboard()}) {
        const test::KeyShop shop;
        shop.addKeyboard(keyboard->keysPerLevel);
        const std::string before = shop.column("KEYLINK", "KEYLINK");
        const auto database = shop.open();
        norvane::test::RecordingBoxes boxes;
        copylevel form(*database, *keyboard, shop.values, boxes);
        form.show();
        for (const QLabel* const label : form.findChildren<QLabel*>())
            EXPECT_TRUE(!label->buddy() || label->geometry().right() < label->buddy()->x())
                << "before its list";
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
            EXPECT_TRUE(shop.column("KEYLINK", "KEYLINK").starts_with("1001|1002")) << "No copies nothing";
        }
        boxes.answers = {true};
        press(form, "CSCmdBtn1");
        EXPECT_EQ(boxes.shown.size(), asks ? 2U : 0U);
        EXPECT_EQ(form.result(), QDialog::Accepted);
        EXPECT_EQ(form.copiedTo(), 2);
        const auto keys = QString::fromStdString(shop.column("KEYLINK", "KEYLINK")).split(u'|');
        EXPECT_EQ(keys.at(copiedKeys), asks ? u"4126"_s : u"5001"_s);
        const auto copies = customers::safetyCopies(shop.values.customerPath);
        ASSERT_EQ(copies.size(), 1);
        customers::restoreSafetyCopy(shop.values.customerPath, copies.front());
        EXPECT_TRUE(shop.column("KEYLINK", "KEYLINK") == before);
    }
}

} // namespace
} // namespace norvane::keys
