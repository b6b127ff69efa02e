// The keyboards of a factory-fresh register: what each key of the five levels does (file 16) and the number
// that goes with it (file 17), from a plan of the keys as the cashier sees them.
#pragma once

#include "tools/bank/Model.h"

#include <QByteArray>
#include <QList>

namespace bank
{

struct Keyboards {
    QList<QByteArray> links;   ///< 4 digits a key: 0200 a PLU, 0300 a window look-up, else a function key
    QList<QByteArray> numbers; ///< 18 digits a key
};

/// @param plan rows of cells from top to bottom: f18 function key 18, w3 look-up 3, p the level's next PLU,
///             - a fixed key that cannot be programmed
/// @param plus the shop's PLU numbers, 18 digits each, in order
[[nodiscard]] Keyboards layOutKeyboards(const QByteArray& plan, const QList<QByteArray>& plus);

} // namespace bank
