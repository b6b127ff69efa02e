// See SheetFile.h.
#include "articles/SheetFile.h"

#include "articles/XlsxReader.h"
#include "platform/Excerpt.h"
#include "platform/Trimming.h"

#include <algorithm>
#include <array>
#include <numeric>

using namespace Qt::Literals::StringLiterals;

namespace norvane::articles
{
namespace
{

bool isUtf8(std::string_view text)
{
    return QUtf8StringView(text.data(), static_cast<qsizetype>(text.size())).isValidUtf8();
}

/// The first line that is not UTF-8, from 1.
qint64 brokenLine(std::string_view text)
{
    qint64 line = 1;
    for (std::size_t end = text.find('\n'); end != std::string_view::npos && isUtf8(text.substr(0, end));
         end = text.find('\n')) {
        text.remove_prefix(end + 1);
        ++line;
    }
    return line;
}

/// "C" of the third column.
QString lettersOf(std::size_t column)
{
    constexpr std::size_t letters = 26;
    QString name;
    for (std::size_t left = column + 1; left > 0; left = (left - 1) / letters)
        name.prepend(QChar(static_cast<char16_t>(u'A' + (left - 1) % letters)));
    return name;
}

} // namespace

std::string_view csvTextOf(const QByteArray& content)
{
    constexpr std::string_view byteOrderMark = "\xEF\xBB\xBF";
    std::string_view text(content.constData(), static_cast<std::size_t>(content.size()));
    if (text.starts_with(byteOrderMark))
        text.remove_prefix(byteOrderMark.size());
    return text;
}

SheetFile::SheetFile(const TableSheet& sheet, const QByteArray& content, SheetReading reading)
    : m_sheet(sheet), m_reading(std::move(reading)), m_text(csvTextOf(content))
{
    if (!isUtf8(m_text)) {
        add(brokenLine(m_text), {}, {}, u"the file is not UTF-8; save it as \"CSV UTF-8\""_s);
        return;
    }
    if (m_reading.isFromSpreadsheet)
        m_decimalSign.learnFrom("0.5"); // its numbers have points, whatever the user's locale
    findHeadings();
    if (!m_mistakes.isEmpty())
        return;
    m_lines.reserve(static_cast<std::size_t>(std::ranges::count(m_text, '\n')) + 1);
    for (std::size_t place = m_csv.place(); next(); place = m_csv.place())
        takeLine(place);
    sortByNumber();
    markDoubles();
}

/// The rows of a spreadsheet lack what is empty at their ends.
bool SheetFile::next()
{
    const bool isThere = m_csv.next();
    if (isThere && m_reading.isFromSpreadsheet)
        m_csv.fill(m_columns.size() + 1);
    return isThere;
}

std::span<const std::string> SheetFile::cells() const
{
    return m_csv.cells().subspan(m_reading.isFromSpreadsheet ? 1 : 0);
}

qint64 SheetFile::line() const
{
    return m_reading.isFromSpreadsheet ? QByteArray::fromStdString(m_csv.cells().front()).toLongLong()
                                       : m_csv.line();
}

QString SheetFile::headingOf(const std::string& cell) const
{
    const QString heading = QString::fromStdString(cell).trimmed();
    return m_reading.headings.value(heading.toLower(), heading);
}

bool SheetFile::hasHeadings() const
{
    return std::ranges::any_of(cells(), [this](const std::string& cell) {
        return headingOf(cell).compare(m_sheet.columns.front().heading, Qt::CaseInsensitive) == 0;
    });
}

void SheetFile::findHeadings()
{
    for (const char sign : csvSeparators) {
        if (m_reading.separator.value_or(sign) != sign)
            continue;
        m_csv = CsvReader(m_text, sign);
        for (int tried = 0; tried < linesForHeadings && next(); ++tried) {
            if (hasHeadings()) {
                takeHeadings();
                return;
            }
        }
    }
    add(1, {}, {},
        u"there is no line of headings with a column \"%1\""_s.arg(m_sheet.columns.front().heading));
}

void SheetFile::takeHeadings()
{
    for (std::size_t place = 0; place < cells().size(); ++place)
        takeHeading(place);
    const auto number = std::ranges::find(m_columns, &m_sheet.columns.front());
    m_numberPlace = static_cast<std::size_t>(number - m_columns.begin());
}

void SheetFile::takeHeading(std::size_t place)
{
    const QString shown = excerptOfUtf8(cells()[place]);
    const QString heading = headingOf(cells()[place]);
    const QString ofFile = QString::fromStdString(cells()[place]).trimmed().toLower();
    const auto column = std::ranges::find_if(m_sheet.columns, [&](const SheetColumn& each) {
        return heading.compare(each.heading, Qt::CaseInsensitive) == 0;
    });
    if (heading.isEmpty() && m_reading.headings.contains(ofFile)) {
        m_columns.push_back(nullptr);
    } else if (column == m_sheet.columns.end()) {
        add(line(), place, shown, u"there is no such column"_s);
    } else if (std::ranges::find(m_columns, &*column) != m_columns.end()) {
        add(line(), place, shown, u"the column is there twice"_s);
    } else {
        m_columns.push_back(&*column);
    }
}

void SheetFile::takeLine(std::size_t place)
{
    if (m_csv.isUnclosed()) {
        add(line(), {}, {}, u"a quote is not closed"_s);
    } else if (std::ranges::all_of(cells(), &std::string::empty)) {
        return;
    } else if (cells().size() != m_columns.size()) {
        add(line(), {}, {}, u"%1 columns, but %2 headings"_s.arg(cells().size()).arg(m_columns.size()));
    } else if (isFit()) {
        takeNumber(place);
    }
}

/// Whether all cells of the line hold text or numbers.
bool SheetFile::isFit()
{
    bool isFit = true;
    for (std::size_t place = 0; m_reading.isFromSpreadsheet && place < m_columns.size(); ++place) {
        const std::string& cell = cells()[place];
        if (m_columns[place] == nullptr || !cell.starts_with(unfitMark))
            continue;
        isFit = false;
        add(line(), place, m_columns[place]->heading, QString::fromStdString(cell.substr(1)));
    }
    return isFit;
}

void SheetFile::takeNumber(std::size_t place)
{
    const std::string& cell = cells()[m_numberPlace];
    if (const auto number = PluNumber::parse(cell)) {
        m_lines.push_back({*number, place, static_cast<std::uint32_t>(line())});
        learnDecimalSign();
    } else {
        add(line(), m_numberPlace, m_sheet.columns.front().heading,
            u"\"%1\" is not a %2 number of up to 18 digits"_s.arg(
                excerptOfUtf8(trimBlanks(std::string_view(cell))), m_sheet.name));
    }
}

void SheetFile::learnDecimalSign()
{
    for (std::size_t place = 0; place < m_columns.size(); ++place) {
        const SheetColumn* const column = m_columns[place];
        if (column == nullptr || column->content != CellContent::Number || column->decimals == 0)
            continue;
        const std::string_view cell = trimBlanks(std::string_view(cells()[place]));
        if (numberOf(cell))
            m_decimalSign.learnFrom(cell);
    }
}

void SheetFile::sortByNumber()
{
    const auto number = [this](std::uint32_t line) {
        return m_lines[line].number;
    };
    m_byNumber.resize(m_lines.size());
    std::iota(m_byNumber.begin(), m_byNumber.end(), 0);
    if (!std::ranges::is_sorted(m_byNumber, {}, number))
        std::ranges::stable_sort(m_byNumber, {}, number);
}

void SheetFile::markDoubles()
{
    const SheetLine* first = nullptr;
    for (const std::uint32_t index : m_byNumber) {
        SheetLine& line = m_lines[index];
        line.isTaken = first != nullptr && first->number == line.number;
        if (line.isTaken) {
            add(line.line, m_numberPlace, m_sheet.columns.front().heading,
                u"%1 already has this number"_s.arg(placeOf(first->line, {})));
        } else {
            first = &line;
        }
    }
}

std::span<const std::string> SheetFile::cells(std::uint32_t line) const
{
    m_csv.goTo(m_lines[line].place);
    (void)m_csv.next();
    if (m_reading.isFromSpreadsheet)
        m_csv.fill(m_columns.size() + 1);
    return cells();
}

std::optional<std::uint32_t> SheetFile::take(PluNumber number)
{
    const auto hasNumber = [&](std::size_t place) {
        return place < m_byNumber.size() && m_lines[m_byNumber[place]].number == number;
    };
    // Callers that go through the numbers in order find the next one here.
    if (!hasNumber(m_next)) {
        const auto found = std::ranges::lower_bound(
            m_byNumber, number, {}, [this](std::uint32_t line) { return m_lines[line].number; });
        m_next = static_cast<std::size_t>(found - m_byNumber.begin());
    }
    if (!hasNumber(m_next))
        return std::nullopt;
    const std::uint32_t line = m_byNumber[m_next++];
    if (std::exchange(m_lines[line].isTaken, true))
        return std::nullopt;
    return line;
}

QString SheetFile::placeOf(qint64 line, std::optional<std::size_t> column) const
{
    if (!m_reading.isFromSpreadsheet)
        return u"line %1"_s.arg(line);
    return (column ? lettersOf(*column) : u"row "_s) + QString::number(line);
}

void SheetFile::add(qint64 line, std::optional<std::size_t> column, const QString& heading,
                    const QString& reason)
{
    m_mistakes.add({line, heading, reason, placeOf(line, column)});
}

} // namespace norvane::articles
