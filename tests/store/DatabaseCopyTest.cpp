// Safety copies of a customer's database and the way back.
#include "store/catalogue/DatabaseCopy.h"

#include "store/catalogue/Catalogue.h"
#include "store/engine/BoundQuery.h"
#include "store/sales/SalesTotals.h"
#include "tests/store/StoreFolder.h"

namespace norvane::store::test
{
namespace
{

class DatabaseCopyTest : public testing::Test
{
protected:
    void addPlu(const char* number, const char* price)
    {
        auto plus = m_database.openTable(u"PLUDATA"_s);
        add(plus, {{"PLUNUMBER", text(number)}, {"PRICE1", text(price)}});
    }
    void addSale(QDate day, double value)
    {
        auto sales = m_database.openTable(u"PLUSALES"_s);
        sales.addNew();
        for (int field = 2; field < sales.fieldCount(); ++field)
            sales.setValue(field, Value::number(0));
        sales.setValue(u"ID"_s, text("1001"));
        sales.setValue(u"SALESDATE"_s, Value::date(day));
        sales.setValue(u"VALUE1"_s, Value::number(value));
        sales.update();
    }
    /// Number, price and row id of every PLU; then the sum of all sales.
    [[nodiscard]] QString content()
    {
        QString found;
        BoundQuery plus(m_database, "SELECT PLUNUMBER, PRICE1, _rowid_ FROM PLUDATA ORDER BY 1", {}, {});
        while (plus.next()) {
            found +=
                plus.value(0).toText() + u' ' + plus.value(1).toText() + u' ' + plus.value(2).toText() + u';';
        }
        const DayRange year{{2026, 1, 1}, {2026, 12, 31}};
        SalesTotals totals(m_database, u"PLUSALES"_s);
        totals.addUpMissing(year, {2027, 1, 1});
        BoundQuery sales(m_database, "SELECT exact_sum(VALUE1) FROM " + totals.rows(year).toStdString(), {},
                         {});
        return sales.next() ? found + sales.value(0).toText() : found;
    }
    void copy(CopyOf what) const { copyDatabase(m_folder.path(), m_copy, what); }

    StoreFolder m_folder{catalogue()};
    Database m_database{m_folder.path()};
    QString m_copy = m_folder.folder().path("copy.mdb");
};

TEST_F(DatabaseCopyTest, AProgrammeIsRestoredWithoutTheSales)
{
    addPlu("0001", "1.25");
    addPlu("0002", "2.50");
    addSale({2026, 3, 1}, 10.1);
    copy(CopyOf::Programme);
    (void)m_database.execute(u"delete * from pludata"_s);
    addPlu("0003", "9.99");
    addSale({2026, 3, 2}, 0.2);
    restoreTables(m_database, m_copy);
    EXPECT_EQ(content(), u"0001 1.25 1;0002 2.50 2;10.3"_s);
    addPlu("0004", "1.00");
    EXPECT_TRUE(content().contains(u"0004 1.00 4"_s)) << "row 3 was given away before";
}

TEST_F(DatabaseCopyTest, EverythingIsRestoredWithSalesAndTotals)
{
    addPlu("0001", "1.25");
    addSale({2026, 3, 1}, 10.1);
    const QString before = content();
    copy(CopyOf::Everything);
    EXPECT_EQ(QFileInfo(m_copy).size(), QFileInfo(m_folder.path()).size()) << "in pages of the same size";
    (void)m_database.execute(u"delete * from plusales"_s);
    addSale({2026, 3, 5}, 7);
    EXPECT_NE(content(), before);
    restoreTables(m_database, m_copy);
    EXPECT_EQ(content(), before);
}

TEST_F(DatabaseCopyTest, ARestoreThatFailsHalfWayChangesNothing)
{
    addPlu("0001", "1.25");
    copy(CopyOf::Programme);
    const QString before = content();
    EXPECT_EQ(failureOf([&] { restoreTables(m_database, m_folder.folder().path("none.mdb")); }), 53);
    m_folder.folder().write("copy.mdb", m_folder.folder().read("copy.mdb").left(20000));
    EXPECT_NE(failureOf([&] { restoreTables(m_database, m_copy); }), 0);
    EXPECT_EQ(content(), before);
}

} // namespace
} // namespace norvane::store::test
