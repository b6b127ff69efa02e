// Prices with a date: planned from a file, stored on their day, sent to the registers.
#include "articles/PlannedChanges.h"
#include "customers/CustomerLog.h"
#include "customers/SafetyCopies.h"
#include "platform/FolderLock.h"
#include "tests/command/CommandTest.h"
#include "tests/store/Rows.h"
#include "tests/support/RecordingBoxes.h"

#include <QDate>
#include <QDir>
#include <QRegularExpression>

namespace norvane::test
{
namespace
{

/// A shop whose PLUs are those of its register.
class Planned : public CommandTest
{
protected:
    Planned()
    {
        EXPECT_EQ(run({u"fetch"_s, u"SHOP"_s, u"PLU"_s}).code, 0);
        m_plus = QString::fromStdString(
                     rowsOf(m_shop.databasePath, u"select PLUNUMBER from PLUDATA order by PLUNUMBER"_s))
                     .split(u' ');
        execute(m_shop.databasePath, u"update PLUDATA set PRICE1 = '1.2'"_s);
    }

    /// Plans a new first price of the PLU at @p place.
    [[nodiscard]] Ended plan(int place, const QByteArray& price, const QString& day = today(0)) const
    {
        const QString file = m_folder.appFile(u"prices.csv"_s);
        writeWholeFile(file, "Number,Price 1\n" + m_plus[place].toUtf8() + ',' + price + '\n');
        return run({u"plus"_s, u"SHOP"_s, u"import"_s, file, u"--on"_s, day});
    }
    static QString today(int daysLater)
    {
        return QDate::currentDate().addDays(daysLater).toString(Qt::ISODate);
    }
    /// The first price of the PLUs that have another one than at first.
    [[nodiscard]] std::string changed() const
    {
        return rowsOf(m_shop.databasePath,
                      u"select PRICE1 from PLUDATA where PRICE1 <> '1.2' order by PLUNUMBER"_s);
    }
    [[nodiscard]] QByteArray atRegister() const { return readWholeFile(m_folder.registerFile(1, 67)); }
    [[nodiscard]] QStringList files() const
    {
        return QDir(joinPath(m_shop.customerPath, u"planned"_s)).entryList(QDir::Files);
    }
    [[nodiscard]] QByteArray log() const
    {
        return readWholeFile(joinPath(m_shop.customerPath, u"norvane.log"_s));
    }

    ApplicationValues m_shop = m_folder.makeCustomer(u"SHOP"_s);
    QStringList m_plus;
};

TEST_F(Planned, PricesAreStoredAndSentOnTheirDay)
{
    const QByteArray before = atRegister();
    EXPECT_EQ(plan(0, "9", today(1)).code, 0);
    EXPECT_EQ(plan(1, "2.5").code, 0);
    const QString list = run({u"planned"_s, u"--json"_s}).out;
    EXPECT_TRUE(list.contains(u"\"storeOn\": \"%1\""_s.arg(today(1)))) << list.toStdString();
    EXPECT_EQ(changed(), "");

    const Ended applied = run({u"apply-planned"_s});
    EXPECT_EQ(applied.code, 0) << applied.err.toStdString();
    EXPECT_TRUE(applied.out.contains(u"SHOP  1 PLU changed, sent to register 1\n"_s))
        << applied.out.toStdString();
    EXPECT_EQ(changed(), "2.5");
    const QByteArray sent = atRegister();
    EXPECT_NE(sent, before);
    EXPECT_EQ(customers::safetyCopies(m_shop.customerPath).front().reason, u"before planned changes"_s);
    EXPECT_TRUE(log().contains("planned changes, list 2 for ")) << log().toStdString();
    EXPECT_EQ(files(),
              (QStringList{u"1 PLUDATA %1.csv"_s.arg(today(1)), u"2 PLUDATA %1.done.csv"_s.arg(today(0))}));
    EXPECT_EQ(run({u"apply-planned"_s, u"shop"_s}).out, QString());
    EXPECT_EQ(changed(), "2.5");
}

TEST_F(Planned, PricesThatWereNotSentAreSentByTheNextCall)
{
    const QByteArray before = atRegister();
    EXPECT_EQ(plan(0, "2.5").code, 0);
    m_folder.setFaults("[Off]\nCommand=send\nResult=8\n");
    const Ended failed = run({u"apply-planned"_s});
    EXPECT_EQ(failed.code, 6);
    EXPECT_TRUE(failed.out.contains(u"1 PLU changed, not sent: stopped at file 67: result 8: Time Out"_s))
        << failed.out.toStdString();
    EXPECT_EQ(changed(), "2.5");
    EXPECT_EQ(atRegister(), before);
    EXPECT_TRUE(run({u"planned"_s}).out.contains(u"stored, not sent"_s));

    m_folder.setFaults({});
    const Ended sent = run({u"apply-planned"_s});
    EXPECT_EQ(sent.code, 0) << sent.err.toStdString();
    EXPECT_TRUE(sent.out.contains(u"stored before, sent to register 1"_s)) << sent.out.toStdString();
    EXPECT_NE(atRegister(), before);
    EXPECT_EQ(run({u"apply-planned"_s}).out, QString());
}

TEST_F(Planned, ADamagedListThatWasNotSentIsReportedAndTheOthersAreSent)
{
    EXPECT_EQ(plan(0, "2.5").code, 0);
    m_folder.setFaults("[Off]\nCommand=send\nResult=8\n");
    EXPECT_EQ(run({u"apply-planned"_s}).code, 6);
    m_folder.setFaults({});
    const articles::PlannedFile unsent = articles::plannedFiles(m_shop.customerPath).front();
    const QByteArray damaged = readWholeFile(unsent.path).replace("2.50", "3.00");
    writeWholeFile(unsent.path, damaged);
    EXPECT_EQ(plan(1, "2.6").code, 0);

    const Ended applied = run({u"apply-planned"_s});
    EXPECT_EQ(applied.code, 9);
    EXPECT_TRUE(applied.out.contains(u"1 PLU changed, sent to register 1"_s)) << applied.out.toStdString();
    EXPECT_TRUE(applied.err.contains(
        u"is damaged, or was changed after it was planned. Its changes are stored. Send their box, "_s))
        << applied.err.toStdString();
    EXPECT_EQ(changed(), "2.5 2.6");
    EXPECT_EQ(readWholeFile(unsent.path), damaged);
}

TEST_F(Planned, RecordsOfOtherTablesAreSentInTheirBox)
{
    EXPECT_EQ(run({u"fetch"_s, u"SHOP"_s, u"Group"_s}).code, 0);
    const QByteArray before = readWholeFile(m_folder.registerFile(1, 1));
    const QString file = m_folder.appFile(u"groups.csv"_s);
    writeWholeFile(file, "GROUPNO,DESCRIPTION\n1,Winter\n2,Spring\n");
    EXPECT_EQ(run({u"table"_s, u"SHOP"_s, u"groups"_s, u"import"_s, file, u"--on"_s, today(0)}).code, 0);
    EXPECT_EQ(plan(0, "2.5").code, 0);
    const Ended applied = run({u"apply-planned"_s});
    EXPECT_TRUE(
        applied.out.contains(u"SHOP  2 records of GROUPS changed, 1 PLU changed, sent to register 1\n"_s))
        << applied.out.toStdString() << applied.err.toStdString();
    EXPECT_NE(readWholeFile(m_folder.registerFile(1, 1)), before);
    EXPECT_TRUE(pathExists(m_folder.appFile(u"SHOP/planned/1 GROUPS %1.done.csv"_s.arg(today(0)))));
}

/// Each list meets something else; the last one is stored all the same.
TEST_F(Planned, ListsThatCannotBeStoredDoNotStopTheOthers)
{
    for (int place = 0; place < 4; ++place)
        EXPECT_EQ(plan(place, "2." + QByteArray::number(place)).code, 0);
    const auto lists = articles::plannedFiles(m_shop.customerPath);
    writeWholeFile(lists[0].path, readWholeFile(lists[0].path).replace("2.00", "3.00"));
    articles::PlannedList otherModel = lists[1].read();
    otherModel.model = u"Dorvik"_s;
    writeWholeFile(lists[1].path, plannedText(otherModel));
    execute(m_shop.databasePath,
            u"update PLUDATA set PRICE1 = '1.3' where PLUNUMBER = '%1'"_s.arg(m_plus[2]));

    const Ended applied = run({u"apply-planned"_s});
    EXPECT_EQ(applied.code, 9);
    for (const QString& text :
         {u"SHOP: List 1 ("_s, u"is damaged, or was changed after it was planned."_s,
          u"SHOP: list 2 is for registers of the model Dorvik; they are Velmar +V3 now."_s,
          u"SHOP: list 3: not stored: PLU %1, Price 1: it is \"1.30\", not \"1.20\""_s.arg(
              QString(m_plus[2]).remove(QRegularExpression(u"^0+"_s)))})
        EXPECT_TRUE(applied.err.contains(text)) << text.toStdString() << applied.err.toStdString();
    EXPECT_EQ(changed(), "1.3 2.3");
    EXPECT_EQ(run({u"apply-planned"_s}).code, 9) << "the first two remain planned";
    EXPECT_EQ(run({u"planned"_s, u"SHOP"_s, u"--cancel"_s, u"1"_s}).code, 0);
    EXPECT_EQ(run({u"apply-planned"_s}).code, 21);
}

TEST_F(Planned, AListCanBeCancelledAndPlannedAgain)
{
    expectUsage({u"plus"_s, u"SHOP"_s, u"import"_s, u"x.csv"_s, u"--on"_s, u"2027-02-29"_s},
                u"\"2027-02-29\" is not a day"_s);
    expectUsage({u"plus"_s, u"SHOP"_s, u"import"_s, u"x.csv"_s, u"--on"_s, today(-1)}, u"is past."_s);
    EXPECT_EQ(plan(0, "1.2").code, 0);
    EXPECT_EQ(files(), QStringList()) << "it changes nothing";
    EXPECT_EQ(plan(0, "2").code, 0);
    const auto act = [this](const QString& option, const QString& list) {
        return run({u"planned"_s, u"SHOP"_s, option, list}).code;
    };
    EXPECT_EQ(act(u"--cancel"_s, u"2"_s), 4);
    EXPECT_EQ(act(u"--cancel"_s, u"1"_s), 0);
    EXPECT_EQ(act(u"--cancel"_s, u"1"_s), 4);
    EXPECT_EQ(run({u"apply-planned"_s}).out, QString());
    EXPECT_EQ(act(u"--plan-again"_s, u"1"_s), 0);
    const QString shown = run({u"planned"_s, u"SHOP"_s, u"--show"_s, u"1"_s}).out;
    EXPECT_TRUE(shown.contains(u"Price 1  1.20  2.00"_s)) << shown.toStdString();
    {
        RecordingBoxes boxes;
        const auto lock = FolderLock::take(m_shop.customerPath, boxes);
        EXPECT_EQ(run({u"apply-planned"_s}).code, 5);
        EXPECT_EQ(act(u"--cancel"_s, u"1"_s), 5);
    }
    EXPECT_EQ(run({u"apply-planned"_s}).code, 0);
    EXPECT_EQ(changed(), "2");
}

} // namespace
} // namespace norvane::test
