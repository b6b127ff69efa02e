// The lines of a window look-up: what a cashier chooses from after the key was pressed.
#pragma once

#include <QString>

#include <vector>

namespace norvane::keys
{

/// Most lines that a register's look-up has room for.
inline constexpr int mostLookUpLines = 50;

/// What a line opens, as table wlu stores it.
enum class LineType { Plu = 0, Condiment = 1, Function = 2 };

/// A line as it is stored and as it is shown.
struct LookUpLine {
    LineType type = LineType::Plu;
    QString code = QStringLiteral("0"); ///< PLU number or id of a function key; 0 on an empty line
    QString word = QStringLiteral("PLU");
    QString item = QStringLiteral("0"); ///< a carriage return is between number and description

    [[nodiscard]] bool isEmpty() const;
    /// Whether a save would store the same of both; they may show it in other words.
    bool operator==(const LookUpLine& other) const { return type == other.type && code == other.code; }
};

/// The lines of a look-up in their order, empty ones included.
using LookUpLines = std::vector<LookUpLine>;

/// Closes the gaps; used lines keep their order. A used line after more than 20 empty ones moves up by 20
/// places and remains after the rest of the gap until the lines are packed again.
void packLines(LookUpLines& lines);

/// Takes the line at @p from out and puts it in at @p to, both from 0. @return false when either is not a
/// line.
bool moveLine(LookUpLines& lines, int from, int to);

/// Lines that are not empty.
[[nodiscard]] int usedLines(const LookUpLines& lines);

} // namespace norvane::keys
