// A send that one register missed: what the command line shows of it, and how it is finished.
#include "platform/FilePaths.h"
#include "platform/FolderLock.h"
#include "tests/road/RunCommand.h"
#include "tests/road/Shop.h"
#include "tests/store/Rows.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

namespace norvane
{
namespace
{

using test::Ended, test::Shop;

const QString cornerShop = u"Corner Shop"_s;

class UnfinishedSend : public testing::Test
{
protected:
    [[nodiscard]] Ended run(const QStringList& words) const
    {
        return test::runCommand(m_shop.folder().appPath(), words);
    }
    /// The line of a customer.
    [[nodiscard]] QJsonObject status(const QString& name) const
    {
        const Ended ended = run({u"status"_s, u"--json"_s});
        EXPECT_EQ(ended.code, 0) << ended.err.toStdString();
        for (const QJsonValue line : QJsonDocument::fromJson(ended.out.toUtf8()).array()) {
            if (line[u"name"].toString() == name)
                return line.toObject();
        }
        return {};
    }
    void sendNewPricesWithoutRegister2()
    {
        EXPECT_EQ(m_shop.upload({0, 2}), test::BoxNumbers());
        m_shop.execute("update PLUDATA set PRICE1='7.77' where GROUPNO = 1");
        m_shop.folder().setFaults("[Off]\nCommand=send\nRegister=2\nResult=8\n");
        EXPECT_EQ(run({u"send"_s, cornerShop, u"group"_s, u"plu"_s}).code, 6);
        m_shop.folder().setFaults({});
    }
    [[nodiscard]] QByteArray plusAt(int number) const
    {
        return readWholeFile(m_shop.folder().registerFile(number, 67));
    }

    mutable Shop m_shop{2, 3};
};

TEST_F(UnfinishedSend, IsShownAndFinished)
{
    sendNewPricesWithoutRegister2();
    const QJsonObject stopped = status(cornerShop);
    const auto count = [this](const QString& rows) {
        return std::stoi(test::rowsOf(m_shop.values().databasePath, u"select count(*) from "_s + rows));
    };
    EXPECT_EQ(stopped[u"recordsNotSent"].toInt(), count(u"PLUDATA where GROUPNO = 1"_s) + count(u"PLUDATA"_s))
        << "the prices, and the points of all PLUs";
    EXPECT_EQ(stopped[u"boxesNotSent"].toString(), u"PLU, Smartcard PLU Points"_s);
    EXPECT_EQ(stopped[u"direction"].toString(), u"download, registers 1 to 3"_s);
    EXPECT_TRUE(stopped[u"result"].toString().startsWith("stopped at file 67: result 8"_L1));
    EXPECT_NE(plusAt(1), plusAt(3));

    EXPECT_EQ(run({u"send"_s, cornerShop, u"--unfinished"_s, u"plu"_s}).code, 2);
    EXPECT_EQ(run({u"fetch"_s, cornerShop, u"--unfinished"_s}).code, 0);
    EXPECT_EQ(status(cornerShop), stopped) << "no upload is unfinished";
    const Ended finished = run({u"send"_s, cornerShop, u"--unfinished"_s});
    EXPECT_EQ(finished.code, 0) << finished.err.toStdString();
    EXPECT_EQ(plusAt(2), plusAt(3));
    EXPECT_EQ(status(cornerShop)[u"recordsNotSent"].toInt(), 0);
    EXPECT_EQ(status(cornerShop)[u"boxesNotSent"].toString(), QString());
    const QJsonObject after = status(cornerShop);
    EXPECT_EQ(run({u"send"_s, cornerShop, u"--unfinished"_s}).code, 0);
    EXPECT_EQ(status(cornerShop), after) << "nothing is left";
}

TEST_F(UnfinishedSend, StatusListsEveryShopAlsoDuringARunAndOneThatCannotBeRead)
{
    const ApplicationValues broken = m_shop.folder().makeCustomer(u"Broken"_s);
    const ApplicationValues healthy = m_shop.folder().makeCustomer(u"Healthy"_s);
    writeWholeFile(broken.databasePath, "not a database");
    writeWholeFile(joinPath(healthy.customerPath, u"exchange.ini"_s),
                   "[Collection]\r\nStored=%1T18:00:00 5 abc 8\r\n"_ba.replace(
                       "%1", QDate::currentDate().addDays(-3).toString(Qt::ISODate).toLatin1()));
    const auto lock = FolderLock::take(healthy.customerPath, m_shop.boxes());
    EXPECT_TRUE(status(u"Broken"_s)[u"note"].toString().contains(u"velmar.mdb"_s));
    EXPECT_TRUE(status(u"Broken"_s)[u"recordsNotSent"].isNull());
    EXPECT_EQ(status(u"Healthy"_s)[u"note"].toString(), QString());
    EXPECT_EQ(status(u"Healthy"_s)[u"daysWithoutCollection"].toInt(), 3);
    EXPECT_TRUE(status(cornerShop)[u"daysWithoutCollection"].isNull());
    test::execute(joinPath(m_shop.folder().appFile(cornerShop), u"velmar.mdb"_s),
                  u"insert into TIMESALES (ID, SALESDATE) values (1, '%1')"_s.arg(
                      QDate::currentDate().addDays(-2).toString(Qt::ISODate)));
    EXPECT_EQ(status(cornerShop)[u"daysWithoutCollection"].toInt(), 2) << "stored in another way";
    EXPECT_EQ(run({u"status"_s, u"nowhere"_s}).code, 3);
}

} // namespace
} // namespace norvane
