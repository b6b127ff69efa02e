// The upload plan. The letter of -U or -u and the leading blanks are fixed for each file.
#include "exchange/ExchangePlan.h"

namespace norvane::exchange
{
namespace
{

// clang-format off
constexpr UploadRow rows[] = {
    { 0, 67, "  N67.DAT -U 67",    "FilePLUdata"},
    { 1, 65, " N65.DAT -U 65",     "FilePLUStatusData"},
    { 2,  1, "  N1.DAT -U 1",      "FileGroupData"},
    { 3,  2, "  N2.DAT -U 2",      "FileFunctionKey"},
    { 4,  3, "  N3.DAT -U 3",      "FileGeneralOptionData"},
    { 4,  4, "  N4.DAT -U 4",      "FileTaxOptionData"},
    { 4,  5, "  N5.DAT -U 5",      "FileDrawerOptionData"},
    { 4,  6, "  N6.DAT -U 6",      "FileTrainModeData"},
    { 4,  7, "  N7.DAT -U 7",      "FileLevelOptionData"},
    { 4,  8, "  N8.DAT -U 8",      "FileCheckTrackingData"},
    { 4,  9, "  N9.DAT -U 9",      "FileKPKVOptionData"},
    { 4, 10, "  N10.DAT -U 10",    "FileValidOptionData"},
    { 4, 11, "  N11.DAT -U 11",    "FileGeneralPrintData"},
    { 4, 12, "  N12.DAT -U 12",    "FileReportPrintData"},
    { 4, 13, "  N13.DAT -U 13",    "FileReportOptionData"},
    { 4, 14, "  N14.DAT -U 14",    "FileTimeKeepingData"},
    { 4, 36, "  N36.DAT -U 36",    "FileEJDetailData"},
    { 4, 15, "  N15.DAT -U 15",    "FileSmodeData"},
    { 5, 29, "  N29.DAT -U 29",    "FileTaxRates"},
    { 6, 23, "  N23.DAT -U 23",    "FileLogoMessageData"},
    { 6, 20, "  N20.DAT -U 20",    "FileERRORMessageData"},
    { 6, 21, "  N21.DAT -U 21",    "FileFinancialMessageData"},
    { 6, 22, "  N22.DAT -U 22",    "FileEmployeeMessageData"},
    { 6, 24, "  N24.DAT -U 24",    "FileValidmessage"},
    { 6, 25, "  N25.DAT -U 25",    "FileCheckEndorseMessage"},
    { 6, 26, "  N26.DAT -U 26",    "FileGuestCheckMessage"},
    { 7, 57, "  N57.DAT -u 57",    "FileWLUdata"},
    { 8, 64, "  N64.DAT -u 64",    "FileTimePeriod"},
    { 9, 63, "  N63.DAT -u 63",    "FileEmployeeData"},
    {10, 32, "  N32.DAT -u 32",    "FileAuthorityLevels"},
    {11, 43, "  N43.DAT -u 43",    nullptr},
    {11, 46, "  N46.DAT -u 46",    nullptr},
    {11, 47, "  N47.DAT -u 47",    nullptr},
    {11, 48, "  N48.DAT -u 48",    nullptr},
    {11, 49, "  N49.DAT -u 49",    nullptr},
    {12, 61, "  N61.DAT -u 61",    nullptr},
    {13, 18, "  N18.DAT -u 18",    nullptr},
    {13, 37, "  N37.DAT -u 37",    nullptr},
    {13, 38, "  N38.DAT -u 38",    nullptr},
    {13, 39, "  N39.DAT -u 39",    nullptr},
    {13, 40, "  N40.DAT -u 40",    nullptr},
    {13, 42, "  N42.DAT -u 42",    nullptr},
    {14, 58, "  N58.DAT -u 58",    "FileProductMixdata"},
    {14, 59, "  N59.DAT -u 59",    nullptr},
    {15, 70, "  N70.DAT -u 70",    "FileMixNMatchData"},
    {16, 41, "  N41.DAT -u 41",    nullptr},
    {17, 28, "  N28.DAT -u 28",    nullptr},
    {18, 81, "  N81.DAT -u 81",    nullptr},
    {19, 68, "  N68.DAT -u 68",    nullptr},
    {20, 30, "  N30.DAT -u 30",    nullptr},
    {21, 17, "  N17.DAT -u 17",    "FileNLUData"},
    {22, 83, "  N83.DAT -u 83",    nullptr},
    {23, 44, " N44.DAT -u 44",     nullptr},
    {24, 16, " N16.DAT -u 16",     "FileKeylinkData"},
    {25, 27, " N27.DAT -u 27",     nullptr},
    {26, 33, " N33.DAT -u 33",     "FileJobCode"},
    {27, 34, " N34.DAT -u 34",     "FilePayRate"},
    {28, 35, " N35.DAT -u 35",     nullptr},
    {29, 45, " N45.DAT -u 45",     nullptr},
    {30, 50, " N50.DAT -u 50",     nullptr},
    {30, 51, " N51.DAT -u 51",     nullptr},
    {31, 69, " N69.DAT -u 69",     nullptr},
    {32, 60, " N60.DAT -u 60",     "FileRecipeData"},
    {33, 62, " N62.DAT -u 62",     nullptr},
    {34, 85, " N85.DAT -u 85",     "FileCardCategory"},
    {35, 86, " N86.DAT -u 86",     "FileHotlistdata"},
    {36, 71, " N71.DAT -u 71",     "FilePLUPoint"},
};
// clang-format on

} // namespace

std::span<const UploadRow> uploadPlan()
{
    return rows;
}

} // namespace norvane::exchange
