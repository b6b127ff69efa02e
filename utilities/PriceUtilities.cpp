// Table of the Utilities menu and how a row is run; see PriceUtilities.h.
#include "utilities/PriceUtilities.h"

#include "base/CustomerSettings.h"
#include "base/LossQuestion.h"
#include "customers/CustomerLog.h"
#include "customers/DataOwner.h"
#include "customers/RunLock.h"
#include "customers/SafetyCopies.h"
#include "platform/Excerpt.h"
#include "platform/RuntimeFailure.h"
#include "store/catalogue/SalesTables.h"
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
    {"TransferEuro_Click"_L1, "Transfer Current Price to Euro"_L1,
     toEuro, true, "the euro prices 1 to 5"_L1, currentToEuro, {}, converted},
    {"TransferCurrent_Click"_L1, "Transfer Euro Price to Current"_L1,
     fromEuro, false, "the prices 1 to 5"_L1, euroToCurrent, {}, converted},
    {"Transfer1to2_Click"_L1, "Transfer 1st Price To 2nd Price (Euro)"_L1,
     toEuro, true, "price 2"_L1, firstToSecond, {}, converted},
    {"Transfer2to1_Click"_L1, "Transfer 2nd Price to 1st Price (Euro)"_L1,
     fromEuro, false, "price 1"_L1, secondToFirst, {}, converted},
    {"ResetPrice_Click"_L1, "Reset Prices"_L1,
     {"Reset Prices?"_L1, "Do you wish to reset prices?"_L1}, false, "all prices and euro prices"_L1, {},
     resetPrices, {"Price Reset"_L1, "Price Reset Complete!"_L1}},
    {"SalesReset_Click"_L1, "Reset Sales"_L1,
     {"Reset Sales Data?"_L1, "Do you wish to reset ALL Sales data?"_L1}, false, "all collected sales"_L1, {},
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

/// A read-only check before the user has answered Yes. @return nothing if there is no database to read, which
/// is reported only if the user continues.
std::optional<qint64> pluCount(const QString& databasePath)
{
    try {
        return store::Database(databasePath).openTable(u"pludata"_s).recordCount();
    } catch (const RuntimeFailure&) {
        return std::nullopt;
    }
}

QString plusInWords(std::optional<qint64> count)
{
    if (!count)
        return u"all PLUs"_s;
    return count == 1 ? u"1 PLU"_s : u"%1 PLUs"_s.arg(*count);
}

/// One choice of an entry.
class PriceRun
{
public:
    PriceRun(const PriceUtility& utility, const ApplicationValues& values, Boxes& boxes,
             const WalkFrame& frame)
        : m_utility(utility), m_values(values), m_boxes(boxes), m_frame(frame)
    {
    }
    void run();

private:
    [[nodiscard]] bool isWanted();
    [[nodiscard]] bool takesRate();
    [[nodiscard]] bool deletesSales() const { return !m_utility.emptied.empty(); }
    [[nodiscard]] QString intention() const;
    [[nodiscard]] QString wayBack() const;
    [[nodiscard]] QString copyReason() const;
    [[nodiscard]] bool isChanged();
    [[nodiscard]] bool changesAlone();
    [[nodiscard]] QString copyRefusal() const;
    [[nodiscard]] QString nameInLog() const;
    void change();

    const PriceUtility& m_utility;
    const ApplicationValues& m_values;
    Boxes& m_boxes;
    const WalkFrame& m_frame;
    std::optional<store::Database> m_database; ///< of a walk
    std::optional<store::Recordset> m_plus;    ///< of a walk
    std::optional<Decimal> m_rate;
    qint64 m_changed = 0; ///< PLUs
    QString m_refusal;    ///< why there is no safety copy
};

void PriceRun::run()
{
    m_frame.showNotice(intention());
    if (!isWanted() || !isChanged()) {
        m_frame.showNotice({});
        return;
    }
    m_frame.showNotice(wayBack());
    m_boxes.message(m_utility.done.text, m_utility.done.title);
    empty(m_utility.emptiedAfterwards, m_values.databasePath);
}

QString PriceRun::intention() const
{
    const QString action =
        deletesSales()
            ? u"delete "_s + m_utility.target
            : u"change %1 of %2"_s.arg(m_utility.target, plusInWords(pluCount(m_values.databasePath)));
    return u"This will %1. A safety copy is made first."_s.arg(action);
}

/// Short enough for a narrow window.
QString PriceRun::wayBack() const
{
    const QString done =
        deletesSales() ? u"Deleted "_s + m_utility.target : u"Changed "_s + plusInWords(m_changed);
    return u"%1. To go back, right-click %2 in \"Change Customer File\"."_s.arg(
        done, customerOf(m_values, m_values.databasePath));
}

/// Asks without the lock, since the user may be away.
bool PriceRun::isWanted()
{
    if (!m_boxes.ask(m_utility.confirm.text, m_utility.confirm.title, BoxIcon::Question, BoxAnswer::No) ||
        !customers::mayUseOpenData(m_values, m_boxes,
                                   u"The tables of %1 would be changed, not those of %2."_s))
        return false;
    if (m_utility.fields.empty())
        return true;
    m_plus.emplace(m_database.emplace(m_values.databasePath).openTable(u"pludata"_s));
    return !m_utility.asksRate || takesRate();
}

/// @return whether there is a rate that the user means.
bool PriceRun::takesRate()
{
    const QString answer = m_boxes.input(u"Please enter the current Euro Exchange"_s, u"Euro Rate"_s);
    m_rate = exchangeRate(answer);
    if (!m_rate || isWhollyNumber(answer))
        return m_rate.has_value();
    return askBeforeLoss(m_boxes, u"\"%1\" counts as %2.\r\rConvert at the rate %2?"_s.arg(
                                      excerpt(answer), QString::fromStdString(m_rate->text())));
}

bool PriceRun::isChanged()
{
    const bool isDone = changesAlone();
    if (!m_refusal.isEmpty())
        m_boxes.message(m_refusal, pleaseCheck, BoxIcon::Exclamation);
    return isDone;
}

/// The lock is released with it, so that the box shown next blocks no other run, however long it stays open.
bool PriceRun::changesAlone()
{
    const auto lock = customers::RunLock::take(m_values, m_boxes);
    if (lock == nullptr)
        return false;
    customers::LoggedWork work(QFileInfo(m_values.databasePath).path(), nameInLog());
    m_refusal = copyRefusal();
    work.setResult(m_refusal);
    if (!m_refusal.isEmpty())
        return false;
    work.during([this] { change(); });
    work.setResult(deletesSales() ? u"complete"_s : u"complete, "_s + plusInWords(m_changed));
    return true;
}

QString PriceRun::nameInLog() const
{
    const QString name = m_utility.name;
    return m_rate ? u"%1, rate %2"_s.arg(name, QString::fromStdString(m_rate->text())) : name;
}

QString PriceRun::copyReason() const
{
    return deletesSales() ? u"before sales reset"_s : u"before price run"_s;
}

/// Years of sales are copied only where they are at stake.
QString PriceRun::copyRefusal() const
{
    return customers::refusalOfCopy(m_values, copyReason(),
                                    deletesSales() ? store::CopyOf::Everything : store::CopyOf::Programme);
}

void PriceRun::change()
{
    if (deletesSales())
        return empty(m_utility.emptied, m_values.databasePath);
    if (!m_database)
        m_database.emplace(m_values.databasePath);
    store::RecordedWork work(m_frame.history, *m_database, m_values.databasePath, {u"PLUDATA"_s});
    work.setName(nameInLog());
    if (m_plus) {
        m_frame.begins();
        m_changed = transferPrices(*m_database, *m_plus, m_utility.fields, m_rate, m_frame.everyRow);
    } else {
        m_changed = m_database->execute(m_utility.statement);
    }
}

} // namespace

std::span<const PriceUtility> priceUtilities()
{
    return utilities;
}

void runPriceUtility(const PriceUtility& utility, const ApplicationValues& values, Boxes& boxes,
                     const WalkFrame& frame)
{
    PriceRun(utility, values, boxes, frame).run();
}

} // namespace norvane::utilities
