// Safety copies: when one is made, what it restores, and what happens if there is no room.
#include "customers/SafetyCopies.h"

#include "customers/CustomerLog.h"
#include "platform/FilePaths.h"
#include "store/catalogue/DatabaseCheck.h"
#include "store/engine/Recordset.h"
#include "tests/platform/FullDisk.h"
#include "tests/shell/ShellFixture.h"

#include <functional>

namespace norvane::customers
{
namespace
{

class SafetyCopiesTest : public shell::ShellFixture
{
protected:
    SafetyCopiesTest()
    {
        makeCustomerDatabase();
        m_folder.write("app/Cafe/73.dat", "logo");
    }
    void setPlu(const char* number) const
    {
        execute(u"delete from pludata"_s);
        execute(u"insert into pludata (plunumber) values ('%1')"_s.arg(QLatin1StringView(number)));
    }
    void sell() const
    {
        execute(u"insert into plusales values ('1', '2026-11-25', 1, 1, 1, 1, 1, 1, 1, 1, 1, 1, 1, 1)"_s);
    }
    [[nodiscard]] std::string plu() const
    {
        return test::columnOf(m_values.databasePath, "pludata", "plunumber");
    }
    [[nodiscard]] QStringList names() const
    {
        QStringList names;
        for (const auto& copy : safetyCopies(m_values.customerPath))
            names << copy.name;
        return names;
    }
};

TEST_F(SafetyCopiesTest, ARestoreRestoresTablesSettingsAndFilesAndCanBeUndone)
{
    setPlu("1");
    const auto copy = makeSafetyCopy(m_values.customerPath, u"before upload"_s, store::CopyOf::Programme,
                                     QDateTime({2026, 11, 25}, {18, 30, 12}));
    EXPECT_EQ(copy.name, u"2026-11-25 18.30.12 before upload"_s);
    setPlu("2");
    setModel("3");
    m_folder.write("app/Cafe/73.dat", "");
    m_folder.write("app/Cafe/exchange.ini", "[Collection]\r\nStored=today\r\n");
    writeWholeFile(joinPath(copy.path, u"exchange.ini"_s), "[Collection]\r\nStored=yesterday\r\n");
    restoreSafetyCopy(m_values.customerPath, copy);
    EXPECT_TRUE(m_folder.read("app/Cafe/exchange.ini").contains("today")) << "what the registers did is kept";
    EXPECT_EQ(plu(), "1");
    EXPECT_TRUE(m_folder.read("app/Cafe/setup.ini").contains("ECRModel= 0"));
    EXPECT_EQ(m_folder.read("app/Cafe/73.dat"), "logo");
    EXPECT_EQ(lastLogged(m_values.customerPath, {u"restore"_s})->result, u"restored "_s + copy.name);
    const auto copies = safetyCopies(m_values.customerPath);
    ASSERT_EQ(copies.size(), 2);
    const auto& undo = copies.front().reason == u"before restore"_s ? copies.front() : copies.back();
    restoreSafetyCopy(m_values.customerPath, undo);
    EXPECT_EQ(plu(), "2");
}

TEST_F(SafetyCopiesTest, TheLastTenAndThoseOfAWeekAreKept)
{
    const QDateTime today({2026, 11, 25}, {12, 0});
    for (int day = 20; day >= 6; --day)
        makeSafetyCopy(m_values.customerPath, u"x"_s, store::CopyOf::Programme, today.addDays(-day));
    EXPECT_EQ(names().size(), 10);
    EXPECT_EQ(names().back(), u"2026-11-10 12.00.00 x"_s);
    for (int hour = 0; hour < 12; ++hour)
        makeSafetyCopy(m_values.customerPath, u"x"_s, store::CopyOf::Programme, today.addSecs(hour));
    EXPECT_EQ(names().size(), 14) << "twelve of today and the two of the last seven days";
    EXPECT_EQ(names().back(), u"2026-11-18 12.00.00 x"_s);
    makeSafetyCopy(m_values.customerPath, u"w"_s, store::CopyOf::Programme, today.addSecs(11));
    EXPECT_EQ(names().front(), u"2026-11-25 12.00.11 w"_s)
        << "of two within one second the later one is first";
}

TEST_F(SafetyCopiesTest, OnAFullDiskNothingIsLeftAndTheJobDoesNotStart)
{
    {
        const test::FullDisk disk(8192);
        EXPECT_FALSE(copyBeforeJob(m_values, m_boxes, u"before upload"_s));
    }
    ASSERT_EQ(m_boxes.shown.size(), 1U);
    EXPECT_TRUE(m_boxes.shown[0].text.startsWith(u"No safety copy could be made, so nothing was started."_s));
    EXPECT_EQ(QDir(m_folder.path("app/Cafe/copies")).entryList(QDir::AllEntries | QDir::NoDotAndDotDot),
              QStringList());
    EXPECT_TRUE(copyBeforeJob(m_values, m_boxes, u"before upload"_s));
}

/// The database as a failing disk leaves it, by the change of its bytes, and whether its sales can still be
/// read.
const struct {
    const char* what;
    std::function<void(QByteArray&)> spoil;
    bool keepsSales;
} damages[] = {
    {"cut off", [](QByteArray& bytes) { bytes.chop(100); }, true},
    {"the first page gone", [](QByteArray& bytes) { bytes.replace(0, 4096, QByteArray(4096, '\0')); }, false},
    {"empty", [](QByteArray& bytes) { bytes.clear(); }, false},
};

TEST_F(SafetyCopiesTest, ARestoreKeepsADamagedDatabaseAndTakesOverItsSales)
{
    for (const auto& [what, spoil, keepsSales] : damages) {
        SCOPED_TRACE(what);
        makeCustomerDatabase();
        setPlu("1");
        const auto copy = makeSafetyCopy(m_values.customerPath, u"x"_s, store::CopyOf::Programme);
        setPlu("2");
        sell();
        QByteArray bytes = m_folder.read("app/Cafe/velmar.mdb");
        spoil(bytes);
        m_folder.write("app/Cafe/velmar.mdb", bytes);
        const QString message = restoreSafetyCopy(m_values.customerPath, copy);
        EXPECT_EQ(plu(), "1");
        EXPECT_EQ(test::columnOf(m_values.databasePath, "plusales", "id"), keepsSales ? "1" : "");
        EXPECT_EQ(message.contains(u"PLUSALES"_s), !keepsSales) << message.toStdString();
        const QString aside = message.section(u"kept as "_s, 1).section(u'\r', 0, 0).chopped(1);
        EXPECT_EQ(readWholeFile(joinPath(m_values.customerPath, aside)), bytes) << message.toStdString();
        EXPECT_EQ(store::damageOf(m_values.databasePath), QString());
    }
}

TEST_F(SafetyCopiesTest, LinksAmongTheCopiesAreNotFollowed)
{
    setPlu("1");
    m_folder.write("elsewhere/setup.ini", "theirs");
    const QString elsewhere = m_folder.path("elsewhere");
    const QString copies = joinPath(m_values.customerPath, u"copies"_s);
    ASSERT_TRUE(QDir().mkpath(copies));
    ASSERT_TRUE(QFile::link(elsewhere, copies + u"/unfinished"_s));
    ASSERT_TRUE(QFile::link(elsewhere, copies + u"/2001-01-01 10.00.00 old"_s));
    const auto copy = makeSafetyCopy(m_values.customerPath, u"x"_s, store::CopyOf::Everything);
    EXPECT_EQ(names(), QStringList(copy.name));

    const QByteArray mine = m_folder.read("app/Cafe/setup.ini");
    const auto replaceByLink = [&](const QString& name) {
        const QString path = copy.path + u'/' + name;
        return QFile::remove(path) && QFile::link(elsewhere + u"/setup.ini"_s, path);
    };
    ASSERT_TRUE(replaceByLink(u"setup.ini"_s));
    restoreSafetyCopy(m_values.customerPath, copy);
    EXPECT_EQ(m_folder.read("app/Cafe/setup.ini"), mine);
    ASSERT_TRUE(replaceByLink(u"velmar.mdb"_s));
    EXPECT_EQ(test::failureOf([&] { restoreSafetyCopy(m_values.customerPath, copy); }), 3343);
    EXPECT_EQ(m_folder.read("elsewhere/setup.ini"), "theirs");
}

TEST_F(SafetyCopiesTest, ADamagedCopyIsRefusedBeforeAnythingChanges)
{
    setPlu("1");
    const auto copy = makeSafetyCopy(m_values.customerPath, u"x"_s, store::CopyOf::Everything);
    QFile file(copy.path + u"/velmar.mdb"_s);
    ASSERT_TRUE(file.resize(file.size() - 100));
    setPlu("2");
    EXPECT_EQ(test::failureOf([&] { restoreSafetyCopy(m_values.customerPath, copy); }), 3343);
    EXPECT_EQ(plu(), "2");
    EXPECT_EQ(names().size(), 1);
}

} // namespace
} // namespace norvane::customers
