// The command line does what the window does: the same files, the same rows, the same bytes at the registers.
#include "platform/FilePaths.h"
#include "platform/FolderLock.h"
#include "tests/road/RunCommand.h"
#include "tests/road/Shop.h"

#include <QJsonDocument>

namespace norvane
{
namespace
{

using test::Ended, test::Shop;

class CommandLine : public testing::TestWithParam<int>
{
protected:
    [[nodiscard]] Ended run(const QStringList& words) const
    {
        return test::runCommand(m_shop.folder().appPath(), words);
    }
    void expectDone(const QStringList& words) const
    {
        const Ended ended = run(words);
        EXPECT_EQ(ended.code, 0) << words.join(u' ').toStdString() << ": " << ended.err.toStdString();
    }

    /// Every file of a customer's folder with its bytes, and every table with its rows; without dates and
    /// times.
    [[nodiscard]] static QMap<QString, std::string> contentOf(const ApplicationValues& customer)
    {
        QMap<QString, std::string> content;
        QDirIterator files(customer.customerPath, QDir::Files | QDir::Hidden);
        while (files.hasNext()) {
            const QFileInfo file = files.nextFileInfo();
            if (file.suffix() == "dat"_L1 || file.fileName() == "setup.ini"_L1)
                content[file.fileName()] = readWholeFile(file.filePath()).toStdString();
        }
        store::Database database(customer.databasePath);
        for (const QString& table : database.tableNames())
            content[table] = test::rowsOf(customer.databasePath, table, u"\n");
        return content;
    }
    void expectSame() const
    {
        const auto window = contentOf(m_shop.values());
        const auto command = contentOf(m_other);
        EXPECT_EQ(window.keys(), command.keys());
        for (const auto& [name, bytes] : window.asKeyValueRange())
            EXPECT_TRUE(command.value(name) == bytes) << name.toStdString();
    }
    /// Every file of every register.
    [[nodiscard]] QMap<QString, QByteArray> bank() const
    {
        QMap<QString, QByteArray> content;
        QDirIterator files(m_shop.folder().bankPath(), {u"*.dat"_s}, QDir::Files,
                           QDirIterator::Subdirectories);
        while (files.hasNext()) {
            const QString path = files.next();
            content[path] = readWholeFile(path);
        }
        return content;
    }
    void ring() const
    {
        ASSERT_EQ(
            QProcess::execute(QString::fromUtf8(RINGSALES_TOOL),
                              {m_shop.folder().bankPath(), u"--tickets"_s, u"30"_s, u"--seed"_s, u"7"_s}),
            0);
    }

    static void raisePrices(const ApplicationValues& customer)
    {
        test::execute(customer.databasePath, u"update pludata set price1='7.77' where groupno = 1"_s);
    }
    /// The same sales, once by the window and once by the command line.
    void collectTwice()
    {
        QWidget& form = m_shop.openForm("CollectSales");
        ring();
        test::press(form, "Communicate");
        ring();
        expectDone({u"collect"_s, otherShop});
    }

    const QString otherShop = u"other shop"_s;
    mutable Shop m_shop{GetParam(), 2};
    ApplicationValues m_other = m_shop.folder().makeCustomer(u"Other Shop"_s);
};

TEST_P(CommandLine, LeavesWhatTheWindowLeaves)
{
    EXPECT_EQ(m_shop.upload(), test::BoxNumbers());
    expectDone({u"fetch"_s, otherShop});
    expectSame();
    raisePrices(m_other);
    const auto before = bank();
    expectDone({u"send"_s, otherShop});
    const auto sent = bank();
    EXPECT_NE(sent, before);
    raisePrices(m_shop.values());
    EXPECT_EQ(m_shop.download(), test::BoxNumbers());
    EXPECT_TRUE(bank() == sent);
    collectTwice();
    EXPECT_GT(m_shop.rowsOf("PLUSALES"), 0);
    expectSame();
    EXPECT_TRUE(m_shop.boxes().shown.empty());
}

INSTANTIATE_TEST_SUITE_P(Models, CommandLine, testing::Values(0, 1, 2, 3));

class CommandLineOfOneShop : public CommandLine
{
};

const QString shopName = u"Corner Shop"_s;
const struct {
    QStringList words;
    int code;
    QString err;
} refusals[] = {
    {{u"fetch"_s}, 2, u"Usage: norvane-shop fetch CUSTOMER [BOX...]"_s},
    {{u"fly"_s}, 2, u"There is no command \"fly\""_s},
    {{u"report"_s, shopName, u"plusales"_s}, 2, u"--pdf, --csv or --xlsx"_s},
    {{u"report"_s, shopName, u"pluprice"_s, u"--period"_s, u"week"_s, u"--csv"_s, u"x"_s},
     2,
     u"no period \"week\""_s},
    {{u"fetch"_s, u"nowhere"_s}, 3, u"Customer \"nowhere\" was not found"_s},
    {{u"fetch"_s, u".."_s}, 3, u"Customer \"..\" was not found"_s},
    {{u"send"_s, shopName, u"plu s"_s}, 4, u"\"plu s\" may be: PLU Status Group, PLU Stock."_s},
    {{u"report"_s, shopName, u"none"_s, u"--csv"_s, u"x"_s}, 4, u"There is no report \"none\""_s},
    {{u"restore"_s, shopName, u"2026"_s}, 4, u"There is no copy \"2026\"."_s},
    {{u"report"_s, shopName, u"pluprice"_s, u"--csv"_s, u"none/x.csv"_s}, 7, u"x.csv could not be written"_s},
};

TEST_P(CommandLineOfOneShop, ShowsByItsExitCodeWhatWasRefused)
{
    for (const auto& [words, code, err] : refusals) {
        const Ended ended = run(words);
        EXPECT_EQ(ended.code, code) << words.join(u' ').toStdString();
        EXPECT_TRUE(ended.err.contains(err)) << ended.err.toStdString();
    }
    EXPECT_FALSE(pathExists(joinPath(m_shop.folder().appPath(), u"nowhere"_s)));
}

TEST_P(CommandLineOfOneShop, ShowsByItsExitCodeWhatStoppedARun)
{
    m_shop.folder().setFaults("[Off]\nCommand=open\nResult=8\n");
    m_shop.folder().precede("VELMARCOMM", "printf '\\033[1mopening \\377\\n'");
    const Ended stopped = run({u"fetch"_s, shopName, u"1"_s});
    EXPECT_EQ(stopped.code, 6);
    EXPECT_TRUE(stopped.err.contains(u"Communications Error"_s)) << stopped.err.toStdString();
    EXPECT_EQ(stopped.err.count(u"opening ÿ\nVELMARCOMM: fault file: result 8"_s), 1) << "said once";
    EXPECT_EQ(stopped.out, QString()) << "left to the command";
    const auto told = QJsonDocument::fromJson(run({u"fetch"_s, shopName, u"1"_s, u"--json"_s}).out.toUtf8());
    EXPECT_EQ(told[0][u"code"_s].toInt(), 8);
    EXPECT_TRUE(told[0][u"meaning"_s].toString().contains(u"a register did not answer"_s));
    EXPECT_TRUE(told[0][u"toolWords"_s].toString().startsWith(u"opening ÿ\nVELMARCOMM"_s));
    EXPECT_TRUE(run({u"customers"_s, u"--json"_s}).out.contains(u"\"lastExchange\": null"_s));
    m_shop.folder().setFaults({});
    auto lock = FolderLock::take(m_shop.values().customerPath, m_shop.boxes());
    EXPECT_EQ(run({u"collect"_s, shopName}).code, 5);
    lock.reset();
    EXPECT_EQ(run({u"collect"_s, shopName}).code, 0) << "the lock went with its owner";
}

/// The tool hangs; it is ended with the run.
TEST_P(CommandLineOfOneShop, IsStoppedByASignalWithALineInTheLogAndNoLock)
{
    ring();
    const struct {
        QStringList words;
        QByteArray fault;
        QString logged;
        QString said;
    } runs[] = {
        {{u"fetch"_s, shopName, u"plu"_s, u"group"_s},
         "fetch\nFile=67",
         u"upload\tregister 1\tstopped at file 67: stopped by a signal; still to do: PLU, Group"_s,
         u"Stopped by SIGTERM."_s},
        {{u"collect"_s, shopName},
         "clear",
         u"stopped at Clear Data at ECR: stopped by a signal; the sales are stored; still to do: clear"_s,
         u"\"collect --clear-first\" clears them"_s},
    };
    for (const auto& [words, fault, logged, said] : runs) {
        m_shop.folder().setFaults("[Slow]\nHang=60\nCommand=" + fault + '\n');
        QProcess command;
        command.start(QString::fromUtf8(COMMAND),
                      words + QStringList{u"--folder"_s, m_shop.folder().appPath()});
        EXPECT_TRUE(QTest::qWaitFor(
            [this] { return pathExists(joinPath(m_shop.folder().bankPath(), u"faults.log"_s)); }, 30000));
        command.terminate();
        EXPECT_TRUE(command.waitForFinished(20000));
        EXPECT_EQ(command.exitCode(), 143);
        const QString err = QString::fromLocal8Bit(command.readAllStandardError());
        EXPECT_TRUE(err.contains(said)) << err.toStdString();
        const QByteArray log = readWholeFile(joinPath(m_shop.values().customerPath, u"norvane.log"_s));
        EXPECT_TRUE(log.contains(logged.toUtf8())) << log.toStdString();
        for (const QString& folder : {m_shop.values().customerPath, m_shop.folder().appPath()})
            EXPECT_FALSE(pathExists(joinPath(folder, u"norvane.lock"_s)));
    }
}

/// A table that has more than the register sends, and PLUs whose points were not fetched.
TEST_P(CommandLineOfOneShop, AnswersAQuestionBeforeALossByItsOption)
{
    const auto expectAnswers = [this](const QStringList& words, const QString& option) {
        const Ended no = run(words);
        EXPECT_EQ(no.code, 6) << no.err.toStdString();
        EXPECT_TRUE(no.err.contains(u"Answered No. To answer Yes, add %1."_s.arg(option)))
            << no.err.toStdString();
        const Ended yes = run(words + QStringList{option});
        EXPECT_EQ(yes.code, 0) << yes.err.toStdString();
    };
    expectDone({u"fetch"_s, shopName, u"plu"_s});
    const qint64 plus = m_shop.rowsOf("PLUDATA");
    for (const char* const prefix : {"a", "b"}) {
        m_shop.execute(QByteArray("insert into PLUDATA (PLUNUMBER) select '")
                           .append(prefix)
                           .append("' & PLUNUMBER from PLUDATA"));
    }
    expectAnswers({u"fetch"_s, shopName, u"plu"_s}, u"--accept-fewer"_s);
    EXPECT_EQ(m_shop.rowsOf("PLUDATA"), plus);

    m_shop.folder().setFaults("[Off]\nCommand=fetch\nFile=71\nResult=8\n");
    EXPECT_EQ(run({u"fetch"_s, shopName, u"plu"_s}).code, 6);
    m_shop.folder().setFaults({});
    expectAnswers({u"send"_s, shopName, u"plu"_s}, u"--overwrite-points"_s);
}

TEST_P(CommandLineOfOneShop, ChecksWhatIsInTheFolders)
{
    EXPECT_EQ(run({u"check"_s, shopName}).code, 0);
    writeWholeFile(joinPath(m_shop.values().customerPath, u"setup.ini"_s),
                   "[SetupOption]\r\nECRModel= 9\r\n");
    const Ended check = run({u"check"_s, shopName});
    EXPECT_EQ(check.code, 8);
    EXPECT_TRUE(check.out.contains(u"there is no entry 9 in the list"_s)) << check.out.toStdString();
}

TEST_P(CommandLineOfOneShop, ListsReportsAndRestoresCopies)
{
    const QString shop = u"corner shop"_s;
    expectDone({u"fetch"_s, shop, u"plu"_s});
    ring();
    expectDone({u"collect"_s, shop});
    const QString list = run({u"customers"_s, u"--json"_s}).out;
    const QString today = QDate::currentDate().toString(Qt::ISODate);
    EXPECT_TRUE(list.contains(u"\"lastSales\": \"%1\""_s.arg(today))) << list.toStdString();
    EXPECT_TRUE(list.contains(u"\"lastExchange\": \"%1T"_s.arg(today))) << list.toStdString();

    expectDone({u"fetch"_s, shop, u"plu"_s});
    const QString copy = run({u"copies"_s, shop}).out.section(u'\n', 1, 1).section(u"  "_s, 0, 0);
    const std::string fetched = test::rowsOf(m_shop.values().databasePath, u"pludata"_s);
    m_shop.execute("update pludata set price1='0.01'");
    expectDone({u"restore"_s, shop, copy});
    EXPECT_TRUE(test::rowsOf(m_shop.values().databasePath, u"pludata"_s) == fetched);
    EXPECT_GT(m_shop.rowsOf("PLUSALES"), 0) << "sales remain";
}

/// A price run with a wrong rate, then a disk that fails, then a second folder of that name.
TEST_P(CommandLineOfOneShop, RepairsAFailedEvening)
{
    expectDone({u"fetch"_s, shopName, u"plu"_s});
    const QString database = m_shop.values().databasePath;
    const std::string before = test::rowsOf(database, u"pludata"_s);
    m_shop.boxes().answers = {true};
    m_shop.boxes().typed = {u"136"_s};
    m_shop.choose("Transfer1to2");
    EXPECT_FALSE(test::rowsOf(database, u"pludata"_s) == before);
    const QString copy = run({u"copies"_s, shopName}).out.section(u'\n', 1, 1).section(u"  "_s, 0, 0);
    EXPECT_TRUE(copy.endsWith(u"before price run"_s)) << copy.toStdString();
    expectDone({u"restore"_s, shopName, copy});
    EXPECT_TRUE(test::rowsOf(database, u"pludata"_s) == before) << "every field of every PLU";

    ASSERT_TRUE(QFile::resize(database, 50000));
    for (const char* const verb : {"check", "collect", "fetch"})
        EXPECT_EQ(run({QString::fromLatin1(verb), shopName}).code, 8) << verb;
    const Ended restored = run({u"restore"_s, u"corner SHOP"_s, copy});
    EXPECT_EQ(restored.code, 0);
    EXPECT_TRUE(restored.err.contains(u"kept as velmar.damaged-"_s)) << restored.err.toStdString();
    EXPECT_TRUE(test::rowsOf(database, u"pludata"_s) == before);

    (void)m_shop.folder().makeCustomer(u"CORNER SHOP"_s);
    EXPECT_EQ(run({u"check"_s, u"corner shop"_s}).code, 4) << "which of them?";
    EXPECT_EQ(run({u"check"_s, shopName}).code, 0);
}

INSTANTIATE_TEST_SUITE_P(OneModel, CommandLineOfOneShop, testing::Values(2));

} // namespace
} // namespace norvane
