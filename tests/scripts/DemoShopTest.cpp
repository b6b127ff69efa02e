// The customer to look at, made for a few days with the real tools.
#include "platform/FilePaths.h"
#include "tests/store/Rows.h"
#include "tests/support/ProgramFolder.h"

#include <QProcess>

namespace norvane
{
namespace
{

class DemoShopTest : public testing::Test
{
protected:
    /// Makes the shop with the sales of four days and Christmas Day.
    int make()
    {
        return QProcess::execute(QStringLiteral(DEMO_SHOP),
                                 {folder.appPath(), u"--tools"_s, QStringLiteral(TOOLS_FOLDER),
                                  u"--scratch"_s, scratch.path(), u"--first"_s, u"2025-12-24"_s, u"--last"_s,
                                  u"2025-12-28"_s});
    }
    [[nodiscard]] QStringList column(const QString& sql) const
    {
        return QString::fromStdString(test::rowsOf(database, sql)).split(u' ');
    }

    test::ProgramFolder folder{2, 3};
    test::TestFolder scratch;
    const QString database = folder.appFile(u"DEMO CAFE/velmar.mdb"_s);
};

TEST_F(DemoShopTest, HasTheProgrammeOfTheBankAndStoredDaysThatAddUp)
{
    ASSERT_EQ(make(), 0);
    EXPECT_GT(column(u"select PLUNUMBER from PLUDATA"_s).size(), 300);
    EXPECT_EQ(column(u"select distinct SALESDATE from PLUSALES order by SALESDATE"_s),
              column(u"select distinct SALESDATE from CLERKSALES order by SALESDATE"_s));
    const QString value = u"select round(sum(%1), 2) from %2 group by SALESDATE order by SALESDATE"_s;
    const QStringList takings = column(value.arg(u"VALUE1 + VALUE2 + VALUE3 + VALUE4"_s, u"PLUSALES"_s));
    ASSERT_EQ(takings.size(), 4) << "closed on Christmas Day";
    EXPECT_EQ(takings, column(value.arg(u"VALUE"_s, u"TIMESALES"_s)));
    EXPECT_GT(takings.at(2).toDouble(), takings.at(0).toDouble()) << "Saturday and Wednesday";
    EXPECT_EQ(scratch.names(), QStringList()) << "nothing is left behind";
    const auto made = QFileInfo(database).lastModified();
    EXPECT_EQ(make(), 0);
    EXPECT_EQ(QFileInfo(database).lastModified(), made) << "made once";
}

TEST_F(DemoShopTest, IsRemovedWhenMakingItFailed)
{
    folder.setFaults("[Off]\nCommand=fetch\nFile=67\nResult=8\n");
    EXPECT_EQ(make(), 1);
    EXPECT_FALSE(pathExists(folder.appFile(u"DEMO CAFE"_s)));
    EXPECT_EQ(scratch.names(), QStringList());
}

} // namespace
} // namespace norvane
