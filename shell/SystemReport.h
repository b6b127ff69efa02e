// What a dealer's support asks for first.
#pragma once

#include "base/ApplicationValues.h"

#include <QString>
#include <QStringList>

namespace norvane::shell
{

/// Versions of program, toolkit, database engine and system; folders, customer, registers and tools;
/// @p printers; the last lines of the customer's log. Settings that cannot be read are reported in their
/// line; telephone numbers are left out. Empty if the customer's folder is missing.
[[nodiscard]] QString systemReport(const ApplicationValues& values, const QStringList& printers);

} // namespace norvane::shell
