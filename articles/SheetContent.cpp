// See SheetContent.h.
#include "articles/SheetContent.h"

#include "articles/CsvReader.h"
#include "articles/SheetFile.h"
#include "articles/SpreadsheetError.h"
#include "articles/XlsxReader.h"

#include <QFile>
#include <QFileInfo>

#include <algorithm>

using namespace Qt::Literals::StringLiterals;

namespace norvane::articles
{
namespace
{

/// The cells of the reader's line; those of a spreadsheet begin with the number of the row.
QStringList cellsOfLine(const CsvReader& csv, bool isFromSpreadsheet)
{
    QStringList cells;
    for (const std::string& cell : csv.cells().subspan(isFromSpreadsheet ? 1 : 0))
        cells += QString::fromStdString(cell).trimmed();
    return cells;
}

/// How well a line would do as the one that names the columns: the known headings count first.
std::pair<qsizetype, bool> fitnessOf(const QStringList& cells,
                                     const std::function<bool(const QString& heading)>& isKnown)
{
    const auto isFilled = [](const QString& cell) {
        return !cell.isEmpty();
    };
    return {std::ranges::count_if(cells, isKnown), std::ranges::count_if(cells, isFilled) > 1};
}

} // namespace

SheetContent sheetContent(const QString& path, const KeepGoing& keepGoing)
{
    QFile file(path);
    if (QFileInfo(path).isDir())
        throw SpreadsheetError(u"is a folder"_s);
    if (!file.open(QIODevice::ReadOnly))
        throw SpreadsheetError(u"cannot be read: %1"_s.arg(file.errorString()));
    if (isSpreadsheet(path))
        return {spreadsheetText(path, keepGoing), true};
    SheetContent content{file.readAll()};
    if (file.error() != QFileDevice::NoError)
        throw SpreadsheetError(u"cannot be read: %1"_s.arg(file.errorString()));
    return content;
}

SheetHeadings headingsOf(const SheetContent& content,
                         const std::function<bool(const QString& heading)>& isKnown)
{
    const std::string_view text = csvTextOf(content.text);
    SheetHeadings best;
    std::pair<qsizetype, bool> fitness;
    for (const char sign : csvSeparators) {
        if (content.isFromSpreadsheet && sign != spreadsheetSeparator)
            continue;
        CsvReader csv(text, sign);
        for (int tried = 0; tried < linesForHeadings && csv.next(); ++tried) {
            QStringList cells = cellsOfLine(csv, content.isFromSpreadsheet);
            const auto found = fitnessOf(cells, isKnown);
            if (cells.join(u""_s).isEmpty() || (best.separator && found <= fitness))
                continue;
            best = {sign, std::move(cells)};
            fitness = found;
        }
    }
    return best;
}

} // namespace norvane::articles
