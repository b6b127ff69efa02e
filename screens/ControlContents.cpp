// See ControlContents.h.
#include "screens/ControlContents.h"

#include "platform/Numbers.h"
#include "ui/NumberBox.h"
#include "ui/TextBox.h"
#include "ui/ValueList.h"

#include <QCheckBox>

namespace norvane::screens
{
namespace
{

QString comboValue(const store::Value& content)
{
    if (content.isNull())
        return {};
    return content.isYesNo() ? numberText(content.toNumber()) : content.toText();
}

} // namespace

store::Value contentOf(ControlKind kind, const QWidget& control)
{
    switch (kind) {
    case ControlKind::Text:
        return store::Value::text(static_cast<const ui::TextBox&>(control).text());
    case ControlKind::Integer:
    case ControlKind::Decimal:
        return store::Value::decimal(static_cast<const ui::NumberBox&>(control).value());
    case ControlKind::Combo: {
        const QString value = static_cast<const ui::ValueList&>(control).value();
        return value.isNull() ? store::Value() : store::Value::text(value);
    }
    case ControlKind::Check:
        return store::Value::whole(static_cast<const QCheckBox&>(control).isChecked() ? 1 : 0);
    default:
        return {};
    }
}

void showContent(ControlKind kind, QWidget& control, const store::Value& content)
{
    switch (kind) {
    case ControlKind::Text:
        static_cast<ui::TextBox&>(control).showText(content.toText());
        break;
    case ControlKind::Integer:
    case ControlKind::Decimal:
        static_cast<ui::NumberBox&>(control).setValue(content.toDecimal());
        break;
    case ControlKind::Combo:
        static_cast<ui::ValueList&>(control).setValue(comboValue(content));
        break;
    case ControlKind::Check:
        static_cast<QCheckBox&>(control).setChecked(content.toNumber() != 0);
        break;
    default:
        break;
    }
}

} // namespace norvane::screens
