// The catalogue of staff, time, tax rates and the service settings.
#include "store/catalogue/CatalogueRows.h"

namespace norvane::store::rows
{
namespace
{

// register file 63. The key is seven bytes in hexadecimal digits.
constexpr FieldRow employee[] = {
    whole("ID"),
    text("DESCRIPTION", 12),
    longNumber("SOCIAL"),
    longNumber("SIGNONCODE"),
    longNumber("TIMEINCODE"),
    whole("AUTHORITYLEVEL"),
    numbered(6, whole("JOB*CODE")),
    numbered(6, whole("PAYRATE*")),
    whole("OPENDRAWER"),
    flag("Trainmode"),
    whole("KEYBOARDLEVEL"),
    whole("PRICELEVEL"),
    mustBeSet(text("dallaskey", 14)),
};

// register file 33
constexpr FieldRow jobCode[] = {
    whole("JOBCODE"),
    text("DESCRIPTION", 12),
};

// register file 34
constexpr FieldRow payRate[] = {
    whole("PAYRATE"),
    decimal("rate"),
};

// register file 32
constexpr FieldRow authorityLevel[] = {
    whole("ID"),
    text("DESCRIPTION", 12),
    flag("CLOCKIN/OUTONLY"),
    flag("CLOCKINBEFORESALE"),
    flag("CLOCKOUTIFOPENCHECK"),
    flag("GUESTCHECKENTRYONLY"),
    flag("GUEST#ONNEWCHECK"),
    flag("PAYOWNCHECKS"),
    flag("PAYANYCHECK"),
    flag("TRANSFERCHECK"),
    flag("VOIDingOFSERVICEDITEMS"),
    flag("ALLOWCANCELAFTERRECALL"),
    flag("CLOCKINUSINGMCR"),
    flag("SIGNINONMCR"),
    flag("ALLOWCHECKEDIT"),
    flag("ALLOWDESTINATIONCHANGE"),
    flag("CANCOMBINEOWNCHECKS"),
    flag("CANCOMBINEANYCHECKS"),
    flag("TBL#TRANSFERINR-MODE"),
    flag("PLUPRICEOVERIDE"),
    flag("SETDATETIME"),
    flag("TIMECLOCKEDIT"),
    flag("ALLOWCASHDECLARE"),
    flag("KEYBANDPRICELEVEL"),
    flag("EMPLOYEEFILEEDIT"),
    flag("PRINTANDRESETEJ"),
    flag("JOBCODEEDIT"),
    flag("PAYRATEEDIT"),
    flag("INVEDITINXMODE"),
    flag("INVEDITINPMODE"),
    flag("AUTHORITYLEVELEDIT"),
    flag("COMPSEATALLENTRIES"),
    flag("ENABLETRAINING"),
    flag("WLUFILEEDIT"),
    flag("ALLOWNOSALE"),
    flag("ALLOWINTERRUPT"),
    flag("CLEARCCBATCH"),
    flag("MANUALCCENTRY"),
    flag("PAIdBREAKS"),
    flag("COMPJOBENTRY"),
    flag("MANAGERREQFORCHECKIN"),
    flag("COMPTIPENTRY"),
    flag("JOBCODECHANGE"),
    flag("PLUPRICECHANGEONLY"),
    flag("DISALLOWADDINX"),
    flag("DISALLOWOVERRIDEINX"),
    flag("DISALLOWSUBTRACTINX"),
};

// register file 64. The start keeps its leading zeros, the end does not.
constexpr FieldRow timePeriod[] = {
    whole("id"),
    text("STARTTIME", 4),
    whole("ENDTIME"),
    flag("ACTIVE"),
};

// register file 29
constexpr FieldRow taxRates[] = {
    whole("ID"),
    decimal("taxrate"),
    whole("TAXTYPE"),
    whole("first"),
    whole("notax"),
    whole("norepeatbreak"),
    // The register's answer puts its 20 digits into all that follow, too.
    digits("repeatbreak", 20),
    numbered(20, digits("dummy*", 20)),
    digits("repeatbreaktotal", 20),
    digits("highhold", 20),
};

// register file 15. Its record has no number, so the key is a counter.
constexpr FieldRow serviceMode[] = {
    counter("ID"),
    whole("DECIMALPlace"),
    flag("SENDPLUDESCRIPTOR"),
    flag("PRINTERRORPOLLING"),
    whole("storenumber"),
    whole("FirstRegister"),
    whole("LastRegister"),
    whole("IrcRetries"),
    whole("timein/out"),
    numbered(4, whole("check*")),
    numbered(4, whole("backcheck*")),
    numbered(5, whole("z*pass")),
    whole("xpass"),
    whole("systempass"),
    whole("regholdskp"),
    whole("regholdsinterrupt"),
    whole("rompass"),
};

constexpr TableRow staffRows[] = {
    {"EMPLOYEE", employee, {"primarykey"}, "ID"},    {"JOBCODE", jobCode, {"primarykey"}, "JOBCODE"},
    {"PAYRATE", payRate, {"primarykey"}, "PAYRATE"}, {"AUTHORITYLEVEL", authorityLevel, {"primarykey"}, "ID"},
    {"TIMEPERIOD", timePeriod, {"id"}, "id"},        {"TAXRATES", taxRates, {"primarykey"}, "ID"},
    {"smode", serviceMode, {"primarykey"}, "ID"},
};

} // namespace

std::span<const TableRow> staffTables()
{
    return staffRows;
}

} // namespace norvane::store::rows
