// Spreadsheets of strangers. The first byte says which part of one the rest is: 0 the whole archive, 1 the
// sheet, 2 the styles, 3 the shared texts, 4 the workbook, 5 what it refers to; the other parts are sound.
#include "articles/SheetFile.h"
#include "articles/SpreadsheetError.h"
#include "articles/XlsxReader.h"
#include "fuzz/Target.h"
#include "tests/support/SpreadsheetParts.h"

#include <array>

namespace norvane::fuzz
{
namespace
{

constexpr auto partNames =
    std::to_array({"", "xl/worksheets/sheet2.xml", "xl/styles.xml", "xl/sharedStrings.xml", "xl/workbook.xml",
                   "xl/_rels/workbook.xml.rels"});

QString fileOf(std::string_view input)
{
    const std::size_t part = takeByte(input) % partNames.size();
    const QString path = scratchFile(QStringLiteral("fuzz.xlsx"), input);
    if (part == 0)
        return path;
    auto parts = test::spreadsheetParts(
        "<row r=\"2\"><c t=\"s\"><v>0</v></c><c s=\"1\"><v>1</v></c></row></sheetData>");
    parts[partNames.at(part)] = QByteArray(input.data(), static_cast<qsizetype>(input.size()));
    QFile::remove(path);
    test::writeArchive(path, parts);
    return path;
}

void requireRows(const QByteArray& text)
{
    constexpr qint64 mostRows = 1048576;
    const std::string_view all(text.constData(), static_cast<std::size_t>(text.size()));
    articles::CsvReader rows(all, articles::spreadsheetSeparator);
    qint64 before = 0;
    while (rows.next()) {
        const qint64 row = QByteArray::fromStdString(rows.cells().front()).toLongLong();
        require(row > before && row <= mostRows, "rows are in their order and on the sheet");
        require(rows.cells().size() > 1 && !rows.cells().back().empty(), "a row ends with a filled cell");
        before = row;
    }
}

} // namespace

void tryInput(std::string_view input)
{
    const QString path = fileOf(input);
    try {
        const QByteArray text = articles::spreadsheetText(path);
        requireRows(text);
        const articles::TableSheet sheet = articles::pluSheet();
        const articles::SheetFile file(sheet, text, {articles::spreadsheetSeparator, {}, true});
        require(QUtf8StringView(text).isValidUtf8(), "the text is UTF-8");
    } catch (const articles::SpreadsheetError& error) {
        require(!error.text().isEmpty(), "a refusal has a reason");
    }
}

} // namespace norvane::fuzz
