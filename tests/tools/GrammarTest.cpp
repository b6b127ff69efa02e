// Which command lines VELMARCOMM takes, word for word, and with which result it refuses others.
#include "ToolBench.h"

namespace bank::test
{
namespace
{

constexpr const char* fetchWords =
    "N67.DAT -U 67;N65.DAT -U 65;N1.DAT -U 1;N2.DAT -U 2;N3.DAT -U 3;N4.DAT -U 4;N5.DAT -U 5;"
    "N6.DAT -U 6;N7.DAT -U 7;N8.DAT -U 8;N9.DAT -U 9;N10.DAT -U 10;N11.DAT -U 11;N12.DAT -U 12;"
    "N13.DAT -U 13;N14.DAT -U 14;N36.DAT -U 36;N15.DAT -U 15;N29.DAT -U 29;N23.DAT -U 23;"
    "N20.DAT -U 20;N21.DAT -U 21;N22.DAT -U 22;N24.DAT -U 24;N25.DAT -U 25;N26.DAT -U 26;"
    "N57.DAT -u 57;N64.DAT -u 64;N63.DAT -u 63;N32.DAT -u 32;N43.DAT -u 43;N46.DAT -u 46;"
    "N47.DAT -u 47;N48.DAT -u 48;N49.DAT -u 49;N61.DAT -u 61;N18.DAT -u 18;N37.DAT -u 37;"
    "N38.DAT -u 38;N39.DAT -u 39;N40.DAT -u 40;N42.DAT -u 42;N58.DAT -u 58;N59.DAT -u 59;"
    "N70.DAT -u 70;N41.DAT -u 41;N28.DAT -u 28;N81.DAT -u 81;N68.DAT -u 68;N30.DAT -u 30;"
    "N17.DAT -u 17;N83.DAT -u 83;N44.DAT -u 44;N16.DAT -u 16;N27.DAT -u 27;N33.DAT -u 33;"
    "N34.DAT -u 34;N35.DAT -u 35;N45.DAT -u 45;N50.DAT -u 50;N51.DAT -u 51;N69.DAT -u 69;"
    "N60.DAT -u 60;N62.DAT -u 62;N85.DAT -u 85;N86.DAT -u 86;N71.DAT -u 71;";

constexpr const char* sendWords =
    "N67.DAT -a;N65.DAT -d 65;N1.DAT -D 1;N2.DAT -D 2;N15.DAT -d 15;N3.DAT -D 3;N4.DAT -d 4;"
    "N5.DAT -d 5;N6.DAT -d 6;N7.DAT -d 7;N8.DAT -d 8;N9.DAT -d 9;N10.DAT -d 10;N11.DAT -d 11;"
    "N12.DAT -d 12;N13.DAT -d 13;N14.DAT -d 14;N36.DAT -d 36;N29.DAT -d 29;N23.DAT -d 23;"
    "N20.DAT -D 20;N21.DAT -D 21;N22.DAT -D 22;N24.DAT -D 24;N25.DAT -D 25;N26.DAT -D 26;"
    "N57.DAT -D 57;N64.DAT -D 64;N63.DAT -D 63;N32.DAT -D 32;N43.DAT -D 43;N46.DAT -D 46;"
    "N47.DAT -D 47;N48.DAT -D 48;N49.DAT -D 49;N61.DAT -D 61;N18.DAT -D 18;N37.DAT -D 37;"
    "N38.DAT -D 38;N39.DAT -D 39;N40.DAT -D 40;N42.DAT -D 42;N58.DAT -D 58;N59.DAT -D 59;"
    "N70.DAT -D 70;N41.DAT -D 41;N28.DAT -D 28;N81.DAT -D 81;N68.DAT -D 68;N30.DAT -D 30;"
    "N17.DAT -D 17;N83.DAT -D 83;N44.DAT -D 44;N16.DAT -D 16;N27.DAT -D 27;N33.DAT -D 33;"
    "N34.DAT -D 34;N35.DAT -D 35;N45.DAT -D 45;N50.DAT -D 50;N51.DAT -D 51;N69.DAT -D 69;"
    "N60.DAT -D 60;N62.DAT -D 62;N85.DAT -D 85;N86.DAT -D 86;N71.DAT -D 71;";

QStringList suffixes(const char* words)
{
    return q(words).split(u';', Qt::SkipEmptyParts);
}

/// The same suffix with the letter of its command in the other case.
QString otherLetter(QString suffix)
{
    const auto at = suffix.indexOf(u'-') + 1;
    const QChar letter = suffix.at(at);
    suffix[at] = letter.isUpper() ? letter.toLower() : letter.toUpper();
    return suffix;
}

TEST(Grammar, takesEveryFileByItsOwnLetterAndNoOther)
{
    const ToolBench bench;
    for (const auto& suffix : suffixes(fetchWords)) {
        EXPECT_EQ(bench.comm(q("s9 c1 ") + suffix), "0") << suffix.toStdString();
        EXPECT_EQ(bench.comm(q("s9 c1 ") + otherLetter(suffix)), "7") << suffix.toStdString();
    }
    for (const auto& suffix : suffixes(sendWords)) {
        EXPECT_EQ(bench.comm(q("s9 F1 1T c1 ") + suffix), "0") << suffix.toStdString();
        EXPECT_EQ(bench.comm(q("s9 F1 1T c1 ") + otherLetter(suffix)), "7") << suffix.toStdString();
    }
}

TEST(Grammar, takesOrRefusesLines)
{
    const ToolBench bench(2);
    bench.comm(q("s9 c1 N1.DAT -U 1"));
    constexpr const char* zeros = "P0001010100010000000000000000000000000000000000000000000100 -Z";
    struct Case {
        QString line;
        const char* result;
    };
    const std::vector<Case> cases{
        {q("s9 c1 -U 250"), "0"},
        {q("s2 c1 Nmem.DAT -U 52"), "0"},
        {q("s4 F1 2T c1 N1.DAT -D 1"), "0"},
        {q("s1 F1 1T c1 N1.DAT -D 1"), "0"},
        {q("1200 Nmem.DAT -U 52"), "0"},
        {q("19200 -U 250"), "0"},
        {q("2400 F1 2T ") + q(zeros), "0"},
        {q("9600 F1 2T -P 190 191 192 194 218"), "0"},
        {q("9600 F1 1T -C"), "0"},
        // nothing, and words in the wrong place
        {q(""), "1"},
        {q("s9"), "1"},
        {q("c1 s9 -U 250"), "1"},
        {q("s9 N1.DAT -U 1"), "1"},
        {q("s9 c1 N1.DAT"), "1"},
        {q("s9 c1 1.DAT -U 1"), "7"},
        {q("s9 c1 N1.DAT -U 1 2"), "7"},
        // words that do not exist
        {q("s3 c1 -U 250"), "1"},
        {q("4800 -U 250"), "1"},
        {q("s9 c5 -U 250"), "1"},
        {q("s9 C1 -U 250"), "1"},
        {q("s9 F2 2T c1 N1.DAT -D 1"), "1"},
        {q("s9 F1 0T c1 N1.DAT -D 1"), "1"},
        {q("s9 F1 33T c1 N1.DAT -D 1"), "1"},
        {q("s9 F1 02T c1 N1.DAT -D 1"), "1"},
        {q("s9 F1 2 c1 N1.DAT -D 1"), "1"},
        // forms that belong to another kind of line
        {q("s9 F1 2T c1 N1.DAT -U 1"), "1"},
        {q("s9 c1 N1.DAT -D 1"), "1"},
        {q("9600 N1.DAT -U 1"), "1"},
        {q("9600 c1 -U 250"), "7"},
        {q("9600 -C"), "1"},
        {q("s9 F1 2T c1 -C"), "1"},
        {q("s9 F1 2T c1 ") + q(zeros), "1"},
        // commands and files that do not exist
        {q("s9 c1 -X 250"), "7"},
        {q("s9 c1 -u 250"), "7"},
        {q("s9 c1 N19.DAT -U 19"), "7"},
        {q("s9 c1 N99.DAT -U 99"), "7"},
        {q("s9 c1 N2.DAT -U 1"), "7"},
        {q("s9 c1 N1.dat -U 1"), "7"},
        {q("s9 c1 Nmem.DAT -D 52"), "7"},
        {q("s9 F1 1T c1 N67.DAT -D 67"), "7"},
        {q("s9 F1 1T c1 N1.DAT -a"), "7"},
        {q("9600 F1 2T -P 190 191 192 194"), "7"},
        {q("9600 F1 2T -P 191 190 192 194 218"), "7"},
        {q("9600 F1 2T P000101010001 -Z"), "7"},
        // no number where one belongs
        {q("s9 c1 N1.DAT -U one"), "5"},
    };
    for (const auto& each : cases)
        EXPECT_EQ(bench.comm(each.line), each.result) << each.line.toStdString();
}

} // namespace
} // namespace bank::test
