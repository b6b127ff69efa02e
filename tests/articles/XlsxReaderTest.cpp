// What spreadsheets of strangers hold, and what keeps one from being read.
#include "articles/XlsxReader.h"

#include "articles/SpreadsheetError.h"
#include "tests/platform/TestFolder.h"
#include "tests/support/SpreadsheetParts.h"

namespace norvane::articles
{
namespace
{

using test::Parts, test::spreadsheetParts, test::TestFolder;

/// The text of the spreadsheet, or why there is none.
std::string textOf(const Parts& parts)
{
    const TestFolder folder;
    test::writeArchive(folder.path("x.xlsx"), parts);
    try {
        return spreadsheetText(folder.path("x.xlsx")).toStdString();
    } catch (const SpreadsheetError& error) {
        return error.text().toStdString();
    }
}

struct SheetRow {
    const char* name;
    QByteArray cells;
    std::string text;
};
void PrintTo(const SheetRow& row, std::ostream* out)
{
    *out << row.name;
}

class SheetOfStranger : public testing::TestWithParam<SheetRow>
{
};

TEST_P(SheetOfStranger, ComesAsText)
{
    EXPECT_EQ(textOf(spreadsheetParts(GetParam().cells)), GetParam().text);
}

QByteArray row(const QByteArray& cells)
{
    return "<row r=\"7\">" + cells + "</row></sheetData>";
}

const std::string misplaced = "has its cells in the wrong order";
const SheetRow sheetRows[] = {
    {"texts",
     row("<c r=\"A7\" t=\"s\"><v>0</v></c><c t=\"s\"><v>1</v></c>"
         "<c t=\"inlineStr\"><is><t>a\"\tb_x000D_</t></is></c>"),
     "7\tTea\tCola\t\"a\"\"\tb\r\"\n"},
    {"numbers",
     row("<c><v>1.1000000000000001</v></c><c><v>2.2999999999999998</v></c><c><v>1.5E-2</v></c>"
         "<c><v>123456789012345678</v></c><c><v>1.2345678901234568E+17</v></c><c><v>-3.50</v></c>"
         "<c s=\"2\"><v>4.25</v></c><c t=\"b\"><v>1</v></c>"),
     "7\t1.1\t2.3\t0.015\t123456789012345678\t1.2345678901234568E+17\t-3.5\t4.25\tTRUE\n"},
    {"formulas",
     row("<c><f>1+1</f><v>2</v></c><c t=\"str\"><f>A1</f><v>Tea</v></c><c><f>B1</f></c>"
         "<c t=\"e\"><f>1/0</f><v>#DIV/0!</v></c>"),
     "7\t2\tTea\t\x01the formula has no stored result; open the file in a spreadsheet and save it\t"
     "\x01the cell holds the error #DIV/0!\n"},
    {"dates", row("<c s=\"1\"><v>45000</v></c><c s=\"1\"/><c t=\"d\"><v>2026-11-26</v></c>"),
     "7\t\x01the cell holds a date; format it as a number or a text\t\t"
     "\x01the cell holds a date; format it as a number or a text\n"},
    {"merged",
     row("<c r=\"B7\"><v>1</v></c><c r=\"C7\"><v>2</v></c><c r=\"D7\"><v>3</v></c>") +
         "<mergeCells><mergeCell ref=\"B7:C9\"/></mergeCells>",
     "7\t\t1\t\t3\n"},
    {"gaps", "<row/><row r=\"1048576\"><c r=\"C1048576\"><v>1</v></c></row></sheetData>", "1048576\t\t\t1\n"},
    {"a_million_empty_rows",
     QByteArray("<row><c s=\"1\"/></row>").repeated(1000000) + "<row><c><v>5</v></c></row></sheetData>",
     "1000001\t5\n"},
    {"too_many_rows", QByteArray("<row/>").repeated(1048577) + "</sheetData>", "has too many rows"},
    {"far_column", row("<c r=\"XFE7\"><v>1</v></c>"), "names the cell XFE7, which no sheet has"},
    {"cell_twice", row("<c r=\"B7\"><v>1</v></c><c r=\"B7\"><v>2</v></c>"), misplaced},
    {"row_twice", "<row r=\"2\"/><row r=\"2\"/></sheetData>", "has its rows in the wrong order"},
    {"unknown_text", row("<c t=\"s\"><v>2</v></c>"), "refers to a text that it does not have"},
    {"cut_off", "<row r=\"1\"><c><v>1</v>", "is damaged"},
    {"nested", QByteArray("<a>").repeated(100), "is damaged"},
    {"long_run", QByteArray(3000000, ' ') + "</sheetData>", "is too large when unpacked"},
    {"much_text", QByteArray("<row><c r=\"XFD\"><v>1</v></c></row>").repeated(17000) + "</sheetData>",
     "has too much text"},
};
INSTANTIATE_TEST_SUITE_P(Sheets, SheetOfStranger, testing::ValuesIn(sheetRows),
                         [](const auto& param) { return std::string(param.param.name); });

TEST(XlsxReader, RefusesWhatIsNotASpreadsheet)
{
    const Parts whole = spreadsheetParts("</sheetData>");
    EXPECT_EQ(textOf(whole), "");
    Parts parts = whole;
    parts["xl/worksheets/sheet2.xml"].prepend("<!DOCTYPE x [<!ENTITY a \"b\">]>");
    EXPECT_EQ(textOf(parts), "is damaged");
    parts.remove("xl/worksheets/sheet2.xml");
    EXPECT_EQ(textOf(parts), "has no sheet");
    EXPECT_EQ(textOf({{"mimetype", "text"}}), "has no workbook");
}

TEST(XlsxReader, RefusesDamagedProtectedAndEncryptedFiles)
{
    const TestFolder folder;
    const QString path = folder.path("x.xlsx");
    test::writeArchive(path, spreadsheetParts("</sheetData>"));
    QByteArray content = folder.read("x.xlsx");
    const auto refusal = [&](const QByteArray& bytes) {
        folder.write("x.xlsx", bytes);
        try {
            return spreadsheetText(path).toStdString();
        } catch (const SpreadsheetError& error) {
            return error.text().toStdString();
        }
    };
    EXPECT_EQ(refusal(content.first(content.size() / 2)),
              "is damaged, or is not a spreadsheet in the format XLSX");
    EXPECT_EQ(refusal("\xD0\xCF\x11\xE0"),
              "is protected with a password, or has the old format XLS; save it as XLSX");
    content.replace(QByteArray("PK\x01\x02", 4) + content.sliced(content.indexOf("PK\x01\x02") + 4, 4),
                    QByteArray("PK\x01\x02\0\0\x14\0", 8));
    for (qsizetype entry = content.indexOf("PK\x01\x02"); entry >= 0;
         entry = content.indexOf("PK\x01\x02", entry + 1))
        content[entry + 8] = 1; // marked as encrypted
    EXPECT_EQ(refusal(content), "is encrypted; save it without a password");
}

} // namespace
} // namespace norvane::articles
