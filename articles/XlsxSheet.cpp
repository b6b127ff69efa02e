// See XlsxSheet.h.
#include "articles/XlsxSheet.h"

#include "articles/SpreadsheetError.h"
#include "articles/XlsxReader.h"
#include "platform/Decimal.h"
#include "platform/NumberScan.h"

#include <algorithm>

using namespace Qt::Literals::StringLiterals;

namespace norvane::articles
{
namespace
{

constexpr int mostRows = 1048576;
constexpr int mostColumns = 16384;
constexpr qsizetype mostText = qsizetype{256} * 1024 * 1024;
constexpr std::size_t mostMerged = 65536;

struct CellPlace {
    int row = 0;
    int column = 0;
};

/// Of "C7", row 7 and column 3. @throws SpreadsheetError for one that no sheet has.
CellPlace placeOf(QStringView name)
{
    CellPlace place;
    for (const QChar letter : name) {
        if (letter >= u'A' && letter <= u'Z' && place.row == 0) {
            place.column = 26 * place.column + (letter.unicode() - u'A' + 1);
        } else if (letter >= u'0' && letter <= u'9') {
            place.row = 10 * place.row + (letter.unicode() - u'0');
        }
        if (place.row > mostRows || place.column > mostColumns)
            throw SpreadsheetError(u"names the cell %1, which no sheet has"_s.arg(name.left(20)));
    }
    return place;
}

std::string unfit(const QString& reason)
{
    return unfitMark + reason.toStdString();
}

bool reaches(const MergedCells& merged, int row, int column)
{
    return row >= merged.firstRow && row <= merged.lastRow && column >= merged.firstColumn &&
           column <= merged.lastColumn;
}

} // namespace

std::string plainNumber(const std::string& stored)
{
    constexpr int keptDigits = 15;
    const auto number = scanWholeNumber(stored);
    const bool isWhole = stored.find_first_of(".eE") == std::string::npos;
    if (!number || isWhole || number->digits.size() > Decimal::mostDigits ||
        static_cast<int>(number->digits.size()) - number->scale > keptDigits)
        return stored;
    const auto exact = Decimal::parse(stored);
    const int surplus = std::max(0, exact->digits() - keptDigits);
    return exact->rounded(std::min(keptDigits, exact->scale() - surplus)).text();
}

void XlsxSheet::read()
{
    m_part.forEach([this] {
        if (m_part.name() == "row"_L1) {
            beginRow();
        } else if (m_part.name() == "c"_L1) {
            readCell();
        } else if (m_part.name() == "mergeCell"_L1) {
            addMerged();
        }
    });
    endRow();
}

void XlsxSheet::beginRow()
{
    endRow();
    stopUnless(m_keepGoing);
    const QStringView number = m_part.attribute(u"r");
    const int row = number.isEmpty() ? m_row + 1 : placeOf(number).row;
    if (row <= m_row)
        throw SpreadsheetError(u"has its rows in the wrong order"_s);
    if (row > mostRows)
        throw SpreadsheetError(u"has too many rows"_s);
    m_row = row;
    std::erase_if(m_ofRow, [row](const MergedCells& merged) { return merged.lastRow < row; });
    for (; m_nextMerged < m_merged.size() && m_merged[m_nextMerged].firstRow <= row; ++m_nextMerged)
        m_ofRow.push_back(m_merged[m_nextMerged]);
}

void XlsxSheet::endRow()
{
    if (m_written > 0)
        m_text += '\n';
    m_column = 0;
    m_written = 0;
}

void XlsxSheet::readCell()
{
    const QStringView name = m_part.attribute(u"r");
    const int column = name.isEmpty() ? m_column + 1 : placeOf(name).column;
    if (column <= m_column || m_row == 0)
        throw SpreadsheetError(u"has its cells in the wrong order"_s);
    m_column = column;
    const std::string cell = contents();
    if (!cell.empty() && !isHidden())
        add(cell);
}

/// Whether the cell is merged with others and not the first of them.
bool XlsxSheet::isHidden() const
{
    return std::ranges::any_of(m_ofRow, [this](const MergedCells& merged) {
        return reaches(merged, m_row, m_column) &&
               (m_row != merged.firstRow || m_column != merged.firstColumn);
    });
}

std::string XlsxSheet::contents()
{
    const QString type = m_part.attribute(u"t").toString();
    const auto style = static_cast<std::size_t>(m_part.attribute(u"s").toUInt());
    QString stored;
    bool hasFormula = false;
    bool hasValue = false;
    m_part.forEach([&] {
        hasFormula = hasFormula || m_part.name() == "f"_L1;
        hasValue = hasValue || m_part.name() == "v"_L1 || m_part.name() == "is"_L1;
        if (m_part.name() == "v"_L1) {
            stored = m_part.text();
        } else if (m_part.name() == "is"_L1) {
            stored = m_part.richText();
        } else {
            m_part.skip();
        }
    });
    if (hasFormula && !hasValue)
        return unfit(u"the formula has no stored result; open the file in a spreadsheet and save it"_s);
    return valueOf(type, style, stored);
}

std::string XlsxSheet::valueOf(QStringView type, std::size_t style, const QString& stored) const
{
    if (stored.isEmpty())
        return {};
    if (type == "s"_L1)
        return sharedText(stored);
    if (type == "e"_L1)
        return unfit(u"the cell holds the error %1"_s.arg(stored.left(20)));
    if (type == "b"_L1)
        return stored == "1"_L1 ? "TRUE" : "FALSE";
    if (type == "inlineStr"_L1 || type == "str"_L1)
        return stored.toStdString();
    const bool isTime = style < m_tables.timeStyles.size() && m_tables.timeStyles[style];
    if (type == "d"_L1 || isTime)
        return unfit(u"the cell holds a date; format it as a number or a text"_s);
    return plainNumber(stored.trimmed().toStdString());
}

std::string XlsxSheet::sharedText(const QString& number) const
{
    bool isNumber = false;
    const auto place = static_cast<std::size_t>(number.trimmed().toUInt(&isNumber));
    if (!isNumber || place >= m_tables.texts.size())
        throw SpreadsheetError(u"refers to a text that it does not have"_s);
    return m_tables.texts[place];
}

void XlsxSheet::add(const std::string& cell)
{
    if (m_written == 0)
        m_text += QByteArray::number(m_row);
    if (m_text.size() + m_column + static_cast<qsizetype>(cell.size()) > mostText)
        throw SpreadsheetError(u"has too much text"_s);
    m_text.append(m_column - m_written, spreadsheetSeparator);
    m_written = m_column;
    if (cell.find_first_of("\"\t\r\n") == std::string::npos) {
        m_text += cell;
    } else {
        m_text += '"' + QByteArray::fromStdString(cell).replace('"', "\"\"") + '"';
    }
}

void XlsxSheet::addMerged()
{
    const QString ref = m_part.attribute(u"ref").toString();
    const CellPlace first = placeOf(ref.section(u':', 0, 0));
    const CellPlace last = placeOf(ref.section(u':', 1));
    if (m_found.size() >= mostMerged)
        throw SpreadsheetError(u"has too many merged cells"_s);
    m_found.push_back({first.row, first.column, last.row, last.column});
}

std::vector<MergedCells> XlsxSheet::merged() const
{
    auto merged = m_found;
    std::ranges::stable_sort(merged, {}, &MergedCells::firstRow);
    return merged;
}

} // namespace norvane::articles
