// Table of the Utilities menu and how a row is run; see PriceUtilities.h.
#include "utilities/PriceUtilities.h"

#include "customers/CustomerLog.h"
#include "customers/RunLock.h"
#include "customers/SafetyCopies.h"
#include "store/SalesTables.h"
#include "utilities/PriceConversion.h"

#include <QFileInfo>

#include <array>

using namespace Qt::Literals::StringLiterals;

namespace norvane::utilities
{
namespace
{

using Tables = std::span<const char* const>;
namespace salestable = store::salestable;

// clang-format off
constexpr auto currentToEuro = std::to_array<PricePair>({
    {"price1"_L1, "EuroPrice1"_L1},
    {"price2"_L1, "europrice2"_L1},
    {"price3"_L1, "europrice3"_L1},
    {"price4"_L1, "europrice4"_L1},
    {"price5"_L1, "europrice5"_L1},
});
constexpr auto euroToCurrent = std::to_array<PricePair>({
    {"EuroPrice1"_L1, "price1"_L1},
    {"europrice2"_L1, "price2"_L1},
    {"europrice3"_L1, "price3"_L1},
    {"europrice4"_L1, "price4"_L1},
    {"europrice5"_L1, "price5"_L1},
});
// A register has no euro fields; its second price can serve as one.
constexpr auto firstToSecond = std::to_array<PricePair>({{"price1"_L1, "Price2"_L1}});
constexpr auto secondToFirst = std::to_array<PricePair>({{"Price2"_L1, "price1"_L1}});

constexpr auto resetPrices =
    "update pludata set price1='0.00', price2='0.00', price3='0.00', price4='0.00', price5='0.00',"
    "europrice1='0.00', europrice2='0.00', europrice3='0.00', europrice4='0.00', europrice5='0.00'"_L1;
constexpr auto resetSales = std::to_array<const char*>({
    salestable::clerks, salestable::groups, salestable::financials,
    salestable::mixes,  salestable::plus,   salestable::times,
});
// The card categories are lost, too, until the next upload.
constexpr auto resetCards = std::to_array<const char*>({"CARDCATEGORY"});

constexpr BoxWords toEuro{"Update Euro prices"_L1, "Continue?"_L1};
constexpr BoxWords fromEuro{"Update Prices with Euro Prices"_L1, "Do you wish to overwrite your current prices?"_L1};
constexpr BoxWords converted{"Euro Conversion"_L1, "Conversion complete..."_L1};

constexpr auto utilities = std::to_array<PriceUtility>({
    {"TransferEuro_Click"_L1,    toEuro,   true,  currentToEuro, {}, converted},
    {"TransferCurrent_Click"_L1, fromEuro, false, euroToCurrent, {}, converted},
    {"Transfer1to2_Click"_L1,    toEuro,   true,  firstToSecond, {}, converted},
    {"Transfer2to1_Click"_L1,    fromEuro, false, secondToFirst, {}, converted},
    {"ResetPrice_Click"_L1, {"Reset Prices?"_L1, "Do you wish to reset prices?"_L1}, false, {},
     resetPrices, {"Price Reset"_L1, "Price Reset Complete!"_L1}},
    {"SalesReset_Click"_L1, {"Reset Sales Data?"_L1, "Do you wish to reset ALL Sales data?"_L1}, false, {},
     {}, {"Sales Reset"_L1, "Sales Reset Complete!"_L1}, resetSales, resetCards},
});
// clang-format on

void empty(Tables tables, const QString& databasePath)
{
    if (tables.empty())
        return;
    store::Database database(databasePath);
    for (const char* table : tables)
        database.execute(u"delete * from %1"_s.arg(QLatin1StringView(table)));
}

/// Years of sales are copied only where they are at stake.
bool copyFirst(const PriceUtility& utility, const ApplicationValues& values, Boxes& boxes)
{
    const bool resetsSales = !utility.emptied.empty();
    return customers::copyBeforeJob(values, boxes,
                                    resetsSales ? u"before sales reset"_s : u"before price run"_s,
                                    resetsSales ? store::CopyOf::Everything : store::CopyOf::Programme);
}

/// @return false when the user gave no rate or there is no room for a safety copy.
bool walk(const PriceUtility& utility, const ApplicationValues& values, Boxes& boxes, const WalkFrame& frame)
{
    store::Database database(values.databasePath);
    auto plus = database.openTable(u"pludata"_s);
    std::optional<Decimal> rate;
    if (utility.asksRate) {
        rate = exchangeRate(boxes.input(u"Please enter the current Euro Exchange"_s, u"Euro Rate"_s));
        if (!rate)
            return false;
    }
    if (!copyFirst(utility, values, boxes))
        return false;
    frame.begins();
    transferPrices(database, plus, utility.fields, rate, frame.everyRow);
    return true;
}

/// What needs no walk. @return false when there is no room for a safety copy.
bool change(const PriceUtility& utility, const ApplicationValues& values, Boxes& boxes)
{
    if (!copyFirst(utility, values, boxes))
        return false;
    if (!utility.statement.isEmpty())
        store::Database(values.databasePath).execute(utility.statement);
    empty(utility.emptied, values.databasePath);
    return true;
}

} // namespace

std::span<const PriceUtility> priceUtilities()
{
    return utilities;
}

void runPriceUtility(const PriceUtility& utility, const ApplicationValues& values, Boxes& boxes,
                     const WalkFrame& frame)
{
    if (!boxes.ask(utility.confirm.text, utility.confirm.title, BoxIcon::Question, BoxAnswer::No))
        return;
    const auto lock = customers::RunLock::take(values, boxes);
    if (lock == nullptr)
        return;
    customers::LoggedWork work(QFileInfo(values.databasePath).path(), utility.confirm.title);
    const bool isDone =
        utility.fields.empty() ? change(utility, values, boxes) : walk(utility, values, boxes, frame);
    work.setResult(isDone ? u"complete"_s : u"not started"_s);
    if (!isDone)
        return;
    boxes.message(utility.done.text, utility.done.title);
    empty(utility.emptiedAfterwards, values.databasePath);
}

} // namespace norvane::utilities
