// See CellFormat.h.
#include "reports/lines/CellFormat.h"

#include "platform/Dates.h"
#include "register/PluNumber.h"

#include <array>

using namespace Qt::Literals::StringLiterals;

namespace norvane::reports
{
namespace
{

struct NamedFormat {
    QLatin1String name;
    FormatKind kind;
    int leastDecimals;
    int mostDecimals;
};

/// Registers weigh and count to a thousandth. Money has two places unless the shop's settings say otherwise.
constexpr std::array<NamedFormat, 8> namedFormats{{
    {"Text"_L1, FormatKind::Text, 0, 0},
    {"Digits"_L1, FormatKind::Digits, 0, 0},
    {"Money"_L1, FormatKind::Money, 2, 2},
    {"Quantity"_L1, FormatKind::Number, 0, 3},
    {"Date"_L1, FormatKind::Date, 0, 0},
    {"Day"_L1, FormatKind::Day, 0, 0},
    {"Time"_L1, FormatKind::Time, 0, 0},
    {"YesNo"_L1, FormatKind::YesNo, 0, 0},
}};
constexpr qsizetype mostPlaces = 9;

} // namespace

Alignment CellFormat::alignment() const
{
    const bool isRight = isNumber() || kind == FormatKind::Digits;
    return isRight ? Alignment::Right : Alignment::Left;
}

QString CellFormat::text(const store::Value& value) const
{
    if (value.isNull())
        return {};
    QString plain = value.toText().trimmed();
    switch (kind) {
    case FormatKind::Digits:
        return unfilledNumber(plain);
    case FormatKind::Date:
    case FormatKind::Day: {
        const QDate day = value.toDate();
        return day.isValid() ? day.toString(kind == FormatKind::Day ? u"dd/MM" : u"dd/MM/yyyy") : plain;
    }
    case FormatKind::Time:
        return plain.isEmpty() ? QString() : clockTime(plain);
    case FormatKind::YesNo:
        return value.toNumber() != 0 ? u"Yes"_s : u"No"_s;
    case FormatKind::Words:
        return words.value(plain, plain);
    default:
        return plain;
    }
}

std::optional<CellFormat> parseFormat(QStringView text)
{
    for (const auto& [name, kind, least, most] : namedFormats) {
        if (text.compare(name, Qt::CaseInsensitive) == 0)
            return CellFormat{kind, least, most, {}};
    }
    if (!text.startsWith(u'0') || (text.size() > 1 && text.at(1) != u'.') || text.endsWith(u'.'))
        return std::nullopt;
    const QStringView places = text.mid(2);
    qsizetype zeros = 0;
    while (zeros < places.size() && places.at(zeros) == u'0')
        ++zeros;
    if (places.size() > mostPlaces || places.mid(zeros).count(u'#') != places.size() - zeros)
        return std::nullopt;
    return CellFormat{FormatKind::Number, static_cast<int>(zeros), static_cast<int>(places.size()), {}};
}

std::optional<QHash<QString, QString>> parseWords(const QString& text)
{
    QHash<QString, QString> words;
    for (const QString& row : text.split(u',')) {
        const qsizetype parting = row.indexOf(u';');
        if (parting < 1)
            return std::nullopt;
        words.insert(row.left(parting).trimmed(), row.mid(parting + 1).trimmed());
    }
    return words;
}

} // namespace norvane::reports
