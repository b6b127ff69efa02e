// Reports from the menu and from a screen's print button, as far as the figures on the clipboard.
#include "tests/road/Shop.h"

namespace norvane
{
namespace
{

using test::Shop;

/// Takes the lines of the open preview and closes it.
QString linesOfPreview(const QString& title)
{
    for (QWidget* const window : QApplication::topLevelWidgets()) {
        if (window->objectName() == u"ReportPreview"_s && window->isVisible()) {
            EXPECT_EQ(window->windowTitle(), title);
            QGuiApplication::clipboard()->clear();
            test::press(*window, "CopyButton");
            test::press(*window, "CloseButton");
            return QGuiApplication::clipboard()->text();
        }
    }
    return u"no preview"_s;
}

TEST(Reports, EveryGroupOfTheMenuShowsItsSales)
{
    Shop shop(0, 1);
    const QByteArray today = QDate::currentDate().toString(Qt::ISODate).toLatin1();
    const QByteArray longAgo = "2019-05-05";
    const std::pair<const char*, QByteArray> sales[] = {
        {"PLUSALES", "'7', ?, 0, 0, 2, 5639.55, 0, 0, 0, 0, 0, 0, 0, 0"},
        {"FINANCIALSALES", "1, ?, 2, 5639.55"},
        {"CLERKSALES", "1, 1, ?, 2, 5639.55"},
        {"TIMESALES", "1, ?, 2, 5639.55"},
        {"MIXSALES", "1, ?, 563955, 0"},
    };
    for (const auto& [table, values] : sales) {
        for (const QByteArray& day : {today, today, longAgo}) {
            const QByteArray row = QByteArray(values).replace("?", '\'' + day + '\'');
            shop.execute((QByteArray("insert into ") + table + " values (" + row + ')').constData());
        }
    }
    const std::pair<const char*, QString> entries[] = {
        {"PLUSalesByDate", u"PLU Sales Report by Date."_s},
        {"FinMonth", u"Financial Sales Report Month to Date"_s},
        {"clerkweek", u"Clerk Sales Report Week to Date"_s},
        {"TimeYear", u"Time Period Sales Report Year to Date"_s},
        {"MixDate", u"Mix Sales Report by Date."_s},
    };
    for (const auto& [entry, title] : entries) {
        shop.choose(entry, [&, title = title](QDialog& dialog) {
            EXPECT_EQ(dialog.windowTitle(), title);
            test::press(dialog, "CSCmdBtn1");
            const QString lines = linesOfPreview(title);
            EXPECT_TRUE(lines.contains(u"11279.1"_s)) << title.toStdString() << lines.toStdString();
            EXPECT_TRUE(dialog.isVisible());
            test::press(dialog, "CmdExit");
        });
    }
    EXPECT_TRUE(shop.boxes().shown.empty());
}

TEST(Reports, AScreenPrintsItsTable)
{
    Shop shop(0, 1);
    shop.execute("insert into GROUPS (GROUPNO, DESCRIPTION) values (3, 'Drinks')");
    QWidget& screen = shop.openForm("GroupMenu");
    test::press(screen, "PrintReport");
    EXPECT_TRUE(linesOfPreview(u"GROUPS"_s).contains(u"Drinks"_s));
}

} // namespace
} // namespace norvane
