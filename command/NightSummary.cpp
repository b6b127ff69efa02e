// The summary of a night in words and as a page; see Night.h.
#include "command/Night.h"

#include <QLocale>

#include <algorithm>

using namespace Qt::Literals::StringLiterals;

namespace norvane::command
{
namespace
{

constexpr auto pageHead =
    "<!DOCTYPE html>\n<html lang=\"en\"><head><meta charset=\"utf-8\">"
    "<meta name=\"viewport\" content=\"width=device-width\"><title>%1</title>\n"
    "<style>body{font-family:sans-serif;margin:2em;color:#222;background:#fff}"
    "table{border-collapse:collapse}th,td{text-align:left;vertical-align:top;padding:.4em .8em;"
    "border-bottom:1px solid #bbb}th{background:#eee}td.left{font-weight:bold;color:#9c1c1c}"
    ".done{color:#1d6330}</style></head>\n<body><h1>%1</h1>\n"_L1;

QString cell(const QString& text, QLatin1StringView kind = {})
{
    const QString attribute = kind.isEmpty() ? QString() : u" class=\"%1\""_s.arg(kind);
    return u"<td%1>%2</td>"_s.arg(attribute, text.toHtmlEscaped().replace(u'\n', u"<br>"_s));
}

QString pageRow(const ShopNight& shop)
{
    QString row = cell(shop.shop) + cell(shop.day.toString(Qt::ISODate));
    for (const NightEnd& end : shop.steps)
        row += cell(end.words, end.isDone() ? ""_L1 : "left"_L1);
    const QString left = shop.leftToDo();
    return u"<tr>%1%2</tr>\n"_s.arg(row,
                                    left.isEmpty() ? cell(u"nothing"_s, "done"_L1) : cell(left, "left"_L1));
}

QString pageHeadings()
{
    QString row;
    const auto add = [&row](const QString& name) {
        row += u"<th scope=\"col\">%1</th>"_s.arg(name);
    };
    add(u"Shop"_s);
    add(u"Day"_s);
    for (const auto& step : nightSteps)
        add(step.name);
    add(u"Left to do"_s);
    return u"<tr>%1</tr>\n"_s.arg(row);
}

qsizetype countLeft(const std::vector<ShopNight>& shops)
{
    return std::ranges::count_if(shops, [](const ShopNight& shop) { return shop.code() != ExitCode::Done; });
}

QString headline(const std::vector<ShopNight>& shops)
{
    const auto left = countLeft(shops);
    const auto all = static_cast<qsizetype>(shops.size());
    return left == 0 ? u"%1 of %1 shops are complete."_s.arg(all)
                     : u"%1 of %2 shops are complete, %3 left."_s.arg(all - left).arg(all).arg(left);
}

} // namespace

ExitCode ShopNight::code() const
{
    const auto* const left = std::ranges::find_if_not(steps, &NightEnd::isDone);
    return left == steps.end() ? ExitCode::Done : left->code;
}

bool ShopNight::mayRetry() const
{
    return std::ranges::any_of(steps, &NightEnd::mayRetry);
}

QString ShopNight::leftToDo() const
{
    QStringList names;
    for (std::size_t step = 0; step < steps.size(); ++step) {
        if (!steps.at(step).isDone())
            names << QString(nightSteps.at(step).name).toLower();
    }
    return names.join(u", "_s);
}

QString ShopNight::inWords() const
{
    QStringList parts;
    for (std::size_t step = 0; step < steps.size(); ++step) {
        const NightEnd& end = steps.at(step);
        const QString left = end.isDone() ? QString() : nightSteps.at(step).left + u": "_s;
        if (!end.isDone() || !end.words.isEmpty())
            parts << left + end.words.simplified();
    }
    return u"%1: %2"_s.arg(shop, parts.isEmpty() ? u"nothing to do"_s : parts.join(u"; "_s));
}

QString nightInWords(const std::vector<ShopNight>& shops)
{
    QStringList lines{headline(shops)};
    for (const ShopNight& shop : shops) {
        if (const QString left = shop.leftToDo(); !left.isEmpty())
            lines << u"  %1: %2"_s.arg(shop.shop, left);
    }
    return lines.join(u'\n') + u'\n';
}

QByteArray nightPage(const std::vector<ShopNight>& shops, const QDateTime& begun, const QDateTime& ended)
{
    const auto moment = u"yyyy-MM-dd HH:mm"_s;
    QString page = QString(pageHead).arg(u"Night of %1"_s.arg(begun.toString(u"yyyy-MM-dd"_s)));
    page += u"<p>%1 From %2 to %3.</p>\n<table>\n"_s.arg(headline(shops), begun.toString(moment),
                                                         ended.toString(moment));
    page += pageHeadings();
    for (const ShopNight& shop : shops)
        page += pageRow(shop);
    return (page + u"</table>\n</body></html>\n"_s).toUtf8();
}

} // namespace norvane::command
