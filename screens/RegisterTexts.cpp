// Table of the texts with rules of their own; see RegisterTexts.h.
#include "screens/RegisterTexts.h"

#include "base/CustomerSettings.h"

#include <algorithm>

using namespace Qt::Literals::StringLiterals;

namespace norvane::screens
{
namespace
{

enum class TextRule {
    /// The word "Characters" of a screen file knows only digits and ignores everything else.
    Hexadecimal,
    /// One screen file serves all models, whose printers differ in width.
    MessageLine,
};

struct RuledField {
    QLatin1String table;
    QLatin1String field; ///< how its name begins
    TextRule rule;
};

constexpr RuledField ruledFields[] = {
    {"EMPLOYEE"_L1, "dallaskey"_L1, TextRule::Hexadecimal},
    {"LOGOMESSAGE"_L1, "PREAMBLE"_L1, TextRule::MessageLine},
    {"LOGOMESSAGE"_L1, "POSTAMBLE"_L1, TextRule::MessageLine},
    {"GUESTCHECKMESSAGE"_L1, "PREAMBLE"_L1, TextRule::MessageLine},
    {"GUESTCHECKMESSAGE"_L1, "POSTAMBLE"_L1, TextRule::MessageLine},
    {"VALIDATIONMESSAGE"_L1, "LINE"_L1, TextRule::MessageLine},
    {"CHECKENDORSEMESSAGE"_L1, "LINE"_L1, TextRule::MessageLine},
};

/// Eight digits with two behind the point, as the price boxes of the PLU screens.
constexpr double largestPrice = 999999.99;

void narrowTo(ControlDefinition& control, int characters)
{
    const Decimal width(characters, 0);
    if (!control.maximum || control.maximum->toDouble() > characters)
        control.maximum = width;
}

} // namespace

bool isAboveLargest(const Decimal& number, const QString& field)
{
    const bool isPrice = field.startsWith("price"_L1, Qt::CaseInsensitive) ||
                         field.startsWith("europrice"_L1, Qt::CaseInsensitive);
    return isPrice && number.toDouble() > largestPrice;
}

void fitToRegister(ControlDefinition& control, const QString& table, const ApplicationValues& values)
{
    if (control.kind != ControlKind::Text)
        return;
    const auto isAbout = [&](const RuledField& row) {
        return table.compare(row.table, Qt::CaseInsensitive) == 0 &&
               control.dataField.trimmed().startsWith(row.field, Qt::CaseInsensitive);
    };
    const auto* const row = std::find_if(std::begin(ruledFields), std::end(ruledFields), isAbout);
    if (row == std::end(ruledFields))
        return;
    if (row->rule == TextRule::Hexadecimal) {
        control.isHexadecimal = true;
    } else {
        narrowTo(control, messageWidth(values));
    }
}

} // namespace norvane::screens
