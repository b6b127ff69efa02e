// Texts of keys: without line breaks, and split over the three lines of a key.
#pragma once

#include <QString>

#include <array>

namespace norvane::overlay
{

/// Puts a blank in the place of each carriage return and each line feed: a cell is a single line.
[[nodiscard]] QString RemoveCarriage(QString text);

/// The lines of a key for @p text, of at most seven characters each. A short text stands in the middle. A
/// line ends behind its first blank or is cut at seven characters, the next begins right there; what is left
/// behind the third is dropped.
[[nodiscard]] std::array<QString, 3> CUTTEXTUP(const QString& text);

} // namespace norvane::overlay
