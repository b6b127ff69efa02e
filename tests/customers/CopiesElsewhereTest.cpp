// Copies elsewhere: what they hold, how they are checked and thinned, and the way back from one.
#include "customers/CopiesElsewhere.h"

#include "customers/CopyArchive.h"
#include "customers/SafetyCopies.h"
#include "platform/FilePaths.h"
#include "tests/platform/FullDisk.h"
#include "tests/shell/ShellFixture.h"

#include <QDir>

namespace norvane::customers
{
namespace
{

class CopiesElsewhereTest : public shell::ShellFixture
{
protected:
    CopiesElsewhereTest()
    {
        makeCustomerDatabase();
        execute(u"delete from pludata"_s);
        execute(u"insert into pludata (plunumber) values ('1')"_s);
        execute(u"insert into plusales values ('1', '2026-11-25', 1, 1, 1, 1, 1, 1, 1, 1, 1, 1, 1, 1)"_s);
        for (const char* const file : {"73.dat", "bar.Velmar", "planned/1 x.csv", "norvane-chain.ini"})
            write(file, file);
        for (const char* const leftOut : {"exchange.ini", "norvane.sent", "copies/x/velmar.mdb"})
            write(leftOut, leftOut);
        m_folder.write("elsewhere/note.txt", {});
    }
    void write(const char* name, const QByteArray& text) const
    {
        m_folder.write(("app/Cafe/" + QByteArray(name)).constData(), text);
    }
    [[nodiscard]] QString elsewhere() const { return m_folder.path("elsewhere"); }
    [[nodiscard]] CopyElsewhere copy(const QDateTime& now = QDateTime::currentDateTime()) const
    {
        return makeCopyElsewhere(m_values.customerPath, elsewhere(), now, goOn);
    }
    [[nodiscard]] QString fault(const QString& path) const
    {
        return faultOfCopy(path, m_folder.path(), goOn);
    }
    [[nodiscard]] static std::string plus(const QString& customer)
    {
        const QString database = joinPath(customer, u"velmar.mdb"_s);
        return test::columnOf(database, "pludata", "plunumber") + ' ' +
               test::columnOf(database, "plusales", "id");
    }
    [[nodiscard]] QString customer(const char* name) const
    {
        return m_folder.path(("app/" + QByteArray(name)).constData());
    }

    static inline const GoOn goOn = [] {
    };
};

TEST_F(CopiesElsewhereTest, ANewCustomerIsMadeFromACopyCompletely)
{
    const CopyElsewhere made = copy();
    EXPECT_EQ(fault(made.path), QString());
    EXPECT_EQ(QDir(elsewhere() + u"/Cafe"_s).entryList(QDir::AllEntries | QDir::NoDotAndDotDot).size(), 1)
        << "nothing but the copy";
    EXPECT_EQ(restoreCopyElsewhere(made.path, customer("Bistro"), goOn), QString());
    EXPECT_EQ(plus(customer("Bistro")), "1 1");
    EXPECT_EQ(readWholeFile(customer("Bistro/planned/1 x.csv")), "planned/1 x.csv");
    for (const char* const absent : {"Bistro/exchange.ini", "Bistro/norvane.sent", "Bistro/copies"})
        EXPECT_FALSE(pathExists(customer(absent))) << absent;
    EXPECT_FALSE(pathExists(customer("Bistro/norvane-chain.ini"))) << "it is another shop of the chain";
}

TEST_F(CopiesElsewhereTest, AnExistingCustomerIsRestoredAndCanBePutBack)
{
    const CopyElsewhere made = copy();
    execute(u"insert into pludata (plunumber) values ('2')"_s);
    execute(u"delete from plusales"_s);
    for (const char* const file : {"bar.Velmar", "planned/1 x.csv", "norvane-chain.ini", "exchange.ini"})
        write(file, "now");
    EXPECT_EQ(restoreCopyElsewhere(made.path, m_values.customerPath, goOn), QString());
    EXPECT_EQ(plus(m_values.customerPath), "1 1");
    EXPECT_EQ(m_folder.read("app/Cafe/bar.Velmar"), "bar.Velmar");
    for (const char* const kept : {"planned/1 x.csv", "norvane-chain.ini", "exchange.ini"})
        EXPECT_EQ(readWholeFile(joinPath(m_values.customerPath, QLatin1StringView(kept))), "now") << kept;
    const SafetyCopy before = safetyCopies(m_values.customerPath).front();
    EXPECT_EQ(before.reason, u"before restore"_s);
    EXPECT_EQ(readWholeFile(joinPath(before.path, u"bar.Velmar"_s)), "now");
    (void)restoreSafetyCopy(m_values.customerPath, before);
    EXPECT_EQ(plus(m_values.customerPath), "1|2 ");

    EXPECT_TRUE(QFile::remove(m_values.databasePath));
    EXPECT_EQ(restoreCopyElsewhere(made.path, m_values.customerPath, goOn), QString());
    EXPECT_EQ(plus(m_values.customerPath), "1 1");
}

/// Each byte of the copy matters: a part that is missing or changed is found before anything is made of it.
TEST_F(CopiesElsewhereTest, ADamagedCopyIsFoundAndRestoresNothing)
{
    const CopyElsewhere made = copy();
    const QByteArray sound = readWholeFile(made.path);
    const auto expectDamage = [&](const QByteArray& content, const char* what) {
        writeWholeFile(made.path, content);
        EXPECT_NE(fault(made.path), QString()) << what;
        EXPECT_THROW((void)restoreCopyElsewhere(made.path, customer("Bistro"), goOn), RuntimeFailure) << what;
        EXPECT_FALSE(pathExists(customer("Bistro"))) << what;
    };
    expectDamage({}, "empty");
    expectDamage(sound.chopped(30), "cut off");
    expectDamage(sound.first(sound.size() / 2), "half");
    for (const qsizetype place : {sound.size() / 10, sound.size() / 3, sound.size() / 2}) {
        QByteArray changed = sound;
        changed[place] = static_cast<char>(changed[place] ^ 1);
        expectDamage(changed, "a bit");
    }
    expectDamage(QByteArray(sound).replace("Cafe/73.dat", "../../3.dat"), "a way out");
    expectDamage(QByteArray(sound).replace("Cafe/73.dat", "Cafe/72.dat"), "another name");
    EXPECT_EQ(m_folder.names().filter(u".dat"_s), QStringList());
}

TEST_F(CopiesElsewhereTest, TheNewCopyIsKeptWhenTheClockWasSetBack)
{
    const auto atHour = [](int hour) {
        return QDateTime(QDate(2026, 10, 25), QTime(hour, 30));
    };
    const CopyElsewhere before = copy(atHour(23));
    const CopyElsewhere after = copy(atHour(22));
    EXPECT_TRUE(pathExists(before.path) && pathExists(after.path));
    (void)copy(atHour(23));
    EXPECT_EQ(copiesElsewhere(elsewhere(), u"Cafe"_s).size(), 1) << "then the rule holds again";
}

TEST_F(CopiesElsewhereTest, WithoutRoomOrDiskOrSoundDatabaseNothingIsLeft)
{
    EXPECT_THROW((void)makeCopyElsewhere(m_values.customerPath, m_folder.path("unplugged"),
                                         QDateTime::currentDateTime(), goOn),
                 RuntimeFailure);
    EXPECT_FALSE(pathExists(m_folder.path("unplugged")));
    for (const char* const inside : {"app", "app/Cafe", "app/Cafe/copies"}) {
        EXPECT_THROW((void)makeCopyElsewhere(m_values.customerPath, m_folder.path(inside),
                                             QDateTime::currentDateTime(), goOn),
                     RuntimeFailure)
            << inside;
    }
    {
        const test::FullDisk full(rlim_t{100} * 1024);
        EXPECT_THROW((void)copy(), RuntimeFailure);
    }
    int pieces = 0;
    EXPECT_THROW((void)makeCopyElsewhere(m_values.customerPath, elsewhere(), QDateTime::currentDateTime(),
                                         [&pieces] {
                                             if (++pieces == 3)
                                                 throw RuntimeFailure(Failure::UserInterrupt, u"stop"_s);
                                         }),
                 RuntimeFailure);
    EXPECT_EQ(copiesElsewhere(elsewhere(), u"Cafe"_s).size(), 0);
    EXPECT_EQ(QDir(elsewhere() + u"/Cafe"_s).entryList(QDir::AllEntries | QDir::NoDotAndDotDot),
              QStringList());
}

/// Two copies each day of two years: of the last days, weeks and months the latest remain.
TEST(CopyRule, KeepsTheLatestOfSevenDaysFourWeeksAndTwelveMonths)
{
    QList<CopyElsewhere> copies;
    for (QDate day(2025, 1, 1); day <= QDate(2026, 11, 26); day = day.addDays(1)) {
        for (const int hour : {5, 23}) {
            copies.prepend(
                {day.toString(Qt::ISODate) + u' ' + QString::number(hour), {day, QTime(hour, 30)}});
        }
    }
    QStringList kept;
    for (const auto& copy : copies)
        kept << copy.path;
    for (const auto& copy : surplusCopies(copies))
        kept.removeAll(copy.path);
    EXPECT_EQ(kept.replaceInStrings(u"2026-"_s, QString()).join(u','),
              u"11-26 23,11-25 23,11-24 23,11-23 23,11-22 23,11-21 23,11-20 23,11-15 23,11-08 23,10-31 23,"
              "09-30 23,08-31 23,07-31 23,06-30 23,05-31 23,04-30 23,03-31 23,02-28 23,01-31 23,2025-12-31 "
              "23"_s);
    EXPECT_EQ(surplusCopies(copies.first(2)).size(), 1);
    EXPECT_EQ(surplusCopies({}).size(), 0);
}

} // namespace
} // namespace norvane::customers
