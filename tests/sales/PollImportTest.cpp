// Poll texts in, rows of the sales tables out.
#include "sales/PollImport.h"

#include "platform/RuntimeFailure.h"
#include "store/Catalogue.h"
#include "store/Database.h"
#include "store/Recordset.h"
#include "tests/platform/TestFolder.h"

#include <gtest/gtest.h>

#include <optional>

namespace norvane::sales
{
namespace
{

const QDate collected(2026, 11, 24);

const PollFile& readerOf(const char* procedure)
{
    for (const PollFile& file : pollFiles()) {
        if (qstrcmp(file.procedure, procedure) == 0)
            return file;
    }
    throw std::runtime_error(procedure);
}

/// A program's folder with an empty database, a poll text and the stamp of the PLU report.
class Collected
{
public:
    Collected()
    {
        values.appPath = folder.path();
        values.databasePath = folder.path("velmar.mdb");
        store::Database::create(values.databasePath, store::catalogue());
        stamp('\x41');
    }
    void stamp(char byte) const { folder.write("poll194.dll", QByteArray("RPT\x01", 4) + byte); }
    /// The converter writes its files in capitals.
    void text(const PollFile& file, const QByteArray& content) const
    {
        folder.write(QByteArray(file.name).replace("poll", "POLL"), content);
    }
    /// The failure that an import ends with, if any.
    [[nodiscard]] std::optional<RuntimeFailure> import(const PollFile& file) const
    {
        try {
            importPollFile(file, values, collected);
        } catch (const RuntimeFailure& failure) {
            return failure;
        }
        return std::nullopt;
    }
    /// All rows, a line for each, nulls shown as "-".
    [[nodiscard]] std::string rows(const PollFile& file) const
    {
        store::Database database(values.databasePath);
        store::Recordset records = database.openTable(QLatin1String(file.table));
        std::string text;
        for (; !records.atEnd(); records.moveNext()) {
            for (int field = 0; field < records.fieldCount(); ++field) {
                const auto& value = records.value(field);
                text += (field == 0 ? "" : " ") + (value.isNull() ? "-" : value.toUtf8());
            }
            text += '\n';
        }
        return text;
    }

    test::TestFolder folder;
    ApplicationValues values;
};

struct ReadCase {
    const char* name;
    const char* procedure;
    QByteArray text;
    std::string rows;
    char stamp = '\x41';
};

TEST(PollImport, TurnsRecordsIntoRows)
{
    const QByteArray zeros = QByteArray("0,0\r\n").repeated(117);
    const ReadCase cases[] = {
        {"zeros are passed over but count", "FileFinSales", "3,0\r\n0,0\r\n0,0.00\r\n-1,-2.5\r\n",
         "1 24/11/2026 3 0\n4 24/11/2026 -1 -2.5\n"},
        {"values run over line ends", "FileTimeSales", "1\r\n2,3\n4\r5.5, 6",
         "1 24/11/2026 1 2\n2 24/11/2026 3 4\n3 24/11/2026 5.5 6\n"},
        {"blanks, quotes and other spellings", "FileTimeSales",
         "  7 , \"8\"\r\n\" 1.25 \",+3\r\n\t1E2,.5\r\n\r\n  \r\n\x1A junk",
         "1 24/11/2026 7 8\n2 24/11/2026 1.25 3\n3 24/11/2026 100 0.5\n"},
        {"an empty file", "FileFinSales", "", ""},
        {"a block for each clerk", "FileClerkSales", "5,6\r\n" + zeros + zeros + "7,8\r\n9,10\r\n",
         "1 1 24/11/2026 5 6\n118 2 24/11/2026 7 8\n1 3 24/11/2026 9 10\n"},
        {"a hundredfold, in decimal", "FilemixSales", "3\r\n0\r\n0.07\r\n1.115\r\n",
         "1 24/11/2026 300 0\n3 24/11/2026 7 0\n4 24/11/2026 111.5 0\n"},
        {"zeros of PLUs are rows", "FilePLUSales", "000000000000000012,0,0,0,0\r\n\"A,1\",1,2,3,4\r\n",
         "000000000000000012 24/11/2026 0 0 0 0 0 0 0 0 0 0 0 0\n"
         "A,1 24/11/2026 1 2 3 4 0 0 0 0 0 0 0 0\n",
         '\x11'},
        {"a last digit of 0 means one level", "FilePLUSales", "7,1,2,3,4\r\n",
         "7 24/11/2026 1 2 3 4 0 0 0 0 0 0 0 0\n", '\x40'},
        {"the same with any first digit", "FilePLUSales", "7,1,2,3,4\r\n",
         "7 24/11/2026 1 2 3 4 0 0 0 0 0 0 0 0\n", '\x90'},
        {"two levels", "FilePLUSales", "7,1,2,3,4,5,6\r\n", "7 24/11/2026 1 2 3 4 5 6 0 0 0 0 0 0\n", '\x21'},
        {"three levels", "FilePLUSales", "7,1,2,3,4,5,6,7,8\r\n", "7 24/11/2026 1 2 3 4 5 6 7 8 0 0 0 0\n",
         '\x31'},
        {"four levels", "FilePLUSales", "7,1,2,3,4,5,6,7,8,9,10\r\n",
         "7 24/11/2026 1 2 3 4 5 6 7 8 9 10 0 0\n", '\x41'},
        {"no PLUs under a stamp without a layout", "FilePLUSales", "", "", '\x51'},
    };
    for (const ReadCase& c : cases) {
        SCOPED_TRACE(c.name);
        const Collected shop;
        const PollFile& file = readerOf(c.procedure);
        shop.text(file, c.text);
        shop.stamp(c.stamp);
        const auto failure = shop.import(file);
        EXPECT_FALSE(failure) << failure->what();
        EXPECT_EQ(shop.rows(file), c.rows);
    }
}

struct BadCase {
    const char* name;
    const char* procedure;
    std::optional<QByteArray> text;
    int failure;
    QStringList told; ///< what the message has to name
    std::string kept; ///< rows of the records ahead
    char stamp = '\x11';
};

TEST(PollImport, EndsAtABadRecordAndKeepsThoseAhead)
{
    const auto q = [](const char* text) {
        return QString::fromLatin1(text);
    };
    const std::string first = "1 24/11/2026 1 2\n";
    const std::string firstPlu = "7 24/11/2026 1 2 3 4 0 0 0 0 0 0 0 0\n";
    const BadCase cases[] = {
        {"no file", "FileFinSales", std::nullopt, 53, {q("poll190.txt")}, ""},
        {"short last record", "FileFinSales", "1,2\r\n3\r\n", 62, {q("poll190.txt, record 2")}, first},
        {"short last PLU", "FilePLUSales", "7,1,2,3,4\r\n8,1", 62, {q("poll194.txt, record 2")}, firstPlu},
        {"a text", "FileTimeSales", "1,2\r\nabc,3\r\n", 13, {q("poll191.txt, record 2"), q("abc")}, first},
        {"a number and more", "FileTimeSales", "1,2\r\n12x,3\r\n", 13, {q("record 2"), q("12x")}, first},
        {"no number that looks like one", "FileTimeSales", "1,2\r\nnan,inf\r\n", 13, {q("record 2")}, first},
        {"an empty value", "FileFinSales", "1,2\r\n,3\r\n", 13, {q("poll190.txt, record 2")}, first},
        {"a comma too many", "FileFinSales", "1,2,\r\n3,4\r\n", 13, {q("record 2")}, first},
        {"an empty value at the end", "FileFinSales", "1,2\r\n3,\r\n", 13, {q("record 2")}, first},
        {"a blank line in the midst", "FileFinSales", "1,2\r\n\r\n3,4\r\n", 13, {q("record 2")}, first},
        {"an open quote", "FileFinSales", "1,2\r\n3,\"4", 13, {q("record 2")}, first},
        {"an amount beyond all numbers", "FileFinSales", "1,2\r\n3,1e999\r\n", 6, {q("record 2")}, first},
        {"a mix text", "FilemixSales", "x", 13, {q("poll218.txt, record 1"), q("\"x\"")}, ""},
        {"a PLU without a code", "FilePLUSales", "7,1,2,3,4\r\n,1,2,3,4\r\n", 13, {q("record 2")}, firstPlu},
        {"a code too long",
         "FilePLUSales",
         "7,1,2,3,4\r\n1234567890123456789,1,2,3,4",
         3163,
         {q("record 2")},
         firstPlu},
        {"a stamp without a layout",
         "FilePLUSales",
         "7,1,2,3,4\r\n",
         3314,
         {q("poll194.txt, record 1"), q("51"), q("poll194.dll")},
         "",
         '\x51'},
        {"a stamp of two-digit halves", "FilePLUSales", "7,1,2,3,4\r\n", 3314, {q("515")}, "", '\x5F'},
    };
    for (const BadCase& c : cases) {
        SCOPED_TRACE(c.name);
        const Collected shop;
        const PollFile& file = readerOf(c.procedure);
        if (c.text)
            shop.text(file, *c.text);
        shop.stamp(c.stamp);
        const auto failure = shop.import(file);
        ASSERT_TRUE(failure);
        EXPECT_EQ(failure->number(), c.failure);
        for (const QString& told : c.told)
            EXPECT_TRUE(failure->text().contains(told)) << failure->what();
        EXPECT_EQ(shop.rows(file), c.kept);
    }
}

} // namespace
} // namespace norvane::sales
