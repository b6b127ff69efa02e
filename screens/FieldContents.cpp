// What a control shows of a value, and what is stored of it; see FieldContents.h.
#include "screens/FieldContents.h"

#include "platform/Numbers.h"

using namespace Qt::Literals::StringLiterals;

namespace norvane::screens
{
namespace
{

store::Value shownNumber(const store::Value& value)
{
    return store::Value::decimal(value.toDecimal());
}

store::Value leadingNumberOf(const store::Value& value)
{
    return value.isYesNo() ? store::Value::whole(value.isTrue() ? -1 : 0) : shownNumber(value);
}

/// A whole-number box cannot show null.
store::Value shownInteger(const store::Value& value, const QString& field)
{
    if (value.isNull()) {
        throw RuntimeFailure(Failure::TypeMismatch,
                             u"Invalid use of null: field \"%1\" holds no number"_s.arg(field));
    }
    return shownNumber(value);
}

/// A number field shows null as an empty box; saved unchanged it remains null.
store::Value textToStore(const store::Value& content, const store::FieldDefinition& field)
{
    const bool isBlank = QString::fromStdString(content.toUtf8()).trimmed().isEmpty();
    return isBlank && field.type != store::FieldType::Text ? store::Value() : content;
}

} // namespace

store::Value shownValue(const BoundField& field, const store::Value& value)
{
    switch (field.kind) {
    case ControlKind::Text:
        return store::Value::text(value.toUtf8());
    case ControlKind::Integer:
        return shownInteger(value, field.dataField);
    case ControlKind::Decimal:
        return shownNumber(value);
    case ControlKind::Check:
        return store::Value::whole(value.isTrue() ? 1 : 0);
    default:
        return value;
    }
}

store::Value blankValue(ControlKind kind)
{
    return kind == ControlKind::Text ? store::Value::text(std::string()) : store::Value::whole(0);
}

store::Value valueToStore(const BoundField& field, const store::FieldDefinition& definition)
{
    switch (field.kind) {
    case ControlKind::Text:
        return textToStore(field.content, definition);
    case ControlKind::Integer:
        return store::Value::whole(toWholeNumber(field.content.toText()));
    case ControlKind::Combo:
    case ControlKind::Decimal:
        return leadingNumberOf(field.content);
    default:
        return field.content;
    }
}

} // namespace norvane::screens
