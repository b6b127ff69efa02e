// The catalogue of what is collected from the registers: sales of each kind, and the memory allocation.
#include "store/catalogue/CatalogueRows.h"
#include "store/catalogue/SalesTables.h"

namespace norvane::store::rows
{
namespace
{

// Totals of one item on the day of a collection; the clerks' have the clerk beside the item.
constexpr FieldRow itemSales[] = {
    mustBeSet(whole("ID")),
    mustBeSet(date(salestable::day)),
    zeroUnlessSet(decimal("QUANTITY")),
    zeroUnlessSet(decimal("VALUE")),
};

constexpr FieldRow clerkSales[] = {
    mustBeSet(whole("ID")),           mustBeSet(whole("CLERKID")),
    mustBeSet(date(salestable::day)), zeroUnlessSet(decimal("QUANTITY")),
    zeroUnlessSet(decimal("VALUE")),
};

constexpr FieldRow pluSales[] = {
    mustBeSet(text("ID", 18)),
    mustBeSet(date(salestable::day)),
    mustBeSet(decimal("PROMO")),
    mustBeSet(decimal("WASTE")),
    numbered(5, zeroUnlessSet(decimal("COUNT*")), zeroUnlessSet(decimal("VALUE*"))),
};

// Register file 52. Text, so that an odd value from a register, or a line that ends early, is stored
// unchanged; the flags show which totals the register keeps.
constexpr FieldRow memoryAllocation[] = {
    counter("ID"),
    reported("reporttotals"),
    reported("REPORTCOUNTERS"),
    reported("PLU"),
    reported("PLUSTATUS"),
    reported("PRICELEVELS"),
    reported("EMPLOYEES"),
    reported("TIME/EMPLOYEE"),
    reported("LINES/SOFTCHECK"),
    reported("TRACKINGFILES"),
    numbered(4, reported("TRACK*")),
    reported("TIMEPERIOD"),
    reported("PRODUCTMIXGROUP"),
    reported("PRODUCTMIXTIME"),
    reported("WLU"),
    reported("LINES/PLU"),
    reported("RECIPE"),
    reported("INVENTORYINGREDIENT"),
    reported("LINE/EJ"),
    reported("PAIDRECALL"),
    reported("SUPER"),
    reported("LINES/TRANSACTIONS"),
    flag("PLUBYLEVEL"),
    flag("GROUPBYEMPLOYEE"),
    flag("CHECKTRACKSOFT"),
    flag("PROJECTIONS"),
    flag("STOREBITMAP"),
    flag("EATINTIMEPERIOD"),
    flag("TAKEOUTTIMEPERIOD"),
    flag("DRIVETHRUTIMEPERIOD"),
    numbered(4, flag("TRACK*TIME")),
    numbered(5, flag("Z*GROUPTIME")),
    numbered(5, flag("Z*FINANCIAL")),
    numbered(5, flag("Z*EMPLOYEE")),
    numbered(5, flag("Z*PLU")),
    numbered(5, flag("Z*GROUP")),
    numbered(5, flag("Z*TIME")),
    numbered(5, flag("Z*TIMEKEEP")),
    reported("MIX"),
    flag("CLERKINTERRUPT"),
    numbered(5, flag("Z*MIX")),
    reported("CATEGORY"),
    reported("HOTLIST"),
};

/// Each collection appends, so only reports look for rows: by the day.
constexpr TableRow salesTable(const char* name, std::span<const FieldRow> fields)
{
    return {name, fields, {}, nullptr, salestable::day};
}

constexpr TableRow collectedRows[] = {
    salesTable(salestable::times, itemSales),
    salesTable(salestable::clerks, clerkSales),
    salesTable(salestable::plus, pluSales),
    salesTable(salestable::mixes, itemSales),
    salesTable(salestable::groups, itemSales),
    salesTable(salestable::financials, itemSales),
    {"memoryallocation", memoryAllocation, {"primarykey"}, "ID"},
};

} // namespace

std::span<const TableRow> collectedTables()
{
    return collectedRows;
}

} // namespace norvane::store::rows
