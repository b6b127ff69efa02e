// The command lines of the transfer tool. Every blank counts: the tool finds its words by position.
#pragma once

#include "link/LinkSettings.h"

#include <QString>

namespace norvane::link
{

/// Speed word of a program exchange by list index, its blank included: "s2 ", "s4 ", "s9 ", "s1 ".
[[nodiscard]] QString speedWord(int baudIndex);
/// Bare rate of a sales collection and of the serial line by list index: "1200", "2400", "9600", "19200".
/// The first two differ from the set-up list; the registers' modems are set to these.
[[nodiscard]] QString bareRate(int baudIndex);
/// Port word by list index; only the word of port 1 has no blank at its end.
[[nodiscard]] QString portWord(int portIndex);

/// Fetches from the one register at the end of the line.
[[nodiscard]] QString uploadLine(const LinkSettings& link, const QString& suffix);
/// Opening exchange before a download, with the one register at the end of the line.
[[nodiscard]] QString downloadOpeningLine(const LinkSettings& link, const QString& suffix);
/// Sends to registers 1 to n in one run of the tool.
[[nodiscard]] QString downloadLine(const LinkSettings& link, const QString& suffix);

/// Opening exchange before a sales collection, with one register. The lines of a collection name no port:
/// the tool uses the one that it is set to.
[[nodiscard]] QString salesOpeningLine(const LinkSettings& link, const QString& suffix);
/// A step of a sales collection at registers 1 to n in one run of the tool.
[[nodiscard]] QString salesLine(const LinkSettings& link, const QString& suffix);

/// Suffixes that open every sequence: memory allocation file, and the exchange without a data file.
inline constexpr QLatin1StringView memorySuffix{" Nmem.DAT -U 52"};
inline constexpr QLatin1StringView openingSuffix{"  -U 250"};

} // namespace norvane::link
