// The table of the columns; see PluColumns.h.
#include "articles/PluColumns.h"

#include "reports/data/PrintableText.h"

#include <array>

using namespace Qt::Literals::StringLiterals;

namespace norvane::articles
{

std::span<const PluColumn> pluColumns()
{
    using enum PluContent;
    // clang-format off
    static constexpr auto columns = std::to_array<PluColumn>({
        {"Number"_L1,      "PLUNUMBER"_L1,   Number},
        {"Description"_L1, "DESCRIPTION"_L1, Text},
        {"Group"_L1,       "GROUPNO"_L1,     Key, true, "GROUPS"_L1, "GROUPNO"_L1},
        {"Status"_L1,      "PLUSTATUS"_L1,   Key, true, "PLUSTATUS"_L1, "STATUSNO"_L1},
        {"Price 1"_L1,     "PRICE1"_L1,      Price},
        {"Price 2"_L1,     "PRICE2"_L1,      Price},
        {"Price 3"_L1,     "PRICE3"_L1,      Price},
        {"Price 4"_L1,     "PRICE4"_L1,      Price},
        {"Price 5"_L1,     "PRICE5"_L1,      Price},
        {"Euro 1"_L1,      "EuroPrice1"_L1,  Price, false},
        {"Euro 2"_L1,      "EuroPrice2"_L1,  Price, false},
        {"Euro 3"_L1,      "EuroPrice3"_L1,  Price, false},
        {"Euro 4"_L1,      "EuroPrice4"_L1,  Price, false},
        {"Euro 5"_L1,      "EuroPrice5"_L1,  Price, false},
    });
    // clang-format on
    return columns;
}

store::Value newPluValue(const PluColumn& column)
{
    if (!column.isOnScreen)
        return {};
    return store::Value::text(column.content == PluContent::Text ? std::string() : "0");
}

QString exportedText(const store::Value& stored)
{
    QString text = reports::printable(stored.toText());
    while (text.endsWith(u' '))
        text.chop(1);
    return text;
}

std::optional<Decimal> exportedNumber(const store::Value& stored)
{
    if (stored.isNull())
        return std::nullopt;
    return stored.toDecimal();
}

} // namespace norvane::articles
