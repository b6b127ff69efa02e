// The Utilities menu in the real main window: the boxes that it shows and what is in the tables afterwards.
#include "shell/FrmMain.h"
#include "shell/Openers.h"
#include "store/Recordset.h"
#include "tests/shell/ShellFixture.h"

#include <QAction>
#include <QMenuBar>
#include <QTest>
#include <QTimer>

using namespace Qt::Literals::StringLiterals;

namespace norvane::shell
{
namespace
{

using Prices = QStringList;
using Shown = std::vector<test::ShownBox>;

const test::ShownBox toEuro{u"Continue?"_s, u"Update Euro prices"_s, BoxIcon::Question, BoxAnswer::No};
const test::ShownBox fromEuro{u"Do you wish to overwrite your current prices?"_s,
                              u"Update Prices with Euro Prices"_s, BoxIcon::Question, BoxAnswer::No};
const test::ShownBox rateBox{u"Please enter the current Euro Exchange"_s, u"Euro Rate"_s};
const test::ShownBox converted{u"Conversion complete..."_s, u"Euro Conversion"_s};
const test::ShownBox resetPrices{u"Do you wish to reset prices?"_s, u"Reset Prices?"_s, BoxIcon::Question,
                                 BoxAnswer::No};
const test::ShownBox resetSales{u"Do you wish to reset ALL Sales data?"_s, u"Reset Sales Data?"_s,
                                BoxIcon::Question, BoxAnswer::No};

const QStringList handlers = {u"TransferEuro"_s, u"TransferCurrent"_s, u"Transfer1to2"_s,
                              u"Transfer2to1"_s, u"ResetPrice"_s,      u"SalesReset"_s};

class PriceUtilitiesTest : public ShellFixture
{
protected:
    PriceUtilitiesTest() : m_main(m_values, m_boxes, makeOpeners(m_values, m_boxes)) { m_main.show(); }

    QAction& action(const QString& name) { return *m_main.findChild<QAction*>(name); }
    void choose(const QString& name, std::deque<QString> typed = {})
    {
        m_boxes.shown.clear();
        m_boxes.answers = {true};
        m_boxes.typed = std::move(typed);
        action(name).trigger();
    }

    /// A PLU with its prices 1 to 5 and its euro prices 1 to 5, divided by bars; an empty one is null.
    void addPlu(const QString& number, const QString& prices) const
    {
        store::Database database(m_values.databasePath);
        auto plus = database.openTable(u"PLUDATA"_s);
        plus.addNew();
        plus.setValue(u"PLUNUMBER"_s, store::Value::text(number));
        for (int i = 0; const QString& price : prices.split(u'|')) {
            if (!price.isEmpty())
                plus.setValue(priceField(i), store::Value::text(price));
            ++i;
        }
        plus.update();
    }
    static QString priceField(int place)
    {
        return place < 5 ? u"PRICE%1"_s.arg(place + 1) : u"EuroPrice%1"_s.arg(place - 4);
    }
    [[nodiscard]] Prices prices() const
    {
        store::Database database(m_values.databasePath);
        Prices all;
        for (auto plus = database.openTable(u"PLUDATA"_s); !plus.atEnd(); plus.moveNext()) {
            QStringList one;
            for (int i = 0; i < 10; ++i)
                one.append(plus.value(priceField(i)).toText());
            all.append(one.join(u'|'));
        }
        return all;
    }

    FrmMain m_main;
};

TEST_F(PriceUtilitiesTest, EachTransferFillsItsOwnFieldsOfEveryPlu)
{
    makeCustomerDatabase();
    const QString first = u"1.00|2.00|0.00|abc|-1.00|9.1|9.2|9.3|9.4|"_s;
    const QString second = u" 1.5||3|4|5|6|7|8|9|10"_s;
    addPlu(u"000000000000000002"_s, second);
    addPlu(u"000000000000000001"_s, first);

    choose(u"Transfer1to2"_s, {u"0.68"_s});
    EXPECT_EQ(m_boxes.shown, (Shown{toEuro, rateBox, converted}));
    EXPECT_EQ(prices(),
              (Prices{u"1.00| 1.47|0.00|abc|-1.00|9.1|9.2|9.3|9.4|"_s, u" 1.5| 2.21|3|4|5|6|7|8|9|10"_s}));

    choose(u"TransferEuro"_s, {u"1,5"_s});
    EXPECT_EQ(m_boxes.shown, (Shown{toEuro, rateBox, converted}));
    const Prices euro{u"1.00| 1.47|0.00|abc|-1.00| 1| 1.47| 0| 0|-1"_s,
                      u" 1.5| 2.21|3|4|5| 1.5| 2.21| 3| 4| 5"_s};
    EXPECT_EQ(prices(), euro);
    choose(u"TransferEuro"_s, {u"1"_s});
    EXPECT_EQ(prices(), euro) << "the same prices again, not the converted ones";

    choose(u"Transfer2to1"_s);
    EXPECT_EQ(m_boxes.shown, (Shown{fromEuro, converted}));
    EXPECT_EQ(prices(), (Prices{u" 1.47| 1.47|0.00|abc|-1.00| 1| 1.47| 0| 0|-1"_s,
                                u" 2.21| 2.21|3|4|5| 1.5| 2.21| 3| 4| 5"_s}));

    choose(u"TransferCurrent"_s);
    EXPECT_EQ(m_boxes.shown, (Shown{fromEuro, converted}));
    EXPECT_EQ(prices(), (Prices{u" 1| 1.47| 0| 0|-1| 1| 1.47| 0| 0|-1"_s,
                                u" 1.5| 2.21| 3| 4| 5| 1.5| 2.21| 3| 4| 5"_s}));

    choose(u"ResetPrice"_s);
    EXPECT_EQ(m_boxes.shown, (Shown{resetPrices, {u"Price Reset Complete!"_s, u"Price Reset"_s}}));
    EXPECT_EQ(prices(), Prices(2, QStringList(10, u"0.00"_s).join(u'|')));
}

TEST_F(PriceUtilitiesTest, AResetOfSalesEmptiesTheCardCategoriesOnceTheBoxIsClosed)
{
    makeCustomerDatabase();
    const QStringList tables = {u"clerksales"_s, u"groupsales"_s, u"financialsales"_s, u"mixsales"_s,
                                u"plusales"_s,   u"timesales"_s,  u"CARDCATEGORY"_s};
    const auto counts = [&] {
        store::Database database(m_values.databasePath);
        QString all;
        for (const QString& table : tables)
            all += QString::number(database.openTable(table).recordCount());
        return all;
    };
    for (const QString& table : tables) {
        store::Database database(m_values.databasePath);
        auto records = database.openTable(table);
        records.addNew();
        for (int i = 0; i < records.fieldCount(); ++i) {
            const bool isDate = records.field(i).type == store::FieldType::Date;
            if (records.field(i).required)
                records.setValue(i, isDate ? store::Value::date({2026, 11, 24}) : store::Value::whole(1));
        }
        records.update();
    }
    addPlu(u"1"_s, u"1|2|3|4|5|6|7|8|9|10"_s);
    ASSERT_EQ(counts(), u"1111111");

    QStringList whileOpen;
    m_boxes.whileOpen = [&](const test::ShownBox&) {
        whileOpen.append(counts());
    };
    choose(u"SalesReset"_s);
    EXPECT_EQ(m_boxes.shown, (Shown{resetSales, {u"Sales Reset Complete!"_s, u"Sales Reset"_s}}));
    EXPECT_EQ(whileOpen, (QStringList{u"1111111"_s, u"0000001"_s}));
    EXPECT_EQ(counts(), u"0000000");
    EXPECT_EQ(prices(), Prices{u"1|2|3|4|5|6|7|8|9|10"_s});
}

TEST_F(PriceUtilitiesTest, NoOpensNoDatabaseAndARateOfZeroChangesNothing)
{
    // There is no database yet: opening it would fail.
    for (const QString& handler : handlers) {
        m_boxes.shown.clear();
        EXPECT_EQ(test::failureOf([&] { action(handler).trigger(); }), 0) << handler.toStdString();
        EXPECT_EQ(m_boxes.shown.size(), 1U);
    }
    EXPECT_EQ(test::failureOf([&] { choose(u"TransferEuro"_s); }), 53);

    makeCustomerDatabase();
    addPlu(u"1"_s, u"1|2|3|4|5|6|7|8|9|10"_s);
    for (const QString& rate : {u""_s, u"0"_s, u"rate"_s}) {
        choose(u"TransferEuro"_s, {rate});
        EXPECT_EQ(m_boxes.shown, (Shown{toEuro, rateBox}));
    }
    EXPECT_EQ(prices(), Prices{u"1|2|3|4|5|6|7|8|9|10"_s});
}

TEST_F(PriceUtilitiesTest, AFailureAmidTheWalkKeepsTheRecordsBeforeItAndGivesTheWindowBack)
{
    makeCustomerDatabase();
    for (int number = 1; number <= 5; ++number)
        addPlu(QString::number(number), (number == 3 ? u"1e40"_s : u"3"_s) + u"|old|||||||||"_s);
    EXPECT_EQ(test::failureOf([&] { choose(u"Transfer1to2"_s, {u"2"_s}); }), 6);
    EXPECT_EQ(m_boxes.shown, (Shown{toEuro, rateBox}));
    QStringList second;
    for (const QString& plu : prices())
        second.append(plu.split(u'|').at(1));
    EXPECT_EQ(second, (QStringList{u" 1.5"_s, u" 1.5"_s, u"old"_s, u"old"_s, u"old"_s}));
    EXPECT_TRUE(m_main.menuBar()->isEnabled());
    EXPECT_EQ(QGuiApplication::overrideCursor(), nullptr);
}

TEST_F(PriceUtilitiesTest, DuringTheWalkTheWindowLivesTakesNoOtherEntryAndClosesOnlyAfterwards)
{
    makeCustomerDatabase();
    addPlu(u"1"_s, u"1|2|3|4|5|6|7|8|9|10"_s);
    int turns = 0;
    QTimer::singleShot(0, &m_main, [&] {
        ++turns;
        ASSERT_TRUE(QGuiApplication::overrideCursor());
        EXPECT_EQ(QGuiApplication::overrideCursor()->shape(), Qt::WaitCursor);
        EXPECT_FALSE(m_main.menuBar()->isEnabled());
        for (const QString& handler : handlers + QStringList{u"Exit"_s})
            action(handler).trigger();
        m_main.close();
        EXPECT_TRUE(m_main.isVisible());
        EXPECT_EQ(m_boxes.shown, (Shown{toEuro, rateBox}));
    });
    choose(u"TransferEuro"_s, {u"2"_s});
    EXPECT_EQ(turns, 1);
    EXPECT_EQ(m_boxes.shown, (Shown{toEuro, rateBox, converted}));
    EXPECT_EQ(prices(), Prices{u"1|2|3|4|5| 0.5| 1| 1.5| 2| 2.5"_s});
    EXPECT_EQ(QGuiApplication::overrideCursor(), nullptr);
    EXPECT_TRUE(m_main.menuBar()->isEnabled());

    m_boxes.answers = {true};
    EXPECT_TRUE(QTest::qWaitFor([this] { return !m_main.isVisible(); })) << "the close that was put off";
    EXPECT_EQ(m_boxes.shown.back().title, u"Exit Program");
}

} // namespace
} // namespace norvane::shell
