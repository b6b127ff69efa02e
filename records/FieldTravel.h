// Which fields of a table come back from a register as they are sent to it.
#pragma once

#include "records/RecordLayout.h"

#include <QString>

namespace norvane::records
{

/// Why a value of @p field travels between table and register in one direction only, or comes back in another
/// field, in words for the user: "sent, and returned as first". Empty if it travels both ways.
[[nodiscard]] QString oneWayReason(const RecordLayout& layout, const QString& field);

} // namespace norvane::records
