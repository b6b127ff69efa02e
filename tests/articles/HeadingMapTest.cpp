// What the headings of a file mean, and where they are.
#include "articles/HeadingMap.h"

#include "articles/SheetContent.h"
#include "tests/platform/TestFolder.h"

namespace norvane::articles
{
namespace
{

using namespace Qt::Literals::StringLiterals;

struct FirstLines {
    const char* name;
    QByteArray text;
    const char* headings; ///< separated by "|", after the separator of the file
};
void PrintTo(const FirstLines& lines, std::ostream* out)
{
    *out << lines.name;
}

class HeadingsOfFile : public testing::TestWithParam<FirstLines>
{
};

TEST_P(HeadingsOfFile, AreFoundBelowATitle)
{
    const bool isFromSpreadsheet = GetParam().text.startsWith("1\t");
    const SheetHeadings found = headingsOf({GetParam().text, isFromSpreadsheet}, [](const QString& heading) {
        return heading == "Number"_L1 || heading == "Price"_L1;
    });
    const QString headings =
        found.separator ? QLatin1Char(*found.separator) + found.headings.join(u'|') : u""_s;
    EXPECT_EQ(headings.toStdString(), GetParam().headings);
}

const FirstLines firstLines[] = {
    {"empty", "\xEF\xBB\xBF\r\n\r\n", ""},
    {"semicolons", "Number;Price\r\n1;2,50\r\n", ";Number|Price"},
    {"commas_in_semicolons", "Name;Size, ml;Kind, all\n1;2;3\n", ";Name|Size, ml|Kind, all"},
    {"other_separator", "Art|Retail\n1|2\n", ";Art|Retail"},
    {"title", "Prices, all;;\nNumber;Price;x\n", ";Number|Price|x"},
    {"unknown_with_title", "Prices,,\n\nArt, Retail ,\n1,2,\n", ",Art|Retail|"},
    {"spreadsheet", "1\tPrices; all\n3\tNumber\t\tPrice\n", "\tNumber||Price"},
};
INSTANTIATE_TEST_SUITE_P(Files, HeadingsOfFile, testing::ValuesIn(firstLines),
                         [](const auto& row) { return std::string(row.param.name); });

TEST(HeadingMapTest, ANameOfTheScreenMeansOneColumn)
{
    const TableSheet sheet = pluSheet();
    const ColumnNames names = columnNames(sheet, {{u"PRICE1"_s, u"Retail"_s},
                                                  {u"PRICE2"_s, u"retail"_s},
                                                  {u"PRICE3"_s, u"Price 4"_s},
                                                  {u"GROUPNO"_s, {}}});
    EXPECT_EQ(names.value(u"PRICE2"_s), u"retail (PRICE2)"_s);
    EXPECT_EQ(names.value(u"PRICE3"_s), u"Price 4 (PRICE3)"_s) << "the heading of another column";
    const HeadingMap map = proposedMap(sheet, names, {u"RETAIL"_s, u"Price 4"_s, u"price1"_s, u"x"_s});
    EXPECT_EQ(map.value(u"retail"_s)->field, u"PRICE1"_s);
    EXPECT_EQ(map.value(u"price 4"_s)->field, u"PRICE4"_s);
    EXPECT_EQ(map.value(u"price1"_s), nullptr) << "the first heading has it";
    EXPECT_EQ(map.value(u"x"_s), nullptr);
}

TEST(HeadingMapTest, ChoicesAreRememberedByHeading)
{
    const test::TestFolder folder;
    const TableSheet sheet = pluSheet();
    const HeadingMemory memory = HeadingMemory::ofCustomer(folder.path());
    const QString odd = u"preis [\u20ac/st\u00fcck] = 100%"_s;
    ASSERT_TRUE(
        memory.keep({{odd, &sheet.columns[4]}, {u""_s, &sheet.columns[1]}, {u"number"_s, nullptr}}, sheet));
    HeadingMap map{{u"number"_s, &sheet.columns[0]}, {u"status"_s, &sheet.columns[3]}};
    memory.addTo(map, sheet, {odd.toUpper(), u"Number"_s, u"Status"_s, u""_s});
    EXPECT_EQ(map.value(odd), &sheet.columns[4]);
    EXPECT_EQ(map.value(u""_s), &sheet.columns[1]);
    EXPECT_EQ(map.value(u"number"_s), nullptr) << "not to be imported";
    EXPECT_EQ(map.value(u"status"_s), &sheet.columns[3]);
    EXPECT_EQ(map.size(), 4);
}

} // namespace
} // namespace norvane::articles
