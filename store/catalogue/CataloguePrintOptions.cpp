// The catalogue of system options, second part: kitchen, validation, printing, reports, time, journal.
#include "store/catalogue/CatalogueRows.h"

namespace norvane::store::rows
{
namespace
{

// register file 9
constexpr FieldRow kitchenPrintOptions[] = {
    whole("ID"),
    flag("TTLAMOUNTLINEONKP"),
    flag("PRINTSEAT#ONKP"),
    flag("ORDER#ONKP"),
    flag("TRANSACTIONVOIDONKP"),
    flag("SORTBYKPGROUP"),
    flag("SENDONINTERRUPT"),
    flag("ORDERTOKPATSBTL"),
    flag("COMBINEDLIKEITEMS"),
    flag("KVSATSBTL"),
    flag("VOIDEDORDERATKP"),
    flag("KPREAL/BATCH"),
    flag("KVSREAL/BATCH"),
    flag("PLUCODEONKP"),
    flag("PLUPRICEONKP"),
    whole("kprouter"),
    whole("KPORDERCOMBINED"),
    flag("DISPLAYKPTIME"),
    flag("DISPLAYKPORDER"),
    whole("LINEFEEDSATBEGINNING"),
    whole("LINEFEEDSATEND"),
    flag("SEPERATEKPBYKPGROUP"),
    flag("SEPERATEKPBYKPITEM"),
    flag("printbmp"),
    flag("USESPECFORM"),
    flag("NOOFITEMS"),
    flag("LOGOMESSAGE"),
    flag("NOOFTTLITEMS"),
    flag("REDIRECTTORCPT"),
};

// register file 10
constexpr FieldRow validSubtotalOptions[] = {
    whole("ID"),
    flag("VALIDATIONAMOUNT"),
    flag("CHKVALIDATIONAMOUNT"),
    flag("VALIDATIONSENSOR"),
    flag("MULTIPLEVALIDATION"),
    flag("VALIDATIONMESSAGE"),
    flag("PRINTSBTLWHENPRESSED"),
    whole("VALIDATIONPORT"),
};

// register file 11. The symbols are character codes. TURNOFFAUTOCUTTER is a number that holds yes/no.
constexpr FieldRow generalPrintOption[] = {
    whole("ID"),
    flag("EMPLOYEEONRECEIPT"),
    flag("CONSECUTIVE#ONRECEIPT"),
    flag("ITEMSBYGROUPONRECEIPT"),
    flag("DATEONRECEIPT"),
    flag("TIMEONRECEIPT"),
    flag("PRE/POSTAMBLEONRECEIPT"),
    flag("PRINTRECEIPTAFTERINTERRUPT"),
    flag("BUFFEREDRECEIPT"),
    flag("RECEIPTONSIGNOFF"),
    flag("CONDENSETRAY"),
    flag("JOURNALREAL/BATCH"),
    flag("PRINTPLUCODE"),
    flag("TRANSACTION#RANDOM"),
    flag("RECEIPTONCLOCKINGIN/OUT"),
    flag("SEAT#ONRECEIPT"),
    flag("PRINTTENDERONRECEIPT"),
    flag("ORDER#ONRECEIPT"),
    flag("DISABLELINEFEEDONSLIP"),
    whole("DATEPRINT"),
    whole("guestcheckpreamble"),
    flag("automaticreceipt"),
    flag("PRINTGROUPNAME"),
    flag("GUESTCHECKPRINTCOUNT"),
    flag("PRINTTOTALBOLD"),
    flag("PRINTTENDERBOLD"),
    flag("PRINTCHANGEBOLD"),
    flag("PRINTORDERBOLD"),
    whole("RECEIPTLINEFEEDSAFTERPRINT"),
    whole("HOMESYMBOL"),
    numbered(5, whole("CURRENCY*SYMBOL")),
    whole("LINESAFTERPREAMBLE"),
    whole("LINESBEFOREPOSTAMBLE"),
    flag("printforeign1total"),
    flag("printforeign1tender"),
    flag("printforeign1change"),
    flag("disableprintchangerate"),
    flag("disableprintforeignamt"),
    flag("disableprinthomeamt"),
    flag("printallcurrencytotalinconv2"),
    flag("printallcurrencytenderinconv2"),
    flag("printallcurrencychangeinconv2"),
    flag("PRINT#OFITEMS"),
    flag("MULTIPLERECEIPT"),
    flag("PRINTPOINTSACCRUED"),
    flag("PRINTCARDHOLDERREF"),
    flag("PRINTCATEGORY"),
    flag("PRINTDEPARTMENT"),
    flag("PRINTLOYALTYBALANCE"),
    flag("GROUPTTLONITEM"),
    flag("DONOTPRINTPLUBYITEM"),
    flag("PRINTCASHBALANCE"),
    flag("PRINTMAXBALANCE"),
    flag("PRINTNAME"),
    flag("PRINTDOB"),
    flag("PRINTOLDLOYALTY"),
    flag("PRINTOLDCASHBALANCE"),
    zeroUnlessSet(whole("TURNOFFAUTOCUTTER")),
    zeroUnlessSet(flag("STOPINTERNALPRINT")),
    zeroUnlessSet(whole("prelogoimagercpt")),
    zeroUnlessSet(whole("postlogoimagercpt")),
    zeroUnlessSet(whole("prelogoimagegc")),
    zeroUnlessSet(whole("postlogoimagegc")),
};

// register file 12
constexpr FieldRow reportPrintingOptions[] = {
    whole("ID"),
    flag("ZEROSKIPONFINANCIALREPORT"),
    flag("ZEROSKIPONPLUREPORT"),
    flag("ZEROSKIPEMPLOYEEREPORT"),
    flag("ZEROSKIPGROUPREPORT"),
    flag("ZEROSKIPTIMEPERIODREPORT"),
    flag("ZEROSKIPALLOTHERREPORTS"),
    flag("PRINT%SALEONPLUREPORT"),
    flag("PRINTLNKGRPONPLUREPORT"),
    flag("PROMO/WASTEONPLUREPORT"),
    flag("INDITEMUSEQTYPLURPT"),
    whole("CNTONTIMERPTLSCUSTGUEST"),
    flag("USEFUNCKEYDESC"),
    flag("PRINTMINSTKRPTAFTERFINRPT"),
    flag("PRINTGRANDTOTALONFINANCIAL"),
    flag("GROUPBYEMPLOYEERPT"),
};

// register file 13
constexpr FieldRow reportOptions[] = {
    whole("ID"),
    flag("ONLYTTLPRODUCTMIX"),
    flag("ONLYITEMSWITHINVENTORY"),
    flag("CIDCOMPULSORY"),
    flag("SIGNONBEFOREREPORTS"),
    flag("ENFORCEINVBEFOREZ1"),
    flag("RETAININVINX1"),
    flag("RESETPLUATINVZ1"),
    flag("RESETINVATPLUZ1"),
    flag("TIMEKEEPING"),
    flag("OMITTAXTOTALS"),
    flag("ALLOWZOFOPENCHECKS"),
    flag("CONFIRMBEFOREZRESET"),
    flag("GTSALERESETATFINZ1"),
    flag("GTNETRESETATFINZ1"),
    flag("GTNEGSALESRESETATFINZ1"),
    flag("ZCOUNTERRESETATZ1"),
    flag("CONSECUTIVE#RESETATZ1"),
    flag("ZREPORTRESETORDERNO"),
    flag("VOIDMODEADDTOGT"),
    flag("ALLOWZWITHOPENCHECK1"),
    flag("ONLYITEMSWITHCURRINVENTORY"),
    flag("ALLOWZWITHOPENCLERKS"),
    flag("ALLOWZWITHOPENCHECK2"),
    flag("ALLOWZWITHOPENCHECK3"),
    flag("ALLOWZWITHOPENCHECK4"),
};

// register file 14
constexpr FieldRow timeKeeping[] = {
    whole("ID"),
    flag("ENFORCEOUTBREAK"),
    whole("EMPLOYEETIMEIN"),
    whole("OVERTIMEHOUR"),
    whole("HOURSPEROVERTIME"),
    decimal("TIPREPORTING"),
    decimal("OVERTIMEFACTOR"),
};

// register file 36
constexpr FieldRow ejDetailPrint[] = {
    whole("ID"),
    flag("CASHTOEJ"),
    flag("CHEQUETOEJ"),
    flag("MISCTENDERTOEJ"),
    flag("TRANS%TOEJ"),
    flag("RAANDPDTOEJ"),
    flag("RETURNTOEJ"),
    flag("ERRCORRTOEJ"),
    flag("NOSALETOEJ"),
    flag("CANCELTOEJ"),
    flag("NEGATIVESALESTOEJ"),
    flag("REPORTSTOEJ"),
    flag("SCANSTOEJ"),
    flag("NEGATIVESALETODETAIL"),
    flag("REPORTSTODETAIL"),
    flag("SCANSTODETAIL"),
    flag("ACTIVATEEJ"),
    flag("DISPLAYEJBUFFERFULL"),
    flag("EJOVERRIDEWHENFULL"),
    flag("EJCHECKTRACKING"),
    flag("EJclerkinterrupt"),
    flag("WITHOUTNEGATIVESALETODETAIL"),
    flag("EJPOINTPAYMENT"),
    flag("EJSUBTRACTPOINT"),
    flag("EJADDPOINT"),
    flag("EJSUBTRACTVALUE"),
    flag("EJREDEEM"),
    flag("EJPRINTCARD"),
    flag("EJCARDSALE"),
    flag("EJHOTLIST"),
    flag("EJREMOVECARD"),
    flag("CONDENSEDPRINT"),
    flag("PRINTNEGLINES"),
    flag("DISABLEREGDETAIL"),
};

constexpr TableRow printOptionsRows[] = {
    {"KITCHENPRINTOPTIONS", kitchenPrintOptions, {"primarykey"}, "ID"},
    {"VALIDSUBTOTALOPTIONS", validSubtotalOptions, {"primarykey"}, "ID"},
    {"GENERALPRINTOPTION", generalPrintOption, {"primarykey"}, "ID"},
    {"REPORTPRINTINGOPTIONS", reportPrintingOptions, {"primarykey"}, "ID"},
    {"REPORTOPTIONS", reportOptions, {"primarykey"}, "ID"},
    {"TIMEKEEPING", timeKeeping, {"primarykey"}, "ID"},
    {"EJDETAILPRINT", ejDetailPrint, {"primarykey"}, "ID"},
};

} // namespace

std::span<const TableRow> printOptionTables()
{
    return printOptionsRows;
}

} // namespace norvane::store::rows
