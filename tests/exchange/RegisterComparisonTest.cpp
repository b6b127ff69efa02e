// Customers compared with the registers of a bank by the real tools: what is listed, what is taken over, and
// that nothing else changes anywhere.
#include "exchange/RegisterComparison.h"

#include "base/CustomerSettings.h"
#include "customers/CustomerLog.h"
#include "platform/ProfileFile.h"
#include "store/engine/WorkHistory.h"
#include "tests/exchange/Exchange.h"
#include "tests/exchange/TemporaryPlace.h"

#include <QDirIterator>

namespace norvane::exchange
{
namespace
{

constexpr const char* programme =
    "select PLUNUMBER, PRICE1, POINT1 from PLUDATA where PLUNUMBER < '000000000000001004' "
    "union all select storenumber, notax, taxrate from TAXRATES, smode where TAXRATES.ID=2";

/// A customer and its register after an upload.
class UploadedShop
{
public:
    explicit UploadedShop(int model, const std::set<int>& wanted = allBoxes())
        : folder(model), values(folder.makeCustomer(u"Corner Shop"_s)), m_link(link::readLinkSettings(values))
    {
        Ticks ticks;
        ticks.ticked = wanted;
        EXPECT_TRUE(ExchangeRunner(values, m_link, ticks, outside({})).UploadData());
    }
    void send(const QList<int>& wanted)
    {
        Ticks ticks;
        ticks.ticked = {wanted.begin(), wanted.end()};
        EXPECT_TRUE(ExchangeRunner(values, m_link, ticks, outside({})).downloaddata());
    }

    /// The comparison of @p boxesToCompare; of all boxes if none is named.
    [[nodiscard]] RegisterComparison compare(const QList<int>& boxesToCompare = {})
    {
        auto scratch = std::make_unique<ScratchShop>(values);
        const auto all = allBoxes();
        RegisterFetch fetch(values, m_link, *scratch, outside(scratch->folder()));
        FetchedFiles fetched =
            fetch.fetch(boxesToCompare.isEmpty() ? QList<int>(all.begin(), all.end()) : boxesToCompare);
        return {values, std::move(scratch), std::move(fetched)};
    }
    static std::string listed(const RegisterComparison& comparison)
    {
        QStringList lines;
        comparison.forEach([&](const ComparedLine& line) {
            lines << u"%1 %2 %3: %4|%5|%6%7"_s.arg(line.table, line.record, line.field, line.here, line.there,
                                                   line.isOneWay ? u"*"_s : QString(), line.remark);
            return true;
        });
        return lines.join(u'\n').toStdString();
    }
    [[nodiscard]] std::string listed(const QList<int>& boxesToCompare = {})
    {
        return listed(compare(boxesToCompare));
    }
    void edit(const char* sql) const { store::Database(values.databasePath).execute(QLatin1StringView(sql)); }
    [[nodiscard]] std::string rows(const char* sql) const
    {
        return test::rowsOf(values.databasePath, QLatin1StringView(sql));
    }
    /// Every file around the program and the registers with its contents.
    [[nodiscard]] QMap<QString, QByteArray> everyFile() const
    {
        QMap<QString, QByteArray> files;
        for (const QString& top : {folder.appPath(), folder.bankPath()}) {
            for (QDirIterator walk(top, QDir::Files, QDirIterator::Subdirectories); walk.hasNext();) {
                const QString path = walk.next();
                files.insert(path, readWholeFile(path));
            }
        }
        return files;
    }

    test::ProgramFolder folder;
    test::TemporaryPlace place;
    ApplicationValues values;
    test::RecordingBoxes boxes;
    QStringList lines; ///< of the tools
    std::function<void(const QString& folder)> afterTool;
    std::function<bool()> goOn = [] {
        return true;
    };

private:
    [[nodiscard]] link::RunOutside outside(const QString& workingFolder)
    {
        return {.runAndWait =
                    [this, workingFolder](const QString& line) {
                        lines << line;
                        const ChildResult result = link::RunAndWait(values, line, {}, workingFolder);
                        if (afterTool)
                            afterTool(workingFolder);
                        return result;
                    },
                .readStatus = [workingFolder] { return link::readStatusOutIn(workingFolder); },
                .showStep = [](const QString&) {},
                .showNotice = [](const QString&) {},
                .goOn = [this] { return goOn(); },
                .boxes = boxes};
    }

    link::LinkSettings m_link;
};

class RegisterComparisonTest : public testing::TestWithParam<int>
{
};
INSTANTIATE_TEST_SUITE_P(Models, RegisterComparisonTest, testing::Range(0, 4));

constexpr const char* edits[] = {
    "update PLUDATA set PRICE1='99.90', POINT1=7 where PLUNUMBER='000000000000001001'",
    "delete from PLUDATA where PLUNUMBER='000000000000001002'",
    "update GROUPS set DESCRIPTION='OTHER' where GROUPNO=3",
    "update FUNCTIONKEY set DESCRIPTION='MINE' where id=257",
    "update TAXRATES set notax=77 where ID=2",
};

/// Newer firmware gets no texts of the card keys.
std::string listedEdits(bool isNewerFirmware)
{
    const std::string arrival = isNewerFirmware ? "a send would empty it" : "";
    return "PLUDATA 1001 PRICE1: 99.90|2.00|\n"
           "PLUDATA 1002 : |Double Espresso|only at the register\n"
           "GROUPS 3 DESCRIPTION: OTHER|Beer & Cider|\n"
           "FUNCTIONKEY 257 DESCRIPTION: MINE|CASH W/DRAW|" +
           arrival + "\nTAXRATES 2 notax: 77|0|*sent, and returned as first";
}

TEST_P(RegisterComparisonTest, ListsNothingAfterAnUploadThenWhatWasEditedThenWhatASendCouldNotChange)
{
    UploadedShop shop(GetParam());
    const auto before = shop.everyFile();
    shop.lines.clear();
    {
        const ScratchShop inUse(shop.values);
        EXPECT_EQ(shop.listed(), "");
        EXPECT_EQ(shop.place.scratchFolders(), QStringList{QFileInfo(inUse.folder()).fileName()});
    }
    EXPECT_EQ(shop.place.scratchFolders(), QStringList());
    EXPECT_EQ(shop.everyFile(), before) << "neither here nor at the register";
    EXPECT_TRUE(shop.lines.contains(u"VELMARCOMM s9 c1  N67.DAT -U 67"_s));

    for (const char* sql : edits)
        shop.edit(sql);
    const QList<int> edited{0, 2, 3, 5};
    EXPECT_EQ(shop.listed(edited), listedEdits(GetParam() >= 2));
    shop.send(edited);
    shop.compare(edited).forEach([](const ComparedLine& line) {
        EXPECT_TRUE(line.isOneWay) << line.table.toStdString() << ' ' << line.field.toStdString();
        return true;
    });
}

TEST(RegisterComparisonOf, TakesOverRecordsExceptWhatTravelsOneWay)
{
    UploadedShop shop(2, {0, 4, 5});
    const std::string uploaded = shop.rows(programme);
    for (const char* sql : {edits[0], edits[1], "update TAXRATES set notax=77, taxrate=9 where ID=2",
                            "update smode set storenumber=4711"})
        shop.edit(sql);
    const std::string edited = shop.rows(programme);
    store::WorkHistory history;
    const RegisterComparison comparison = shop.compare({0, 4, 5});
    const QString done =
        comparison.useRecords({{u"PLUDATA"_s, {u"000000000000001001"_s, u"000000000000001002"_s}},
                               {u"TAXRATES"_s, {u"2"_s}},
                               {u"smode"_s, {u"1"_s}}},
                              shop.boxes, &history);
    EXPECT_EQ(done, u"Used the register's values of 4 records"_s);
    EXPECT_EQ(shop.listed(comparison), "TAXRATES 2 notax: 77|0|*sent, and returned as first");
    EXPECT_EQ(customers::safetyCopies(shop.values.customerPath).size(), 2)
        << "the first is that of the upload";
    EXPECT_TRUE(customers::lastLogged(shop.values.customerPath, {u"values of register 1 for 4 records"_s}));

    EXPECT_EQ(shop.rows("select POINT1 from PLUDATA where PLUNUMBER='000000000000001001'"), "7");
    store::Database database(shop.values.databasePath);
    EXPECT_EQ(history.latest(shop.values.databasePath)->changes.takeBack(database), 4U);
    EXPECT_EQ(shop.rows(programme), edited);
    EXPECT_NE(edited, uploaded);
}

TEST(RegisterComparisonOf, ListsWhatCameBeforeAToolFailedAndNamesTheRest)
{
    UploadedShop shop(2, {1, 2, 4});
    shop.edit("update GROUPS set DESCRIPTION='OTHER' where GROUPNO=3");
    shop.edit("delete from GENERALFUNCTIONS");
    shop.folder.setFaults("[Off]\nCommand=fetch\nFile=4\nResult=8\n");
    const RegisterComparison comparison = shop.compare({2, 4, 1});
    EXPECT_EQ(shop.listed(comparison), "GROUPS 3 DESCRIPTION: OTHER|Beer & Cider|\n"
                                       "GENERALFUNCTIONS 1 : ||only at the register");
    EXPECT_EQ(comparison.notes().join(u'\n').toStdString(),
              "Stopped at file 4: result 8: Time Out.\nNot compared, or only in part: All System Options.");
}

TEST(RegisterComparisonOf, EndsWithAReasonAndLeavesNoFolder)
{
    UploadedShop shop(2, {2});
    const auto stopped = [&shop](const char* fault) {
        shop.folder.setFaults(QByteArray("[Fault]\n") + fault);
        return shop.compare({2}).fetched().stopped.toStdString();
    };
    const std::string noText =
        "file 1: the program convert wrote no 1.txt. Perhaps the register is of another "
        "model than Setup says";
    EXPECT_EQ(stopped("Command=fetch\nFile=1\nCrash=1\n"), "file 1: the program VELMARCOMM crashed");
    EXPECT_EQ(stopped("Command=fetch\nFile=1\nBytesLeft=20\n"), noText);
    shop.afterTool = [](const QString& folder) {
        writeWholeFile(joinPath(folder, u"1.txt"_s), QByteArray(50, 'x'));
    };
    EXPECT_EQ(stopped(""),
              "file 1: 1.txt, line 1, column 1: The text is too long. Field DESCRIPTION of table "
              "GROUPS holds 12 characters, not \"" +
                  std::string(50, 'x') + "\"");
    shop.afterTool = {};
    EXPECT_EQ(stopped("Command=fetch\nFile=1\nStatus=none\n"),
              "file 1: the program VELMARCOMM wrote no status.out");
    ProfileFile::write(settingsPath(shop.values), u"SetupOption"_s, "ECRModel"_L1, u"3"_s);
    EXPECT_EQ(stopped(""),
              "the opening exchange: the program convert wrote no 52.txt. Perhaps the register is of "
              "another model than Setup says");
    EXPECT_EQ(shop.place.scratchFolders(), QStringList());
    EXPECT_TRUE(shop.boxes.shown.empty());
    const test::TemporaryPlace nowhere(u"/dev/null/nowhere"_s);
    EXPECT_EQ(test::failureOf([&] { (void)shop.compare({2}); }), 75);
}

TEST(RegisterComparisonOf, NamesOtherFirmwareAndFilesThatWereNeverUploaded)
{
    UploadedShop shop(2, {12});
    writeWholeFile(joinPath(shop.values.customerPath, u"MEM.dat"_s), QByteArray(70, '0'));
    writeWholeFile(joinPath(shop.values.customerPath, u"61.dat"_s), "other");
    const RegisterComparison comparison = shop.compare({12, 16});
    EXPECT_EQ(comparison.notes().join(u'\n').toStdString(),
              "The register has firmware of generation 3, the one of the last upload had 2.");
    writeWholeFile(joinPath(shop.values.customerPath, u"MEM.dat"_s), "");
    EXPECT_EQ(shop.compare({12}).notes(), QStringList()) << "not known";
    const QString listed = QString::fromStdString(shop.listed(comparison));
    EXPECT_TRUE(listed.startsWith(" Ingredient Inventory, file 61 : 5 bytes of "_L1));
    EXPECT_TRUE(listed.endsWith(
        "|2096 bytes|other contents\n Custom Report, file 41 : no copy|1456 bytes|never uploaded"_L1))
        << listed.toStdString();
}

} // namespace
} // namespace norvane::exchange
