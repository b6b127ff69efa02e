// Tables go to spreadsheets and come back.
#include "articles/SheetComparison.h"
#include "articles/SheetExport.h"
#include "articles/XlsxReader.h"
#include "customers/CustomerLog.h"
#include "platform/FilePaths.h"
#include "reports/files/CsvFile.h"
#include "reports/files/XlsxFile.h"
#include "store/catalogue/Catalogue.h"
#include "tests/road/RunCommand.h"
#include "tests/road/Shop.h"

namespace norvane
{
namespace
{

using articles::SheetComparison;

class TableFile : public testing::TestWithParam<int>
{
protected:
    [[nodiscard]] test::Ended run(const QStringList& words) const
    {
        return test::runCommand(m_shop.folder().appPath(), words);
    }
    [[nodiscard]] QString file(const QString& name) const { return m_shop.folder().appFile(name); }
    /// What @p comparison finds, as a number of changes or the first mistake.
    [[nodiscard]] static std::string found(const SheetComparison& comparison)
    {
        const auto mistakes = comparison.mistakes().first();
        return mistakes.empty() ? std::to_string(comparison.changeCount())
                                : (mistakes.front().place + u' ' + mistakes.front().reason).toStdString();
    }

    mutable test::Shop m_shop{GetParam(), 1};
};

TEST_P(TableFile, OfEveryTableChangesNothing)
{
    EXPECT_EQ(run({u"fetch"_s, u"Corner Shop"_s}).code, 0);
    store::Database database(m_shop.values().databasePath);
    const QString xlsx = file(u"table.xlsx"_s);
    const QString csv = file(u"table.csv"_s);
    for (const auto& table : store::catalogue()) {
        const auto sheet = articles::tableSheet(table, registerModel(m_shop.values()).messageWidth);
        auto exported = articles::exportedSheet(database, sheet);
        reports::writeXlsx(exported, xlsx);
        reports::writeCsvWith({';', ','}, exported, csv);
        EXPECT_EQ(exported.lineCount(), database.openTable(table.name).recordCount());
        if (sheet.index.isEmpty() || exported.lineCount() == 0)
            continue;
        const QByteArray rows = articles::spreadsheetText(xlsx);
        const QByteArray lines = readWholeFile(csv);
        const SheetComparison ofRows(database, sheet, rows, {articles::spreadsheetSeparator, {}, true});
        EXPECT_EQ(found(ofRows), "0") << table.name.toStdString();
        EXPECT_EQ(found(SheetComparison(database, sheet, lines)), "0") << table.name.toStdString();
    }
}

INSTANTIATE_TEST_SUITE_P(Models, TableFile, testing::Values(0, 2, 3));

class TableFileOfOneModel : public TableFile
{
protected:
    [[nodiscard]] test::Ended move(const QString& table, const QString& direction, const QString& name,
                                   const QStringList& options = {}) const
    {
        return run(QStringList{u"table"_s, u"Corner Shop"_s, table, direction, file(name)} + options);
    }
    [[nodiscard]] std::string rates() const
    {
        return test::rowsOf(m_shop.values().databasePath,
                            u"select payrate, rate from payrate order by payrate"_s);
    }
};

TEST_P(TableFileOfOneModel, IsImportedByTheCommandLine)
{
    m_shop.execute("delete * from payrate");
    m_shop.execute("insert into payrate (payrate, rate) values (1, 7.5)");
    m_shop.execute("insert into payrate (payrate, rate) values (2, 8)");
    EXPECT_EQ(move(u"payrate"_s, u"export"_s, u"rates.xlsx"_s).code, 0);
    EXPECT_EQ(move(u"PAYRATE"_s, u"import"_s, u"rates.xlsx"_s).out, u"Number  Field  Old  New\n");

    writeWholeFile(file(u"rates.csv"_s), "Number;Wage;Remark\n1;9,25;more\n");
    const QStringList map{u"--map"_s, u"number=PAYRATE,Wage=rate,Remark="_s};
    const test::Ended dry =
        move(u"payrate"_s, u"import"_s, u"rates.csv"_s, map + QStringList{u"--dry-run"_s});
    EXPECT_EQ(dry.out, u"Number  Field  Old   New\n1       rate   7.50  9.25\n") << dry.err.toStdString();
    EXPECT_EQ(rates(), "1|7.5 2|8");
    EXPECT_EQ(move(u"payrate"_s, u"import"_s, u"rates.csv"_s, map).out, dry.out);
    EXPECT_EQ(rates(), "1|9.25 2|8");
    EXPECT_EQ(customers::lastLogged(m_shop.values().customerPath, {u"PAYRATE import"_s})->result,
              u"1 changed, 0 new");
}

TEST_P(TableFileOfOneModel, IsRefusedWithACodeForEachReason)
{
    writeWholeFile(file(u"rates.csv"_s), "Number;Wage;Remark\n1;9,25;more\n");
    for (const auto& [table, direction, options, code] :
         {std::tuple(u"payrates"_s, u"export"_s, QStringList{}, 4),
          {u"MIXSALES"_s, u"import"_s, {}, 2},
          {u"payrate"_s, u"print"_s, {}, 2},
          {u"payrate"_s, u"import"_s, {u"--map"_s, u"Wage=x"_s}, 2},
          {u"payrate"_s, u"import"_s, {}, 9},
          {u"MIXSALES"_s, u"export"_s, {}, 0}})
        EXPECT_EQ(move(table, direction, u"rates.csv"_s, options).code, code) << direction.toStdString();
    writeWholeFile(file(u"rates.xlsx"_s), "PK");
    EXPECT_TRUE(move(u"payrate"_s, u"import"_s, u"rates.xlsx"_s).err.contains(u"is damaged"_s));
}

TEST_P(TableFileOfOneModel, OfPlusNamesTheCellOfAMistake)
{
    const auto move = [this](const QString& direction) {
        return run({u"plus"_s, u"Corner Shop"_s, direction, file(u"plus.xlsx"_s)});
    };
    m_shop.execute("delete * from pludata");
    m_shop.execute("insert into pludata (plunumber, price1) values ('000000000000000007', '1.234')");
    EXPECT_EQ(move(u"export"_s).code, 0);
    EXPECT_EQ(move(u"import"_s).out, u"Number  Field  Old  New\n");
    m_shop.execute("update pludata set price1 = '1'");
    const test::Ended ended = move(u"import"_s);
    EXPECT_EQ(ended.code, 9);
    EXPECT_TRUE(ended.err.startsWith(u"E6, Price 1: a price has at most two decimal places\n"_s))
        << ended.err.toStdString();
}

INSTANTIATE_TEST_SUITE_P(OneModel, TableFileOfOneModel, testing::Values(2));

} // namespace
} // namespace norvane
