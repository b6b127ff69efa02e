// See FindNotices.h.
#include "screens/FindNotices.h"

#include "platform/Excerpt.h"
#include "register/PluNumber.h"
#include "screens/SaveNotices.h"

using namespace Qt::Literals::StringLiterals;

namespace norvane::screens
{

/// PLU numbers are texts of digits.
QString kindOfKey(const store::FieldDefinition& field)
{
    if (isPluNumberField(field.name))
        return u"PLU number"_s;
    return field.type == store::FieldType::Text ? u"text"_s : u"number"_s;
}

QString foundNext(const QString& caption, const QString& label, const QString& sought, bool hasList)
{
    const QString text =
        u"No %1 %2. This is the next one."_s.arg(recordName(caption, label), excerpt(sought.trimmed()));
    return hasList ? text + u" The list (Ctrl+L) finds any part of a number or text."_s : text;
}

} // namespace norvane::screens
