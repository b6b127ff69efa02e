// Values in cells, and the columns of PLUs; see TableSheet.h.
#include "articles/TableSheet.h"

#include "reports/data/PrintableText.h"

#include <QStringList>

#include <array>

using namespace Qt::Literals::StringLiterals;

namespace norvane::articles
{
namespace
{

struct PluColumn {
    QLatin1StringView heading;
    QLatin1StringView field;
    CellContent content;
    bool isOnScreen = true;
    QLatin1StringView table{}; ///< of a key
    QLatin1StringView tableKey{};
};

using enum CellContent;
// clang-format off
constexpr auto pluColumns = std::to_array<PluColumn>({
    {"Number"_L1,      "PLUNUMBER"_L1,   RecordNumber},
    {"Description"_L1, "DESCRIPTION"_L1, Text},
    {"Group"_L1,       "GROUPNO"_L1,     Key, true, "GROUPS"_L1, "GROUPNO"_L1},
    {"Status"_L1,      "PLUSTATUS"_L1,   Key, true, "PLUSTATUS"_L1, "STATUSNO"_L1},
    {"Price 1"_L1,     "PRICE1"_L1,      Number},
    {"Price 2"_L1,     "PRICE2"_L1,      Number},
    {"Price 3"_L1,     "PRICE3"_L1,      Number},
    {"Price 4"_L1,     "PRICE4"_L1,      Number},
    {"Price 5"_L1,     "PRICE5"_L1,      Number},
    {"Euro 1"_L1,      "EuroPrice1"_L1,  Number, false},
    {"Euro 2"_L1,      "EuroPrice2"_L1,  Number, false},
    {"Euro 3"_L1,      "EuroPrice3"_L1,  Number, false},
    {"Euro 4"_L1,      "EuroPrice4"_L1,  Number, false},
    {"Euro 5"_L1,      "EuroPrice5"_L1,  Number, false},
});
// clang-format on

constexpr qsizetype longestDescription = 16;
constexpr Decimal highestPrice{99999999, 2}; ///< a register has eight digits for a price
constexpr int priceDecimals = 2;

SheetColumn pluColumnOf(const PluColumn& plu)
{
    SheetColumn column{.heading = plu.heading, .field = plu.field, .content = plu.content};
    column.isOnScreen = plu.isOnScreen;
    column.table = plu.table;
    column.tableKey = plu.tableKey;
    column.longest = longestDescription;
    column.isFilled = plu.content == RecordNumber;
    if (plu.content == Key)
        column.word = QString(plu.heading).toLower();
    if (plu.content == Number) {
        column.word = u"price"_s;
        column.decimals = priceDecimals;
        column.most = highestPrice;
    }
    return column;
}

} // namespace

TableSheet pluSheet()
{
    TableSheet sheet{u"PLUDATA"_s, u"PLU"_s, u"plunumber"_s, {}, true};
    for (const PluColumn& column : pluColumns)
        sheet.columns.push_back(pluColumnOf(column));
    return sheet;
}

QString recordsOf(const TableSheet& sheet)
{
    QStringList fields;
    for (const SheetColumn& column : sheet.columns)
        fields << u'[' + column.field + u']';
    const QString order = sheet.index.isEmpty() ? QString() : u" order by "_s + fields.front();
    return u"select %1 from [%2]%3"_s.arg(fields.join(u", "), sheet.table, order);
}

std::string storedNumber(const SheetColumn& column, PluNumber number)
{
    return column.isFilled ? number.text() : std::to_string(number.value());
}

store::Value newCellValue(const SheetColumn& column)
{
    if (!column.isOnScreen)
        return {};
    return store::Value::text(column.content == Text ? std::string() : "0");
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
