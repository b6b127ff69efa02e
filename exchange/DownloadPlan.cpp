// The download plan. Order and letters differ from the upload's. The copies decide which file a later step
// finds.
#include "exchange/ExchangePlan.h"
#include "records/RegisterFiles.h"

#include <QLatin1StringView>

namespace norvane::exchange
{
namespace
{

// clang-format off
constexpr DownloadRow downloadRows[] = {
    { 0, 67, "  N67.DAT -a",      Copy::ToCustomerAfter},
    { 1, 65, "  N65.DAT -d 65",   Copy::ToCustomerAfter},
    { 2,  1, "  N1.DAT -D 1",     Copy::ToCustomerAfter},
    { 3,  2, "  N2.DAT -D 2",     Copy::ToCustomerAfter},
    { 4, 15, "  N15.DAT -d 15",   Copy::FromCustomerAfter},
    { 4,  3, "  N3.DAT -D 3",     Copy::ToCustomerAfter},
    { 4,  4, "  N4.DAT -d 4",     Copy::ToCustomerAfter},
    { 4,  5, "  N5.DAT -d 5",     Copy::ToCustomerAfter},
    { 4,  6, "  N6.DAT -d 6",     Copy::ToCustomerAfter},
    { 4,  7, "  N7.DAT -d 7",     Copy::ToCustomerAfter},
    { 4,  8, "  N8.DAT -d 8",     Copy::ToCustomerAfter},
    { 4,  9, "  N9.DAT -d 9",     Copy::ToCustomerAfter},
    { 4, 10, "  N10.DAT -d 10",   Copy::ToCustomerAfter},
    { 4, 11, "  N11.DAT -d 11",   Copy::ToCustomerAfter},
    { 4, 12, "  N12.DAT -d 12",   Copy::ToCustomerAfter},
    { 4, 13, "  N13.DAT -d 13",   Copy::ToCustomerAfter},
    { 4, 14, "  N14.DAT -d 14",   Copy::ToCustomerAfter},
    { 4, 36, "  N36.DAT -d 36",   Copy::ToCustomerAfter},
    { 5, 29, "  N29.DAT -d 29",   Copy::FromCustomerAfter},
    { 6, 23, "  N23.DAT -d 23",   Copy::ToCustomerAfter},
    { 6, 20, "  N20.DAT -D 20",   Copy::ToCustomerAfter},
    { 6, 21, "  N21.DAT -D 21",   Copy::ToCustomerAfter},
    { 6, 22, "  N22.DAT -D 22",   Copy::ToCustomerAfter},
    { 6, 24, "  N24.DAT -D 24",   Copy::ToCustomerAfter},
    { 6, 25, "  N25.DAT -D 25",   Copy::ToCustomerAfter},
    { 6, 26, "  N26.DAT -D 26",   Copy::ToCustomerAfter},
    { 7, 57, "  N57.DAT -D 57",   Copy::ToCustomerAfter},
    { 8, 64, "  N64.DAT -D 64",   Copy::FromCustomerAfter},
    { 9, 63, "  N63.DAT -D 63",   Copy::ToCustomerAfter},
    {10, 32, "  N32.DAT -D 32",   Copy::FromCustomerAfter},
    {11, 43, "  N43.DAT -D 43",   Copy::FromCustomerBefore},
    {11, 46, "  N46.DAT -D 46",   Copy::FromCustomerBefore},
    {11, 47, "  N47.DAT -D 47",   Copy::FromCustomerBefore},
    {11, 48, "  N48.DAT -D 48",   Copy::FromCustomerBefore},
    {11, 49, "  N49.DAT -D 49",   Copy::FromCustomerBefore},
    {12, 61, "  N61.DAT -D 61",   Copy::FromCustomerBefore},
    {13, 18, "  N18.DAT -D 18",   Copy::FromCustomerBefore},
    {13, 37, "  N37.DAT -D 37",   Copy::FromCustomerBefore},
    {13, 38, "  N38.DAT -D 38",   Copy::FromCustomerBefore},
    {13, 39, "  N39.DAT -D 39",   Copy::FromCustomerBefore},
    {13, 40, "  N40.DAT -D 40",   Copy::FromCustomerBefore},
    {13, 42, "  N42.DAT -D 42",   Copy::FromCustomerBefore},
    {14, 58, "  N58.DAT -D 58",   Copy::None},
    {14, 59, "  N59.DAT -D 59",   Copy::FromCustomerBefore},
    {15, 70, "  N70.DAT -D 70",   Copy::ToCustomerAfter},
    {16, 41, "  N41.DAT -D 41",   Copy::FromCustomerBefore},
    {17, 28, "  N28.DAT -D 28",   Copy::FromCustomerBefore},
    {18, 81, "  N81.DAT -D 81",   Copy::FromCustomerBefore},
    {19, 68, "  N68.DAT -D 68",   Copy::FromCustomerBefore},
    {20, 30, "  N30.DAT -D 30",   Copy::FromCustomerBefore},
    {21, 17, "  N17.DAT -D 17",   Copy::FromCustomerAfter},
    {22, 83, "  N83.DAT -D 83",   Copy::FromCustomerUnlessEmpty},
    {23, 44, "  N44.DAT -D 44",   Copy::FromCustomerBefore},
    {24, 16, "  N16.DAT -D 16",   Copy::FromCustomerAfter},
    {25, 27, "  N27.DAT -D 27",   Copy::FromCustomerBefore},
    {26, 33, "  N33.DAT -D 33",   Copy::FromCustomerAfter},
    {27, 34, "  N34.DAT -D 34",   Copy::FromCustomerAfter},
    {28, 35, "  N35.DAT -D 35",   Copy::FromCustomerBefore},
    {29, 45, "  N45.DAT -D 45",   Copy::FromCustomerBefore},
    {30, 50, "  N50.DAT -D 50",   Copy::FromCustomerBefore},
    {30, 51, "  N51.DAT -D 51",   Copy::FromCustomerBefore},
    {31, 69, "  N69.DAT -D 69",   Copy::FromCustomerBefore},
    {32, 60, "  N60.DAT -D 60",   Copy::ToCustomerAfter},
    {33, 62, "  N62.DAT -D 62",   Copy::FromCustomerBefore},
    {34, 85, "  N85.DAT -D 85",   Copy::FromCustomerAfter},
    {35, 86, "  N86.DAT -D 86",   Copy::FromCustomerAfter},
    {36, 71, "  N71.DAT -D 71",   Copy::FromCustomerAfter},
};
// clang-format on

} // namespace

std::span<const DownloadRow> downloadPlan()
{
    return downloadRows;
}

std::optional<int> boxSending(QStringView table)
{
    for (const DownloadRow& row : downloadRows) {
        const records::RegisterFile* const file = records::registerFile(row.file);
        if (file != nullptr && table.compare(QLatin1StringView(file->table), Qt::CaseInsensitive) == 0)
            return row.box;
    }
    return std::nullopt;
}

} // namespace norvane::exchange
