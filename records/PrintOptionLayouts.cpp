// The records of the second series of system options: kitchen printer, validation, general and report
// printing, report options, time keeping, electronic journal detail.
#include "records/RecordLayouts.h"

namespace norvane::records
{

// clang-format off

/// File 9.
const RecordLayout& kitchenPrintLayout()
{
    static const RecordLayout layout{"ID", {
        options({{4, "TTLAMOUNTLINEONKP"}, {2, "PRINTSEAT#ONKP"}, {1, "ORDER#ONKP"}}, {{4, "TRANSACTIONVOIDONKP"}, {2, "SORTBYKPGROUP"}, {1, "SENDONINTERRUPT"}}),
        options({{4, "ORDERTOKPATSBTL"}, {2, "COMBINEDLIKEITEMS"}, {1, "KVSATSBTL"}}, {{4, "VOIDEDORDERATKP"}, {2, "KPREAL/BATCH"}, {1, "KVSREAL/BATCH"}}),
        options({{4, "PLUCODEONKP"}, {2, "PLUPRICEONKP"}, numberFlag(1, "kprouter").addingItsNumber().keptOtherwise()}, {numberFlag(4, "KPORDERCOMBINED"), {2, "DISPLAYKPTIME"}, {1, "DISPLAYKPORDER"}}),
        number(2, "LINEFEEDSATBEGINNING"),
        number(2, "LINEFEEDSATEND"),
        options({{4, "SEPERATEKPBYKPGROUP"}, {2, "SEPERATEKPBYKPITEM"}, {1, "printbmp"}}, {{4, "USESPECFORM"}, {2, "NOOFITEMS"}, {1, "LOGOMESSAGE"}}),
        options({{4, "NOOFTTLITEMS"}, {2, "REDIRECTTORCPT"}}),
        spare(58),
    }};
    return layout;
}

/// File 10.
const RecordLayout& validationLayout()
{
    static const RecordLayout layout{"ID", {
        options({{4, "VALIDATIONAMOUNT"}, {2, "CHKVALIDATIONAMOUNT"}, {1, "VALIDATIONSENSOR"}}, {{4, "MULTIPLEVALIDATION"}, {2, "VALIDATIONMESSAGE"}, {1, "PRINTSBTLWHENPRESSED"}}),
        number(1, "VALIDATIONPORT").followedBy("0").firstCharacterOnly(),
        spare(60),
    }};
    return layout;
}

/// File 11. A receipt after an interrupt is always sent as wanted. The form of the date is the register's own
/// and only read.
const RecordLayout& generalPrintLayout()
{
    static const RecordLayout layout{"ID", {
        options({{4, "EMPLOYEEONRECEIPT"}, {2, "CONSECUTIVE#ONRECEIPT"}, {1, "ITEMSBYGROUPONRECEIPT"}}, {{4, "DATEONRECEIPT"}, {2, "TIMEONRECEIPT"}, {1, "PRE/POSTAMBLEONRECEIPT"}}),
        options({DigitPart(4, "PRINTRECEIPTAFTERINTERRUPT").alwaysWritten(), {2, "BUFFEREDRECEIPT"}, {1, "RECEIPTONSIGNOFF"}}, {DigitPart(4, "RECEIPTONCLOCKINGIN/OUT").notRead(), {2, "CONDENSETRAY"}, {1, "JOURNALREAL/BATCH"}}),
        options({{4, "PRINTPLUCODE"}, {2, "TRANSACTION#RANDOM"}, {1, "RECEIPTONCLOCKINGIN/OUT"}}, {{4, "SEAT#ONRECEIPT"}, {2, "PRINTTENDERONRECEIPT"}, {1, "ORDER#ONRECEIPT"}}),
        options({{4, "DISABLELINEFEEDONSLIP"}, DigitPart("DATEPRINT", {{3, 0, 3}, {2, 0, 2}, {1, 0, 1}}).notWritten()}, {threeWay("guestcheckpreamble"), {1, "automaticreceipt"}}),
        options({{4, "PRINTGROUPNAME"}, {2, "GUESTCHECKPRINTCOUNT"}, {1, "PRINTTOTALBOLD"}}, {{4, "PRINTTENDERBOLD"}, {2, "PRINTCHANGEBOLD"}, {1, "PRINTORDERBOLD"}}),
        number(2, "RECEIPTLINEFEEDSAFTERPRINT"),
        symbol("HOMESYMBOL"),
        numbered(5, {symbol("CURRENCY*SYMBOL")}),
        number(2, "LINESAFTERPREAMBLE"),
        number(2, "LINESBEFOREPOSTAMBLE"),
        options({{4, "printforeign1total"}, {2, "printforeign1tender"}, {1, "printforeign1change"}}, {{4, "disableprintchangerate"}, {2, "disableprintforeignamt"}, {1, "disableprinthomeamt"}}),
        options({{4, "printallcurrencytotalinconv2"}, {2, "printallcurrencytenderinconv2"}, {1, "printallcurrencychangeinconv2"}}, {{4, "PRINT#OFITEMS"}, {2, "MULTIPLERECEIPT"}, {1, "PRINTPOINTSACCRUED"}}),
        options({{4, "PRINTCARDHOLDERREF"}, {2, "PRINTCATEGORY"}, {1, "PRINTDEPARTMENT"}}, {{4, "PRINTLOYALTYBALANCE"}, {2, "GROUPTTLONITEM"}, {1, "DONOTPRINTPLUBYITEM"}}),
        options({{4, "PRINTCASHBALANCE"}, {2, "PRINTMAXBALANCE"}, {1, "PRINTNAME"}}, {{4, "PRINTDOB"}, {2, "PRINTOLDLOYALTY"}, {1, "PRINTOLDCASHBALANCE"}}),
        options({{4, "TURNOFFAUTOCUTTER"}, {2, "STOPINTERNALPRINT"}}).bare(),
        number(2, "prelogoimagercpt"),
        number(2, "postlogoimagercpt"),
        number(2, "prelogoimagegc"),
        number(2, "postlogoimagegc"),
        spare(44),
    }};
    return layout;
}

/// File 12.
const RecordLayout& reportPrintLayout()
{
    static const RecordLayout layout{"ID", {
        options({{4, "ZEROSKIPONFINANCIALREPORT"}, {2, "ZEROSKIPONPLUREPORT"}, {1, "ZEROSKIPEMPLOYEEREPORT"}}, {{4, "ZEROSKIPGROUPREPORT"}, {2, "ZEROSKIPTIMEPERIODREPORT"}, {1, "ZEROSKIPALLOTHERREPORTS"}}),
        options({{4, "PRINT%SALEONPLUREPORT"}, {2, "PRINTLNKGRPONPLUREPORT"}, {1, "PROMO/WASTEONPLUREPORT"}}, {{4, "INDITEMUSEQTYPLURPT"}, numberFlag(2, "CNTONTIMERPTLSCUSTGUEST"), {1, "USEFUNCKEYDESC"}}),
        options({{4, "PRINTMINSTKRPTAFTERFINRPT"}, {2, "PRINTGRANDTOTALONFINANCIAL"}, {1, "GROUPBYEMPLOYEERPT"}}),
        spare(58),
    }};
    return layout;
}

/// File 13. The question before a reset is answered at the place of the omitted tax totals.
const RecordLayout& reportOptionLayout()
{
    static const RecordLayout layout{"ID", {
        options({{4, "ONLYTTLPRODUCTMIX"}, {2, "ONLYITEMSWITHINVENTORY"}, {1, "CIDCOMPULSORY"}}, {{4, "SIGNONBEFOREREPORTS"}, {2, "ENFORCEINVBEFOREZ1"}, {1, "RETAININVINX1"}}),
        options({{4, "RESETPLUATINVZ1"}, {2, "RESETINVATPLUZ1"}, {1, "TIMEKEEPING"}}, {{4, "OMITTAXTOTALS"}, {2, "ALLOWZOFOPENCHECKS"}, DigitPart(1, "CONFIRMBEFOREZRESET").readBy(4)}),
        options({{4, "GTSALERESETATFINZ1"}, {2, "GTNETRESETATFINZ1"}, {1, "GTNEGSALESRESETATFINZ1"}}, {{4, "ZCOUNTERRESETATZ1"}, {2, "CONSECUTIVE#RESETATZ1"}, {1, "ZREPORTRESETORDERNO"}}),
        options({{4, "VOIDMODEADDTOGT"}, {2, "ALLOWZWITHOPENCHECK1"}}),
        options({{4, "ONLYITEMSWITHCURRINVENTORY"}, {2, "ALLOWZWITHOPENCLERKS"}, {1, "ALLOWZWITHOPENCHECK2"}}, {{4, "ALLOWZWITHOPENCHECK3"}, {2, "ALLOWZWITHOPENCHECK4"}}),
        spare(58),
    }};
    return layout;
}

/// File 14.
const RecordLayout& timeKeepingLayout()
{
    static const RecordLayout layout{"ID", {
        options({{4, "ENFORCEOUTBREAK"}}, {numberFlag(4, "EMPLOYEETIMEIN"), numberFlag(2, "OVERTIMEHOUR")}),
        number(4, "HOURSPEROVERTIME"),
        number(6, "TIPREPORTING").scaled(4),
        number(2, "OVERTIMEFACTOR").scaled(1),
        spare(60),
    }};
    return layout;
}

/// File 36. Two options overwrite, when read, options of the column before them.
const RecordLayout& journalDetailLayout()
{
    static const RecordLayout layout{"ID", {
        options({{4, "CASHTOEJ"}, {2, "CHEQUETOEJ"}, {1, "MISCTENDERTOEJ"}}, {{4, "TRANS%TOEJ"}, {2, "RAANDPDTOEJ"}, {1, "RETURNTOEJ"}}),
        options({{4, "ERRCORRTOEJ"}, {2, "NOSALETOEJ"}, {1, "CANCELTOEJ"}}, {{4, "NEGATIVESALESTOEJ"}, {2, "REPORTSTOEJ"}, {1, "SCANSTOEJ"}}),
        options({DigitPart(4, "NEGATIVESALETODETAIL").readInto("NEGATIVESALESTOEJ"), {2, "REPORTSTODETAIL"}, {1, "SCANSTODETAIL"}}, {{4, "ACTIVATEEJ"}, {2, "DISPLAYEJBUFFERFULL"}, {1, "EJOVERRIDEWHENFULL"}}),
        options({{4, "EJCHECKTRACKING"}, {2, "EJclerkinterrupt"}, {1, "WITHOUTNEGATIVESALETODETAIL"}}, {{4, "EJPOINTPAYMENT"}, {2, "EJSUBTRACTPOINT"}, {1, "EJADDPOINT"}}),
        options({{4, "EJSUBTRACTVALUE"}, {2, "EJREDEEM"}, {1, "EJPRINTCARD"}}, {{4, "EJCARDSALE"}, {2, "EJHOTLIST"}, DigitPart(1, "EJREMOVECARD").readInto("EJADDPOINT")}),
        options({{4, "CONDENSEDPRINT"}, {2, "PRINTNEGLINES"}, {1, "DISABLEREGDETAIL"}}),
        spare(54),
    }};
    return layout;
}

// clang-format on

} // namespace norvane::records
