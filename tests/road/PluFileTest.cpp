// PLUs are exported to a spreadsheet, changed there, imported and sent to the registers.
#include "customers/CustomerLog.h"
#include "customers/SafetyCopies.h"
#include "platform/FilePaths.h"
#include "platform/FolderLock.h"
#include "tests/road/RunCommand.h"
#include "tests/road/Shop.h"

#include <algorithm>

namespace norvane
{
namespace
{

using test::Ended, test::Shop;

const QString customer = u"Corner Shop"_s;

class PluFile : public testing::TestWithParam<int>
{
protected:
    [[nodiscard]] Ended run(const QStringList& words, const QString& locale = u"C.UTF-8"_s) const
    {
        return test::runCommand(m_shop.folder().appPath(), words, locale);
    }
    [[nodiscard]] Ended import(const QByteArray& content, const QStringList& options = {}) const
    {
        writeWholeFile(m_file, content);
        return run(QStringList{u"plus"_s, customer, u"import"_s, m_file} + options);
    }
    [[nodiscard]] std::string rows(const QString& fields = u"*"_s,
                                   const QString& below = u"999999999999999999"_s) const
    {
        return test::rowsOf(
            m_shop.values().databasePath,
            u"select %1 from pludata where plunumber < '%2' order by plunumber"_s.arg(fields, below), u"\n");
    }
    [[nodiscard]] std::ptrdiff_t copies() const
    {
        return std::ranges::count(customers::safetyCopies(m_shop.values().customerPath),
                                  u"before PLU import"_s, &customers::SafetyCopy::reason);
    }

    mutable Shop m_shop{GetParam(), 2};
    QString m_file = m_shop.folder().appFile(u"plus.csv"_s);
};

TEST_P(PluFile, SendsNewPricesToTheRegisters)
{
    constexpr int pluRecords = 67;
    for (const QString& box : {u"PLU"_s, u"PLU Status Group"_s, u"Group"_s})
        EXPECT_EQ(run({u"fetch"_s, customer, box}).code, 0);
    const auto fetched = rows();
    const auto sentBefore = m_shop.recordsOf(2, pluRecords);
    EXPECT_EQ(run({u"plus"_s, customer, u"export"_s, m_file}).code, 0);
    QByteArrayList lines = readWholeFile(m_file).split('\n');
    for (const int line : {1, 2, 5}) {
        QByteArrayList cells = lines[line].split(',');
        cells[4] = "87.65";
        lines[line] = cells.join(',');
    }
    lines.insert(3, QByteArray("987654321,Brand new,1,1,3.5").append(9, ',') + '\r');
    const QByteArray changed = lines.join('\n');

    const Ended dry = import(changed, {u"--dry-run"_s});
    EXPECT_EQ(dry.code, 0) << dry.err.toStdString();
    EXPECT_EQ(dry.out.count(u"Price 1"_s), 4) << dry.out.toStdString();
    EXPECT_TRUE(dry.out.contains(u"new PLU"_s));
    EXPECT_EQ(rows(), fetched);
    EXPECT_EQ(import(changed).out, dry.out);
    EXPECT_EQ(copies(), 1);
    EXPECT_EQ(customers::lastLogged(m_shop.values().customerPath, {u"PLU import"_s})->result,
              u"3 changed, 1 new");

    EXPECT_EQ(run({u"send"_s, customer, u"PLU"_s}).code, 0);
    for (const int machine : {1, 2}) {
        qsizetype raised = 0;
        const auto sent = m_shop.recordsOf(machine, pluRecords);
        for (const auto& record : sent) {
            raised += record[12] == "00008765" ? 1 : 0;
            EXPECT_TRUE(record[0] != "000000000987654321" || record[12] == "00000350");
        }
        EXPECT_EQ(raised, 3);
        EXPECT_EQ(sent.size(), sentBefore.size() + 1);
    }
}

INSTANTIATE_TEST_SUITE_P(Models, PluFile, testing::Values(0, 1, 2, 3));

class PluFileOfOneModel : public PluFile
{
protected:
    PluFileOfOneModel()
    {
        m_shop.execute("delete * from pludata");
        m_shop.execute("delete * from groups");
        store::Database database(m_shop.values().databasePath);
        auto groups = database.openTable(u"groups"_s);
        groups.addNew();
        groups.setValue(u"groupno"_s, store::Value::whole(7));
        groups.update();
        auto plus = database.openTable(u"pludata"_s);
        const QStringList descriptions{u"=1+2"_s,          u" =x"_s,   u"-5;a,\"b\""_s,
                                       u"Größe 3      "_s, u" left"_s, {}};
        for (int plu = 0; plu < descriptions.size(); ++plu) {
            plus.addNew();
            plus.setValue(u"plunumber"_s, store::Value::text(u"90000000000000000%1"_s.arg(plu)));
            plus.setValue(u"description"_s, store::Value::text(descriptions[plu]));
            plus.setValue(u"groupno"_s, store::Value::whole(99));
            plus.setValue(u"price1"_s, store::Value::text(u" 1.5"_s));
            plus.setValue(u"price2"_s, store::Value::text(u"-1.255"_s));
            plus.update();
        }
    }
};

TEST_P(PluFileOfOneModel, ChangesNothingByAnExport)
{
    const auto before = rows();
    for (const QStringList& options :
         {QStringList{}, {u"--separator"_s, u"tab"_s}, {u"--separator"_s, u"semicolon"_s}}) {
        // No terminal: the locale counts for nothing.
        EXPECT_EQ(run(QStringList{u"plus"_s, customer, u"export"_s, m_file} + options, u"de_DE.UTF-8"_s).code,
                  0);
        const QByteArray signs = options.isEmpty() ? ",." : options[1] == u"tab"_s ? "\t." : ";,";
        QByteArray line = "900000000000000000;\" =1+2\";99;;1|50;-1|255;;";
        EXPECT_TRUE(readWholeFile(m_file).contains(line.replace(';', signs[0]).replace('|', signs[1])))
            << readWholeFile(m_file).toStdString();
        const Ended imported = import(readWholeFile(m_file));
        EXPECT_EQ(imported.code, 0) << imported.err.toStdString();
        EXPECT_EQ(imported.out, u"Number  Field  Old  New\n") << readWholeFile(m_file).toStdString();
    }
    EXPECT_EQ(rows(), before);
    EXPECT_EQ(copies(), 0);
    const QString sheet = m_shop.folder().appFile(u"plus.XLSX"_s);
    EXPECT_EQ(run({u"plus"_s, customer, u"export"_s, sheet}).code, 0);
    EXPECT_TRUE(readWholeFile(sheet).startsWith("PK"));
}

TEST_P(PluFileOfOneModel, TakesWhatSpreadsheetsWrite)
{
    const Ended ended = import("\xEF\xBB\xBFPLUs;;;;\r\n;;;;\r\n"
                               "GROUP;price 1;Number;Euro 1; description \r\n"
                               ";2,5;900000000000000001;0,99; =new\r\n"
                               "\r\n"
                               "7;\"3,25\";4711;;\"Say \"\"\xE2\x82\xAC\"\"\"\r\n"
                               ";;900000000000000002;4,100;\r\n", // the other commas show what this one is
                               {u"--json"_s});
    EXPECT_EQ(ended.code, 0) << ended.err.toStdString();
    EXPECT_TRUE(ended.out.contains(u"\"new\": \"3.25\""_s)) << ended.out.toStdString();
    EXPECT_EQ(
        rows(u"plunumber, description, groupno, plustatus, price1, price2, europrice1, piececount, preset"_s,
             u"900000000000000003"_s),
        "000000000000004711|Say \"€\"|7|0|3.25|0|null|0|False\n"
        "900000000000000000|=1+2|99|null| 1.5|-1.255|null|null|null\n"
        "900000000000000001|=new|99|null|2.5|-1.255|0.99|null|null\n"
        "900000000000000002||99|null| 1.5|-1.255|4.1|null|null");
}

TEST_P(PluFileOfOneModel, ListsTheMistakesOfAFileAndStoresNothing)
{
    const auto before = rows();
    const QByteArray prices = "Number,Price 1\n";
    const struct {
        QByteArray content;
        QString err;
    } files[] = {
        {"Number,Prize\n", u"line 1, Prize: there is no such column"_s},
        {"Number,Group,Status\n1,7,1\n2,8,x\n",
         u"line 3, Group: there is no group 8\nline 3, Status: \"x\" is not a number"_s},
        {prices + QByteArray("x,1\n").repeated(101),
         u"line 101, Number: \"x\" is not a PLU number of up to 18 digits\n"
         "%1 has mistakes: 101. Nothing was changed. "
         "The first 100 are listed."_s.arg(m_file)},
    };
    for (const auto& [content, err] : files) {
        const Ended ended = import(content);
        EXPECT_EQ(ended.code, 9) << content.toStdString();
        EXPECT_TRUE(ended.err.contains(err)) << ended.err.toStdString();
        EXPECT_EQ(ended.out, QString());
    }
    EXPECT_EQ(customers::lastLogged(m_shop.values().customerPath, {u"PLU import"_s})->result,
              u"refused: the file has mistakes");
    const QString folder = m_shop.folder().appPath();
    EXPECT_TRUE(run({u"plus"_s, customer, u"import"_s, folder}).err.contains(u"is a folder"_s));
    EXPECT_EQ(run({u"plus"_s, customer, u"import"_s, u"none.csv"_s}).code, 9);
    EXPECT_EQ(run({u"plus"_s, customer, u"export"_s, u"plus.pdf"_s}).code, 2);
    EXPECT_EQ(run({u"plus"_s, customer, u"print"_s, u"plus.csv"_s}).code, 2);
    EXPECT_EQ(import(prices + "1,2\n", {u"--separator"_s, u"dot"_s}).code, 2);
    EXPECT_TRUE(
        import(prices + "1,2\n", {u"--separator"_s, u"semicolon"_s}).err.contains(u"no line of headings"_s));
    const auto lock = FolderLock::take(m_shop.values().customerPath, m_shop.boxes());
    EXPECT_EQ(import(prices + "1,2\n").code, 5);
    EXPECT_EQ(import(prices + "1,2\n", {u"--dry-run"_s}).code, 0);
    EXPECT_EQ(rows(), before);
    EXPECT_EQ(copies(), 0);
}

INSTANTIATE_TEST_SUITE_P(OneModel, PluFileOfOneModel, testing::Values(2));

} // namespace
} // namespace norvane
