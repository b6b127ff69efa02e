// What a window look-up shows of its record and what it stores.
#include "keys/lookups/LookUpRecords.h"

#include "tests/keys/KeyShop.h"

#include <map>

namespace norvane::keys
{
namespace
{

using namespace Qt::Literals::StringLiterals;
using test::failureOf, test::failureTextOf, test::text, test::whole;

class LookUpRecordsTest : public testing::Test
{
protected:
    LookUpRecordsTest()
    {
        m_shop.addItems();
        m_shop.execute("update PLUDATA set PLUNUMBER = '123456789012345678' where DESCRIPTION = 'Lemonade'");
        m_shop.execute("update FUNCTIONKEY set id = 18 where DESCRIPTION = 'CASH'");
        m_shop.add("MEMORYALLOCATION", {{"LINES/PLU", text("50")}});
    }

    /// A look-up with these types and codes from line 1 on, the others empty.
    void addLookUp(int number, const std::map<int, std::pair<int, const char*>>& lines)
    {
        m_shop.add("WLU", {{"WLUno", whole(number)}});
        for (const auto& [line, each] : lines) {
            m_shop.execute(
                qPrintable(u"update wlu set wlutype%1 = %2, codenumber%1 = '%3' where wluno = %4"_s.arg(line)
                               .arg(each.first)
                               .arg(QLatin1String(each.second))
                               .arg(number)));
        }
    }

    /// The used lines of the first look-up as they are stored, and their number: "3:1 1001 | 1".
    [[nodiscard]] std::string stored() const
    {
        const auto database = m_shop.open();
        const auto lookUps = database->openTable(u"WLU"_s);
        QStringList lines;
        for (int line = 1; line <= mostLookUpLines; ++line) {
            const auto code = lookUps.value(u"codenumber%1"_s.arg(line)).toText();
            if (code != u"0")
                lines += u"%1:%2 %3"_s.arg(line).arg(lookUps.value(u"wlutype%1"_s.arg(line)).toText(), code);
        }
        return (lines.join(u' ') + u" | "_s + lookUps.value(u"#ofwlu"_s).toText()).toStdString();
    }

    test::KeyShop m_shop;
};

struct ShownLine {
    int type;
    const char* code;
    const char* shown; ///< type, code, word, item
};
const ShownLine shownLines[] = {
    {0, "1001", "0|000000000000001001|PLU|000000000000001001\rCola"},
    {1, "000000000000001001", "1|000000000000001001|Condiment|000000000000001001\rCola"},
    {0, "123456789012345678", "0|123456789012345678|PLU|123456789012345678\rLemonade"},
    {2, "18", "2|18|Function|CASH"},
    {0, "1002", "0|0|PLU|0"},
    {1, "1002", "1|0|Condiment|0"},
    {2, "19", "0|0|Function|0"},
    {2, "999999999999999999", "0|0|Function|0"},
    {3, "1001", "0|0|Not Used|0"},
    {-1, "18", "0|0|Not Used|0"},
};

TEST_F(LookUpRecordsTest, ShowsEachLineByItsTypeAndDropsMissingItems)
{
    std::map<int, std::pair<int, const char*>> lines;
    for (const ShownLine& each : shownLines)
        lines[static_cast<int>(lines.size()) + 1] = {each.type, each.code};
    addLookUp(1, lines);
    m_shop.execute("update wlu set codenumber11 = '1001', wlutype12 = 0");
    LookUpRecords records(m_shop.open());
    const LookUp lookUp = records.read();
    const auto shown = [&](std::size_t line) {
        const LookUpLine& each = lookUp.lines.at(line);
        return QStringList{QString::number(static_cast<int>(each.type)), each.code, each.word, each.item}
            .join(u'|')
            .toStdString();
    };
    for (std::size_t line = 0; line < std::size(shownLines); ++line)
        EXPECT_EQ(shown(line), shownLines[line].shown) << line;
    EXPECT_EQ(shown(10), "0|0|Not Used|0");
    EXPECT_EQ(shown(11), "0|0|PLU|0");
    EXPECT_EQ(lookUp.lines.size(), 50U);
}

TEST_F(LookUpRecordsTest, SavesWithoutGapsButMovesNoLineByMoreThanTwentyPlaces)
{
    addLookUp(1, {{2, {1, "1001"}}, {5, {2, "18"}}, {6, {0, "77"}}, {29, {2, "18"}}, {50, {2, "18"}}});
    LookUpRecords records(m_shop.open());
    for (const char* lines : {"9:2 18 30:2 18", "3:2 18 10:2 18", "3:2 18 4:2 18", "3:2 18 4:2 18"}) {
        LookUp lookUp = records.read();
        records.save(lookUp);
        EXPECT_EQ(stored(), "1:1 000000000000001001 2:2 18 " + std::string(lines) + " | 4");
    }
    LookUp emptied = records.read();
    emptied.lines.assign(emptied.lines.size(), {});
    records.save(emptied);
    EXPECT_EQ(stored(), " | 0");
}

TEST_F(LookUpRecordsTest, StoresEverythingOrNothing)
{
    addLookUp(1, {});
    addLookUp(2, {});
    LookUpRecords records(m_shop.open());
    EXPECT_FALSE(records.previous());
    EXPECT_TRUE(records.next());
    EXPECT_FALSE(records.next());
    LookUp lookUp = records.read();
    lookUp.description = u"Drinks"_s;
    lookUp.allowsExit = lookUp.allowsPlus = true;
    lookUp.choices = u"3"_s;
    lookUp.link = u"1"_s;
    records.fill(lookUp.lines[0], ItemKind::Plu, u"1001"_s);
    EXPECT_EQ(lookUp.lines[0].item, u"P00000000000001001 Cola"_s);
    records.save(lookUp);
    lookUp.description = u"A text of sixteen"_s;
    EXPECT_EQ(failureOf([&] { records.save(lookUp); }), 3163);
    lookUp.description = u"Others"_s;
    lookUp.number = u"1"_s;
    EXPECT_EQ(failureOf([&] { records.save(lookUp); }), 3022);
    EXPECT_EQ(norvane::test::rowsOf(m_shop.values.databasePath,
                                    u"select WLUno, description, [#ofcondiments], link, AllowExit, allowplu, "
                                    "condimentMulti, [#ofwlu] from WLU"_s),
              "1|null|null|null|null|null|null|null 2|Drinks|3|1|True|True|False|1");
}

TEST_F(LookUpRecordsTest, NamesWhatToUploadWhenItCannotOpen)
{
    const auto opened = [&] {
        QString lines;
        const QString message = failureTextOf([&] {
            LookUpRecords records(m_shop.open());
            lines = QString::number(records.read().lines.size());
        });
        return message + lines;
    };
    EXPECT_EQ(opened(),
              u"3021 No current record. Table wlu is empty. Upload Window Look Up's from the ECR first."_s);
    addLookUp(1, {});
    for (const auto& [value, expected] : std::map<const char*, QString>{{"null", u"13 "_s},
                                                                        {"'many'", u"13 "_s},
                                                                        {"'51'", u"9 "_s},
                                                                        {"'-1'", u"9 "_s},
                                                                        {"'0'", u"0"_s},
                                                                        {"'7'", u"7"_s}}) {
        m_shop.execute(("update memoryallocation set [lines/plu] = " + std::string(value)).c_str());
        EXPECT_TRUE(opened().startsWith(expected)) << value;
        EXPECT_EQ(opened().contains(u"lines/plu"_s), expected.endsWith(u' ')) << value;
    }
    m_shop.execute("delete * from memoryallocation");
    EXPECT_TRUE(opened().startsWith(u"3021 Table memoryallocation is empty"_s));
}

} // namespace
} // namespace norvane::keys
