// See PluFile.h.
#include "articles/PluFile.h"

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

constexpr int linesForHeadings = 5;
constexpr auto separators = std::to_array({';', ',', '\t'});

bool isHeading(const std::string& cell, const PluColumn& column)
{
    return QString::fromStdString(cell).trimmed().compare(column.heading, Qt::CaseInsensitive) == 0;
}

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

const PluColumn& numberColumn()
{
    return pluColumns().front();
}

std::string_view withoutByteOrderMark(std::string_view text)
{
    constexpr std::string_view byteOrderMark = "\xEF\xBB\xBF";
    if (text.starts_with(byteOrderMark))
        text.remove_prefix(byteOrderMark.size());
    return text;
}

} // namespace

PluFile::PluFile(const QByteArray& content, std::optional<char> separator)
    : m_text(withoutByteOrderMark({content.constData(), static_cast<std::size_t>(content.size())}))
{
    if (!isUtf8(m_text)) {
        add(brokenLine(m_text), {}, u"the file is not UTF-8; save it as \"CSV UTF-8\""_s);
        return;
    }
    findHeadings(separator);
    if (!m_mistakes.isEmpty())
        return;
    m_lines.reserve(static_cast<std::size_t>(std::ranges::count(m_text, '\n')) + 1);
    for (std::size_t place = m_csv.place(); m_csv.next(); place = m_csv.place())
        takeLine(place);
    sortByNumber();
    markDoubles();
}

void PluFile::findHeadings(std::optional<char> separator)
{
    for (const char sign : separators) {
        if (separator.value_or(sign) != sign)
            continue;
        m_csv = CsvReader(m_text, sign);
        for (int tried = 0; tried < linesForHeadings && m_csv.next(); ++tried) {
            if (std::ranges::any_of(m_csv.cells(),
                                    [](const auto& cell) { return isHeading(cell, numberColumn()); })) {
                takeHeadings();
                return;
            }
        }
    }
    add(1, {}, u"there is no line of headings with a column \"%1\""_s.arg(numberColumn().heading));
}

void PluFile::takeHeadings()
{
    for (const std::string& cell : m_csv.cells())
        takeHeading(cell);
    const auto number = std::ranges::find(m_columns, &numberColumn());
    m_numberPlace = static_cast<std::size_t>(number - m_columns.begin());
}

void PluFile::takeHeading(const std::string& cell)
{
    const auto all = pluColumns();
    const auto column = std::ranges::find_if(all, [&](const auto& each) { return isHeading(cell, each); });
    const QString shown = excerptOfUtf8(cell);
    if (column == all.end()) {
        add(m_csv.line(), shown, u"there is no such column"_s);
    } else if (std::ranges::find(m_columns, &*column) != m_columns.end()) {
        add(m_csv.line(), shown, u"the column is there twice"_s);
    } else {
        m_columns.push_back(&*column);
    }
}

void PluFile::takeLine(std::size_t place)
{
    const auto cells = m_csv.cells();
    if (m_csv.isUnclosed()) {
        add(m_csv.line(), {}, u"a quote is not closed"_s);
    } else if (std::ranges::all_of(cells, &std::string::empty)) {
        return;
    } else if (cells.size() != m_columns.size()) {
        add(m_csv.line(), {}, u"%1 columns, but %2 headings"_s.arg(cells.size()).arg(m_columns.size()));
    } else {
        takeNumber(place);
    }
}

void PluFile::takeNumber(std::size_t place)
{
    const std::string& cell = m_csv.cells()[m_numberPlace];
    if (const auto number = PluNumber::parse(cell)) {
        m_lines.push_back({*number, place, static_cast<std::uint32_t>(m_csv.line())});
        learnDecimalSign();
    } else {
        add(m_csv.line(), numberColumn().heading,
            u"\"%1\" is not a PLU number of up to 18 digits"_s.arg(
                excerptOfUtf8(trimBlanks(std::string_view(cell)))));
    }
}

void PluFile::learnDecimalSign()
{
    const auto cells = m_csv.cells();
    for (std::size_t place = 0; place < m_columns.size(); ++place) {
        const std::string_view cell = trimBlanks(std::string_view(cells[place]));
        if (m_columns[place]->content == PluContent::Price && numberOf(cell))
            m_decimalSign.learnFrom(cell);
    }
}

void PluFile::sortByNumber()
{
    const auto number = [this](std::uint32_t line) {
        return m_lines[line].number;
    };
    m_byNumber.resize(m_lines.size());
    std::iota(m_byNumber.begin(), m_byNumber.end(), 0);
    if (!std::ranges::is_sorted(m_byNumber, {}, number))
        std::ranges::stable_sort(m_byNumber, {}, number);
}

void PluFile::markDoubles()
{
    const PluLine* first = nullptr;
    for (const std::uint32_t index : m_byNumber) {
        PluLine& line = m_lines[index];
        line.isTaken = first != nullptr && first->number == line.number;
        if (line.isTaken) {
            add(line.line, numberColumn().heading, u"line %1 already has this number"_s.arg(first->line));
        } else {
            first = &line;
        }
    }
}

std::span<const std::string> PluFile::cells(std::uint32_t line) const
{
    m_csv.goTo(m_lines[line].place);
    (void)m_csv.next();
    return m_csv.cells();
}

std::optional<std::uint32_t> PluFile::take(PluNumber number)
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

void PluFile::add(qint64 line, const QString& column, const QString& reason)
{
    m_mistakes.add({line, column, reason});
}

} // namespace norvane::articles
