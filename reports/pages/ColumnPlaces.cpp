// See ColumnPlaces.h.
#include "reports/pages/ColumnPlaces.h"

#include "platform/ShownTime.h"

#include <QLocale>
#include <QStringTokenizer>

#include <algorithm>
#include <numeric>

namespace norvane::reports
{
namespace
{

constexpr double usualSize = 3.1;
constexpr double smallestSize = 1.9;
constexpr double sizeStep = 0.05;
/// A text in a column narrower than this, in mm, would be broken after every few words.
constexpr double leastTextWidth = 12;
/// A word with letters may be broken where it is wider than this, in mm.
constexpr double longestWord = 24;
/// The name of a line, in the first column, is not broken up to this width, in mm.
constexpr double longestName = 30;
/// Room for the rounding of widths, in mm.
constexpr double slack = 0.05;

bool isNumber(QStringView word)
{
    return std::ranges::none_of(word, [](QChar letter) { return letter.isLetter(); });
}

/// Of a cell or a column, in mm, in letters of the usual size and without margins.
struct ContentWidth {
    double needed = 0; ///< what must not be split: a number, or the widest word of a text
    double whole = 0;  ///< the whole content in one row

    void include(const ContentWidth& other)
    {
        needed = std::max(needed, other.needed);
        whole = std::max(whole, other.whole);
    }
};

/// Numbers are measured by their count of digits and not formatted, since lists may have 100,000 lines.
class CellMeasure
{
public:
    CellMeasure(const ReportColumn& column, const PageFont& font, bool isBold)
        : m_column(column), m_font(font), m_style{usualSize, isBold},
          m_digit(font.width(QStringLiteral("0"), {usualSize, isBold})),
          m_sign(font.width(QStringLiteral("-"), {usualSize, isBold})),
          m_blank(font.width(QStringLiteral(" "), {usualSize, isBold})),
          m_separator(font.width(QLocale().groupSeparator(), {usualSize, isBold})),
          m_currency(font.width(column.dress.currency, {usualSize, isBold})),
          m_day(font.width(shownDay({2028, 12, 28}), {usualSize, isBold}))
    {
    }

    ContentWidth operator()(std::monostate) const { return {}; }
    ContentWidth operator()(const QString& words) const
    {
        ContentWidth text;
        for (const QStringView word : QStringTokenizer(words, u' ')) {
            const double width = m_font.width(word, m_style);
            text.needed = std::max(text.needed, isNumber(word) ? width : std::min(width, longestWord));
            text.whole += width + m_blank;
        }
        return text;
    }
    ContentWidth operator()(const QDate&) const { return {m_day, m_day}; }
    ContentWidth operator()(const Decimal& number) const
    {
        const double width = widthOf(number);
        return {width, width};
    }

private:
    [[nodiscard]] double widthOf(const Decimal& number) const
    {
        int whole = std::max(1, number.digits() - number.scale());
        const int places = std::clamp(number.scale(), m_column.leastDecimals,
                                      std::max(m_column.leastDecimals, m_column.mostDecimals));
        if (number.scale() > places)
            ++whole; // 9.99 may be shown as 10.0
        const int separators = m_column.dress.isGrouped ? (whole - 1) / 3 : 0;
        // The point is no wider than the sign.
        return m_currency + separators * m_separator + (whole + places) * m_digit +
               (places > 0 ? m_sign : 0) + (number < Decimal() ? m_sign : 0);
    }

    const ReportColumn& m_column;
    const PageFont& m_font;
    TextStyle m_style;
    double m_digit;
    double m_sign;
    double m_blank;
    double m_separator;
    double m_currency;
    double m_day;
};

double widestWord(const QString& heading, const PageFont& font)
{
    double widest = 0;
    for (const QStringView word : QStringTokenizer(heading, u' '))
        widest = std::max(widest, font.width(word, {usualSize, true}));
    return widest;
}

/// Headings of groups and remarks run over the whole line, so they do not count.
ContentWidth valueWidth(const ReportData& report, int column, const PageFont& font)
{
    const ReportColumn& shown = report.columns()[static_cast<std::size_t>(column)];
    const CellMeasure plain(shown, font, false);
    const CellMeasure bold(shown, font, true);
    ContentWidth width;
    if (shown.kind == ColumnKind::Text)
        width.needed = std::min(leastTextWidth, shown.width.inMillimetres());
    for (qsizetype line = 0; line < report.lineCount(); ++line) {
        const LineKind kind = report.lineKind(line);
        if (!isText(kind))
            width.include(std::visit(kind == LineKind::Detail ? plain : bold, report.cell(line, column)));
    }
    if (column == 0)
        width.needed = std::max(width.needed, std::min(width.whole, longestName));
    return width;
}

double sum(const std::vector<double>& widths)
{
    return std::accumulate(widths.begin(), widths.end(), 0.0);
}

/// Widths of columns in mm.
struct Widths {
    std::vector<ContentWidth> contents;
    std::vector<double> wanted; ///< by the layout

    [[nodiscard]] double needs(std::size_t column, double size) const
    {
        return withMargins(contents[column].needed, size);
    }
    /// By the layout, but no more than the contents need in one row.
    [[nodiscard]] double fills(std::size_t column, double size) const
    {
        return std::max(needs(column, size),
                        std::min(wanted[column], withMargins(contents[column].whole, size)));
    }

private:
    [[nodiscard]] static double withMargins(double width, double size)
    {
        return width * size / usualSize + 2 * cellMargin + slack;
    }
};

Widths widthsOf(const ReportData& report, const PageFont& font)
{
    Widths widths;
    for (int column = 0; column < report.columnCount(); ++column) {
        const ReportColumn& shown = report.columns()[static_cast<std::size_t>(column)];
        ContentWidth content = valueWidth(report, column, font);
        content.needed = std::max(content.needed, widestWord(shown.heading, font));
        widths.contents.push_back(content);
        widths.wanted.push_back(shown.width.inMillimetres());
    }
    return widths;
}

/// The column after the last one of each band.
std::vector<std::size_t> bandEnds(const Widths& widths, double size, double width)
{
    std::vector<std::size_t> ends;
    double used = 0;
    for (std::size_t column = 0; column < widths.contents.size(); ++column) {
        const double own = widths.needs(column, size);
        if (used > 0 && used + own > width) {
            ends.push_back(column);
            used = 0;
        }
        used += own;
    }
    ends.push_back(widths.contents.size());
    return ends;
}

/// The largest letters with no more bands than the smallest.
double fittingSize(const Widths& widths, double width)
{
    const std::size_t fewest = bandEnds(widths, smallestSize, width).size();
    double size = usualSize;
    while (size > smallestSize && bandEnds(widths, size, width).size() > fewest)
        size -= sizeStep;
    return std::max(size, smallestSize);
}

/// Takes @p surplus from the widths, from each the same part of what it has beyond its least width.
/// @return what is still too much.
double takeSpare(std::vector<double>& widths, const std::vector<double>& least, double surplus)
{
    const double spare = sum(widths) - sum(least);
    if (surplus <= 0 || spare <= 0)
        return surplus;
    const double part = std::min(1.0, surplus / spare);
    for (std::size_t column = 0; column < widths.size(); ++column)
        widths[column] -= (widths[column] - least[column]) * part;
    return surplus - spare;
}

/// The layout's widths where there is room. Else the columns give up what remains empty, and only then texts
/// are broken.
std::vector<double> fittedWidths(const Widths& widths, std::size_t first, std::size_t end, double size,
                                 double width)
{
    std::vector<double> fitted;
    std::vector<double> filled;
    std::vector<double> needed;
    for (auto* const kind : {&fitted, &filled, &needed})
        kind->reserve(end - first);
    for (std::size_t column = first; column < end; ++column) {
        needed.push_back(widths.needs(column, size));
        filled.push_back(widths.fills(column, size));
        fitted.push_back(std::max(needed.back(), widths.wanted[column]));
    }
    takeSpare(fitted, needed, takeSpare(fitted, filled, sum(fitted) - width));
    return fitted;
}

} // namespace

ColumnPlaces fitColumns(const ReportData& report, const PageFont& font, double left, double width)
{
    const Widths widths = widthsOf(report, font);
    const double size = fittingSize(widths, width);
    ColumnPlaces places{{}, size};
    int band = 0;
    std::size_t first = 0;
    for (const std::size_t end : bandEnds(widths, size, width)) {
        const std::vector<double> fitted = fittedWidths(widths, first, end, size, width);
        const double filling = width / std::max(sum(fitted), 1.0);
        const double scale = band == 0 ? filling : std::min(1.0, filling);
        double at = left;
        for (const double own : fitted) {
            places.columns.push_back({at, own * scale, band});
            at += own * scale;
        }
        first = end;
        ++band;
    }
    return places;
}

} // namespace norvane::reports
