// A day's sales come home: rung at three registers, collected over the real form, added up in the tables.
#include "store/Database.h"
#include "store/Recordset.h"
#include "tests/road/Shop.h"
#include "tests/support/FormTest.h"
#include "tests/support/RungDay.h"

#include <QProcess>
#include <QSettings>
#include <QStatusBar>

namespace norvane
{
namespace
{

using test::ReportSums;
using test::RungDay;
using test::Shop;

constexpr int registers = 3;

struct SalesTable {
    int report;
    const char* name;
    std::vector<const char*> numbers;
    qint64 scale; ///< of what is stored to what was rung
};

const std::vector<SalesTable> tables{
    {190, "FINANCIALSALES", {"QUANTITY", "VALUE"}, 1},
    {191, "TIMESALES", {"QUANTITY", "VALUE"}, 1},
    {192, "CLERKSALES", {"QUANTITY", "VALUE"}, 1},
    {194,
     "PLUSALES",
     {"PROMO", "WASTE", "COUNT1", "VALUE1", "COUNT2", "VALUE2", "COUNT3", "VALUE3", "COUNT4", "VALUE4"},
     1},
    {218, "MIXSALES", {"QUANTITY"}, 100},
};

class SalesDay : public testing::TestWithParam<int>
{
protected:
    SalesDay()
    {
        // Whatever the register's settings are: totals on four price levels, without descriptions.
        QSettings(m_shop.folder().bankPath() + QStringLiteral("/1/register.ini"), QSettings::IniFormat)
            .setValue(QStringLiteral("Register/Stamp"), QStringLiteral("41"));
        const auto namesOf = [this](int file) {
            QByteArrayList names;
            for (const QByteArrayList& record : m_shop.recordsOf(1, file))
                names << record.first().trimmed();
            return names;
        };
        m_rung = std::make_unique<RungDay>(namesOf(21), namesOf(22));
        m_form = &m_shop.openForm("CollectSales");
    }

    void ring(int seed)
    {
        QProcess ringsales;
        ringsales.start(QStringLiteral(RINGSALES_TOOL),
                        {m_shop.folder().bankPath(), QStringLiteral("--seed"), QString::number(seed),
                         QStringLiteral("--tickets"), QStringLiteral("60"), QStringLiteral("--journal"),
                         m_shop.folder().appFile(QStringLiteral("day.csv"))});
        ASSERT_TRUE(ringsales.waitForFinished(-1));
        ASSERT_EQ(ringsales.exitCode(), 0) << ringsales.readAllStandardError().constData();
        QFile journal(m_shop.folder().appFile(QStringLiteral("day.csv")));
        ASSERT_TRUE(journal.open(QIODevice::ReadOnly));
        m_rung->add(journal.readAll(), 4);
    }

    /// @return what the status bar shows at the end
    QString collect()
    {
        Shop::press(*m_form, "Communicate");
        EXPECT_FALSE(test::takeFailure().has_value());
        auto* const bar = m_form->findChild<QStatusBar*>(QStringLiteral("StatusBar1"));
        return bar == nullptr ? QString() : bar->currentMessage();
    }

    [[nodiscard]] ReportSums stored(const SalesTable& table) const
    {
        store::Database database(m_shop.values().databasePath);
        store::Recordset rows = database.openTable(QString::fromLatin1(table.name));
        const auto text = [&rows](const char* field) {
            return rows.value(QString::fromLatin1(field)).toText().toLatin1();
        };
        ReportSums sums;
        for (; !rows.atEnd(); rows.moveNext()) {
            auto& sum = sums[(table.report == 192 ? text("CLERKID") + '/' : QByteArray()) + text("ID")];
            sum.resize(table.numbers.size());
            for (std::size_t i = 0; i < sum.size(); ++i)
                sum[i] += test::thousandths(text(table.numbers[i])) / table.scale;
        }
        test::dropZeros(sums);
        return sums;
    }

    void expectTablesHoldWhatWasRung() const
    {
        for (const SalesTable& table : tables)
            EXPECT_EQ(stored(table), m_rung->sums(table.report)) << table.name;
    }

    Shop m_shop{GetParam(), registers};
    std::unique_ptr<RungDay> m_rung;
    QWidget* m_form = nullptr;
};

/// The second day is collected in two goes: a register was off at the first.
TEST_P(SalesDay, ComesHomeOnceAndTheNextDayBesideIt)
{
    const QString done = QStringLiteral("Communications Successful....");
    ring(1);
    EXPECT_EQ(collect(), done);
    EXPECT_TRUE(m_shop.boxes().shown.empty());
    expectTablesHoldWhatWasRung();

    m_shop.folder().setFaults("[Off]\nCommand=consolidate\nRegister=2\nResult=8\n");
    ring(2);
    EXPECT_EQ(collect(), QStringLiteral("Consolidate Reports"));
    ASSERT_EQ(m_shop.boxes().shown.size(), 1U);
    EXPECT_EQ(m_shop.boxes().shown.front().text, QStringLiteral("8. Time Out"));
    EXPECT_EQ(m_shop.boxes().shown.front().title, QStringLiteral("Communications Error"));
    m_shop.folder().setFaults({});
    EXPECT_EQ(collect(), done);
    expectTablesHoldWhatWasRung();
}

INSTANTIATE_TEST_SUITE_P(Models, SalesDay, testing::Values(0, 2, 3));

} // namespace
} // namespace norvane
