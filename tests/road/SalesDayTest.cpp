// A day's sales: rung at three registers, collected with the real form, added up in the tables.
#include "customers/CustomerLog.h"
#include "platform/FilePaths.h"
#include "tests/road/Shop.h"
#include "tests/support/RungDay.h"

namespace norvane
{
namespace
{

using test::ReportSums, test::Shop;

struct SalesTable {
    int report;
    const char* name;
    const char* numbers;
    qint64 scale; ///< of what is stored to what was rung
};

constexpr SalesTable tables[] = {
    {190, "FINANCIALSALES", "QUANTITY VALUE", 1},
    {191, "TIMESALES", "QUANTITY VALUE", 1},
    {192, "CLERKSALES", "QUANTITY VALUE", 1},
    {194, "PLUSALES", "PROMO WASTE COUNT1 VALUE1 COUNT2 VALUE2 COUNT3 VALUE3 COUNT4 VALUE4", 1},
    {218, "MIXSALES", "QUANTITY", 100},
};

/// A kind of register and what its PLU report is set to.
struct Kind {
    int model;
    QString stamp;
    std::size_t levels; ///< of prices that the report distinguishes
};

class SalesDay : public testing::TestWithParam<Kind>
{
protected:
    SalesDay()
    {
        QSettings(m_shop.folder().bankPath() + u"/1/register.ini"_s, QSettings::IniFormat)
            .setValue(u"Register/Stamp"_s, GetParam().stamp);
    }

    [[nodiscard]] QByteArrayList namesOf(int file) const
    {
        QByteArrayList names;
        for (const QByteArrayList& record : m_shop.recordsOf(1, file))
            names << record.first().trimmed();
        return names;
    }

    void ring(int seed)
    {
        const QString journal = m_shop.folder().appFile(u"day.csv"_s);
        const auto options = u"--tickets 60 --seed %1 --journal"_s.arg(seed).split(u' ');
        ASSERT_EQ(QProcess::execute(QString::fromUtf8(RINGSALES_TOOL),
                                    QStringList(m_shop.folder().bankPath()) + options + QStringList(journal)),
                  0);
        m_rung.add(readWholeFile(journal), GetParam().levels);
    }

    /// @return what the status bar shows at the end
    QString collect()
    {
        test::press(m_form, "Communicate");
        EXPECT_FALSE(test::takeFailure().has_value());
        return m_form.findChild<QStatusBar*>(u"StatusBar1"_s)->currentMessage();
    }

    [[nodiscard]] QString logged() const
    {
        const auto line = customers::lastLogged(m_shop.values().customerPath, {u"collection"_s});
        return line ? line->result : QString();
    }

    [[nodiscard]] ReportSums stored(const SalesTable& table) const
    {
        store::Database database(m_shop.values().databasePath);
        store::Recordset rows = database.openTable(QString::fromLatin1(table.name));
        const auto text = [&rows](const QString& field) {
            return rows.value(field).toText().toLatin1();
        };
        QStringList numbers = QString::fromLatin1(table.numbers).split(u' ');
        if (table.report == 194)
            numbers.resize(2 + 2 * static_cast<qsizetype>(GetParam().levels));
        ReportSums sums;
        for (; !rows.atEnd(); rows.moveNext()) {
            const QByteArray clerk = table.report == 192 ? text(u"CLERKID"_s) + '/' : "";
            auto& sum = sums[clerk + text(u"ID"_s)];
            sum.resize(static_cast<std::size_t>(numbers.size()));
            for (qsizetype i = 0; i < numbers.size(); ++i)
                sum[static_cast<std::size_t>(i)] += test::thousandths(text(numbers[i])) / table.scale;
        }
        test::dropZeros(sums);
        return sums;
    }

    void expectTablesHoldWhatWasRung() const
    {
        for (const SalesTable& table : tables)
            EXPECT_EQ(stored(table), m_rung.sums(table.report)) << table.name;
    }

    Shop m_shop{GetParam().model, 3};
    test::RungDay m_rung{namesOf(21), namesOf(22)};
    QWidget& m_form = m_shop.openForm("CollectSales");
};

/// The second day is collected in two runs: a register was off at the first.
TEST_P(SalesDay, IsStoredOnceAndTheNextDayBesideIt)
{
    const QString done = u"Communications Successful...."_s;
    ring(1);
    EXPECT_TRUE(collect().startsWith(done));
    EXPECT_TRUE(m_shop.boxes().shown.empty());
    expectTablesHoldWhatWasRung();

    m_shop.folder().setFaults("[Off]\nCommand=consolidate\nRegister=2\nResult=8\n");
    ring(2);
    EXPECT_EQ(collect(), u"Consolidate Reports"_s);
    EXPECT_EQ(m_shop.boxes().shown,
              (std::vector{test::ShownBox{u"8. Time Out"_s, u"Communications Error"_s}}));
    EXPECT_EQ(logged(),
              u"stopped at Consolidate Reports: result 8: Time Out (VELMARCOMM: fault file: result 8 at "
              u"register 2); nothing stored"_s);
    m_shop.folder().setFaults({});
    EXPECT_TRUE(collect().startsWith(done));
    expectTablesHoldWhatWasRung();
    EXPECT_EQ(logged(), u"complete"_s);
}

INSTANTIATE_TEST_SUITE_P(Kinds, SalesDay,
                         testing::Values(Kind{0, u"20"_s, 1}, Kind{2, u"31"_s, 3}, Kind{2, u"21"_s, 2},
                                         Kind{3, u"41"_s, 4}));

} // namespace
} // namespace norvane
