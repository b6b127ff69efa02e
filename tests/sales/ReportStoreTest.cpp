// Five collected texts in, and what is asked before they are stored short or twice.
#include "sales/ReportStore.h"

#include "link/RunNotes.h"
#include "sales/LastCollection.h"
#include "store/catalogue/Catalogue.h"
#include "store/engine/Database.h"
#include "tests/platform/TestFolder.h"
#include "tests/support/RecordingBoxes.h"

namespace norvane::sales
{
namespace
{

const QDate today(2026, 11, 24);

/// Lines of the five reports, in the order of pollFiles().
using Texts = std::array<QByteArray, reportCount>;

/// A day with @p plus PLUs, @p offers offers, and so many sold of the first item of all.
Texts day(int sold, int plus = 3, int offers = 1)
{
    const QByteArray items = QByteArray::number(sold) + ",2.5\r\n0,0\r\n";
    QByteArray pluLines;
    for (int plu = 1; plu <= plus; ++plu) {
        pluLines += QByteArray::number(plu) + ",0,0," +
                    (plu == 1 ? items.first(items.indexOf('\r')) : "0,0") + "\r\n";
    }
    return {items, pluLines, items, QByteArray("1\r\n").repeated(offers), items};
}

class ReportStoreTest : public testing::Test
{
protected:
    ReportStoreTest()
    {
        m_values.appPath = m_values.customerPath = m_folder.path();
        m_values.databasePath = m_folder.path("velmar.mdb");
        store::Database::create(m_values.databasePath, store::catalogue());
        m_folder.write("poll194.dll", "RPT\x01\x11");
    }
    Stored store(const Texts& texts, bool answer = false)
    {
        for (std::size_t report = 0; report < reportCount; ++report)
            m_folder.write(QByteArray(pollFiles()[report].name).replace("poll", "POLL"), texts.at(report));
        m_boxes.shown.clear();
        m_boxes.answers = {answer};
        return storeReports(m_values, m_boxes, today, ReportOrigin::ThisRun).outcome;
    }
    /// Of the one question; empty when there was none.
    [[nodiscard]] QString asked() const
    {
        EXPECT_LE(m_boxes.shown.size(), 1U);
        return m_boxes.shown.empty() ? QString() : m_boxes.shown.front().text;
    }
    [[nodiscard]] qint64 rows() const
    {
        store::Database database(m_values.databasePath);
        return rowsOfDay(database, today);
    }

    test::TestFolder m_folder;
    test::WorkingDirectory m_here{m_folder.path()};
    ApplicationValues m_values;
    test::RecordingBoxes m_boxes;
};

TEST_F(ReportStoreTest, AsksBeforeAnIncompleteDayIsStored)
{
    const struct {
        const char* what;
        Texts texts;
        const char* message; ///< nullptr when nothing is asked
    } days[] = {
        {"the first", day(1), nullptr},
        {"as long", day(2), nullptr},
        {"an offer and a PLU more", day(3, 4, 2), nullptr},
        {"a PLU less", day(4, 3, 2), "less than a minute old: 3 records, 4 at the last collection"},
        {"no offers", day(5, 4, 0), "poll218.txt of "},
        {"an empty text", {day(6, 4, 2)[0], "", day(6)[2], day(6, 4, 2)[3], day(6)[4]}, ": 0 records, 4 at"},
    };
    for (const auto& [what, texts, message] : days) {
        SCOPED_TRACE(what);
        const qint64 before = rows();
        EXPECT_EQ(store(texts), message == nullptr ? Stored::Yes : Stored::Refused);
        EXPECT_EQ(asked().isEmpty(), message == nullptr);
        EXPECT_TRUE(asked().contains(QLatin1StringView(message))) << asked().toStdString();
        EXPECT_EQ(rows() == before, message != nullptr);
    }
    EXPECT_EQ(store(days[3].texts, true), Stored::Yes);
    EXPECT_EQ(store(day(7, 3, 2)), Stored::Yes) << "the new length counts from now on";
    link::notePluCountOfRegisters(m_values, 2);
    EXPECT_EQ(store(day(8, 2, 2)), Stored::Yes) << "a PLU was taken out of the programme";
}

TEST_F(ReportStoreTest, AsksAboutAFirstCollectionThatCameEmpty)
{
    EXPECT_EQ(store({day(1)[0], "", day(1)[2], "", ""}), Stored::Refused);
    EXPECT_TRUE(asked().contains(u"poll194.txt"_s) && asked().contains(u"poll192.txt"_s))
        << asked().toStdString();
    EXPECT_FALSE(asked().contains(u"poll218.txt"_s)) << "a shop without offers";
    EXPECT_EQ(rows(), 0);
}

TEST_F(ReportStoreTest, KnowsTheReportsThatItStoredLast)
{
    EXPECT_EQ(store(day(1)), Stored::Yes);
    const qint64 stored = rows();
    EXPECT_EQ(store(day(1)), Stored::AlreadyThere);
    EXPECT_EQ(rows(), stored);
    EXPECT_EQ(store(day(1), true), Stored::Yes);
    EXPECT_EQ(rows(), 2 * stored);

    store::Database(m_values.databasePath).execute(u"delete * from PLUSALES"_s);
    EXPECT_EQ(store(day(1)), Stored::Yes) << "they are no longer in the tables";
    EXPECT_TRUE(m_boxes.shown.empty());

    Texts nothingSold = day(0);
    for (QByteArray& text : nothingSold)
        text.replace("2.5", "0").replace("1\r", "0\r");
    EXPECT_EQ(store(nothingSold), Stored::Yes);
    EXPECT_EQ(store(nothingSold), Stored::Yes);
    EXPECT_TRUE(m_boxes.shown.empty()) << "two days without a sale";
}

} // namespace
} // namespace norvane::sales
