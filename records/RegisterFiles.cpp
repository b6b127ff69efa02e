// The rows of the file catalogue; see RegisterFiles.h.
#include "records/RegisterFiles.h"

#include "records/RecordLayouts.h"

#include <algorithm>

namespace norvane::records
{
namespace
{

constexpr auto fails = EmptyTable::Fails;
constexpr auto skips = EmptyTable::Skips;
constexpr auto replaces = Upload::ReplacesTable;
constexpr auto updates = Upload::UpdatesRecords;

// clang-format off
constexpr RegisterFile files[] = {
    { 1, "GROUPS",                     "WriteGROUPData",            "groupno",     "u01", "d01",   fails, replaces, groupLayout},
    { 2, "FUNCTIONKEY",                "WriteFunctionKeyData",      "primarykey",  "u02", "d02",   fails, replaces, functionKeyLayout},
    { 3, "GENERALFUNCTIONS",           "WriteGeneralOptionData",    "primarykey",  "u03", "d03",   fails, replaces, generalOptionLayout},
    { 4, "TAXOPTIONS",                 "WriteFileTaxOptiondata",    "primarykey",  "u04", "d04",   fails, replaces, taxOptionLayout},
    { 5, "CASHDRAWEROPTIONS",          "WriteFileDrawerOptionData", "primarykey",  "u05", "d05",   fails, replaces, drawerOptionLayout},
    { 6, "TRAININGMODEOPTIONS",        "WriteFileTrainModeData",    "primarykey",  "u06", "d06",   fails, replaces, trainingOptionLayout},
    { 7, "LEVELMODIFIEROPTIONS",       "WriteFileLevelModeData",    "primarykey",  "u07", "d07",   fails, replaces, levelOptionLayout},
    { 8, "TRACKINGFILEOPTIONS",        "WriteTrackingModeData",     "primarykey",  "u08", "d08",   fails, replaces, checkTrackingLayout},
    { 9, "KITCHENPRINTOPTIONS",        "WriteKPModeData",           "primarykey",  "u09", "d09",   fails, replaces, kitchenPrintLayout},
    {10, "VALIDSUBTOTALOPTIONS",       "WriteValidationData",       "primarykey",  "u10", "d10",   fails, replaces, validationLayout},
    {11, "GENERALPRINTOPTION",         "WriteGeneralPrintData",     "primarykey",  "u11", "d11",   fails, replaces, generalPrintLayout},
    {12, "REPORTPRINTINGOPTIONS",      "WriteReportPrintData",      "primarykey",  "u12", "d12",   fails, replaces, reportPrintLayout},
    {13, "REPORTOPTIONS",              "WriteReportData",           "primarykey",  "u13", "d13",   fails, replaces, reportOptionLayout},
    {14, "TIMEKEEPING",                "WriteTimeKeepingData",      "primarykey",  "u14", "d14",   fails, replaces, timeKeepingLayout},
    {15, "smode",                      "WriteSmodeData",            "primarykey",  "u15", "d15",   fails, replaces, serviceModeLayout},
    {16, "KEYLINK",                    "WriteKeyLinkData",          "primarykey",  "u16", "d16",   fails, replaces, keyLinkLayout},
    {17, "NLU",                        "WriteNLUData",              "primarykey",  "u17", "d17",   fails, replaces, numberLookUpLayout},
    {19, "SYSTEMDESCRIPTORS",          nullptr,                     "primarykey",  "u19", nullptr, fails, replaces, systemDescriptorLayout},
    {20, "ERRORMESSAGE",               "WriteErrorData",            "primarykey",  "u20", "d20",   fails, replaces, errorMessageLayout},
    {21, "FINANCIALREPORTDESCRIPTORS", "WriteFinReptMessageData",   "primarykey",  "u21", "d21",   fails, replaces, financialReportLayout},
    {22, "EMPLOYEEREPORTDESCRIPTORS",  "WriteEmpRepMessdata",       "primarykey",  "u22", "d22",   fails, replaces, employeeReportLayout},
    {23, "LOGOMESSAGE",                "WriteLogoData",             "primarykey",  "u23", "d23",   skips, replaces, logoMessageLayout},
    {24, "VALIDATIONMESSAGE",          "writevalidmessage",         "primarykey",  "u24", "d24",   skips, replaces, validationMessageLayout},
    {25, "CHECKENDORSEMESSAGE",        "WriteCheckEndorseMessage",  "primarykey",  "u25", "d25",   skips, replaces, checkEndorseMessageLayout},
    {26, "GUESTCHECKMESSAGE",          "WriteGuestCheckMessage",    "primarykey",  "u26", "d26",   skips, replaces, guestCheckMessageLayout},
    {29, "TAXRATES",                   "WriteTaxRates",             "primarykey",  "u29", "d29",   fails, replaces, taxRateLayout},
    {32, "AUTHORITYLEVEL",             "WriteAuthorityLevels",      "primarykey",  "u32", "d32",   fails, replaces, authorityLevelLayout},
    {33, "JOBCODE",                    "WriteJobCodeData",          "primarykey",  "u33", "d33",   fails, replaces, jobCodeLayout},
    {34, "PAYRATE",                    "WritePayrateData",          "primarykey",  "u34", "d34",   fails, replaces, payRateLayout},
    {36, "EJDETAILPRINT",              "WriteEJData",               "primarykey",  "u36", "d36",   fails, replaces, journalDetailLayout},
    {57, "WLU",                        "WriteWLUData",              "primarykey",  "u57", "d57",   fails, replaces, windowLookUpLayout},
    {58, "PRODUCTMIX",                 "WritePRODUCTMIXData",       "primarykeys", "u58", "d58",   fails, replaces, productMixLayout},
    {60, "RECIPE",                     "WriteRecipeData",           "recipeno",    "u60", "d60",   fails, replaces, recipeLayout},
    {63, "EMPLOYEE",                   "WriteEmployeeData",         "primarykey",  "u63", "d63",   fails, replaces, employeeLayout, "d163"},
    {64, "TIMEPERIOD",                 "WriteTimePeriod",           "id",          "u64", "d64",   fails, replaces, timePeriodLayout},
    {65, "PLUSTATUS",                  "WritePluStatusData",        "primarykey",  "u65", "d65",   fails, replaces, pluStatusLayout},
    {67, "PLUDATA",                    "WritePLUData",              "plunumber",   "u67", "d67",   fails, replaces, pluLayout},
    {70, "MIXNMATCH",                  "WriteMixNMatchData",        "primarykey",  "u70", "d70",   skips, replaces, mixAndMatchLayout},
    {71, "PLUDATA",                    "WritePLUPoint",             "plunumber",   "u71", "d71",   skips, updates,  pluPointsLayout},
    {85, "CARDCATEGORY",               "WriteCardCategory",         "primarykey",  "u85", "d85",   skips, replaces, cardCategoryLayout},
    {86, "HOTLIST",                    "WriteHotlistdata",          "primarykey",  "u86", "d86",   skips, replaces, hotListLayout},
};
// clang-format on

} // namespace

std::span<const RegisterFile> registerFiles()
{
    return files;
}

const RegisterFile* registerFile(int number)
{
    const auto* const found =
        std::find_if(std::begin(files), std::end(files),
                     [number](const RegisterFile& file) { return file.number == number; });
    return found == std::end(files) ? nullptr : found;
}

} // namespace norvane::records
