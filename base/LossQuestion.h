// The question before a step that cannot be taken back, when something ahead of it went wrong in silence.
#pragma once

#include "platform/Boxes.h"

#include <QString>

namespace norvane
{

/// The title of every such question, and of what the user has to know before going on.
inline constexpr QLatin1StringView pleaseCheck{"Please Check"};

/// Asks @p text with Yes and No. No is preset: it is the answer that loses nothing. @return true for Yes.
[[nodiscard]] bool askBeforeLoss(Boxes& boxes, const QString& text);

} // namespace norvane
