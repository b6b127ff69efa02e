// The records of staff and time: employees, job codes, pay rates, authority levels, time periods.
#include "records/RecordLayouts.h"

namespace norvane::records
{

// clang-format off

/// File 63. The employee's electronic key is sent byte by byte.
const RecordLayout& employeeLayout()
{
    static const RecordLayout layout{"ID", {
        text(12, "DESCRIPTION"),
        number(12, "SOCIAL"),
        number(10, "SIGNONCODE"),
        number(10, "TIMEINCODE"),
        number(2, "AUTHORITYLEVEL"),
        numbered(6, {number(2, "JOB*CODE")}),
        numbered(6, {number(2, "PAYRATE*")}),
        number(2, "OPENDRAWER"),
        options({{4, "Trainmode"}}),
        number(2, "KEYBOARDLEVEL"),
        number(2, "PRICELEVEL"),
        hexBytes(7, 4, "dallaskey"),
    }};
    return layout;
}

/// File 33.
const RecordLayout& jobCodeLayout()
{
    static const RecordLayout layout{"JOBCODE", {text(12, "DESCRIPTION")}};
    return layout;
}

/// File 34.
const RecordLayout& payRateLayout()
{
    static const RecordLayout layout{"PAYRATE", {money(4, "rate")}};
    return layout;
}

/// File 32.
const RecordLayout& authorityLevelLayout()
{
    static const RecordLayout layout{"ID", {
        text(12, "DESCRIPTION"),
        options({{4, "CLOCKIN/OUTONLY"}, {2, "CLOCKINBEFORESALE"}, {1, "CLOCKOUTIFOPENCHECK"}}, {{4, "GUESTCHECKENTRYONLY"}, {2, "GUEST#ONNEWCHECK"}, {1, "PAYOWNCHECKS"}}),
        options({{4, "PAYANYCHECK"}, {2, "TRANSFERCHECK"}, {1, "VOIDingOFSERVICEDITEMS"}}, {{4, "ALLOWCANCELAFTERRECALL"}, {2, "CLOCKINUSINGMCR"}, {1, "SIGNINONMCR"}}),
        options({{4, "ALLOWCHECKEDIT"}, {2, "ALLOWDESTINATIONCHANGE"}, {1, "CANCOMBINEOWNCHECKS"}}, {{4, "CANCOMBINEANYCHECKS"}, {2, "TBL#TRANSFERINR-MODE"}, {1, "PLUPRICEOVERIDE"}}),
        options({{4, "SETDATETIME"}, {2, "TIMECLOCKEDIT"}, {1, "ALLOWCASHDECLARE"}}, {{4, "KEYBANDPRICELEVEL"}, {2, "EMPLOYEEFILEEDIT"}, {1, "PRINTANDRESETEJ"}}),
        options({{4, "JOBCODEEDIT"}, {2, "PAYRATEEDIT"}, {1, "INVEDITINXMODE"}}, {{4, "INVEDITINPMODE"}, {2, "AUTHORITYLEVELEDIT"}, {1, "COMPSEATALLENTRIES"}}),
        options({{4, "ENABLETRAINING"}, {2, "WLUFILEEDIT"}, {1, "ALLOWNOSALE"}}, {{4, "ALLOWINTERRUPT"}, {2, "CLEARCCBATCH"}, {1, "MANUALCCENTRY"}}),
        options({{4, "PAIdBREAKS"}, {2, "COMPJOBENTRY"}}, {{4, "MANAGERREQFORCHECKIN"}, {2, "COMPTIPENTRY"}, {1, "JOBCODECHANGE"}}),
        options({{4, "PLUPRICECHANGEONLY"}, {2, "DISALLOWADDINX"}, {1, "DISALLOWOVERRIDEINX"}}, {{1, "DISALLOWSUBTRACTINX"}}),
    }};
    return layout;
}

/// File 64. The start keeps its leading zeros, the end does not.
const RecordLayout& timePeriodLayout()
{
    static const RecordLayout layout{"id", {
        number(4, "STARTTIME").withLeadingZeros(),
        number(4, "ENDTIME"),
        options({{4, "ACTIVE"}}),
    }};
    return layout;
}

// clang-format on

} // namespace norvane::records
