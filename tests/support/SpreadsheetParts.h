// Spreadsheets written by hand: those that no library would write.
#pragma once

#include <QByteArray>
#include <QFile>
#include <QMap>

#include <minizip/zip.h>

namespace norvane::test
{

/// The contents of an archive by their names.
using Parts = QMap<QByteArray, QByteArray>;

inline void writeArchive(const QString& path, const Parts& parts)
{
    constexpr int overwrite = 0;
    const zipFile zip = zipOpen(QFile::encodeName(path).constData(), overwrite);
    for (auto part = parts.cbegin(); part != parts.cend(); ++part) {
        const zip_fileinfo unknown{};
        zipOpenNewFileInZip(zip, part.key().constData(), &unknown, nullptr, 0, nullptr, 0, nullptr,
                            Z_DEFLATED, Z_BEST_SPEED);
        zipWriteInFileInZip(zip, part.value().constData(), static_cast<unsigned>(part.value().size()));
        zipCloseFileInZip(zip);
    }
    zipClose(zip, nullptr);
}

/// A spreadsheet whose first sheet, not the first of its parts, has @p cells. Style 1 shows days, style 2 an
/// amount; text 0 is "Tea", text 1 "Cola" in two letterings.
inline Parts spreadsheetParts(const QByteArray& cells)
{
    const auto relation = [](const char* id, const char* kind, const char* target) {
        return QByteArray("<Relationship Id=\"") + id + "\" Type=\"http://x/" + kind + "\" Target=\"" +
               target + "\"/>";
    };
    return {{"_rels/.rels",
             "<Relationships>" + relation("rId1", "officeDocument", "xl/workbook.xml") + "</Relationships>"},
            {"xl/workbook.xml",
             "<workbook xmlns:r=\"r\"><sheets><sheet name=\"PLUs\" sheetId=\"7\" r:id=\"rId2\"/>"
             "<sheet name=\"Other\" sheetId=\"1\" r:id=\"rId9\"/></sheets></workbook>"},
            {"xl/_rels/workbook.xml.rels",
             "<Relationships>" + relation("rId9", "worksheet", "worksheets/sheet1.xml") +
                 relation("rId2", "worksheet", "/xl/worksheets/sheet2.xml") +
                 relation("rId3", "styles", "styles.xml") +
                 relation("rId4", "sharedStrings", "sharedStrings.xml") + "</Relationships>"},
            {"xl/styles.xml",
             "<styleSheet><numFmts><numFmt numFmtId=\"164\" formatCode=\"&quot;day&quot; \\d #,##0.00\"/>"
             "</numFmts><cellStyleXfs><xf numFmtId=\"22\"/></cellStyleXfs><cellXfs><xf numFmtId=\"0\"/>"
             "<xf numFmtId=\"14\"/><xf numFmtId=\"164\"/></cellXfs></styleSheet>"},
            {"xl/sharedStrings.xml",
             "<sst><si><t>Tea</t></si><si><r><t>Co</t></r><rPh><t>ko</t></rPh><r><t>la</t></r></si></sst>"},
            {"xl/worksheets/sheet1.xml", "<worksheet/>"},
            {"xl/worksheets/sheet2.xml", "<worksheet><sheetData>" + cells + "</worksheet>"}};
}

} // namespace norvane::test
