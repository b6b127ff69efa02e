// See PageText.h.
#include "chain/PageText.h"

#include <algorithm>
#include <utility>

using namespace Qt::Literals::StringLiterals;

namespace norvane::chain
{
namespace
{

/// Readable without colours. Wide tables scroll in themselves on a telephone, where charts have fewer and
/// larger labels. Paper has neither scroll bars nor what is folded.
constexpr auto style = R"(
body { font: 16px/1.4 sans-serif; margin: 1.5em auto; max-width: 60em; padding: 0 1em; color: #1c2530; background: #fff; }
h1 { margin-bottom: 0; } h2 { margin-top: 2em; font-size: 1.15em; } p { margin: .3em 0; color: #45525f; }
.wide { overflow-x: auto; } table { border-collapse: collapse; min-width: 50%; }
th, td { padding: .25em .8em .25em 0; border-bottom: 1px solid #d5dbe1; text-align: left; white-space: nowrap; }
th { color: #45525f; font-weight: 600; } .n { text-align: right; font-variant-numeric: tabular-nums; }
.w { white-space: normal; }
svg { display: block; width: 100%; height: auto; margin-bottom: .6em; } svg text { font: 11px sans-serif; fill: #45525f; }
svg.share { width: 7em; height: .7em; margin: 0; }
.now { fill: #24527a; } .before { fill: #b9c4ce; } a { color: #1d4f80; }
@media screen and (max-width: 40em) {
body { padding: 0 .5em; } svg text { font-size: 18px; } svg text.second { display: none; } svg.share { width: 4em; }
}
@media print {
body { font-size: 11px; margin: 0; max-width: none; } .wide { overflow: visible; } details { display: none; }
h2 { break-after: avoid; margin-top: 1.2em; } th, td { padding: .1em .8em .1em 0; } tr, svg { break-inside: avoid; } a { color: inherit; text-decoration: none; }
}
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

/// "12345.60" as "12,345.60".
QString groupedText(QString number)
{
    constexpr qsizetype digits = 3;
    const qsizetype first = number.startsWith(u'-') ? 1 : 0;
    const qsizetype point = number.indexOf(u'.');
    for (qsizetype at = (point < 0 ? number.size() : point) - digits; at > first; at -= digits)
        number.insert(at, u',');
    return number;
}

/// The heights of bars need no exact numbers.
double sizeOf(const QString& number)
{
    return std::max(0.0, number.toDouble());
}

class Bars
{
public:
    explicit Bars(const QList<PageRow>& rows) : m_rows(rows)
    {
        for (const PageRow& row : rows)
            m_highest = std::max({m_highest, sizeOf(row[1]), sizeOf(row[2])});
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
        const QString tip = u"%1: %2, a year earlier %3"_s.arg(
            cellText(row[0]), cellText(groupedText(row[1])), cellText(groupedText(row[2])));
        QString text = u"<g>"_s + barText("before", left, width, row[2]) +
                       barText("now", left + width / 4, width / 2, row[1]);
        text += u"<title>%1</title></g>\n"_s.arg(tip);
        const qsizetype step = std::max(qsizetype{1}, m_rows.size() / mostLabels);
        if (place % step == 0)
            text += labelText(left, place / step % 2 == 1, row[0]);
        return text;
    }

    /// @param isSecond every second label has no room on a telephone.
    [[nodiscard]] static QString labelText(double left, bool isSecond, const QString& label)
    {
        return u"<text%1 x=\"%2\" y=\"%3\">%4</text>\n"_s.arg(isSecond ? u" class=\"second\""_s : QString())
            .arg(left, 0, 'f', 1)
            .arg(chartHeight + labelHeight - 3)
            .arg(label.toHtmlEscaped());
    }

    const QList<PageRow>& m_rows;
    double m_highest = 0;
};

/// The tag of a cell, "td" or "th", with the class of its column.
QString cellTag(QLatin1StringView tag, PageColumn kind)
{
    switch (kind) {
    case PageColumn::Number:
    case PageColumn::Share:
        return u"<%1 class=\"n\">"_s.arg(tag);
    case PageColumn::Name:
        return u"<%1 class=\"w\">"_s.arg(tag);
    case PageColumn::Text:
    case PageColumn::Shop:
        break;
    }
    return u"<%1>"_s.arg(tag);
}

QString headText(const PageSection& shown)
{
    QString text = u"<thead><tr>"_s;
    for (const PageHeading& heading : shown.headings) {
        if (heading.kind == PageColumn::Shop)
            continue;
        text += cellTag("th"_L1, heading.kind) + QLatin1StringView(heading.text) + u"</th>"_s;
        if (heading.kind == PageColumn::Share)
            text += u"<th></th>"_s;
    }
    return text + u"</tr></thead>\n"_s;
}

/// A bar in a cell after that of the number, the whole width for everything.
QString shareText(const QString& percent)
{
    return u"<td><svg class=\"share\" viewBox=\"0 0 100 10\" preserveAspectRatio=\"none\" "
           "aria-hidden=\"true\"><rect class=\"now\" width=\"%1\" height=\"10\"/></svg></td>"_s.arg(
               std::min(sizeOf(percent), 100.0), 0, 'f', 1);
}

QString contentText(const QString& cell, PageColumn kind)
{
    const bool isNumber = kind == PageColumn::Number || kind == PageColumn::Share;
    return cellText(isNumber ? groupedText(cell) : cell);
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
            continue;
        }
        QString content = contentText(cell, kind);
        if (const QString linked = std::exchange(shop, {}); !linked.isEmpty())
            content = u"<a href=\"%1\">%2</a>"_s.arg(shopPageName(linked), content);
        text += cellTag("td"_L1, kind) + content + u"</td>"_s;
        if (kind == PageColumn::Share)
            text += shareText(cell);
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
        text += Bars(rows).text(title);
    if (*shown.note != '\0')
        text += u"<p>%1</p>\n"_s.arg(QLatin1StringView(shown.note));
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
