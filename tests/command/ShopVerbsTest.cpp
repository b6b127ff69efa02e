// New customers and changed settings.
#include "platform/FolderLock.h"
#include "tests/command/CommandTest.h"
#include "tests/store/Rows.h"
#include "tests/support/RecordingBoxes.h"

#include <QJsonDocument>

namespace norvane::test
{
namespace
{

class ShopVerbs : public CommandTest
{
protected:
    [[nodiscard]] std::string plus(const QString& shop) const
    {
        return rowsOf(m_folder.appFile(shop + u"/velmar.mdb"_s), u"select PLUNUMBER from PLUDATA"_s);
    }
    [[nodiscard]] QByteArray settings(const QString& shop) const
    {
        return readWholeFile(m_folder.appFile(shop + u"/setup.ini"_s));
    }
};

TEST_F(ShopVerbs, NewMakesACustomerAloneOrLikeAnother)
{
    const Ended alone =
        run({u"new"_s, u"Cafe"_s, u"--model"_s, u"dorv"_s, u"--registers"_s, u"3"_s, u"--port"_s, u"2"_s});
    EXPECT_EQ(alone.out, u"Cafe is a new customer; ECRModel=Dorvik, NoOfECRs=3, Port=Port 2.\n"_s)
        << alone.err.toStdString();
    for (const char* const line : {"ECRModel= 3", "NoOfECRs=2", "Port= 1"})
        EXPECT_TRUE(settings(u"Cafe"_s).contains(line)) << line;
    execute(m_folder.appFile(u"Cafe/velmar.mdb"_s), u"insert into PLUDATA (PLUNUMBER) values ('7')"_s);

    EXPECT_EQ(run({u"new"_s, u"Bar"_s, u"--like"_s, u"CAFE"_s}).out,
              u"Bar is a new customer like Cafe: settings, 1 record.\n"_s);
    EXPECT_EQ(settings(u"Bar"_s), settings(u"Cafe"_s));
    EXPECT_EQ(plus(u"Bar"_s), "7");
    const Ended part = run({u"new"_s, u"Pub"_s, u"--like"_s, u"Bar"_s, u"--without"_s, u"PLU,settings"_s});
    EXPECT_EQ(part.out, u"Pub is a new customer like Bar: nothing.\n"_s);
    EXPECT_TRUE(part.err.contains(u"The model of Bar is Dorvik"_s)) << part.err.toStdString();
    EXPECT_EQ(plus(u"Pub"_s), "");

    expectRefusal(20, {u"new"_s, u"bar"_s}, u"already"_s);
    expectRefusal(3, {u"new"_s, u"Inn"_s, u"--like"_s, u"Nobody"_s}, u"Nobody"_s);
    expectUsage({u"new"_s, u"../Inn"_s}, u"cannot be the name"_s);
    expectUsage({u"new"_s, u"Inn"_s, u"--model"_s, u"V2"_s}, u"Velmar -V2, Velmar V2 Card"_s);
    expectUsage({u"new"_s, u"Inn"_s, u"--like"_s, u"Bar"_s, u"--without"_s, u"plus"_s},
                u"settings, overlays, plu, "_s);
    EXPECT_FALSE(pathExists(m_folder.appFile(u"Inn"_s)));
}

TEST_F(ShopVerbs, SetChangesAllSettingsOrNone)
{
    const ApplicationValues shop = m_folder.makeCustomer(u"SHOP"_s);
    const Ended ended = run(
        {u"set"_s, u"shop"_s, u"baud=9600"_s, u"ECRMODEL=v3"_s, u"Telephone=at&f1"_s, u"ModemDelay=30"_s});
    EXPECT_EQ(ended.out, u"SHOP: Baud=9600, ECRModel=Velmar +V3, Telephone=AT&F1, ModemDelay=30.\n"_s);
    const QByteArray after = settings(u"SHOP"_s);
    for (const char* const line : {"Baud= 2", "ECRModel= 2", "Telephone=AT&F1", "ModemDelay=30"})
        EXPECT_TRUE(after.contains(line)) << line;
    EXPECT_TRUE(readWholeFile(m_folder.appFile(u"SHOP/norvane.log"_s)).contains("settings\t\tBaud=9600, "));

    const auto set = [](const QString& second) {
        return QStringList{u"set"_s, u"SHOP"_s, u"Port=1"_s, second};
    };
    expectUsage(set(u"Bauds=1"_s), u"The settings are: Port, Baud, "_s);
    expectUsage(set(u"Baud=2"_s), u"It can be: 2400, 4800, 9600, 19200."_s);
    expectUsage(set(u"Telephone=1\nBaud= 0"_s), u"in one line"_s);
    expectUsage(set(u"ModemDelay=-1"_s), u"seconds"_s);
    expectUsage(set(u"Baud"_s), u"KEY=VALUE"_s);
    RecordingBoxes boxes;
    const auto lock = FolderLock::take(shop.customerPath, boxes);
    expectRefusal(5, set(u"Baud=2400"_s), u"Nothing was started"_s);
    EXPECT_EQ(settings(u"SHOP"_s), after);
}

/// A program parses whatever a command prints.
TEST_F(ShopVerbs, WithJsonNothingElseIsPrinted)
{
    for (const auto& [words, text] : {std::pair("new SHOP", "SHOP is a new customer"),
                                      {"set SHOP Port=2", "Port=Port 2"},
                                      {"fetch SHOP --unfinished", nullptr}}) {
        const Ended ended = run(QString::fromLatin1(words).split(u' ') + QStringList{u"--json"_s});
        EXPECT_EQ(ended.code, 0) << words << ended.err.toStdString();
        const QJsonDocument json = QJsonDocument::fromJson(ended.out.toUtf8());
        EXPECT_TRUE(json.isArray()) << words << ended.out.toStdString();
        EXPECT_EQ(json[0][u"result"_s].toString(), QString::fromLatin1(text)) << words;
    }
}

} // namespace
} // namespace norvane::test
