// For the tests of the sales collection as a user presses it: the real tools and two registers with sales.
#pragma once

#include "platform/FilePaths.h"
#include "sales/FrmsalesComm.h"
#include "store/engine/Database.h"
#include "store/engine/Recordset.h"
#include "tests/support/AskedFirst.h"
#include "tests/support/LinkFormTest.h"

#include <algorithm>
#include <array>

namespace norvane::sales
{

using test::expectAskedFirst, test::ShownBox;

inline const QString errorTitle = u"Communications Error"_s;
inline const QString checkTitle = u"Please Check"_s;
inline const ShownBox clearAgain{u"The sales are stored, but not all registers were cleared. Clear again?"_s,
                                 checkTitle, BoxIcon::Question, BoxAnswer::No};
/// Rows of what ring() rings at two registers with 20 PLUs.
inline constexpr qint64 rowsOfOneDay = 2 + 20 + 1 + 1 + 1;
inline const char* const done = "Communications Successful....";

inline constexpr std::pair<const char*, const char*> reports[] = {
    {"190.txt", "10,100.05\r\n0,0\r\n1,2.5\r\n"},
    {"191.txt", "3,9.99\r\n"},
    {"194.txt", "1001,0,0,2,5.4,1,3.1\r\n"},
    {"218.txt", "7\r\n"},
};

/// Two registers that have sold something, and the form.
class CollectionTest : public test::LinkFormTest<FrmsalesComm>
{
protected:
    CollectionTest() : LinkFormTest(2, 20)
    {
        ring();
        EXPECT_FALSE(form.isModal()) << "the menus stay usable";
    }

    /// @p times the same sales.
    void ring(int times = 1) const
    {
        for (const char* totals : {"1/totals/", "2/totals/"}) {
            QDir().mkpath(bankPath(totals));
            for (const auto& [name, text] : reports)
                writeWholeFile(bankPath(totals) + QLatin1String(name), text);
            writeWholeFile(bankPath(totals) + "192.txt"_L1,
                           QByteArray("0,0\r\n").repeated(118) + QByteArray::number(times) + ",8.4\r\n");
        }
    }

    /// @p faults of the tools, as a section of a faults.ini.
    void collect(const QByteArray& faults = {})
    {
        folder.setFaults("[fault]\n" + faults + '\n');
        boxes.shown.clear();
        press("Communicate");
    }
    /// Without what a complete collection has stored.
    [[nodiscard]] std::string status() const
    {
        const std::string whole = LinkFormTest::status();
        return whole.starts_with(done) && whole.ends_with(" rows of sales stored, 1 s") ? done : whole;
    }
    /// Whether the registers still have the sales, open or consolidated.
    [[nodiscard]] bool registersHoldSales() const
    {
        return std::ranges::any_of(std::array{"1/totals", "1/consolidated", "2/totals", "2/consolidated"},
                                   [this](const char* sales) { return pathExists(bankPath(sales)); });
    }
    [[nodiscard]] qint64 rows() const
    {
        store::Database database(values.databasePath);
        qint64 count = 0;
        for (const char* table : {"FINANCIALSALES", "PLUSALES", "TIMESALES", "MIXSALES", "CLERKSALES"})
            count += database.openTable(QLatin1String(table)).recordCount();
        return count;
    }
    /// Net sales of all collections in hundredths; ring() rings 100.05 at each register.
    [[nodiscard]] int takings() const
    {
        store::Database database(values.databasePath);
        const auto sum = database.openQuery(u"select sum(value) from financialsales where id = 1"_s);
        return qRound(sum.value(0).toText().toDouble() * 100);
    }
    [[nodiscard]] QString bankPath(const char* name) const
    {
        return joinPath(folder.bankPath(), QLatin1String(name));
    }
};

} // namespace norvane::sales
