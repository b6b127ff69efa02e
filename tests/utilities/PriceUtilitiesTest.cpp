// The Utilities menu in the real main window: its boxes, and what is in the tables afterwards.
#include "customers/SafetyCopies.h"
#include "platform/FolderLock.h"
#include "shell/FrmMain.h"
#include "shell/MainStatusBar.h"
#include "shell/Openers.h"
#include "tests/shell/EntryNamed.h"
#include "tests/shell/ShellFixture.h"
#include "tests/support/FormTest.h"

namespace norvane::shell
{
namespace
{

const QString toEuro = u"Update Euro prices: Continue?"_s;
const QString fromEuro = u"Update Prices with Euro Prices: Do you wish to overwrite your current prices?"_s;
const QString rateBox = u"Euro Rate: Please enter the current Euro Exchange"_s;
const QString converted = u"Euro Conversion: Conversion complete..."_s;
const QString wayBack = u" To go back, right-click Cafe in \"Change Customer File\"."_s;
const QString priceFields =
    u"PRICE1, PRICE2, PRICE3, PRICE4, PRICE5, EuroPrice1, EuroPrice2, EuroPrice3, EuroPrice4, EuroPrice5"_s;

class PriceUtilitiesTest : public ShellFixture
{
protected:
    PriceUtilitiesTest() : m_main(m_values, m_boxes, makeOpeners(m_values, m_boxes)) { m_main.show(); }

    QAction& action(const char* name) { return *m_main.findChild<QAction*>(QLatin1String(name)); }
    /// Chooses the entry and gives the answers. @return the boxes shown.
    QStringList choose(const char* entry, const char* typed = "", const std::deque<bool>& answers = {true})
    {
        m_boxes.answers = answers;
        m_boxes.typed = {QString::fromLatin1(typed)};
        action(entry).trigger();
        return takeBoxes();
    }
    QStringList takeBoxes()
    {
        QStringList boxes;
        for (const auto& box : std::exchange(m_boxes.shown, {}))
            boxes.append(box.title + u": "_s + box.text);
        return boxes;
    }
    /// Adds a PLU; @p prices are its prices 1 to 5 and euro prices 1 to 5 as SQL values.
    void addPlu(int number, const QString& prices) const
    {
        execute(u"insert into PLUDATA (PLUNUMBER, %1) values ('%2', %3)"_s.arg(priceFields)
                    .arg(number)
                    .arg(prices));
    }
    /// The prices of each PLU with "|" between, two blanks between the PLUs.
    [[nodiscard]] std::string prices() const
    {
        return test::rowsOf(m_values.databasePath,
                            u"select %1 from PLUDATA order by PLUNUMBER"_s.arg(priceFields), u"  ");
    }

    /// The numbers of records, one digit for each table.
    [[nodiscard]] QString recordCounts(const QStringList& tables) const
    {
        store::Database database(m_values.databasePath);
        QString counts;
        for (const QString& table : tables)
            counts += QString::number(database.openTable(table).recordCount());
        return counts;
    }
    /// Work and result of each line of the log.
    [[nodiscard]] QStringList logged() const
    {
        QStringList works;
        for (const QByteArray& line : m_folder.read("app/Cafe/norvane.log").trimmed().split('\n'))
            works << QString::fromUtf8(line.split('\t').value(1) + ", " + line.split('\t').value(3));
        return works;
    }
    void restoreLatestCopy() const
    {
        const auto copies = customers::safetyCopies(m_values.customerPath);
        ASSERT_FALSE(copies.isEmpty());
        customers::restoreSafetyCopy(m_values.customerPath, copies.front());
    }
    /// What a user may try while the work runs.
    void tryToInterrupt()
    {
        ASSERT_TRUE(QGuiApplication::overrideCursor());
        EXPECT_EQ(QGuiApplication::overrideCursor()->shape(), Qt::WaitCursor);
        for (const char* const entry : {"TransferEuro", "ResetPrice", "Exit"})
            action(entry).trigger();
        m_main.close();
        EXPECT_TRUE(m_main.isVisible());
    }

    FrmMain m_main;
};

/// As after a change of customer: the tables of the former shop are still open.
TEST_F(PriceUtilitiesTest, AsksBeforeItChangesThePricesOfAnotherCustomer)
{
    makeCustomerDatabase();
    addPlu(1, u"'1.00', '2.00', '3', '4', '5', '6', '7', '8', '9', '0'"_s);
    const std::string before = prices();
    m_folder.write("app/Bistro/setup.ini", "");
    m_values.customerName = u"Bistro"_s;
    m_values.customerPath = m_folder.path("app/Bistro");
    const QStringList boxes = choose("ResetPrice");
    ASSERT_EQ(boxes.size(), 2);
    EXPECT_TRUE(
        boxes[1].startsWith(u"Please Check: The open database is that of Cafe, but the customer chosen is "
                            u"Bistro.\r\rThe tables of Cafe would be changed, not those of Bistro."_s))
        << boxes[1].toStdString();
    EXPECT_EQ(prices(), before);
    m_boxes.answers = {true, true};
    action("ResetPrice").trigger();
    EXPECT_NE(prices(), before);
}

const QStringList toEuroBoxes{toEuro, rateBox, converted};
const QString partOfRate = u"Please Check: \"1,5\" counts as 1.\r\rConvert at the rate 1?"_s;
const QStringList fromEuroBoxes{fromEuro, converted};
/// Entry, rate, boxes and the prices of both PLUs afterwards; each step continues from the previous one.
const struct {
    const char* entry;
    const char* rate;
    QStringList boxes;
    const char* prices;
} steps[] = {
    {"Transfer1to2", "0.68", toEuroBoxes,
     "1.00| 1.47|0.00|abc|-1.00|9.1|9.2|9.3|9.4|null  3| 4.41|3|4|5|6|7|8|9|0"},
    {"TransferEuro",
     "1,5",
     {toEuro, rateBox, partOfRate, converted},
     "1.00| 1.47|0.00|abc|-1.00| 1| 1.47| 0| 0|-1  3| 4.41|3|4|5| 3| 4.41| 3| 4| 5"},
    {"Transfer2to1", "", fromEuroBoxes,
     " 1.47| 1.47|0.00|abc|-1.00| 1| 1.47| 0| 0|-1   4.41| 4.41|3|4|5| 3| 4.41| 3| 4| 5"},
    {"TransferCurrent", "", fromEuroBoxes,
     " 1| 1.47| 0| 0|-1| 1| 1.47| 0| 0|-1   3| 4.41| 3| 4| 5| 3| 4.41| 3| 4| 5"},
    {"ResetPrice",
     "",
     {u"Reset Prices?: Do you wish to reset prices?"_s, u"Price Reset: Price Reset Complete!"_s},
     "0.00|0.00|0.00|0.00|0.00|0.00|0.00|0.00|0.00|0.00  "
     "0.00|0.00|0.00|0.00|0.00|0.00|0.00|0.00|0.00|0.00"},
};

TEST_F(PriceUtilitiesTest, EachEntryFillsItsOwnFieldsOfEveryPlu)
{
    makeCustomerDatabase();
    addPlu(2, u"'3', null, '3', '4', '5', '6', '7', '8', '9', '0'"_s);
    addPlu(1, u"'1.00', '2.00', '0.00', 'abc', '-1.00', '9.1', '9.2', '9.3', '9.4', null"_s);
    // Nobody may be there to close a box: others must be able to collect meanwhile.
    QStringList notices;
    m_boxes.whileOpen = [&](const test::ShownBox& box) {
        notices << m_main.statusBar1().notice();
        test::RecordingBoxes refusals;
        EXPECT_TRUE(FolderLock::take(m_values.appPath, refusals)) << box.text.toStdString();
        execute(u"update PLUDATA set DESCRIPTION = 'open'"_s);
    };
    for (const auto& [entry, rate, boxes, stored] : steps) {
        EXPECT_EQ(choose(entry, rate, {true, true}), boxes);
        EXPECT_EQ(prices(), stored) << entry;
    }
    m_boxes.whileOpen = {};
    const QString change = u"This will change price 2 of 2 PLUs. A safety copy is made first."_s;
    EXPECT_EQ(notices.first(3), (QStringList{change, change, u"Changed 2 PLUs."_s + wayBack}));
    restoreLatestCopy();
    EXPECT_EQ(prices(), steps[3].prices) << "as before the reset";
    EXPECT_EQ(logged().first(3),
              (QStringList{u"Transfer 1st Price To 2nd Price (Euro), rate 0.68, complete, 2 PLUs"_s,
                           u"Transfer Current Price to Euro, rate 1, complete, 2 PLUs"_s,
                           u"Transfer 2nd Price to 1st Price (Euro), complete, 2 PLUs"_s}));
}

TEST_F(PriceUtilitiesTest, AResetOfSalesEmptiesTheCardCategoriesOnceTheBoxIsClosed)
{
    makeCustomerDatabase();
    const QStringList tables = {u"clerksales"_s, u"groupsales"_s, u"financialsales"_s, u"mixsales"_s,
                                u"plusales"_s,   u"timesales"_s,  u"CARDCATEGORY"_s};
    for (const QString& table : tables)
        execute(u"insert into %1 default values"_s.arg(table));
    QStringList counts;
    QStringList notices;
    m_boxes.whileOpen = [&](const auto&) {
        counts.append(recordCounts(tables));
        notices << m_main.statusBar1().notice();
    };
    EXPECT_EQ(choose("SalesReset"), (QStringList{u"Reset Sales Data?: Do you wish to reset ALL Sales data?"_s,
                                                 u"Sales Reset: Sales Reset Complete!"_s}));
    counts.append(recordCounts(tables));
    EXPECT_EQ(counts, (QStringList{u"1111111"_s, u"0000001"_s, u"0000000"_s}));
    EXPECT_EQ(notices, (QStringList{u"This will delete all collected sales. A safety copy is made first."_s,
                                    u"Deleted all collected sales."_s + wayBack}));
    EXPECT_EQ(m_main.statusBar1().notice(), notices.back());
    restoreLatestCopy();
    EXPECT_EQ(recordCounts(tables), u"1111111"_s);
}

TEST_F(PriceUtilitiesTest, NoARateOfZeroOrAnotherRunChangeNothing)
{
    // There is no database yet: working on it would fail.
    for (QAction* const entry : m_main.findChild<QWidget*>(u"Utils"_s)->actions())
        EXPECT_EQ(test::failureOf([&] { entry->trigger(); }), 0);
    ASSERT_EQ(m_boxes.shown.size(), 6U) << "the question alone";
    for (const auto& box : std::exchange(m_boxes.shown, {}))
        EXPECT_EQ(box.preset, BoxAnswer::No) << box.title.toStdString();

    makeCustomerDatabase();
    addPlu(1, u"1, 2, 3, 4, 5, 6, 7, 8, 9, 10"_s);
    for (const char* const rate : {"", "0", "rate"})
        EXPECT_EQ(choose("TransferEuro", rate), (QStringList{toEuro, rateBox}));
    EXPECT_EQ(choose("TransferEuro", "1,5"), (QStringList{toEuro, rateBox, partOfRate}));
    EXPECT_EQ(m_main.statusBar1().notice(), QString());
    const auto other = FolderLock::take(m_values.appPath, m_boxes);
    EXPECT_EQ(choose("TransferEuro", "2").last().section(u':', 0, 1), u"Please Check: Nothing was started"_s);
    EXPECT_EQ(prices(), "1|2|3|4|5|6|7|8|9|10");
}

TEST_F(PriceUtilitiesTest, AFailureDuringTheWalkKeepsTheRecordsBeforeIt)
{
    makeCustomerDatabase();
    for (const int number : {1, 2, 3, 4})
        addPlu(number, (number == 3 ? u"'1e40'"_s : u"'3'"_s) + u", 'old', 3, 4, 5, 6, 7, 8, 9, 10"_s);
    EXPECT_EQ(test::failureOf([&] { choose("Transfer1to2", "2"); }), 6);
    EXPECT_EQ(takeBoxes(), (QStringList{toEuro, rateBox}));
    const QString stored = QString::fromStdString(prices());
    EXPECT_EQ(stored.count(u"3| 1.5|3|"_s), 2);
    EXPECT_EQ(stored.count(u"|old|3|"_s), 2);
    EXPECT_TRUE(m_main.menuBar()->isEnabled());
    EXPECT_EQ(QGuiApplication::overrideCursor(), nullptr);
}

TEST_F(PriceUtilitiesTest, DuringTheWalkTheWindowPaintsButTakesNoOtherEntry)
{
    makeCustomerDatabase();
    addPlu(1, u"1, 2, 3, 4, 5, 6, 7, 8, 9, 10"_s);
    int turns = 0;
    QTimer::singleShot(0, &m_main, [&] {
        ++turns;
        tryToInterrupt();
    });
    EXPECT_EQ(choose("TransferEuro", "2"), (QStringList{toEuro, rateBox, converted}));
    EXPECT_EQ(turns, 1);
    EXPECT_EQ(prices(), "1|2|3|4|5| 0.5| 1| 1.5| 2| 2.5");
    EXPECT_EQ(m_main.statusBar1().notice(), u"Changed 1 PLU."_s + wayBack);
    m_boxes.answers = {true};
    EXPECT_TRUE(QTest::qWaitFor([this] { return !m_main.isVisible(); })) << "the close that was put off";
    EXPECT_EQ(takeBoxes(), QStringList{u"Exit Program: Are You Sure?"_s});
}

TEST_F(PriceUtilitiesTest, LogoImagesShowTheRulesAndOnlyTheFirstRunsTheConverter)
{
    // The entries cannot be chosen in the menu: their functions are called.
    const auto openers = makeOpeners(m_values, m_boxes);
    m_values.appPath = m_folder.path("my app");
    const auto notice = [&](QLatin1StringView entry) {
        openers.forms.value(entryNamed(entry).target)(m_main, entryNamed(entry));
        return takeBoxes().value(0).section(u"this conversion works "_s, 1);
    };
    EXPECT_EQ(notice("Convert350"_L1), u"with SRP350 printers only"_s) << "and no more without a converter";
    m_folder.write("my app/conv_nv.exe", "#!/bin/sh\nsleep 0.1\necho made > \"$(dirname \"$0\")/made\"\n");
    QFile::setPermissions(m_folder.path("my app/conv_nv.exe"), QFile::ReadOwner | QFile::ExeOwner);
    EXPECT_EQ(notice("convert550"_L1), u"for SRP500 printers only"_s);
    EXPECT_FALSE(QFile::exists(m_folder.path("my app/made")));
    (void)notice("Convert350"_L1);
    EXPECT_EQ(m_folder.read("my app/made"), "made\n");
}

} // namespace
} // namespace norvane::shell
