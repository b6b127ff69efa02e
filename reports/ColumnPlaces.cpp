// See ColumnPlaces.h.
#include "reports/ColumnPlaces.h"

#include "reports/ExactNumbers.h"

#include <QLocale>

#include <algorithm>
#include <numeric>

namespace norvane::reports
{
namespace
{

constexpr double usualSize = 3.1;
constexpr double smallestSize = 1.9;
/// A text in a column narrower than this, in mm, would be broken after every few letters.
constexpr double leastTextWidth = 14;

/// The width of a cell that must not be cut, in mm. Numbers are measured by their count of digits and never
/// spelled out, since lists may have 100,000 lines. Texts count as nothing: they can be broken.
class WidestCell
{
public:
    WidestCell(const ReportColumn& column, const PageText& text, bool isBold)
        : m_column(column), m_digit(text.width(QStringLiteral("0"), {usualSize, isBold})),
          m_sign(text.width(QStringLiteral("-"), {usualSize, isBold})),
          m_day(
              text.width(QLocale().toString(QDate(2028, 12, 28), QLocale::ShortFormat), {usualSize, isBold}))
    {
    }

    double operator()(std::monostate) const { return 0; }
    double operator()(const QString&) const { return 0; }
    double operator()(const QDate&) const { return m_day; }
    double operator()(const Decimal& number) const
    {
        int whole = std::max(1, digitsOf(number.coefficient()) - number.scale());
        const int places = std::clamp(number.scale(), m_column.leastDecimals,
                                      std::max(m_column.leastDecimals, m_column.mostDecimals));
        if (number.scale() > places)
            ++whole; // 9.99 may be shown as 10.0
        // The point takes no more room than the sign.
        return (whole + places) * m_digit + (places > 0 ? m_sign : 0) +
               (number.coefficient() < 0 ? m_sign : 0);
    }

private:
    const ReportColumn& m_column;
    double m_digit;
    double m_sign;
    double m_day;
};

double widestWord(const QString& heading, const PageText& text)
{
    double widest = 0;
    for (const QString& word : heading.split(u' '))
        widest = std::max(widest, text.width(word, {usualSize, true}));
    return widest;
}

double widestValue(const ReportData& report, int column, const PageText& text)
{
    const ReportColumn& shown = report.columns()[static_cast<std::size_t>(column)];
    const WidestCell plain(shown, text, false);
    const WidestCell bold(shown, text, true);
    double widest = 0;
    for (qsizetype line = 0; line < report.lineCount(); ++line) {
        const bool isDetail = report.lineKind(line) == LineKind::Detail;
        widest = std::max(widest, std::visit(isDetail ? plain : bold, report.cell(line, column)));
    }
    return widest;
}

double neededWidth(const ReportData& report, int column, const PageText& text)
{
    const ReportColumn& shown = report.columns()[static_cast<std::size_t>(column)];
    const double heading = widestWord(shown.heading, text);
    const double value = shown.kind == ColumnKind::Text
                             ? std::min(leastTextWidth, shown.width.inMillimetres())
                             : widestValue(report, column, text);
    return std::max(heading, value) + 2 * cellMargin;
}

double sum(const std::vector<double>& widths)
{
    return std::accumulate(widths.begin(), widths.end(), 0.0);
}

/// The layout's widths where there is room. Else each column gives up the same part of what it can spare.
std::vector<double> fittedWidths(const ReportData& report, const std::vector<double>& needed, double width)
{
    std::vector<double> widths = needed;
    for (std::size_t column = 0; column < widths.size(); ++column)
        widths[column] = std::max(widths[column], report.columns()[column].width.inMillimetres());
    const double surplus = sum(widths) - width;
    const double spare = sum(widths) - sum(needed);
    for (std::size_t column = 0; surplus > 0 && spare > 0 && column < widths.size(); ++column)
        widths[column] -= (widths[column] - needed[column]) * std::min(1.0, surplus / spare);
    return widths;
}

} // namespace

ColumnPlaces fitColumns(const ReportData& report, const PageText& text, double left, double width)
{
    std::vector<double> needed(report.columns().size());
    for (int column = 0; column < report.columnCount(); ++column)
        needed[static_cast<std::size_t>(column)] = neededWidth(report, column, text);
    const std::vector<double> widths = fittedWidths(report, needed, width);
    const double scale = width / std::max(sum(widths), 1.0);
    ColumnPlaces places{{}, std::max(smallestSize, usualSize * std::min(1.0, scale))};
    for (const double own : widths) {
        places.columns.push_back({left, own * scale});
        left += own * scale;
    }
    return places;
}

} // namespace norvane::reports
