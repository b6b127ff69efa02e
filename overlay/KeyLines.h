// Texts of keys: without line breaks, and split over the three lines of a key.
#pragma once

#include <QString>

#include <array>

namespace norvane::overlay
{

/// Puts a blank in the place of each carriage return and each line feed: a cell is a single line.
[[nodiscard]] QString RemoveCarriage(QString text);

/// The lines of a key for @p text, of at most seven characters each. A short text is in the middle. A line
/// ends after its first blank or is cut at seven characters, and the next begins right there; text after the
/// third line is dropped.
[[nodiscard]] std::array<QString, 3> CUTTEXTUP(const QString& text);

} // namespace norvane::overlay
