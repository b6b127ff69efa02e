// The parts of a register's programme that a user takes over from another shop by name.
#pragma once

#include <QLatin1StringView>
#include <QStringList>

#include <span>

namespace norvane::programme
{

/// Tables that belong together. Sales are in no part.
struct ProgrammePart {
    QLatin1StringView name;   ///< on the command line: "plu"
    QLatin1StringView label;  ///< in a window: "PLUs"
    QLatin1StringView tables; ///< with "|" between; see tablesOf()
};

/// In the order in which a window lists them. Every table of the programme is in exactly one.
[[nodiscard]] std::span<const ProgrammePart> programmeParts();

/// The tables of @p part, spelled as in the catalogue.
[[nodiscard]] QStringList tablesOf(const ProgrammePart& part);

/// The tables that @p names mean, each once and in the order of the parts. A name is that of a part or of a
/// table, in any case. @param unknown receives the names that are neither.
[[nodiscard]] QStringList tablesNamed(const QStringList& names, QStringList& unknown);

} // namespace norvane::programme
