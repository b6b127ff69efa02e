// The records of the tax rates and of the register's service settings.
#include "records/RecordLayouts.h"

namespace norvane::records
{

// clang-format off

/// File 29. From the fourth column on the register returns each value one column later than it was sent, and
/// its answer ends with the eighth column: any value sent after that replaces the eighth.
const RecordLayout& taxRateLayout()
{
    static const RecordLayout layout{"ID", {
        number(6, "taxrate").scaled(3).byLeadingNumber(),
        options({threeWay("TAXTYPE")}).firstCharacterOnly(),
        spare(2),
        number(4, "first"),
        number(4, "notax").readInto("first"),
        number(2, "norepeatbreak").readInto("notax"),
        number(2, "repeatbreak").readInto("norepeatbreak"),
        number(2, "repeatbreak").onlyRead(),
        numbered(20, {number(20, "dummy*").rereading()}),
        number(6, "repeatbreaktotal").rereading(),
        number(6, "repeatbreaktotal").rereading(),
        number(10, "highhold").rereading(),
    }};
    return layout;
}

/// File 15. Three decimal places are sent as 6, which the register does not return: they come back as two.
const RecordLayout& serviceModeLayout()
{
    static const RecordLayout layout{"", {
        options({{"DECIMALPlace", {{3, 6, 6}, {2, 4, 4}, {1, 2, 2}}}, {1, "SENDPLUDESCRIPTOR"}}, {{4, "PRINTERRORPOLLING"}}),
        number(6, "storenumber"),
        number(2, "FirstRegister"),
        number(2, "LastRegister"),
        number(2, "IrcRetries"),
        number(2, "timein/out"),
        numbered(4, {number(2, "check*")}),
        numbered(4, {number(2, "backcheck*")}),
        numbered(5, {number(4, "z*pass")}),
        number(4, "xpass"),
        number(4, "systempass"),
        number(2, "regholdskp"),
        number(2, "regholdsinterrupt"),
        number(4, "rompass"),
        spare(60),
    }};
    return layout;
}

/// File 52, which is only read.
const RecordLayout& memoryAllocationLayout()
{
    static const RecordLayout layout{"", {
        number(2, "reporttotals").withLeadingZeros(),
        number(2, "REPORTCOUNTERS").withLeadingZeros(),
        number(5, "PLU"),
        number(4, "PLUSTATUS"),
        number(2, "PRICELEVELS"),
        number(4, "EMPLOYEES"),
        number(2, "TIME/EMPLOYEE"),
        number(4, "LINES/SOFTCHECK").withLeadingZeros(),
        number(4, "TRACKINGFILES").withLeadingZeros(),
        numbered(4, {number(4, "TRACK*")}),
        number(2, "TIMEPERIOD"),
        number(4, "PRODUCTMIXGROUP").withLeadingZeros(),
        number(2, "PRODUCTMIXTIME").withLeadingZeros(),
        number(4, "WLU"),
        number(2, "LINES/PLU"),
        number(4, "RECIPE"),
        number(4, "INVENTORYINGREDIENT"),
        number(5, "LINE/EJ"),
        number(4, "PAIDRECALL").withLeadingZeros(),
        number(4, "SUPER").withLeadingZeros(),
        number(4, "LINES/TRANSACTIONS"),
        options({{4, "PLUBYLEVEL"}, {2, "GROUPBYEMPLOYEE"}, {1, "CHECKTRACKSOFT"}}, {{4, "PROJECTIONS"}, {2, "STOREBITMAP"}, {1, "EATINTIMEPERIOD"}}),
        options({{4, "TAKEOUTTIMEPERIOD"}, {2, "DRIVETHRUTIMEPERIOD"}, {1, "TRACK1TIME"}}, {{4, "TRACK2TIME"}, {2, "TRACK3TIME"}, {1, "TRACK4TIME"}}),
        options({{4, "Z1GROUPTIME"}, {2, "Z2GROUPTIME"}, {1, "Z3GROUPTIME"}}, {{4, "Z4GROUPTIME"}, {2, "Z5GROUPTIME"}}),
        options({{4, "Z1FINANCIAL"}, {2, "Z2FINANCIAL"}, {1, "Z3FINANCIAL"}}, {{4, "Z4FINANCIAL"}, {2, "Z5FINANCIAL"}}),
        options({{4, "Z1EMPLOYEE"}, {2, "Z2EMPLOYEE"}, {1, "Z3EMPLOYEE"}}, {{4, "Z4EMPLOYEE"}, {2, "Z5EMPLOYEE"}}),
        options({{4, "Z1PLU"}, {2, "Z2PLU"}, {1, "Z3PLU"}}, {{4, "Z4PLU"}, {2, "Z5PLU"}}),
        spare(2),
        options({{4, "Z1GROUP"}, {2, "Z2GROUP"}, {1, "Z3GROUP"}}, {{4, "Z4GROUP"}, {2, "Z5GROUP"}}),
        options({{4, "Z1TIME"}, {2, "Z2TIME"}, {1, "Z3TIME"}}, {{4, "Z4TIME"}, {2, "Z5TIME"}}),
        options({{4, "Z1TIMEKEEP"}, {2, "Z2TIMEKEEP"}, {1, "Z3TIMEKEEP"}}, {{4, "Z4TIMEKEEP"}, {2, "Z5TIMEKEEP"}}),
        number(4, "MIX").withLeadingZeros(),
        options({{4, "CLERKINTERRUPT"}}),
        options({{4, "Z1MIX"}, {2, "Z2MIX"}, {1, "Z3MIX"}}, {{4, "Z4MIX"}, {2, "Z5MIX"}}),
        number(4, "CATEGORY").ofNewerFirmware(),
        number(4, "HOTLIST").withLeadingZeros().ofNewerFirmware(),
    }};
    return layout;
}

// clang-format on

} // namespace norvane::records
