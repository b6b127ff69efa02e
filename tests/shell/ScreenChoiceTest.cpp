// Which screen file an entry opens for each register model, and the entries that need newer firmware.
#include "shell/ScreenChoice.h"

#include "platform/FilePaths.h"
#include "tests/shell/EntryNamed.h"
#include "tests/shell/ShellFixture.h"

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
        return targetOf(entryNamed(entry), m_values);
    }
    bool opens(QLatin1StringView entry) { return mayOpen(entryNamed(entry), m_values, m_boxes); }
    /// The length of the memory file shows the firmware.
    void setMemoryFile(int length) const { m_folder.write("app/mem.dat", QByteArray(length, 'm')); }
    /// The texts of the boxes since the last call.
    QStringList shownTexts()
    {
        QStringList texts;
        for (const auto& box : std::exchange(m_boxes.shown, {}))
            texts.append(box.text);
        return texts;
    }
};

TEST_F(ScreenChoiceTest, WithoutAKnownModelAScreenIsStillFound)
{
    setModel("7");
    EXPECT_EQ(target("PLUMENU"_L1), u"\\PLU.scn") << "an unknown model has the screens of the last one";
    setModel("");
    EXPECT_EQ(failureOf([this] { (void)target("PLUMENU"_L1); }), 13);
    EXPECT_EQ(target("GroupMenu"_L1), u"\\Group.scn") << "needs no model";
    QFile::remove(m_folder.path("app/Cafe/setup.ini"));
    EXPECT_EQ(target("PLUMENU"_L1), u"\\PLUVelmarv2.scn");
}

TEST_F(ScreenChoiceTest, EveryScreenThatCanBeChosenIsInstalledForEveryModel)
{
    for (const MenuEntry& entry : menuTree()) {
        for (int model = 0; entry.choosable == Choosable::Yes && model < 4; ++model) {
            setModel(QByteArray::number(model));
            const QString file = target(entry.name);
            EXPECT_TRUE(!file.endsWith(u".scn") || QFile::exists(joinPath(QLatin1StringView(DATA_DIR), file)))
                << file.toStdString();
        }
    }
}

const QString tooOld = u"Option not available on this firmware"_s;
const QString noMemory = u"You must upload the data from the Velmar"_s;
const QString noCards = u"You must upload the Card Catergory file from the ECR"_s;
const QString noHotlist = u"You must upload the Hot List file from the ECR"_s;

const struct {
    int memoryLength;
    QLatin1StringView entry;
    QStringList shown;
} cardEntries[] = {
    {77, "CardCat"_L1, {tooOld}},           {77, "Hotlist"_L1, {tooOld}}, {78, "CardCat"_L1, {noCards}},
    {0, "CardCat"_L1, {noMemory, noCards}}, {78, "PLUMENU"_L1, {}},       {78, "Hotlist"_L1, {noHotlist}},
};

TEST_F(ScreenChoiceTest, CardEntriesAskFirmwareAndTable)
{
    EXPECT_EQ(failureOf([this] { opens("CardCat"_L1); }), 53) << "no memory file";
    setMemoryFile(78);
    EXPECT_EQ(failureOf([this] { opens("CardCat"_L1); }), 53) << "no database";
    makeCustomerDatabase();
    for (const auto& row : cardEntries) {
        setMemoryFile(row.memoryLength);
        EXPECT_EQ(opens(row.entry), row.shown.empty()) << row.entry.data();
        EXPECT_TRUE(row.shown.empty() ||
                    (m_boxes.shown.back().title == u"Data Error") == (row.memoryLength != 77));
        EXPECT_EQ(shownTexts(), row.shown) << row.memoryLength << row.entry.data();
    }
    execute(u"insert into hotlist (id) values (1)"_s);
    EXPECT_TRUE(opens("Hotlist"_L1));
}

} // namespace
} // namespace norvane::shell
