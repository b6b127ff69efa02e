// What the controls of a screen file must keep to: the fields of the tables and the columns of the registers.
#pragma once

#include "platform/Decimal.h"
#include "records/RegisterFiles.h"
#include "screens/ScreenDefinition.h"
#include "store/engine/Definitions.h"

#include <algorithm>

namespace norvane::screens
{

/// Fields that a screen leaves out on purpose: its file ("*" for all over the table), its table, the fields.
/// A name that ends in "*" matches all that begin so.
inline constexpr const char* leftOut[][3] = {
    // The grid of euro prices.
    {"plutble.scn", "PLUDATA",
     "GROUPNO PLUSTATUS WLUNUMBER PIECECOUNT RECIPENO INactive PRESET OVERRIDE pricechange printNV MIXNMATCH "
     "PRODUCTMIX STOCKLINK MODIFIER PRICE* POINT*"},
    {"PLU.scn PLUVelmar*", "PLUDATA", "EuroPrice*"},
    // The first model has no points and knows no cards; the first two store no images.
    {"PLUVelmarv2.scn", "PLUDATA", "POINT* printNV"},
    {"PLUVelmarv2card.scn", "PLUDATA", "printNV"},
    {"PLUstatVelmarv2.scn PLUstatVelmarvcard.scn", "PLUSTATUS", "LINKEDNVIMAGE"},
    {"GenFuncVelmarv2.scn", "GENERALFUNCTIONS",
     "AUDIBLETONEONHOTLIST ALLOWCARDISSUE CHECKCARDBIRTHDAY USESMARTCARDGROUP GELDKARTE REDEEM*"},
    {"GenPrtOpVelmarv2.scn", "GENERALPRINTOPTION",
     "PRINTPOINTSACCRUED PRINTCARDHOLDERREF PRINTCATEGORY PRINTDEPARTMENT PRINTLOYALTYBALANCE PRINTDOB "
     "PRINTCASHBALANCE PRINTMAXBALANCE PRINTNAME PRINTOLDLOYALTY PRINTOLDCASHBALANCE"},
    {"GenPrtOpVelmarv2.scn GenPrtOpVelmarv2card.scn", "GENERALPRINTOPTION", "prelogoimage* postlogoimage*"},
    // Reserved by the register.
    {"*", "TAXRATES", "dummy*"},
};

/// Fields that an upload may leave empty, which a box for whole numbers cannot show.
inline constexpr const char* emptyAfterUpload[][2] = {{"PLUDATA", "POINT*"},
                                                      {"PLUSTATUS", "AUTOGRILLNo LINKEDNVIMAGE"},
                                                      {"GENERALPRINTOPTION", "prelogoimage* postlogoimage*"}};

/// What a column says about the field that it sends.
struct Sent {
    std::string field;
    std::size_t width = 0; ///< 0 where the width says nothing
    int scale = 0;
};

inline Sent sentBy(const records::Column& column)
{
    constexpr std::size_t widestMessage = 40;
    const auto look = []<typename Form>(const Form& form) {
        Sent sent;
        if constexpr (requires { form.field; })
            sent.field = form.field;
        if constexpr (std::is_same_v<Form, records::MessageColumn>) {
            sent.width = widestMessage;
        } else if constexpr (requires { form.width; } && !std::is_same_v<Form, records::HexByteColumn>) {
            sent.width = form.width;
        }
        if constexpr (requires { form.scale; })
            sent.scale = form.scale;
        return sent;
    };
    return std::visit(look, column);
}

/// Whether @p name is a word of @p list. A word that ends in "*" matches all names that begin so.
inline bool isListed(const char* list, const QString& name)
{
    const QStringList words = QString::fromLatin1(list).split(u' ');
    return std::ranges::any_of(words, [&](const QString& word) {
        return word.endsWith(u'*') ? name.startsWith(word.chopped(1), Qt::CaseInsensitive)
                                   : name.compare(word, Qt::CaseInsensitive) == 0;
    });
}

/// Prices are numbers held as text.
inline bool isPrice(const store::FieldDefinition& field)
{
    return isListed("PRICE1 PRICE2 PRICE3 PRICE4 PRICE5 EuroPrice*", field.name);
}

/// Whether @p control shows and stores what @p field holds.
inline bool canHold(const ControlDefinition& control, const store::FieldDefinition& field)
{
    switch (control.kind) {
    case ControlKind::Check:
        return field.type == store::FieldType::YesNo;
    case ControlKind::Integer:
    case ControlKind::Combo:
        return field.type == store::FieldType::Long;
    case ControlKind::Decimal:
        return field.type == store::FieldType::Long || field.type == store::FieldType::Double ||
               isPrice(field) || control.readOnly.value_or(false);
    default:
        return (field.type == store::FieldType::Text && !isPrice(field)) ||
               (field.type == store::FieldType::Digits && isListed("NUMERIC", control.characters));
    }
}

/// What Maxvalue of @p control must be for the column of a register file that sends its field: the largest
/// number, or the most characters. 0 where no column's width says it.
inline Decimal largestOf(const ControlDefinition& control, const QString& table)
{
    for (const auto& file : records::registerFiles()) {
        if (!isListed(file.table, table))
            continue;
        for (const auto& set : file.layout().sets) {
            for (const auto& column : set.columns) {
                const Sent sent = sentBy(column);
                if (control.dataField.compare(QString::fromStdString(sent.field), Qt::CaseInsensitive) != 0)
                    continue;
                if (sent.width == 0 || isListed("ENDTIME", control.dataField)) // a time of the day
                    return {};
                if (control.kind == ControlKind::Text)
                    return {static_cast<std::int64_t>(sent.width), 0};
                return Decimal::leading(std::string(sent.width, '9')).shifted(-sent.scale);
            }
        }
    }
    return {};
}

/// Whether @p screen, a file, leaves the field out on purpose.
inline bool isLeftOut(const QString& screen, const QString& table, const QString& field)
{
    return std::ranges::any_of(leftOut, [&](const auto& row) {
        return isListed(row[0], screen) && isListed(row[1], table) && isListed(row[2], field);
    });
}

/// Whether an upload may leave the field empty, which a box for whole numbers cannot show.
inline bool mayBeEmpty(const QString& table, const QString& field)
{
    return std::ranges::any_of(emptyAfterUpload, [&](const auto& row) {
        return isListed(row[0], table) && isListed(row[1], field);
    });
}

} // namespace norvane::screens
