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

TEST(FrmSearchTest, LeavesTheTextAndWhetherItWasConfirmed)
{
    const struct {
        const char* pressed; ///< a button, or empty for the key
        Qt::Key key;
        bool confirmed;
    } ways[] = {{"ExitControl_0", Qt::Key_Any, true},
                {"ExitControl_1", Qt::Key_Any, false},
                {"", Qt::Key_Return, true},
                {"", Qt::Key_Escape, false}};
    for (const auto& [pressed, key, confirmed] : ways) {
        ApplicationValues values;
        values.searchConfirmed = true;
        FrmSearch dialog(values);
        EXPECT_FALSE(values.searchConfirmed);
        dialog.show();
        auto* const box = dialog.findChild<QLineEdit*>(QStringLiteral("SearchData"));
        QTest::keyClicks(box, QStringLiteral("123"));
        if (key == Qt::Key_Any) {
            dialog.findChild<QPushButton*>(QLatin1String(pressed))->click();
        } else {
            QTest::keyClick(box, key);
        }
        EXPECT_FALSE(dialog.isVisible());
        EXPECT_EQ(values.searchConfirmed, confirmed) << pressed << key;
        EXPECT_EQ(values.searchText, QStringLiteral("123"));
    }
}

} // namespace
} // namespace norvane::screens
