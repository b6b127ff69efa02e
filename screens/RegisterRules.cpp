// Table of the texts with special rules; see RegisterRules.h.
#include "screens/RegisterRules.h"

#include "base/CustomerSettings.h"

#include <algorithm>

using namespace Qt::Literals::StringLiterals;

namespace norvane::screens
{
namespace
{

enum class FieldRule {
    /// The word "Characters" of a screen file knows only digits and ignores everything else.
    Hexadecimal,
    /// One screen file serves all models, whose printers differ in width.
    MessageLine,
    /// Up to midnight, which is 2400.
    TimeOfDay,
    /// The same as a number, which would lose its leading zeros.
    TimeNumber,
    /// One screen file serves the two models of the older generation, of which the first knows no cards.
    CardOption,
};

struct RuledField {
    QLatin1String table;
    QLatin1String field; ///< how its name begins
    FieldRule rule;
};

constexpr RuledField ruledFields[] = {
    {"EMPLOYEE"_L1, "dallaskey"_L1, FieldRule::Hexadecimal},
    {"LOGOMESSAGE"_L1, "PREAMBLE"_L1, FieldRule::MessageLine},
    {"LOGOMESSAGE"_L1, "POSTAMBLE"_L1, FieldRule::MessageLine},
    {"GUESTCHECKMESSAGE"_L1, "PREAMBLE"_L1, FieldRule::MessageLine},
    {"GUESTCHECKMESSAGE"_L1, "POSTAMBLE"_L1, FieldRule::MessageLine},
    {"VALIDATIONMESSAGE"_L1, "LINE"_L1, FieldRule::MessageLine},
    {"CHECKENDORSEMESSAGE"_L1, "LINE"_L1, FieldRule::MessageLine},
    {"TIMEPERIOD"_L1, "STARTTIME"_L1, FieldRule::TimeOfDay},
    {"TIMEPERIOD"_L1, "ENDTIME"_L1, FieldRule::TimeNumber},
    {"EJDETAILPRINT"_L1, "EJPOINTPAYMENT"_L1, FieldRule::CardOption},
    {"EJDETAILPRINT"_L1, "EJSUBTRACT"_L1, FieldRule::CardOption},
    {"EJDETAILPRINT"_L1, "EJADDPOINT"_L1, FieldRule::CardOption},
    {"EJDETAILPRINT"_L1, "EJREDEEM"_L1, FieldRule::CardOption},
    {"EJDETAILPRINT"_L1, "EJPRINTCARD"_L1, FieldRule::CardOption},
    {"EJDETAILPRINT"_L1, "EJCARDSALE"_L1, FieldRule::CardOption},
    {"EJDETAILPRINT"_L1, "EJHOTLIST"_L1, FieldRule::CardOption},
    {"EJDETAILPRINT"_L1, "EJREMOVECARD"_L1, FieldRule::CardOption},
};

constexpr int midnight = 2400;
constexpr int timeDigits = 4;

/// Eight digits with two after the point, as the price boxes of the PLU screens.
constexpr Decimal largestPrice{99999999, 2};

void narrowTo(ControlDefinition& control, int characters)
{
    const Decimal width(characters, 0);
    if (!control.maximum || *control.maximum > width)
        control.maximum = width;
}

void apply(FieldRule rule, ControlDefinition& control, const ApplicationValues& values)
{
    switch (rule) {
    case FieldRule::Hexadecimal:
        control.isHexadecimal = true;
        break;
    case FieldRule::MessageLine:
        narrowTo(control, registerModel(values).messageWidth);
        break;
    case FieldRule::TimeOfDay:
        control.largest = midnight;
        break;
    case FieldRule::TimeNumber:
        control.digits = timeDigits;
        break;
    case FieldRule::CardOption:
        control.enabled = registerModel(values).hasCards;
        break;
    }
}

} // namespace

bool isAboveLargest(const Decimal& number, const QString& field)
{
    const bool isPrice = field.startsWith("price"_L1, Qt::CaseInsensitive) ||
                         field.startsWith("europrice"_L1, Qt::CaseInsensitive);
    return isPrice && number > largestPrice;
}

void fitToRegister(ControlDefinition& control, const QString& table, const ApplicationValues& values)
{
    const auto isAbout = [&](const RuledField& row) {
        return table.compare(row.table, Qt::CaseInsensitive) == 0 &&
               control.dataField.trimmed().startsWith(row.field, Qt::CaseInsensitive);
    };
    const auto* const row = std::find_if(std::begin(ruledFields), std::end(ruledFields), isAbout);
    if (row != std::end(ruledFields))
        apply(row->rule, control, values);
}

} // namespace norvane::screens
