// See PluChoices.h.
#include "keys/layout/PluChoices.h"

#include "register/PluNumber.h"
#include "store/catalogue/SalesTables.h"
#include "store/engine/BoundQuery.h"

#include <QLocale>
#include <QRegularExpression>

using namespace Qt::Literals::StringLiterals;

namespace norvane::keys
{
namespace
{

using store::Value;

/// More than a keyboard has keys, on all of its levels.
constexpr int bestSellers = 1000;

std::string bestSellersSql()
{
    using namespace store::salestable;
    const auto month =
        u"from %1 where %2 between ? and ?"_s.arg(QLatin1StringView(plus), QLatin1StringView(day));
    return u"select ID, sum(COUNT1 + COUNT2 + COUNT3 + COUNT4 + COUNT5) as sold %1 group by ID having sold > "
           u"0 "
           "order by sold desc, ID limit %2"_s.arg(month)
               .arg(bestSellers)
               .toStdString();
}

PluChoice bestSellersOf(QDate month)
{
    const QDate first(month.year(), month.month(), 1);
    return {u"Best sellers of "_s + QLocale::c().toString(first, u"MMMM yyyy"_s),
            bestSellersSql(),
            {Value::date(first), Value::date(first.addMonths(1).addDays(-1))}};
}

PluChoice groupChoice(const QString& number, const QString& description)
{
    return {number + u' ' + description.trimmed(),
            "select PLUNUMBER from PLUDATA where GROUPNO = ? order by PLUNUMBER",
            {Value::whole(number.toInt())}};
}

} // namespace

std::vector<PluChoice> pluChoices(store::Database& database, QDate today)
{
    std::vector<PluChoice> choices{bestSellersOf(today.addMonths(-1))};
    store::BoundQuery groups(database, "select GROUPNO, DESCRIPTION from GROUPS order by GROUPNO", {},
                             u"GROUPS"_s);
    while (groups.next()) {
        const QString number = groups.value(0).toText();
        choices.push_back(groupChoice(number, groups.value(1).toText()));
    }
    return choices;
}

std::optional<PluChoice> pluRange(const QString& text)
{
    static const QRegularExpression range(u"^\\s*(\\d{1,18})\\s*\\.\\.\\s*(\\d{1,18})\\s*$"_s);
    const QRegularExpressionMatch match = range.match(text);
    if (!match.hasMatch())
        return std::nullopt;
    return PluChoice{
        text.trimmed(),
        "select PLUNUMBER from PLUDATA where PLUNUMBER between ? and ? order by PLUNUMBER",
        {Value::text(filledPluNumber(match.captured(1))), Value::text(filledPluNumber(match.captured(2)))}};
}

QStringList pluNumbers(store::Database& database, const PluChoice& choice)
{
    QStringList numbers;
    store::BoundQuery query(database, choice.sql, choice.values, choice.name);
    while (query.next())
        numbers += query.value(0).toText();
    return numbers;
}

} // namespace norvane::keys
