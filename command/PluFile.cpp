// See PluFile.h.
#include "command/PluFile.h"

#include "command/CsvReader.h"
#include "platform/Excerpt.h"
#include "platform/TextFields.h"

#include <algorithm>
#include <array>
#include <unordered_map>

using namespace Qt::Literals::StringLiterals;

namespace norvane::command
{
namespace
{

constexpr int linesForHeadings = 5;
constexpr auto separators = std::to_array({';', ','});

using Cells = std::span<const std::string>;

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

bool isDigits(std::string_view text)
{
    return !text.empty() && text.find_first_not_of("0123456789") == std::string_view::npos;
}

class Reader
{
public:
    explicit Reader(std::string_view text) : m_text(text) {}

    PluFile read()
    {
        if (!isUtf8(m_text)) {
            add(brokenLine(m_text), {}, u"the file is not UTF-8; save it as \"CSV UTF-8\""_s);
        } else if (auto csv = atHeadings()) {
            takeHeadings(*csv);
            while (m_headingsAreGood && csv->next())
                takeLine(*csv);
            dropDoubles();
        } else {
            add(1, {}, u"there is no line of headings with a column \"%1\""_s.arg(numberColumn().heading));
        }
        return std::move(m_file);
    }

private:
    static const PluColumn& numberColumn() { return pluColumns().front(); }

    void add(qint64 line, const QString& column, const QString& reason)
    {
        m_file.mistakes.push_back({line, column, reason});
    }

    /// A reader on the headings, which also tell the separator.
    [[nodiscard]] std::optional<CsvReader> atHeadings() const
    {
        for (const char separator : separators) {
            CsvReader csv(m_text, separator);
            for (int tried = 0; tried < linesForHeadings && csv.next(); ++tried) {
                if (std::ranges::any_of(csv.cells(),
                                        [](const auto& cell) { return isHeading(cell, numberColumn()); }))
                    return csv;
            }
        }
        return std::nullopt;
    }

    void takeHeadings(const CsvReader& csv)
    {
        for (const std::string& cell : csv.cells())
            takeHeading(csv.line(), cell);
        m_headingsAreGood = m_file.mistakes.empty();
        const auto number = std::ranges::find(m_file.columns, &numberColumn());
        m_numberPlace = static_cast<std::size_t>(number - m_file.columns.begin());
    }

    void takeHeading(qint64 line, const std::string& cell)
    {
        const auto all = pluColumns();
        const auto column =
            std::ranges::find_if(all, [&](const auto& each) { return isHeading(cell, each); });
        const QString shown = excerptOfUtf8(cell);
        if (column == all.end()) {
            add(line, shown, u"there is no such column"_s);
        } else if (std::ranges::find(m_file.columns, &*column) != m_file.columns.end()) {
            add(line, shown, u"the column stands there twice"_s);
        } else {
            m_file.columns.push_back(&*column);
        }
    }

    void takeLine(const CsvReader& csv)
    {
        const Cells cells = csv.cells();
        if (csv.isUnclosed()) {
            add(csv.line(), {}, u"a quote is not closed"_s);
        } else if (std::ranges::all_of(cells, &std::string::empty)) {
            return;
        } else if (cells.size() != m_file.columns.size()) {
            add(csv.line(), {},
                u"%1 columns, but %2 headings"_s.arg(cells.size()).arg(m_file.columns.size()));
        } else {
            takeNumber(csv.line(), cells);
        }
    }

    void takeNumber(qint64 line, Cells cells)
    {
        const std::string_view number = trimBlanks(std::string_view(cells[m_numberPlace]));
        if (isDigits(number) && number.size() <= pluNumberDigits) {
            m_file.lines.push_back({line, filledPluNumber(number), {cells.begin(), cells.end()}});
        } else {
            add(line, numberColumn().heading,
                u"\"%1\" is no PLU number of up to 18 digits"_s.arg(excerptOfUtf8(number)));
        }
    }

    void dropDoubles()
    {
        std::unordered_map<std::string, qint64> firstLines;
        firstLines.reserve(m_file.lines.size());
        std::erase_if(m_file.lines, [&](const PluLine& line) {
            const auto [first, isNew] = firstLines.try_emplace(line.number, line.line);
            if (!isNew) {
                add(line.line, numberColumn().heading,
                    u"the number stands in line %1 already"_s.arg(first->second));
            }
            return !isNew;
        });
    }

    std::string_view m_text;
    PluFile m_file;
    std::size_t m_numberPlace = 0;
    bool m_headingsAreGood = false;
};

} // namespace

PluFile readPluFile(const QByteArray& content)
{
    std::string_view text(content.constData(), static_cast<std::size_t>(content.size()));
    constexpr std::string_view byteOrderMark = "\xEF\xBB\xBF";
    if (text.starts_with(byteOrderMark))
        text.remove_prefix(byteOrderMark.size());
    return Reader(text).read();
}

} // namespace norvane::command
