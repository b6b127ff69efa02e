// The find dialog and the values that it leaves behind.
#include "screens/FrmSearch.h"

#include <gtest/gtest.h>
#include <QLineEdit>
#include <QPushButton>
#include <QTest>

namespace norvane::screens
{
namespace
{

/// Enter and Escape are pressed by the tests of the screens.
TEST(FrmSearchTest, LeavesTheTextAndWhetherItWasConfirmed)
{
    for (const bool confirmed : {true, false}) {
        ApplicationValues values;
        values.searchConfirmed = true;
        FrmSearch dialog(values);
        EXPECT_FALSE(values.searchConfirmed);
        dialog.show();
        QTest::keyClicks(dialog.findChild<QLineEdit*>(QStringLiteral("SearchData")), QStringLiteral("123"));
        dialog.findChild<QPushButton*>(QLatin1String(confirmed ? "ExitControl_0" : "ExitControl_1"))->click();
        EXPECT_FALSE(dialog.isVisible());
        EXPECT_EQ(values.searchConfirmed, confirmed);
        EXPECT_EQ(values.searchText, QStringLiteral("123"));
    }
}

} // namespace
} // namespace norvane::screens
