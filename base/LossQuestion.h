// Asks the user before a step that cannot be undone, when an earlier step failed without a message.
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
