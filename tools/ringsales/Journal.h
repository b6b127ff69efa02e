// The journal of a day: a line of comma-separated text for each item rung, from which every total can be
// added up again.
#pragma once

#include "tools/ringsales/Day.h"

#include <QByteArray>

namespace bank
{

[[nodiscard]] QByteArray journalHead();
[[nodiscard]] QByteArray journalLines(int registerNumber, const Ticket& ticket);

} // namespace bank
