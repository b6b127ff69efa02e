// What a new shop takes from another one, and that nothing is left of one that cannot be made.
#include "programme/NewShop.h"

#include "customers/CustomerFolders.h"
#include "exchange/ExchangeBoxes.h"
#include "exchange/ExchangePlan.h"
#include "overlay/KeyboardGeometry.h"
#include "platform/FolderLock.h"
#include "tests/shell/ShellFixture.h"

#include <filesystem>

namespace norvane::programme
{
namespace
{

/// Cafe has a bit of everything; a new shop is to be like it.
class NewShopTest : public shell::ShellFixture
{
protected:
    NewShopTest()
    {
        store::Database::create(m_folder.path("app/velmar.mdb"), store::catalogue());
        store::Database::create(m_values.databasePath, store::catalogue());
        execute(u"insert into PLUDATA (PLUNUMBER, PRICE1, POINT1, POINT5) values ('7', '1.50', 3, 4)"_s);
        execute(u"insert into EMPLOYEE (ID, DESCRIPTION, dallaskey) values (1, 'Ann', 'k')"_s);
        execute(u"insert into KEYLINK (ID, KEYLINK) values (1, '18')"_s);
        execute(u"insert into memoryallocation ([LINES/PLU]) values ('2')"_s);
        execute(u"insert into FINANCIALSALES (ID, SALESDATE) values (2, '2026-11-24')"_s);
        m_folder.write("app/Cafe/setup.ini",
                       "[SetupOption]\r\nECRModel= 3\r\nTelephone=555\r\nModemDelay=9\r\n");
        for (const char* const file :
             {"43.DAT", "67.dat", "MEM.dat", "43.dat.former", "norvane.log", "exchange.ini",
              "norvane-chain.ini", "copies/2026-11-25 18.30.12 before upload/setup.ini"}) {
            m_folder.write((QByteArray("app/Cafe/") + file).constData(), "of Cafe");
        }
        for (const auto& row : exchange::uploadPlan()) {
            if (exchange::boxName(row.box) == u"PLU Stock"_s) {
                m_folder.write(
                    QByteArray("app/Cafe/%.dat").replace("%", QByteArray::number(row.file)).constData(),
                    "12");
            }
        }
        m_shop.appPath = m_values.appPath;
        m_shop.name = u"Bar"_s;
        m_shop.likePath = m_values.customerPath;
        m_shop.tables = allProgrammeTables();
    }
    [[nodiscard]] QStringList entries(const char* folder = "app/Bar") const
    {
        return QDir(m_folder.path(folder))
            .entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot, QDir::Name);
    }
    [[nodiscard]] std::string rows(const char* sql) const
    {
        return test::rowsOf(m_folder.path("app/Bar/velmar.mdb"), QLatin1StringView(sql));
    }
    /// The problem of a shop that cannot be made, which leaves nothing in the program's folder.
    NewShopProblem problem()
    {
        const QStringList before = entries("app");
        try {
            makeNewShop(m_shop, m_boxes);
        } catch (const NewShopError& error) {
            EXPECT_EQ(entries("app"), before);
            return error.problem();
        }
        throw std::runtime_error("the shop was made");
    }

    NewShop m_shop;
};

TEST_F(NewShopTest, HasAllButWhatBelongsToTheOtherShopAlone)
{
    QStringList expected{u"43.DAT"_s, u"setup.ini"_s, u"velmar.mdb"_s};
    for (const auto keyboard :
         {overlay::Keyboard::Velmar, overlay::Keyboard::Dorvik, overlay::Keyboard::Quelmont}) {
        expected << u"till"_s + overlay::geometryOf(keyboard).files.extension.sliced(1).toString().toUpper();
        m_folder.write(("app/Cafe/" + expected.last().toUtf8()).constData(), "cells");
    }
    expected << expected.last() + u".notes"_s;
    m_folder.write(("app/Cafe/" + expected.last().toUtf8()).constData(), "colours");
    expected.sort();
    const TakenOver taken = makeNewShop(m_shop, m_boxes);
    EXPECT_EQ(entries(), expected);
    EXPECT_EQ(inWords(taken), u"settings, 4 records, 1 register file, 3 overlay documents"_s);
    EXPECT_TRUE(taken.lacksTelephone);
    EXPECT_EQ(m_folder.read("app/Bar/setup.ini"),
              "[SetupOption]\r\nECRModel= 3\r\nTelephone=\r\nModemDelay=9\r\n");
    EXPECT_EQ(rows("select PLUNUMBER, PRICE1, POINT1, POINT5 from PLUDATA"), "7|1.50|null|null");
    EXPECT_EQ(rows("select DESCRIPTION from EMPLOYEE"), "Ann");
    EXPECT_EQ(rows("select [LINES/PLU] from memoryallocation"), "2");
    EXPECT_EQ(rows("select ID from FINANCIALSALES"), "");
    EXPECT_EQ(modelNotice(m_shop), QString());
    EXPECT_EQ(customers::chooseCustomer(m_values, u"bar"_s), customers::CustomerChoice::Taken);
}

TEST_F(NewShopTest, ForAnotherModelOnlyRecordsAreTaken)
{
    m_shop.takesSettings = false;
    const QString notice = modelNotice(m_shop);
    EXPECT_TRUE(notice.startsWith(u"The model of Cafe is Dorvik, that of the new customer Velmar +V3."_s))
        << notice.toStdString();
    EXPECT_TRUE(notice.contains(u"Keyboards are not taken: "_s));
    EXPECT_FALSE(notice.contains(u"are cut to"_s)) << "its lines are longer";
    m_shop.settings = {customers::settingInWords(u"noofecrs"_s, u"12"_s)};
    EXPECT_EQ(inWords(makeNewShop(m_shop, m_boxes)), u"2 records"_s);
    EXPECT_EQ(entries(), (QStringList{u"setup.ini"_s, u"velmar.mdb"_s}));
    EXPECT_EQ(m_folder.read("app/Bar/setup.ini"),
              "; shipped\r\n[SetupOption]\r\nECRModel= 2\r\nNoOfECRs=11\r\n");

    m_shop.name = u"Pub"_s;
    m_shop.tables.removeOne(u"EMPLOYEE"_s);
    m_shop.settings = {customers::settingInWords(u"ecrmodel"_s, u"DORVIK"_s)};
    EXPECT_EQ(inWords(makeNewShop(m_shop, m_boxes)), u"3 records"_s)
        << "the memory allocation, but no register file without the whole programme";
}

TEST_F(NewShopTest, AnOlderDatabaseIsTakenAsItIs)
{
    QList tables{*store::catalogueTable(u"PLUDATA"_s), *store::catalogueTable(u"EMPLOYEE"_s)};
    for (auto& table : tables) {
        table.fields.removeIf(
            [](const auto& field) { return field.name == u"printNV" || field.name == u"dallaskey"; });
    }
    store::Database::create(m_values.databasePath, tables);
    execute(u"insert into PLUDATA (PLUNUMBER) values ('8')"_s);
    execute(u"insert into EMPLOYEE (ID, DESCRIPTION) values (2, 'Bob')"_s);
    const QByteArray before = m_folder.read("app/Cafe/velmar.mdb");
    makeNewShop(m_shop, m_boxes);
    EXPECT_EQ(rows("select PLUNUMBER, printNV from PLUDATA"), "8|null");
    EXPECT_EQ(rows("select DESCRIPTION, dallaskey from EMPLOYEE"), "Bob|null");
    EXPECT_TRUE(m_folder.read("app/Cafe/velmar.mdb") == before);
}

TEST_F(NewShopTest, ARefusalOrFailureLeavesNothing)
{
    for (const QString& name :
         {u" "_s, u".."_s, u"../Out"_s, u"None/Bar"_s, u"C:Bar"_s, u"norvane-unfinished.1"_s}) {
        m_shop.name = name;
        EXPECT_EQ(problem(), NewShopProblem::BadName) << name.toStdString();
    }
    for (const QString& name : {u"CAFE"_s, u"cafe/"_s, u"SETUP.ini"_s}) {
        m_shop.name = name;
        EXPECT_EQ(problem(), NewShopProblem::Exists) << name.toStdString();
    }
    m_shop.name = u"Bar"_s;
    const QByteArray whole = m_folder.read("app/Cafe/velmar.mdb");
    m_folder.write("app/Cafe/velmar.mdb", whole.chopped(100));
    EXPECT_EQ(problem(), NewShopProblem::Damaged);
    m_folder.write("app/Cafe/velmar.mdb", QByteArray("\0\1\0\0Standard Jet DB", 19));
    EXPECT_EQ(problem(), NewShopProblem::Former);
    QFile::remove(m_values.databasePath);
    EXPECT_EQ(problem(), NewShopProblem::NoSource);
    m_folder.write("app/Cafe/velmar.mdb", whole);
    {
        const auto lock = FolderLock::take(m_values.customerPath, m_boxes);
        EXPECT_EQ(problem(), NewShopProblem::Busy);
    }
    m_folder.write("app/velmar.mdb", "not a database");
    EXPECT_EQ(test::failureOf([&] { makeNewShop(m_shop, m_boxes); }), 3343);
    EXPECT_EQ(entries("app"), (QStringList{u"Cafe"_s, u"setup.ini"_s, u"velmar.mdb"_s}));
}

TEST_F(NewShopTest, WhatAKilledProgramLeavesIsNoCustomer)
{
    m_folder.write("app/norvane-unfinished.1/velmar.mdb", "half");
    m_folder.write("app/norvane-unfinished.2/velmar.mdb", "half");
    std::filesystem::last_write_time(m_folder.path("app/norvane-unfinished.2").toStdString(),
                                     std::filesystem::file_time_type::clock::now() - std::chrono::hours(2));
    EXPECT_EQ(customers::customerFolders(m_values.appPath), QStringList{u"CAFE"_s});
    EXPECT_EQ(customers::chooseCustomer(m_values, u"NORVANE-unfinished.1"_s),
              customers::CustomerChoice::Failed);
    makeNewShop(m_shop, m_boxes);
    EXPECT_EQ(entries("app"),
              (QStringList{u"Bar"_s, u"Cafe"_s, u"norvane-unfinished.1"_s, u"setup.ini"_s, u"velmar.mdb"_s}));
}

} // namespace
} // namespace norvane::programme
