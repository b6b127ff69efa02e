// Which command lines VELMARCOMM takes, and with which result it refuses others. The exchanges of the program
// send each line that it knows.
#include "ToolBench.h"

namespace bank::test
{
namespace
{

TEST(Grammar, takesOrRefusesLines)
{
    const ToolBench bench(2);
    bench.comm(q("s9 c1 N1.DAT -U 1"));
    const auto zeros = q("P0001010100010000000000000000000000000000000000000000000100 -Z");
    const std::pair<const char*, const char*> cases[] = {
        // lines of all three kinds
        {"0", "s9 c1 -U 250; s2 c1 Nmem.DAT -U 52; s4 F1 2T c1 N1.DAT -D 1; s1 F1 1T c1 N1.DAT -D 1; "
              "1200 Nmem.DAT -U 52; 19200 -U 250; 2400 F1 2T ZEROS; 9600 F1 2T -P 190 191 192 194 218; "
              "9600 F1 1T -C"},
        // words that are missing, unknown, in the wrong place or of another kind of line
        {"1", "; s9; c1 s9 -U 250; s9 N1.DAT -U 1; s9 c1 N1.DAT; s3 c1 -U 250; 4800 -U 250; s9 c5 -U 250; "
              "s9 C1 -U 250; s9 F2 2T c1 N1.DAT -D 1; s9 F1 0T c1 N1.DAT -D 1; s9 F1 33T c1 N1.DAT -D 1; "
              "s9 F1 02T c1 N1.DAT -D 1; s9 F1 2 c1 N1.DAT -D 1; s9 F1 2T c1 N1.DAT -U 1; s9 c1 N1.DAT -D 1; "
              "9600 N1.DAT -U 1; 9600 -C; s9 F1 2T c1 -C; s9 F1 2T c1 ZEROS"},
        // commands and files that do not exist, and those with the letter of another
        {"7",
         "s9 c1 1.DAT -U 1; s9 c1 N1.DAT -U 1 2; 9600 c1 -U 250; s9 c1 -X 250; s9 c1 -u 250; "
         "s9 c1 N19.DAT -U 19; s9 c1 N99.DAT -U 99; s9 c1 N2.DAT -U 1; s9 c1 N1.dat -U 1; "
         "s9 c1 Nmem.DAT -D 52; s9 F1 1T c1 N67.DAT -D 67; s9 F1 1T c1 N1.DAT -a; "
         "9600 F1 2T -P 190 191 192 194; 9600 F1 2T -P 191 190 192 194 218; 9600 F1 2T P000101010001 -Z; "
         "s9 c1 N1.DAT -u 1; s9 c1 N36.DAT -u 36; s9 c1 N57.DAT -U 57; s9 F1 1T c1 N1.DAT -d 1; "
         "s9 F1 1T c1 N4.DAT -D 4; s9 F1 1T c1 N65.DAT -D 65; s9 F1 1T c1 N57.DAT -d 57"},
        // no number where one belongs
        {"5", "s9 c1 N1.DAT -U one"},
    };
    for (const auto& [result, lines] : cases) {
        for (QString line : q(lines).split(q("; ")))
            EXPECT_EQ(bench.comm(line.replace(q("ZEROS"), zeros)), result) << line.toStdString();
    }
}

} // namespace
} // namespace bank::test
