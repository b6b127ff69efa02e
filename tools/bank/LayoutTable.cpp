// The record layouts of all register files with a text form; see Layout.h for the letters.
//   Tn/m is a text of n characters, m on Dorvik; Bx|y one of the numbers; k(...) the columns k times.
#include "tools/bank/LayoutTable.h"

#include "tools/bank/Layout.h"

namespace bank
{

const std::vector<LayoutRow>& layoutTable()
{
    static const std::vector<LayoutRow> table{
        {1, "T12 D D", 99, 99},
        {2, "T12 N8 4(N2)", 266, 266},
        {3, "8(D) N4 N6 10(N4) N10 N2 5(N2 N2 N4) N2 3(D) N6 18(N4) K56", 1, 1},
        {4, "2(D) N2 K60", 1, 1},
        {5, "D N8 N4 D K60", 1, 1},
        {6, "D N4 N4 B0|40 K60", 1, 1},
        {7, "2(D) N2 N3 B0|1 K60", 1, 1},
        {8, "4(D) 8(N10) D K60", 1, 1},
        {9, "3(D) N2 N2 2(D) K58", 1, 1},
        {10, "D N2 K60", 1, 1},
        {11, "5(D) N2 6(T3) N2 N2 4(D) B0|20|40|60 4(N2) K44", 1, 1},
        {12, "3(D) K58", 1, 1},
        {13, "5(D) K58", 1, 1},
        {14, "D N4 N6 N2 K60", 1, 1},
        {15, "D N6 12(N2) 7(N4) N2 N2 N4 K60", 1, 1},
        {16, "N4", 845, 790},
        {17, "N18", 845, 790},
        {19, "T30", 60, 60},
        {20, "T30", 80, 80},
        {21, "T30", 118, 118},
        {22, "T30", 118, 118},
        {23, "C 10(T40/32)", 1, 1},
        {24, "C 3(T40/32)", 1, 1},
        {25, "C 10(T40/32)", 1, 1},
        {26, "C 10(T40/32)", 1, 1},
        {29, "N6 C K2 N4 N4 N2 N2 20(N20) N6 N6 N10", 6, 6},
        {32, "T12 8(D)", 20, 20},
        {33, "T12", 20, 20},
        {34, "N4", 20, 20},
        {36, "6(D) K54", 1, 1},
        {memoryFile, "N2 N2 N5 N4 N2 N4 N2 N4 N4 4(N4) N2 N4 N2 N4 N2 N4 N4 N5 N4 N4 N4 10(D) N4 2(D)", 1, 1},
        {57, "T12 N4 N2 N4 2(D) 50(C N18)", Memory{17}, Memory{17}},
        {58, "T12 T4 N4", Memory{15}, Memory{15}},
        {60, "T16 20(C N4 N6)", Memory{19}, Memory{19}},
        {63, "T12 N12 2(N10) 14(N2) C 2(N2) 7(N4)", Memory{6}, Memory{6}},
        {64, "N4 N4 C", Memory{14}, Memory{14}},
        {65, "T12 8(D) 5(N2) N18 2(N2)", Memory{4}, Memory{4}},
        {67, "N18 T16 N2 4(N4) D N4 N4 N18 N4 5(N8 N2)", Memory{3}, Memory{3}},
        {70, "T12 N2 N8", Memory{35}, Memory{35}},
        {71, "N18 5(N4)", Memory{3}, Memory{3}},
        {85, "T16 4(N4) D", Memory{38}, Memory{38}},
        {86, "T30 D", Memory{39}, Memory{39}},
        {newerMemoryCode,
         "N2 N2 N5 N4 N2 N4 N2 N4 N4 4(N4) N2 N4 N2 N4 N2 N4 N4 N5 N4 N4 N4 10(D) N4 2(D) N4 N5", 1, 1},
    };
    return table;
}

const std::vector<int>& opaqueFiles()
{
    static const std::vector<int> files{18, 27, 28, 30, 35, 37, 38, 39, 40, 41, 42, 43, 44, 45,
                                        46, 47, 48, 49, 50, 51, 59, 61, 62, 68, 69, 81, 83};
    return files;
}

} // namespace bank
