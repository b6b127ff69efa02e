// What a control of a screen holds, read and shown by its kind.
#pragma once

#include "screens/ScreenDefinition.h"
#include "store/engine/Value.h"

class QWidget;

namespace norvane::screens
{

/// The content of @p control as BoundField::content describes it.
[[nodiscard]] store::Value contentOf(ControlKind kind, const QWidget& control);
void showContent(ControlKind kind, QWidget& control, const store::Value& content);

} // namespace norvane::screens
