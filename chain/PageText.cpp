// See PageText.h.
#include "chain/PageText.h"

#include <algorithm>

using namespace Qt::Literals::StringLiterals;

namespace norvane::chain
{
namespace
{

/// Readable without colours. Wide tables scroll in themselves on a telephone.
constexpr auto style = R"(
body { font: 16px/1.4 sans-serif; margin: 1.5em auto; max-width: 60em; padding: 0 1em; color: #1c2530; background: #fff; }
h1 { margin-bottom: 0; } h2 { margin-top: 2em; font-size: 1.15em; } p { margin: .3em 0; color: #45525f; }
.wide { overflow-x: auto; } table { border-collapse: collapse; min-width: 50%; }
th, td { padding: .25em .8em .25em 0; border-bottom: 1px solid #d5dbe1; text-align: left; white-space: nowrap; }
th { color: #45525f; font-weight: 600; } .n { text-align: right; font-variant-numeric: tabular-nums; }
svg { display: block; width: 100%; height: auto; margin-bottom: .6em; } svg text { font: 11px sans-serif; fill: #45525f; }
.now { fill: #24527a; } .before { fill: #b9c4ce; } a { color: #1d4f80; }
)"_L1;

/// Of a chart, in its own units.
constexpr int chartWidth = 720;
constexpr int chartHeight = 150;
constexpr int labelHeight = 16;
constexpr int mostLabels = 8;
constexpr double barShare = 0.7; ///< of the room for it

QString cellText(const QString& text)
{
    return text.isNull() ? u"\u2013"_s : text.toHtmlEscaped();
}

/// The heights of bars need no exact numbers.
double sizeOf(const QString& number)
{
    return std::max(0.0, number.toDouble());
}

class Bars
{
public:
    /// @param hasBefore a year earlier is in the third column.
    Bars(const QList<PageRow>& rows, bool hasBefore) : m_rows(rows), m_hasBefore(hasBefore)
    {
        for (const PageRow& row : rows)
            m_highest = std::max({m_highest, sizeOf(row[1]), hasBefore ? sizeOf(row[2]) : 0});
    }

    [[nodiscard]] QString text(const QString& title) const
    {
        QString svg = u"<svg viewBox=\"0 0 %1 %2\" role=\"img\" aria-label=\"%3\">\n"_s.arg(chartWidth)
                          .arg(chartHeight + labelHeight)
                          .arg(title.toHtmlEscaped());
        for (qsizetype place = 0; place < m_rows.size(); ++place)
            svg += columnText(place);
        return svg + u"</svg>\n"_s;
    }

private:
    [[nodiscard]] double room() const
    {
        return static_cast<double>(chartWidth) / static_cast<double>(m_rows.size());
    }

    [[nodiscard]] QString barText(const char* kind, double left, double width, const QString& number) const
    {
        const double height = m_highest > 0 ? chartHeight * sizeOf(number) / m_highest : 0;
        return u"<rect class=\"%1\" x=\"%2\" y=\"%3\" width=\"%4\" height=\"%5\"/>"_s
            .arg(QLatin1StringView(kind))
            .arg(left, 0, 'f', 1)
            .arg(chartHeight - height, 0, 'f', 1)
            .arg(width, 0, 'f', 1)
            .arg(height, 0, 'f', 1);
    }

    [[nodiscard]] QString columnText(qsizetype place) const
    {
        const PageRow& row = m_rows[place];
        const double left = room() * static_cast<double>(place);
        const double width = room() * barShare;
        QString tip = u"%1: %2"_s.arg(cellText(row[0]), cellText(row[1]));
        QString text = u"<g>"_s;
        if (m_hasBefore) {
            tip += u", a year earlier %1"_s.arg(cellText(row[2]));
            text +=
                barText("before", left, width, row[2]) + barText("now", left + width / 4, width / 2, row[1]);
        } else {
            text += barText("now", left, width, row[1]);
        }
        text += u"<title>%1</title></g>\n"_s.arg(tip);
        const qsizetype step = std::max(qsizetype{1}, m_rows.size() / mostLabels);
        if (place % step == 0)
            text += labelText(left, step, row[0]);
        return text;
    }

    /// As many letters as have room before the next label.
    [[nodiscard]] QString labelText(double left, qsizetype step, const QString& label) const
    {
        constexpr double letterWidth = 7;
        const auto letters = static_cast<qsizetype>(room() * static_cast<double>(step) / letterWidth);
        return u"<text x=\"%1\" y=\"%2\">%3</text>\n"_s.arg(left, 0, 'f', 1)
            .arg(chartHeight + labelHeight - 3)
            .arg(label.left(letters).toHtmlEscaped());
    }

    const QList<PageRow>& m_rows;
    bool m_hasBefore;
    double m_highest = 0;
};

QString headText(const PageSection& shown)
{
    QString text = u"<tr>"_s;
    for (const PageHeading& heading : shown.headings) {
        if (heading.kind == PageColumn::Shop)
            continue;
        text += heading.kind == PageColumn::Number ? u"<th class=\"n\">"_s : u"<th>"_s;
        text += QLatin1StringView(heading.text) + u"</th>"_s;
    }
    return text + u"</tr>\n"_s;
}

QString rowText(const PageSection& shown, const PageRow& row)
{
    QString text = u"<tr>"_s;
    QString shop;
    for (std::size_t place = 0; place < shown.headings.size(); ++place) {
        const QString& cell = row[static_cast<qsizetype>(place)];
        const PageColumn kind = shown.headings[place].kind;
        if (kind == PageColumn::Shop) {
            shop = cell;
        } else if (!shop.isEmpty()) {
            text += u"<td><a href=\"%1\">%2</a></td>"_s.arg(shopPageName(shop), cellText(cell));
            shop.clear();
        } else {
            text += (kind == PageColumn::Number ? u"<td class=\"n\">"_s : u"<td>"_s) + cellText(cell) +
                    u"</td>"_s;
        }
    }
    return text + u"</tr>\n"_s;
}

QString tableText(const PageSection& shown, const QList<PageRow>& rows)
{
    QString text = u"<div class=\"wide\"><table>\n"_s + headText(shown);
    for (const PageRow& row : rows)
        text += rowText(shown, row);
    return text + u"</table></div>\n"_s;
}

/// A long table is below a chart that says the most of it.
QString foldedTable(const PageSection& shown, const QList<PageRow>& rows)
{
    constexpr qsizetype mostBelowChart = 20;
    QString table = tableText(shown, rows);
    if (!shown.hasBars || rows.size() <= mostBelowChart)
        return table;
    return u"<details><summary>Figures</summary>\n%1</details>\n"_s.arg(table);
}

bool comparesYears(const PageSection& shown)
{
    return QLatin1StringView(shown.headings[2].text) == "A year earlier"_L1;
}

} // namespace

QString shopPageName(const QString& shop)
{
    return u"shop-%1.html"_s.arg(shop);
}

QString sectionText(const PageSection& shown, const QList<PageRow>& rows)
{
    if (rows.isEmpty())
        return {};
    const QString title = QString::fromLatin1(shown.title);
    QString text = u"<section>\n<h2>%1</h2>\n"_s.arg(title.toHtmlEscaped());
    if (shown.hasBars)
        text += Bars(rows, comparesYears(shown)).text(title);
    if (shown.hasBars && comparesYears(shown))
        text += u"<p>Dark: takings. Pale: a year earlier.</p>\n"_s;
    return text + foldedTable(shown, rows) + u"</section>\n"_s;
}

QString pageText(const QString& title, const QString& subtitle, const QString& body)
{
    return u"<!DOCTYPE html>\n<html xmlns=\"http://www.w3.org/1999/xhtml\" lang=\"en\">\n<head>\n"
           "<meta charset=\"utf-8\"/>\n"
           "<meta name=\"viewport\" content=\"width=device-width, initial-scale=1\"/>\n"
           "<title>%1</title>\n<style>%2</style>\n</head>\n<body>\n<h1>%1</h1>\n"
           "<p>%3</p>\n%4</body>\n</html>\n"_s.arg(title.toHtmlEscaped(), style, subtitle, body);
}

} // namespace norvane::chain
