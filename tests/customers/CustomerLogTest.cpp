// The log of a customer as its dealer reads it.
#include "customers/CustomerLog.h"

#include "tests/platform/TestFolder.h"

#include <QRegularExpression>

namespace norvane::customers
{
namespace
{

TEST(CustomerLog, HasALineForEachJobAlsoForOneThatFailed)
{
    const test::TestFolder folder;
    {
        LoggedWork upload(folder.path(), u"upload"_s, u"register 1"_s);
        upload.setResult(u"stopped.\rStill to do:\tPLU"_s);
    }
    try {
        const LoggedWork run(folder.path(), u"price run"_s);
        throw std::runtime_error("the disk is full");
    } catch (const std::runtime_error&) {
    }
    qint64 waited = 5000;
    const int failure = test::failureOf([&] {
        LoggedWork restore(folder.path(), u"restore"_s, {}, [&] { return std::exchange(waited, 0); });
        restore.during([] { throw RuntimeFailure(Failure::DiskFull, u"The disk\ris full."_s); });
    });
    EXPECT_EQ(failure, 61);
    const QString text = QString::fromUtf8(folder.read("norvane.log"));
    const QRegularExpression lines(u"^\\d{4}-\\d\\d-\\d\\d \\d\\d:\\d\\d:\\d\\d\tupload\tregister "
                                   u"1\tstopped. Still to do: PLU\t0.\\d s\n"
                                   "[-0-9]+ [0-9:]+\tprice run\t\tended by a failure\t0.\\d s\n"
                                   "[-0-9]+ [0-9:]+\trestore\t\tended by failure 61: The disk is full\t"
                                   "5.\\d s\n$"_s);
    EXPECT_TRUE(lines.match(text).hasMatch()) << text.toStdString();
    EXPECT_EQ(lastLogged(folder.path(), {u"upload"_s, u"download"_s})->result,
              u"stopped. Still to do: PLU"_s);
    EXPECT_FALSE(lastLogged(folder.path(), {u"upload"_s}, completeResult));
}

TEST(CustomerLog, TellsWhatWentWrongAndWasNotRepeated)
{
    const test::TestFolder folder;
    EXPECT_TRUE(openTroubles(folder.path(), {}).isEmpty()) << "without a log";
    const QByteArray old = "2026-11-20 08:00:00\tdownload\t\tstopped\t0.1 s\n";
    folder.write("norvane.log", old.repeated(1000) +
                                    "2026-11-25 13:00:00\tcollection\t\tstopped; nothing stored\t0.1 s\n"
                                    "2026-11-25 13:01:00\tupload\t\tcomplete\t0.1 s\n"
                                    "2026-11-25 14:00:00\tcollection\t\tcomplete\t0.1 s\n"
                                    "2026-11-25 15:00:00\tpublication\t\t2 days, 9 rows\t0.1 s\n"
                                    "2026-11-25 16:00:00\trestore\t\tended by a failure\t0.1 s\n"
                                    "2026-11-25 17:00:00\tupload\t\tThe disk is full\t0.1 s\n");
    const auto open = [&](QDate day) {
        QStringList works;
        for (const LogLine& line : openTroubles(folder.path(), day.startOfDay()))
            works << line.work;
        return works.join(u' ').toStdString();
    };
    EXPECT_EQ(open(QDate(2026, 11, 25)), "restore upload");
    EXPECT_EQ(open(QDate(2026, 11, 19)), "download restore upload") << "beyond the last lines";
}

TEST(CustomerLog, LosesItsOlderHalfBeyondAMegabyte)
{
    const test::TestFolder folder;
    folder.write("norvane.log", "the oldest\n" + QByteArray("an old line\n").repeated(90'000));
    writeLog(folder.path(), {QDateTime::currentDateTime(), u"collection"_s, {}, u"stored"_s, 900});
    const QByteArray log = folder.read("norvane.log");
    EXPECT_LT(log.size(), 600'000);
    EXPECT_GT(log.size(), 500'000);
    EXPECT_TRUE(log.startsWith("an old line\n"));
    EXPECT_TRUE(log.endsWith("\tcollection\t\tstored\t0.9 s\n"));
    folder.write("norvane.log", log.last(100) + QByteArray("a later line\n").repeated(20'000));
    EXPECT_TRUE(lastLogged(folder.path(), {u"collection"_s})) << "however long ago it was";
}

} // namespace
} // namespace norvane::customers
