// The upload plan. The tool takes the letter of -U or -u and the leading blanks as written here.
#include "exchange/ExchangePlan.h"

namespace norvane::exchange
{
namespace
{

// clang-format off
constexpr UploadRow uploadRows[] = {
    { 0, 67, "  N67.DAT -U 67"},
    { 1, 65, " N65.DAT -U 65"},
    { 2,  1, "  N1.DAT -U 1"},
    { 3,  2, "  N2.DAT -U 2"},
    { 4,  3, "  N3.DAT -U 3"},
    { 4,  4, "  N4.DAT -U 4"},
    { 4,  5, "  N5.DAT -U 5"},
    { 4,  6, "  N6.DAT -U 6"},
    { 4,  7, "  N7.DAT -U 7"},
    { 4,  8, "  N8.DAT -U 8"},
    { 4,  9, "  N9.DAT -U 9"},
    { 4, 10, "  N10.DAT -U 10"},
    { 4, 11, "  N11.DAT -U 11"},
    { 4, 12, "  N12.DAT -U 12"},
    { 4, 13, "  N13.DAT -U 13"},
    { 4, 14, "  N14.DAT -U 14"},
    { 4, 36, "  N36.DAT -U 36"},
    { 4, 15, "  N15.DAT -U 15"},
    { 5, 29, "  N29.DAT -U 29"},
    { 6, 23, "  N23.DAT -U 23"},
    { 6, 20, "  N20.DAT -U 20"},
    { 6, 21, "  N21.DAT -U 21"},
    { 6, 22, "  N22.DAT -U 22"},
    { 6, 24, "  N24.DAT -U 24"},
    { 6, 25, "  N25.DAT -U 25"},
    { 6, 26, "  N26.DAT -U 26"},
    { 7, 57, "  N57.DAT -u 57"},
    { 8, 64, "  N64.DAT -u 64"},
    { 9, 63, "  N63.DAT -u 63"},
    {10, 32, "  N32.DAT -u 32"},
    {11, 43, "  N43.DAT -u 43"},
    {11, 46, "  N46.DAT -u 46"},
    {11, 47, "  N47.DAT -u 47"},
    {11, 48, "  N48.DAT -u 48"},
    {11, 49, "  N49.DAT -u 49"},
    {12, 61, "  N61.DAT -u 61"},
    {13, 18, "  N18.DAT -u 18"},
    {13, 37, "  N37.DAT -u 37"},
    {13, 38, "  N38.DAT -u 38"},
    {13, 39, "  N39.DAT -u 39"},
    {13, 40, "  N40.DAT -u 40"},
    {13, 42, "  N42.DAT -u 42"},
    {14, 58, "  N58.DAT -u 58"},
    {14, 59, "  N59.DAT -u 59"},
    {15, 70, "  N70.DAT -u 70"},
    {16, 41, "  N41.DAT -u 41"},
    {17, 28, "  N28.DAT -u 28"},
    {18, 81, "  N81.DAT -u 81"},
    {19, 68, "  N68.DAT -u 68"},
    {20, 30, "  N30.DAT -u 30"},
    {21, 17, "  N17.DAT -u 17"},
    {22, 83, "  N83.DAT -u 83"},
    {23, 44, " N44.DAT -u 44"},
    {24, 16, " N16.DAT -u 16"},
    {25, 27, " N27.DAT -u 27"},
    {26, 33, " N33.DAT -u 33"},
    {27, 34, " N34.DAT -u 34"},
    {28, 35, " N35.DAT -u 35"},
    {29, 45, " N45.DAT -u 45"},
    {30, 50, " N50.DAT -u 50"},
    {30, 51, " N51.DAT -u 51"},
    {31, 69, " N69.DAT -u 69"},
    {32, 60, " N60.DAT -u 60"},
    {33, 62, " N62.DAT -u 62"},
    {34, 85, " N85.DAT -u 85"},
    {35, 86, " N86.DAT -u 86"},
    {36, 71, " N71.DAT -u 71"},
};
// clang-format on

} // namespace

std::span<const UploadRow> uploadPlan()
{
    return uploadRows;
}

} // namespace norvane::exchange
