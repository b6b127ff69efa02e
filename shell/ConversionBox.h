// Converts a customer of the former program, with a question and a progress box.
#pragma once

#include "platform/Boxes.h"

#include <QString>

class QWidget;

namespace norvane::shell
{

/// Asks whether to convert the database in the folder @p customerPath; Yes converts it with a progress box
/// that can be cancelled. A box reports failures.
/// @return whether the customer has a database of ours now.
[[nodiscard]] bool convertAfterQuestion(const QString& customerPath, const QString& programFolder,
                                        Boxes& boxes, QWidget* window);

} // namespace norvane::shell
