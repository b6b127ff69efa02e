// The download plan. It differs from the upload's in order, letters and copies; which binary file a later
// step finds in either folder depends on it.
#include "exchange/ExchangePlan.h"

namespace norvane::exchange
{
namespace
{

// clang-format off
constexpr DownloadRow rows[] = {
    { 0, 67, "  N67.DAT -a",       "WritePLUData",              Copy::ToCustomerAfter,    Skip::Never},
    { 1, 65, "  N65.DAT -d 65",    "WritePluStatusData",        Copy::ToCustomerAfter,    Skip::Never},
    { 2,  1, "  N1.DAT -D 1",      "WriteGROUPData",            Copy::ToCustomerAfter,    Skip::Never},
    { 3,  2, "  N2.DAT -D 2",      "WriteFunctionKeyData",      Copy::ToCustomerAfter,    Skip::Never},
    { 4, 15, "  N15.DAT -d 15",    "WriteSmodeData",            Copy::FromCustomerAfter,  Skip::Never},
    { 4,  3, "  N3.DAT -D 3",      "WriteGeneralOptionData",    Copy::ToCustomerAfter,    Skip::Never},
    { 4,  4, "  N4.DAT -d 4",      "WriteFileTaxOptiondata",    Copy::ToCustomerAfter,    Skip::Never},
    { 4,  5, "  N5.DAT -d 5",      "WriteFileDrawerOptionData", Copy::ToCustomerAfter,    Skip::Never},
    { 4,  6, "  N6.DAT -d 6",      "WriteFileTrainModeData",    Copy::ToCustomerAfter,    Skip::Never},
    { 4,  7, "  N7.DAT -d 7",      "WriteFileLevelModeData",    Copy::ToCustomerAfter,    Skip::Never},
    { 4,  8, "  N8.DAT -d 8",      "WriteTrackingModeData",     Copy::ToCustomerAfter,    Skip::Never},
    { 4,  9, "  N9.DAT -d 9",      "WriteKPModeData",           Copy::ToCustomerAfter,    Skip::Never},
    { 4, 10, "  N10.DAT -d 10",    "WriteValidationData",       Copy::ToCustomerAfter,    Skip::Never},
    { 4, 11, "  N11.DAT -d 11",    "WriteGeneralPrintData",     Copy::ToCustomerAfter,    Skip::Never},
    { 4, 12, "  N12.DAT -d 12",    "WriteReportPrintData",      Copy::ToCustomerAfter,    Skip::Never},
    { 4, 13, "  N13.DAT -d 13",    "WriteReportData",           Copy::ToCustomerAfter,    Skip::Never},
    { 4, 14, "  N14.DAT -d 14",    "WriteTimeKeepingData",      Copy::ToCustomerAfter,    Skip::Never},
    { 4, 36, "  N36.DAT -d 36",    "WriteEJData",               Copy::ToCustomerAfter,    Skip::Never},
    { 5, 29, "  N29.DAT -d 29",    "WriteTaxRates",             Copy::FromCustomerAfter,  Skip::Never},
    { 6, 23, "  N23.DAT -d 23",    "WriteLogoData",             Copy::ToCustomerAfter,    Skip::WhenTableEmpty},
    { 6, 20, "  N20.DAT -D 20",    "WriteErrorData",            Copy::ToCustomerAfter,    Skip::Never},
    { 6, 21, "  N21.DAT -D 21",    "WriteFinReptMessageData",   Copy::ToCustomerAfter,    Skip::Never},
    { 6, 22, "  N22.DAT -D 22",    "WriteEmpRepMessdata",       Copy::ToCustomerAfter,    Skip::Never},
    { 6, 24, "  N24.DAT -D 24",    "writevalidmessage",         Copy::ToCustomerAfter,    Skip::WhenTableEmpty},
    { 6, 25, "  N25.DAT -D 25",    "WriteCheckEndorseMessage",  Copy::ToCustomerAfter,    Skip::WhenTableEmpty},
    { 6, 26, "  N26.DAT -D 26",    "WriteGuestCheckMessage",    Copy::ToCustomerAfter,    Skip::WhenTableEmpty},
    { 7, 57, "  N57.DAT -D 57",    "WriteWLUData",              Copy::ToCustomerAfter,    Skip::Never},
    { 8, 64, "  N64.DAT -D 64",    "WriteTimePeriod",           Copy::FromCustomerAfter,  Skip::Never},
    { 9, 63, "  N63.DAT -D 63",    "WriteEmployeeData",         Copy::ToCustomerAfter,    Skip::Never},
    {10, 32, "  N32.DAT -D 32",    "WriteAuthorityLevels",      Copy::FromCustomerAfter,  Skip::Never},
    {11, 43, "  N43.DAT -D 43",    nullptr,                     Copy::FromCustomerBefore, Skip::Never},
    {11, 46, "  N46.DAT -D 46",    nullptr,                     Copy::FromCustomerBefore, Skip::Never},
    {11, 47, "  N47.DAT -D 47",    nullptr,                     Copy::FromCustomerBefore, Skip::Never},
    {11, 48, "  N48.DAT -D 48",    nullptr,                     Copy::FromCustomerBefore, Skip::Never},
    {11, 49, "  N49.DAT -D 49",    nullptr,                     Copy::FromCustomerBefore, Skip::Never},
    {12, 61, "  N61.DAT -D 61",    nullptr,                     Copy::FromCustomerBefore, Skip::Never},
    {13, 18, "  N18.DAT -D 18",    nullptr,                     Copy::FromCustomerBefore, Skip::Never},
    {13, 37, "  N37.DAT -D 37",    nullptr,                     Copy::FromCustomerBefore, Skip::Never},
    {13, 38, "  N38.DAT -D 38",    nullptr,                     Copy::FromCustomerBefore, Skip::Never},
    {13, 39, "  N39.DAT -D 39",    nullptr,                     Copy::FromCustomerBefore, Skip::Never},
    {13, 40, "  N40.DAT -D 40",    nullptr,                     Copy::FromCustomerBefore, Skip::Never},
    {13, 42, "  N42.DAT -D 42",    nullptr,                     Copy::FromCustomerBefore, Skip::Never},
    {14, 58, "  N58.DAT -D 58",    "WritePRODUCTMIXData",       Copy::None,               Skip::Never},
    {14, 59, "  N59.DAT -D 59",    nullptr,                     Copy::FromCustomerBefore, Skip::Never},
    {15, 70, "  N70.DAT -D 70",    "WriteMixNMatchData",        Copy::ToCustomerAfter,    Skip::WhenTableEmpty},
    {16, 41, "  N41.DAT -D 41",    nullptr,                     Copy::FromCustomerBefore, Skip::Never},
    {17, 28, "  N28.DAT -D 28",    nullptr,                     Copy::FromCustomerBefore, Skip::Never},
    {18, 81, "  N81.DAT -D 81",    nullptr,                     Copy::FromCustomerBefore, Skip::Never},
    {19, 68, "  N68.DAT -D 68",    nullptr,                     Copy::FromCustomerBefore, Skip::Never},
    {20, 30, "  N30.DAT -D 30",    nullptr,                     Copy::FromCustomerBefore, Skip::Never},
    {21, 17, "  N17.DAT -D 17",    "WriteNLUData",              Copy::FromCustomerAfter,  Skip::Never},
    {22, 83, "  N83.DAT -D 83",    nullptr,                     Copy::FromCustomerBefore, Skip::WhenFileEmpty},
    {23, 44, "  N44.DAT -D 44",    nullptr,                     Copy::FromCustomerBefore, Skip::Never},
    {24, 16, "  N16.DAT -D 16",    "WriteKeyLinkData",          Copy::FromCustomerAfter,  Skip::Never},
    {25, 27, "  N27.DAT -D 27",    nullptr,                     Copy::FromCustomerBefore, Skip::Never},
    {26, 33, "  N33.DAT -D 33",    "WriteJobCodeData",          Copy::FromCustomerAfter,  Skip::Never},
    {27, 34, "  N34.DAT -D 34",    "WritePayrateData",          Copy::FromCustomerAfter,  Skip::Never},
    {28, 35, "  N35.DAT -D 35",    nullptr,                     Copy::FromCustomerBefore, Skip::Never},
    {29, 45, "  N45.DAT -D 45",    nullptr,                     Copy::FromCustomerBefore, Skip::Never},
    {30, 50, "  N50.DAT -D 50",    nullptr,                     Copy::FromCustomerBefore, Skip::Never},
    {30, 51, "  N51.DAT -D 51",    nullptr,                     Copy::FromCustomerBefore, Skip::Never},
    {31, 69, "  N69.DAT -D 69",    nullptr,                     Copy::FromCustomerBefore, Skip::Never},
    {32, 60, "  N60.DAT -D 60",    "WriteRecipeData",           Copy::ToCustomerAfter,    Skip::Never},
    {33, 62, "  N62.DAT -D 62",    nullptr,                     Copy::FromCustomerBefore, Skip::Never},
    {34, 85, "  N85.DAT -D 85",    "WriteCardCategory",         Copy::FromCustomerAfter,  Skip::WhenTableEmpty},
    {35, 86, "  N86.DAT -D 86",    "WriteHotlistdata",          Copy::FromCustomerAfter,  Skip::WhenTableEmpty},
    {36, 71, "  N71.DAT -D 71",    "WritePLUPoint",             Copy::FromCustomerAfter,  Skip::WhenTableEmpty},
};
// clang-format on

} // namespace

std::span<const DownloadRow> downloadPlan()
{
    return rows;
}

} // namespace norvane::exchange
