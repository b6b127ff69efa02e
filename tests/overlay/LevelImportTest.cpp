// What the keys of an overlay say after the import of a level, from the rows of a real database.
#include "overlay/LevelImport.h"

#include "store/catalogue/Catalogue.h"
#include "store/engine/CommitOnExit.h"
#include "tests/store/StoreFolder.h"

namespace norvane::overlay
{
namespace
{

/// Row n of KEYLINK leads to the function "F" and n, whatever the keyboard.
class LevelImportTest : public testing::Test
{
protected:
    LevelImportTest()
    {
        store::Database database(m_folder.path());
        const store::CommitOnExit transaction(database);
        for (int row = 1; row <= 845; ++row) {
            for (const auto& sql : {u"KEYLINK (ID, KEYLINK) values (%1, '%2')"_s,
                                    u"NLU (ID, NLU) values (%1, '000000000000000000')"_s,
                                    u"FUNCTIONKEY (id, DESCRIPTION) values (%2, 'F%1')"_s}) {
                database.execute(u"insert into "_s + QString(sql)
                                                         .replace(u"%1"_s, QString::number(row))
                                                         .replace(u"%2"_s, QString::number(row + 1000)));
            }
        }
    }

    void execute(const char* sql) const { store::Database(m_folder.path()).execute(QString::fromUtf8(sql)); }
    /// The lines of the key with the first cell @p cell.
    static std::string key(const Document& document, int cell)
    {
        return (document.cell(cell).text + u'|' + document.cell(cell + 1).text + u'|' +
                document.cell(cell + 2).text)
            .toStdString();
    }

    store::test::StoreFolder m_folder{store::catalogue()};
};

struct Place {
    Keyboard keyboard;
    int firstCell;
    int row; ///< of the tables, on level 1
};

// clang-format off
const Place places[] = {
    {Keyboard::Dorvik, 27, 1},    {Keyboard::Dorvik, 3, 9},     {Keyboard::Dorvik, 57, 10},
    {Keyboard::Dorvik, 33, 18},   {Keyboard::Dorvik, 87, 19},   {Keyboard::Dorvik, 60, 28},
    {Keyboard::Dorvik, 375, 123}, {Keyboard::Dorvik, 360, 128}, {Keyboard::Dorvik, 397, 133},
    {Keyboard::Dorvik, 453, 149}, {Keyboard::Dorvik, 426, 158}, {Keyboard::Velmar, 36, 1},
    {Keyboard::Velmar, 0, 13},    {Keyboard::Velmar, 75, 14},   {Keyboard::Velmar, 375, 122},
    {Keyboard::Velmar, 437, 148}, {Keyboard::Velmar, 480, 157}, {Keyboard::Velmar, 444, 169},
};
// clang-format on

TEST_F(LevelImportTest, WalksColumnsFromTheLeftAndUpwardOnEveryLevel)
{
    for (const Keyboard keyboard : {Keyboard::Dorvik, Keyboard::Velmar}) {
        const Document fresh(keyboard);
        for (int level = 1; level <= 5; ++level) {
            Document document(keyboard);
            importdata(document, level, m_folder.path());
            const int below = (level - 1) * (keyboard == Keyboard::Dorvik ? 158 : 169);
            for (const Place& place : places) {
                if (place.keyboard == keyboard) {
                    EXPECT_EQ(key(document, place.firstCell), "|F" + std::to_string(place.row + below) + "|")
                        << level << ' ' << place.firstCell;
                }
            }
            for (const PresetText& preset : document.geometry().presets)
                EXPECT_EQ(document.cell(preset.cell), fresh.cell(preset.cell)) << preset.cell;
        }
    }
}

const std::pair<const char*, const char*> programmedKeys[] = {
    {"update KEYLINK set KEYLINK='0' where ID<3", "|plu|"},
    {"update NLU set NLU='000000000000001001' where ID=1", "HAMBURG|ER |CHEESE"},
    {"update KEYLINK set KEYLINK='271' where ID in (3,4)", "|wlu|"},
    {"update NLU set NLU='000300000000000004' where ID=4", "|SIDES|"},
    {"update KEYLINK set KEYLINK='' where ID=5", "functio|n|"},
    {"update KEYLINK set KEYLINK='00' where ID=6", "functio|n|"},
};

TEST_F(LevelImportTest, LooksUpWhatAKeyDoes)
{
    execute("insert into PLUDATA (PLUNUMBER, DESCRIPTION) values ('000000000000001001', 'HAMBURGER' || "
            "char(13) || 'CHEESE')");
    execute("insert into WLU (WLUno, DESCRIPTION) values (3, 'SIDES')");
    for (const auto& [sql, expected] : programmedKeys)
        execute(sql);
    Document document(Keyboard::Velmar);
    document.cell(36).background = Colour{255};
    document.cell(37).font.name = u"Courier"_s;
    importdata(document, 1, m_folder.path());
    const int fromBottom[] = {33, 36, 30, 27, 24, 21};
    for (std::size_t row = 0; row < std::size(programmedKeys); ++row)
        EXPECT_EQ(key(document, fromBottom[row]), programmedKeys[row].second) << row;
    EXPECT_EQ(document.cell(36).background, Colour{255}) << "only texts change";
    EXPECT_EQ(document.cell(37).font.name, u"Courier"_s);
}

} // namespace
} // namespace norvane::overlay
