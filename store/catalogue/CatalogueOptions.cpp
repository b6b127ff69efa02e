// The catalogue of system options, first part: general, tax, drawer, training, levels, check tracking.
#include "store/catalogue/CatalogueRows.h"

namespace norvane::store::rows
{
namespace
{

// register file 3
constexpr FieldRow generalFunctions[] = {
    whole("ID"),
    flag("NEGSALESINXMODE"),
    flag("NEGTENDERINXMODE"),
    flag("EATINATBEGINOFSALE"),
    flag("EATINBEFOREENDOFSALE"),
    whole("DEFAULTDESTINATION"),
    whole("ROUNDON%"),
    flag("MANCONTROLZEROSALES"),
    whole("ROUNDONSPLITPRICE"),
    flag("#UPDATESALETOTAL"),
    flag("#ADDSTOGROSS"),
    flag("#ADDSTONET"),
    flag("#UPDATES#TOTALONFINREPORT"),
    flag("#UPDATETIMEPERIOD"),
    flag("#UPDATEEMPLOYEEREPT"),
    flag("#UPDATEGROUP"),
    flag("#UPDATEINDIVIDUALPLU"),
    flag("#ADDSTOOVERALLPLUTTL"),
    flag("#UPDATEDRAWERTTL"),
    flag("#UPDATEDAILYSALESREPT"),
    flag("#ADJUSTINVENTORY"),
    flag("ACTIVATEROUNDONCASH"),
    whole("GLOBALENTRY"),
    flag("DIRECTMULTIPLYENTRY"),
    flag("DISABLEPLUPRESETOVERRIDE"),
    flag("SILENTKEY"),
    flag("ALPHAENTRYBYCODE"),
    flag("ALLOWOPENENTRYONSCALEPLU"),
    flag("DEACTIVATEVOIDMODE"),
    flag("DISABLETIMEDATEPROGRAM"),
    flag("ALLOWPLUCOPYRANGE"),
    flag("ALLOWPOSTTENDER"),
    flag("EMPLOYEEPOPUP"),
    flag("STARTCURSOR"),
    whole("EMPLOYEESIGNON"),
    flag("AUTOCLEARERROR"),
    flag("ACTIVATESEATS"),
    flag("CONTINUELOOPEDMACRO"),
    flag("TIMETRANSACTIONVOID"),
    flag("ACTIVATEROUNDINGONSUBTTL"),
    flag("CONSOLIDATELIKEITEMS"),
    whole("AUTOINTERRUPTTRANS"),
    decimal("QTYLIMITFORX/TIMEKEY"),
    numbered(10, whole("EMPLOYEENO*")),
    decimal("guestcheckhalobalance"),
    whole("directmultiplication"),
    numbered(5, whole("ROUNDINGSTART*"), whole("ROUNDINGEND*"), whole("ROUNDINGVALUE*")),
    whole("SCREENSAVER"),
    flag("RECEIPTSTATUSONDISPLAY"),
    flag("AUDIBLETONEONHOTLIST"),
    flag("ALLOWCARDISSUE"),
    flag("CHECKCARDBIRTHDAY"),
    flag("USESMARTCARDGROUP"),
    flag("ALLOWNEWSPAPERCODEPLU"),
    flag("ALLOWMULTIPLEMULTIPLICATION"),
    flag("TAXSHIFTBYTAKEOUT"),
    whole("TAXSHIFT"),
    whole("BASECURRENCY"),
    flag("CLERKINTERRUPT"),
    flag("FLOATINGCLERK"),
    flag("CLERKCHANGE"),
    flag("SKIPLINKGROUPINNOTFOUND"),
    flag("SKIPDESCRIPTIONiNNOTFOUND"),
    flag("SUBTRACTCHANGEFROMFOREIGN"),
    whole("GELDKARTE"),
    zeroUnlessSet(decimal("REDEEMCASH")),
    zeroUnlessSet(decimal("REDEEMCHECK")),
    numbered(16, zeroUnlessSet(decimal("REDEEMMISC*"))),
};

// register file 4
constexpr FieldRow taxOptions[] = {
    whole("ID"),
    whole("TAXROUNDiNGFACTOR"),
    flag("VATSUBTRACTFROMPLU"),
    flag("PRINTTAXPNR/J"),
    flag("TAXINDICATORDISPLAYED"),
    flag("taxindicatorprint"),
    flag("printtaxattender"),
    flag("printvatamountseperately"),
    flag("taxcombined/itemised"),
    flag("printtaxexempt"),
    flag("donotshowfstampindicator"),
    flag("printsubtotalwithouttax"),
    whole("taxexemptqty"),
};

// register file 5
constexpr FieldRow cashDrawerOptions[] = {
    whole("ID"),
    flag("allowdraweropen"),
    flag("openduringx"),
    flag("openduringz"),
    flag("activateopenalarm"),
    decimal("cidlimit"),
    whole("draweropenalarm"),
    flag("openeuro&localdrawer"),
};

// register file 6
constexpr FieldRow trainingModeOptions[] = {
    whole("ID"),
    flag("opendrawerintmode"),
    flag("allowreardisplayintraining"),
    flag("sendordertokpintraining"),
    flag("printjournalintraining"),
    flag("printreceiptintraining"),
    flag("donotprinttraining"),
    whole("trainingmodepassword"),
    whole("trainingemployee"),
    flag("stockisdeducted"),
};

// register file 7
constexpr FieldRow levelModifierOptions[] = {
    whole("ID"),
    whole("keyboardlevel"),
    whole("pricelevelstatus"),
    whole("plumodkeys"),
    flag("APPLYMODIFIER"),
    flag("MODIFIEROVERWRITES"),
    whole("DEFAULTKEYBOARD"),
    whole("DEFAULTPRICELEVEL"),
    flag("CLERKSHIFTLEVEL"),
};

// register file 8. DISABLEGCONRECEIPT is in no record.
constexpr FieldRow trackingFileOptions[] = {
    whole("ID"),
    flag("AUTOTRANSFER"),
    flag("TRANSFERTOTALS"),
    flag("CHECKSPAIDISSTUB"),
    flag("PRINTGUESTCHECK"),
    flag("SELECTHELDITEMSONRECALL"),
    flag("WARNIFHELDITEMSFINALISED"),
    flag("TRACK2HOLDS1"),
    flag("TRACK4HOLDS3"),
    numbered(4, whole("RESETCHECK*")),
    numbered(4, longNumber("STARTCHECK*")),
    numbered(4, longNumber("LIMITCHECK*")),
    flag("SHOWBACKUPINDICATOR"),
    flag("DISABLEGCONRECEIPT"),
};

constexpr TableRow optionsRows[] = {
    {"GENERALFUNCTIONS", generalFunctions, {"primarykey"}, "ID"},
    {"TAXOPTIONS", taxOptions, {"primarykey"}, "ID"},
    {"CASHDRAWEROPTIONS", cashDrawerOptions, {"primarykey"}, "ID"},
    {"TRAININGMODEOPTIONS", trainingModeOptions, {"primarykey"}, "ID"},
    {"LEVELMODIFIEROPTIONS", levelModifierOptions, {"primarykey"}, "ID"},
    {"TRACKINGFILEOPTIONS", trackingFileOptions, {"primarykey"}, "ID"},
};

} // namespace

std::span<const TableRow> optionTables()
{
    return optionsRows;
}

} // namespace norvane::store::rows
