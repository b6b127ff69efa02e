// Which screen file an entry opens for each register model, and the entries that need newer firmware.
#include "shell/ScreenChoice.h"

#include "platform/FilePaths.h"
#include "store/Recordset.h"
#include "tests/shell/ShellFixture.h"

using namespace Qt::Literals::StringLiterals;

namespace norvane::shell
{
namespace
{

using test::failureOf;

class ScreenChoiceTest : public ShellFixture
{
protected:
    [[nodiscard]] QString target(QLatin1StringView entry) const
    {
        return targetOf(*menuEntry(entry), m_values);
    }
    bool opens(QLatin1StringView entry) { return mayOpen(*menuEntry(entry), m_values, m_boxes); }
    void setMemoryFile(int length) const { m_folder.write("app/mem.dat", QByteArray(length, 'm')); }
};

TEST_F(ScreenChoiceTest, TheModelOfTheMomentChoosesTheFile)
{
    const std::pair<QLatin1StringView, const char*> rows[] = {
        {"PLUMENU"_L1, "\\PLUVelmarv2.scn \\PLUVelmarv2card.scn \\PLUVelmarv3.scn \\PLU.scn"},
        {"PLUStatusMenu"_L1,
         "\\PLUstatVelmarv2.scn \\PLUstatVelmarvcard.scn \\PLUstatVelmarv3.scn \\PLUstat.scn"},
        {"EmployeeMenu"_L1,
         "\\employeeVelmarv2.scn \\employeeVelmarv2.scn \\employeeVelmarv3.scn \\employee.scn"},
        {"EJPrint"_L1, "\\EJPRTv2.scn \\EJPRTv2.scn \\EJPRTv3.scn \\EJPRT.scn"},
        {"KeyboardLocation"_L1, "KeyLayoutVelmar KeyLayoutVelmar KeyLayoutVelmar KeyLayoutDorvik"},
        {"GroupMenu"_L1, "\\Group.scn \\Group.scn \\Group.scn \\Group.scn"},
    };
    for (const auto& [entry, targets] : rows) {
        QStringList found;
        for (int model = 0; model < 4; ++model) {
            setModel(QByteArray::number(model));
            found << target(entry);
        }
        EXPECT_EQ(found.join(u' '), QLatin1String(targets)) << entry.data();
    }
    setModel("7");
    EXPECT_EQ(target("PLUMENU"_L1), u"\\PLU.scn");
    QFile::remove(m_folder.path("app/Cafe/setup.ini"));
    EXPECT_EQ(target("PLUMENU"_L1), u"\\PLUVelmarv2.scn");
    setModel("");
    EXPECT_EQ(failureOf([this] { (void)target("PLUMENU"_L1); }), 13);
    EXPECT_EQ(target("GroupMenu"_L1), u"\\Group.scn") << "needs no model";
}

TEST_F(ScreenChoiceTest, EveryScreenThatCanBeChosenIsInstalledForEveryModel)
{
    for (const MenuEntry& entry : menuTree()) {
        const bool screen = entry.opens == Opens::Screen || entry.opens == Opens::ModelScreen ||
                            entry.opens == Opens::GatedScreen;
        for (int model = 0; screen && entry.choosable == Choosable::Yes && model < 4; ++model) {
            setModel(QByteArray::number(model));
            const QString file = joinPath(QStringLiteral(DATA_DIR), target(entry.name));
            EXPECT_TRUE(QFile::exists(file)) << file.toStdString();
        }
    }
}

TEST_F(ScreenChoiceTest, CardEntriesAskFirmwareAndTable)
{
    makeCustomerDatabase();
    const test::ShownBox tooOld{u"Option not available on this firmware"_s, applicationTitle(),
                                BoxIcon::None};
    const test::ShownBox noMemory{u"You must upload the data from the Velmar"_s, applicationTitle(),
                                  BoxIcon::None};
    const test::ShownBox noCards{u"You must upload the Card Catergory file from the ECR"_s, u"Data Error"_s,
                                 BoxIcon::Critical};
    const test::ShownBox noHotlist{u"You must upload the Hot List file from the ECR"_s, u"Data Error"_s,
                                   BoxIcon::Critical};
    const struct {
        int memoryLength;
        QLatin1StringView entry;
        std::vector<test::ShownBox> shown;
    } rows[] = {
        {77, "CardCat"_L1, {tooOld}},           {77, "Hotlist"_L1, {tooOld}},
        {78, "CardCat"_L1, {noCards}},          {78, "Hotlist"_L1, {noHotlist}},
        {0, "CardCat"_L1, {noMemory, noCards}},
    };
    for (const auto& row : rows) {
        setMemoryFile(row.memoryLength);
        m_boxes.shown.clear();
        EXPECT_FALSE(opens(row.entry));
        EXPECT_EQ(m_boxes.shown, row.shown) << row.memoryLength << row.entry.data();
    }
}

TEST_F(ScreenChoiceTest, ACardEntryOpensOnARecordAndFailsWithoutTheFiles)
{
    EXPECT_EQ(failureOf([this] { opens("CardCat"_L1); }), 53) << "no memory file";
    setMemoryFile(78);
    EXPECT_EQ(failureOf([this] { opens("CardCat"_L1); }), 53) << "no database";
    makeCustomerDatabase();
    {
        store::Database database(m_values.databasePath);
        store::Recordset cards = database.openTable(u"cardcategory"_s);
        cards.addNew();
        for (int field = 0; field < cards.fieldCount(); ++field) {
            if (cards.field(field).required || field == 0)
                cards.setValue(field, store::Value::text(u"1"_s));
        }
        cards.update();
    }
    EXPECT_TRUE(opens("CardCat"_L1));
    EXPECT_TRUE(opens("PLUMENU"_L1)) << "not gated";
    EXPECT_TRUE(m_boxes.shown.empty());
}

} // namespace
} // namespace norvane::shell
