// The main window with an overview that has days of every kind, an amount of many digits, and something that
// went wrong.
#include "customers/CustomerLog.h"
#include "scripts/windows/EveryWindow.h"
#include "scripts/windows/FilledShop.h"
#include "shell/Overview.h"

#include <QtTest>
#include <QtWidgets>

#include <utility>

using namespace Qt::Literals::StringLiterals;

namespace norvane::windows
{

void lookAtOverview(FilledShop& shop, const Look& look)
{
    const QString values =
        u"insert into FINANCIALSALES (ID, SALESDATE, QUANTITY, [VALUE]) values (2, '%1', 1, %2)"_s;
    const QDate today = QDate::currentDate();
    constexpr std::pair<int, const char*> days[] = {{1, "1234567.89"}, {3, "0"}, {4, "456789.1"}};
    for (const auto& [before, amount] : days) {
        shop.execute(values.arg(today.addDays(-before).toString(Qt::ISODate), QLatin1String(amount))
                         .toLatin1()
                         .constData());
    }
    customers::writeLog(
        shop.values().customerPath,
        {QDateTime::currentDateTime(), u"collection"_s, u"registers 1 to 3"_s,
         u"stopped at Clear Data at ECR: result 8: Time Out; the sales are stored; still to do: clear the registers"_s});
    new shell::Overview(shop.frame(), shop.values(),
                        shell::OverviewMemory(shop.folder().appFile(u"overview.ini"_s)));
    shop.frame().showCustomer();
    QApplication::processEvents();
    const auto& unsent = *shop.frame().findChild<QPushButton*>(u"OverviewUnsent"_s);
    constexpr int longestReading = 5000;
    (void)QTest::qWaitFor([&] { return !unsent.accessibleName().endsWith(u"..."_s); }, longestReading);
    look(u"main"_s, shop.frame());
}

} // namespace norvane::windows
