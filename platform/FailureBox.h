// The box that reports a run-time failure to the user.
#pragma once

#include "platform/Boxes.h"
#include "platform/RuntimeFailure.h"

#include <utility>

namespace norvane
{

/// Shows "Run-time error 'number':" and @p text.
inline void showFailure(int number, const QString& text, Boxes& boxes)
{
    boxes.message(QStringLiteral("Run-time error '%1':\r\r%2").arg(number).arg(text), {}, BoxIcon::Critical);
}

inline void showFailure(const RuntimeFailure& failure, Boxes& boxes)
{
    showFailure(failure.number(), failure.text(), boxes);
}

/// Runs @p open, which opens a window and has stored nothing yet. A failure is shown and goes no further, so
/// that it ends nothing but this window.
template <typename Open>
void openOrTell(Boxes& boxes, Open&& open)
{
    try {
        std::forward<Open>(open)();
    } catch (const RuntimeFailure& failure) {
        showFailure(failure, boxes);
    }
}

} // namespace norvane
