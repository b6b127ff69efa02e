// Poll texts in, rows of the sales tables out.
#include "sales/PollImport.h"

#include "platform/RuntimeFailure.h"
#include "sales/PollStamp.h"
#include "store/catalogue/Catalogue.h"
#include "store/sales/SalesTotals.h"
#include "tests/platform/TestFolder.h"
#include "tests/store/Rows.h"

#include <algorithm>

namespace norvane::sales
{
namespace
{

struct ImportCase {
    const char* name;
    const char* file;
    QByteArray text;
    std::string rows; ///< of a text that fails those of the records ahead
    char stamp = '\x11';
    int failure = 0;
    const char* message = ""; ///< what the failure's message has to name
};

class PollImport : public testing::Test
{
protected:
    PollImport() { m_values.appPath = m_folder.path(); }

    /// Imports into an empty database, from the text under the converter's name, which is in capitals.
    void import(const ImportCase& c)
    {
        SCOPED_TRACE(c.name);
        const auto files = pollFiles();
        const auto file = std::find_if(files.begin(), files.end(), [&c](const PollFile& each) {
            return qstrcmp(each.name, c.file) == 0;
        });
        ASSERT_NE(file, files.end());
        m_values.databasePath = m_folder.path(QByteArray::number(++m_imports));
        store::Database::create(m_values.databasePath, store::catalogue());
        m_folder.write(QByteArray(file->name).replace("poll", "POLL"), c.text);
        m_folder.write("poll194.dll", QByteArray("RPT\x01", 4) + c.stamp);
        int failure = 0;
        try {
            store::Database database(m_values.databasePath);
            importPollFile(*file, database, m_values, QDate(2026, 11, 24));
        } catch (const RuntimeFailure& thrown) {
            failure = thrown.number();
            EXPECT_TRUE(thrown.text().contains(QLatin1StringView(c.message))) << thrown.what();
        }
        EXPECT_EQ(failure, c.failure);
        EXPECT_EQ(test::rowsOf(m_values.databasePath, QLatin1StringView(file->table), u"\n"), c.rows);
    }

    void importDay(QDate day)
    {
        store::Database database(m_values.databasePath);
        importPollFile(pollFiles().front(), database, m_values, day);
    }
    std::string rows(const QString& sql) { return test::rowsOf(m_values.databasePath, sql); }

    test::TestFolder m_folder;
    ApplicationValues m_values;
    int m_imports = 0;
};

const QByteArray zeros = QByteArray("0,0\r\n").repeated(117);
const ImportCase goodTexts[] = {
    {"zeros are passed over but count", "poll190.txt", "3,0\r\n0,0\r\n0,0.00\r\n-1,-2.5\r\n",
     "1|24/11/2026|3|0\n4|24/11/2026|-1|-2.5"},
    {"values run over line ends", "poll191.txt", "1\r\n2,3\n4\r5.5, 6",
     "1|24/11/2026|1|2\n2|24/11/2026|3|4\n3|24/11/2026|5.5|6"},
    {"blanks, quotes and other spellings", "poll191.txt",
     "  7 , \"8\"\r\n\" 1.25 \",+3\r\n\t1E2,.5\r\n\r\n  \r\n\x1A\r\n\x1A ",
     "1|24/11/2026|7|8\n2|24/11/2026|1.25|3\n3|24/11/2026|100|0.5"},
    {"an empty file", "poll190.txt", "", ""},
    {"a block for each clerk", "poll192.txt", "5,6\r\n" + zeros + zeros + "7,8\r\n9,10\r\n",
     "1|1|24/11/2026|5|6\n118|2|24/11/2026|7|8\n1|3|24/11/2026|9|10"},
    {"a hundredfold, in decimal", "poll218.txt", "3\r\n0\r\n0.07\r\n1.115\r\n",
     "1|24/11/2026|300|0\n3|24/11/2026|7|0\n4|24/11/2026|111.5|0"},
    {"zeros of PLUs are rows", "poll194.txt", "000000000000000012,0,0,0,0\r\n\"A,1\",1,2,3,4\r\n",
     "000000000000000012|24/11/2026|0|0|0|0|0|0|0|0|0|0|0|0\n"
     "A,1|24/11/2026|1|2|3|4|0|0|0|0|0|0|0|0"},
    {"a last digit of 0 means one level, whatever the first", "poll194.txt", "7,1,2,3,4\r\n",
     "7|24/11/2026|1|2|3|4|0|0|0|0|0|0|0|0", '\x90'},
    {"two levels", "poll194.txt", "7,1,2,3,4,5,6\r\n", "7|24/11/2026|1|2|3|4|5|6|0|0|0|0|0|0", '\x21'},
    {"three levels", "poll194.txt", "7,1,2,3,4,5,6,7,8\r\n", "7|24/11/2026|1|2|3|4|5|6|7|8|0|0|0|0", '\x31'},
    {"four levels", "poll194.txt", "7,1,2,3,4,5,6,7,8,9,10\r\n", "7|24/11/2026|1|2|3|4|5|6|7|8|9|10|0|0",
     '\x41'},
    {"no PLUs under a stamp without a layout", "poll194.txt", "", "", '\x51'},
};

TEST_F(PollImport, TurnsRecordsIntoRows)
{
    for (const ImportCase& c : goodTexts)
        import(c);
}

const struct {
    const char* text; ///< after a good record
    int failure;
    const char* message;
} badAmounts[] = {
    {"3\r\n", 62, "poll190.txt, record 2"}, {"abc,3\r\n", 13, "\"abc\""}, {"12x,3\r\n", 13, "12x"},
    {"nan,inf\r\n", 13, "record 2"},        {",3\r\n", 13, "record 2"},   {"3,\r\n", 13, "record 2"},
    {"\r\n3,4\r\n", 13, "record 2"},        {"3,\"4", 13, "record 2"},    {"3,1e999\r\n", 6, "record 2"},
};
const std::string firstPlu = "7|24/11/2026|1|2|3|4|0|0|0|0|0|0|0|0";
const ImportCase badRecords[] = {
    {"comma too many", "poll190.txt", "1,2,\r\n3,4\r\n", "1|24/11/2026|1|2", '\x11', 13, "record 2"},
    {"mix", "poll218.txt", "x", "", '\x11', 13, "poll218.txt, record 1"},
    {"short", "poll194.txt", "7,1,2,3,4\r\n8,1", firstPlu, '\x11', 62, "poll194.txt, record 2"},
    {"without a code", "poll194.txt", "7,1,2,3,4\r\n,1,2,3,4", firstPlu, '\x11', 13, "record 2"},
    {"long code", "poll194.txt", "7,1,2,3,4\r\n1234567890123456789,1,2,3,4", firstPlu, '\x11', 3163,
     "record 2"},
    {"a stamp without a layout", "poll194.txt", "7,1,2,3,4", "", '\x51', 3314, "51"},
};

TEST_F(PollImport, EndsAtABadRecordAndKeepsTheOnesBefore)
{
    for (const auto& [text, failure, message] : badAmounts) {
        import({text, "poll190.txt", QByteArray("1,2\r\n") + text, "1|24/11/2026|1|2", '\x11', failure,
                message});
    }
    for (const ImportCase& c : badRecords)
        import(c);
}

TEST_F(PollImport, AddsUpTheMonthsThatHaveEnded)
{
    m_values.databasePath = m_folder.path("velmar.mdb");
    store::Database::create(m_values.databasePath, store::catalogue());
    EXPECT_EQ(test::failureOf([this] { importDay({}); }), 53) << "no text yet";
    m_folder.write("POLL190.txt", "1,0.1\r\n1,0.2\r\n");
    // A clock that was set back adds to a month that had its totals already.
    const std::pair<QDate, const char*> days[] = {{{2025, 10, 31}, ""},
                                                  {{2026, 1, 1}, "2025-10"},
                                                  {{2026, 2, 1}, "2025-10 2026-01"},
                                                  {{2026, 1, 31}, "2025-10"},
                                                  {{2026, 2, 2}, "2025-10 2026-01"}};
    for (const auto& [day, added] : days) {
        importDay(day);
        EXPECT_EQ(rows(u"select distinct substr(SALESDATE, 1, 7) from norvane_month_totals_FINANCIALSALES"_s),
                  added)
            << day.toString().toStdString();
        store::Database database(m_values.databasePath);
        const store::SalesTotals totals(database, u"FINANCIALSALES"_s);
        const QString sum = u"select exact_sum(VALUE) from "_s;
        EXPECT_EQ(rows(sum + totals.rows({{2025, 1, 1}, {2026, 12, 31}})), rows(sum + u"FINANCIALSALES"_s));
    }
}

TEST_F(PollImport, TheStampIsTheFifthByteOfThePollFile)
{
    EXPECT_EQ(ReadPoll194Stamp(m_values), u"20");
    EXPECT_EQ(m_folder.read("poll194.dll"), "") << "made by the query, and empty";
    m_folder.write("poll194.dll", "1234\x1Fz");
    EXPECT_EQ(ReadPoll194Stamp(m_values), u"115");
    EXPECT_EQ(m_folder.read("poll194.dll"), "1234\x1Fz");
}

} // namespace
} // namespace norvane::sales
