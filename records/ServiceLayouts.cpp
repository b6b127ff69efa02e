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

// clang-format on

} // namespace norvane::records
