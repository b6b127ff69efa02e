// See XlsxReader.h.
#include "articles/XlsxReader.h"

#include "articles/SpreadsheetError.h"
#include "articles/XlsxSheet.h"
#include "articles/XlsxStyles.h"

#include <QDir>
#include <QFile>

using namespace Qt::Literals::StringLiterals;

namespace norvane::articles
{
namespace
{

constexpr QByteArrayView zipMark{"PK\x03\x04"};
/// Of the format before XLSX, in which encrypted spreadsheets are wrapped, too.
constexpr QByteArrayView compoundMark{"\xD0\xCF\x11\xE0"};

QByteArray firstBytes(const QString& path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.read(zipMark.size()) : QByteArray();
}

/// "/xl/worksheets/sheet1.xml" or, beside @p part, "worksheets/sheet1.xml".
QString absolute(const QString& target, const QString& part)
{
    const QString folder = part.left(part.lastIndexOf(u'/') + 1);
    return QDir::cleanPath(target.startsWith(u'/') ? target.sliced(1) : folder + target);
}

/// The part that @p part refers to by an id, or by the end of its kind; empty if there is none.
QString targetOf(const QString& path, const QString& part, QStringView id, QLatin1StringView kind)
{
    const qsizetype name = part.lastIndexOf(u'/') + 1;
    XmlPart relations(path, part.left(name) + u"_rels/"_s + part.sliced(name) + u".rels"_s);
    QString target;
    if (!relations.exists())
        return target;
    relations.forEach([&] {
        const bool isIt =
            id.isEmpty() ? relations.attribute(u"Type").endsWith(kind) : relations.attribute(u"Id") == id;
        if (isIt && target.isEmpty())
            target = absolute(relations.attribute(u"Target").toString(), part);
    });
    return target;
}

QString idOfFirstSheet(const QString& path, const QString& workbook)
{
    XmlPart book(path, workbook);
    QString id;
    if (!book.exists())
        throw SpreadsheetError(u"has no workbook"_s);
    book.forEach([&] {
        if (book.name() == "sheet"_L1 && id.isEmpty())
            id = book.attribute(u"id").toString();
    });
    return id;
}

void addText(XlsxTables& tables, XmlPart& part)
{
    constexpr std::size_t mostTexts = std::size_t{4} * 1024 * 1024;
    tables.texts.push_back(part.richText().toStdString());
    if (tables.texts.size() > mostTexts)
        throw SpreadsheetError(u"has too many texts"_s);
}

XlsxTables tablesOf(const QString& path, const QString& workbook)
{
    XlsxTables tables;
    XmlPart styles(path, targetOf(path, workbook, {}, "/styles"_L1));
    if (styles.exists())
        tables.timeStyles = timeStyles(styles);
    XmlPart texts(path, targetOf(path, workbook, {}, "/sharedStrings"_L1));
    if (!texts.exists())
        return tables;
    texts.forEach([&] {
        if (texts.name() == "si"_L1)
            addText(tables, texts);
    });
    return tables;
}

} // namespace

bool isSpreadsheet(const QString& path)
{
    const QByteArray first = firstBytes(path);
    return path.endsWith(".xlsx"_L1, Qt::CaseInsensitive) || first == zipMark || first == compoundMark;
}

QByteArray spreadsheetText(const QString& path, const KeepGoing& keepGoing)
{
    if (firstBytes(path) == compoundMark)
        throw SpreadsheetError(u"is protected with a password, or has the old format XLS; save it as XLSX"_s);
    const QString workbook = targetOf(path, {}, {}, "/officeDocument"_L1);
    const XlsxTables tables = tablesOf(path, workbook);
    const QString name = targetOf(path, workbook, idOfFirstSheet(path, workbook), {});
    std::vector<MergedCells> merged;
    for (;;) {
        XmlPart part(path, name);
        if (!part.exists())
            throw SpreadsheetError(u"has no sheet"_s);
        XlsxSheet sheet(part, tables, merged, keepGoing);
        sheet.read();
        // Merged cells come after the cells, which are then read again.
        if (!merged.empty() || sheet.merged().empty())
            return sheet.text();
        merged = sheet.merged();
    }
}

} // namespace norvane::articles
