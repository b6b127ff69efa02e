// The records of the first series of system options: general functions, tax, cash drawer, training mode,
// levels and modifiers, check tracking.
#include "records/RecordLayouts.h"

namespace norvane::records
{

// clang-format off

/// File 3. The register returns the start cursor and the sign-on method in other columns than it receives
/// them.
const RecordLayout& generalOptionLayout()
{
    static const RecordLayout layout{"ID", {
        options({{4, "NEGSALESINXMODE"}, {2, "NEGTENDERINXMODE"}, {1, "EATINATBEGINOFSALE"}}, {{4, "EATINBEFOREENDOFSALE"}, {"DEFAULTDESTINATION", {{3, 3, 3}, {1, 2, 2}, {2, 1, 1}}}}),
        options({threeWay("ROUNDON%"), {1, "MANCONTROLZEROSALES"}}, {threeWay("ROUNDONSPLITPRICE"), {1, "#UPDATESALETOTAL"}}),
        options({{4, "#ADDSTOGROSS"}, {2, "#ADDSTONET"}, {1, "#UPDATES#TOTALONFINREPORT"}}, {{4, "#UPDATETIMEPERIOD"}, {2, "#UPDATEEMPLOYEEREPT"}, {1, "#UPDATEGROUP"}}),
        options({{4, "#UPDATEINDIVIDUALPLU"}, {2, "#ADDSTOOVERALLPLUTTL"}, {1, "#UPDATEDRAWERTTL"}}, {{4, "#UPDATEDAILYSALESREPT"}, {2, "#ADJUSTINVENTORY"}, {1, "ACTIVATEROUNDONCASH"}}),
        options({DigitPart("GLOBALENTRY", {}).addingItsNumber().readAsFirstCharacter()}, {{4, "DIRECTMULTIPLYENTRY"}, {2, "DISABLEPLUPRESETOVERRIDE"}, {1, "SILENTKEY"}}),
        options({{4, "ALPHAENTRYBYCODE"}, {2, "ALLOWOPENENTRYONSCALEPLU"}, {1, "DEACTIVATEVOIDMODE"}}, {{4, "DISABLETIMEDATEPROGRAM"}, {2, "ALLOWPLUCOPYRANGE"}, {1, "ALLOWPOSTTENDER"}}),
        options({{4, "EMPLOYEEPOPUP"}, DigitPart(2, "STARTCURSOR").readBy(1)}, {{"EMPLOYEESIGNON", {{3, 3, 4}, {2, 2, 2}, {1, 1, 1}}}}),
        options({{4, "AUTOCLEARERROR"}, {2, "ACTIVATESEATS"}, {1, "CONTINUELOOPEDMACRO"}}, {{4, "TIMETRANSACTIONVOID"}, {2, "ACTIVATEROUNDINGONSUBTTL"}, {1, "CONSOLIDATELIKEITEMS"}}),
        number(4, "AUTOINTERRUPTTRANS"),
        number(6, "QTYLIMITFORX/TIMEKEY").scaled(3),
        numbered(10, {number(4, "EMPLOYEENO*")}),
        money(10, "guestcheckhalobalance"),
        number(2, "directmultiplication"),
        numbered(5, {number(2, "ROUNDINGSTART*"), number(2, "ROUNDINGEND*"), number(4, "ROUNDINGVALUE*")}),
        number(2, "SCREENSAVER"),
        options({{4, "RECEIPTSTATUSONDISPLAY"}, {2, "AUDIBLETONEONHOTLIST"}, {1, "ALLOWCARDISSUE"}}, {{4, "CHECKCARDBIRTHDAY"}, {2, "USESMARTCARDGROUP"}}),
        options({{4, "ALLOWNEWSPAPERCODEPLU"}, {2, "ALLOWMULTIPLEMULTIPLICATION"}, {1, "TAXSHIFTBYTAKEOUT"}}, {numberFlag(4, "TAXSHIFT"), numberFlag(2, "BASECURRENCY"), {1, "CLERKINTERRUPT"}}),
        options({{4, "FLOATINGCLERK"}, {2, "CLERKCHANGE"}, {1, "SKIPLINKGROUPINNOTFOUND"}}, {{4, "SKIPDESCRIPTIONiNNOTFOUND"}, {2, "SUBTRACTCHANGEFROMFOREIGN"}}),
        number(6, "GELDKARTE"),
        money(4, "REDEEMCASH"),
        money(4, "REDEEMCHECK"),
        numbered(16, {money(4, "REDEEMMISC*")}),
        spare(56),
    }};
    return layout;
}

/// File 4.
const RecordLayout& taxOptionLayout()
{
    static const RecordLayout layout{"ID", {
        options({threeWay("TAXROUNDiNGFACTOR"), {1, "VATSUBTRACTFROMPLU"}}, {{4, "PRINTTAXPNR/J"}, {2, "TAXINDICATORDISPLAYED"}, {1, "taxindicatorprint"}}),
        options({{4, "printtaxattender"}, {2, "printvatamountseperately"}, {1, "taxcombined/itemised"}}, {{4, "printtaxexempt"}, {2, "donotshowfstampindicator"}, {1, "printsubtotalwithouttax"}}),
        number(2, "taxexemptqty"),
        spare(60),
    }};
    return layout;
}

/// File 5.
const RecordLayout& drawerOptionLayout()
{
    static const RecordLayout layout{"ID", {
        options({{4, "allowdraweropen"}, {2, "openduringx"}, {1, "openduringz"}}, {{4, "activateopenalarm"}}),
        money(8, "cidlimit"),
        number(4, "draweropenalarm"),
        options({{4, "openeuro&localdrawer"}}),
        spare(60),
    }};
    return layout;
}

/// File 6.
const RecordLayout& trainingOptionLayout()
{
    static const RecordLayout layout{"ID", {
        options({{4, "opendrawerintmode"}, {2, "allowreardisplayintraining"}, {1, "sendordertokpintraining"}}, {{4, "printjournalintraining"}, {2, "printreceiptintraining"}, {1, "donotprinttraining"}}),
        number(4, "trainingmodepassword"),
        number(4, "trainingemployee"),
        options({{4, "stockisdeducted"}}).bare().readAsNumberInto("stockisdeducted"),
        spare(60),
    }};
    return layout;
}

/// File 7. The price level is sent with one digit more than it has, and returned with it.
const RecordLayout& levelOptionLayout()
{
    static const RecordLayout layout{"ID", {
        options({threeWay("keyboardlevel")}, {threeWay("pricelevelstatus")}),
        options({threeWay("plumodkeys")}, {{4, "APPLYMODIFIER"}, {2, "MODIFIEROVERWRITES"}}),
        number(2, "DEFAULTKEYBOARD"),
        number(2, "DEFAULTPRICELEVEL").followedBy("0"),
        options({}, {{1, "CLERKSHIFTLEVEL"}}).bare(),
        spare(60),
    }};
    return layout;
}

/// File 8.
const RecordLayout& checkTrackingLayout()
{
    static const RecordLayout layout{"ID", {
        options({{2, "AUTOTRANSFER"}, {1, "TRANSFERTOTALS"}}, {{4, "CHECKSPAIDISSTUB"}, {2, "PRINTGUESTCHECK"}, {1, "SELECTHELDITEMSONRECALL"}}),
        options({{4, "WARNIFHELDITEMSFINALISED"}, {2, "TRACK2HOLDS1"}, DigitPart(1, "TRACK4HOLDS3").readFromRightDigit()}, {threeWay("RESETCHECK1")}),
        options({threeWay("RESETCHECK2")}, {threeWay("RESETCHECK3")}),
        options({threeWay("RESETCHECK4")}),
        numbered(4, {number(10, "STARTCHECK*")}),
        numbered(4, {number(10, "LIMITCHECK*")}),
        options({{4, "SHOWBACKUPINDICATOR"}}),
        spare(60),
    }};
    return layout;
}

// clang-format on

} // namespace norvane::records
