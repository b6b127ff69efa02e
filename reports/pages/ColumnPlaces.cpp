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
/// Room for the rounding of widths, in mm.
constexpr double slack = 0.05;

bool isNumber(QStringView word)
{
    return std::ranges::none_of(word, [](QChar letter) { return letter.isLetter(); });
}

/// The width of a cell that must not be cut, in mm. Numbers are measured by their count of digits and not
/// formatted, since lists may have 100,000 lines. For texts the widest word counts.
class WidestCell
{
public:
    WidestCell(const ReportColumn& column, const PageFont& font, bool isBold)
        : m_column(column), m_font(font), m_style{usualSize, isBold},
          m_digit(font.width(QStringLiteral("0"), {usualSize, isBold})),
          m_sign(font.width(QStringLiteral("-"), {usualSize, isBold})),
          m_separator(font.width(QLocale().groupSeparator(), {usualSize, isBold})),
          m_currency(font.width(column.dress.currency, {usualSize, isBold})),
          m_day(font.width(shownDay({2028, 12, 28}), {usualSize, isBold}))
    {
    }

    double operator()(std::monostate) const { return 0; }
    double operator()(const QString& words) const
    {
        double widest = 0;
        for (const QStringView word : QStringTokenizer(words, u' ')) {
            const double width = m_font.width(word, m_style);
            widest = std::max(widest, isNumber(word) ? width : std::min(width, longestWord));
        }
        return widest;
    }
    double operator()(const QDate&) const { return m_day; }
    double operator()(const Decimal& number) const
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

private:
    const ReportColumn& m_column;
    const PageFont& m_font;
    TextStyle m_style;
    double m_digit;
    double m_sign;
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
double widestValue(const ReportData& report, int column, const PageFont& font)
{
    const ReportColumn& shown = report.columns()[static_cast<std::size_t>(column)];
    const WidestCell plain(shown, font, false);
    const WidestCell bold(shown, font, true);
    double widest =
        shown.kind == ColumnKind::Text ? std::min(leastTextWidth, shown.width.inMillimetres()) : 0;
    for (qsizetype line = 0; line < report.lineCount(); ++line) {
        const LineKind kind = report.lineKind(line);
        if (!isText(kind)) {
            widest = std::max(widest,
                              std::visit(kind == LineKind::Detail ? plain : bold, report.cell(line, column)));
        }
    }
    return widest;
}

double sum(const std::vector<double>& widths)
{
    return std::accumulate(widths.begin(), widths.end(), 0.0);
}

/// Widths of columns in mm.
struct Widths {
    std::vector<double> needed; ///< what must not be split, in letters of the usual size, without margins
    std::vector<double> wanted; ///< by the layout

    [[nodiscard]] double needs(std::size_t column, double size) const
    {
        return needed[column] * size / usualSize + 2 * cellMargin + slack;
    }
};

Widths widthsOf(const ReportData& report, const PageFont& font)
{
    Widths widths;
    for (int column = 0; column < report.columnCount(); ++column) {
        const ReportColumn& shown = report.columns()[static_cast<std::size_t>(column)];
        widths.needed.push_back(std::max(widestWord(shown.heading, font), widestValue(report, column, font)));
        widths.wanted.push_back(shown.width.inMillimetres());
    }
    return widths;
}

/// The column after the last one of each band.
std::vector<std::size_t> bandEnds(const Widths& widths, double size, double width)
{
    std::vector<std::size_t> ends;
    double used = 0;
    for (std::size_t column = 0; column < widths.needed.size(); ++column) {
        const double own = widths.needs(column, size);
        if (used > 0 && used + own > width) {
            ends.push_back(column);
            used = 0;
        }
        used += own;
    }
    ends.push_back(widths.needed.size());
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

/// The layout's widths where there is room. Else each column gives up the same part of what it can spare.
std::vector<double> fittedWidths(const Widths& widths, std::size_t first, std::size_t end, double size,
                                 double width)
{
    std::vector<double> fitted;
    double needed = 0;
    for (std::size_t column = first; column < end; ++column) {
        needed += widths.needs(column, size);
        fitted.push_back(std::max(widths.needs(column, size), widths.wanted[column]));
    }
    const double surplus = sum(fitted) - width;
    const double spare = sum(fitted) - needed;
    for (std::size_t column = first; surplus > 0 && spare > 0 && column < end; ++column) {
        double& own = fitted[column - first];
        own -= (own - widths.needs(column, size)) * std::min(1.0, surplus / spare);
    }
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
