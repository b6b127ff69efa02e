// The boxes of the exchange dialog: what a user can choose to move.
#pragma once

#include <QList>
#include <QString>

#include <array>

namespace norvane::exchange
{

inline constexpr int boxCount = 37;
/// Boxes with special rules.
inline constexpr int pluBox = 0;
inline constexpr int serialPortBox = 23;
inline constexpr int firstSmartCardBox = 34;
inline constexpr int pluPointsBox = 36;

/// Values of a check box; there is no third state.
inline constexpr int boxUnticked = 0;
inline constexpr int boxTicked = 1;

/// Captions in index order; "&&" shows as one ampersand.
[[nodiscard]] const std::array<const char*, boxCount>& boxCaptions();
/// A caption as the user reads it.
[[nodiscard]] QString boxName(int box);
/// The names of several, separated by commas.
[[nodiscard]] QString boxNames(const QList<int>& boxes);

/// Whether the note about powering off the registers is shown before a download of the serial port devices.
/// Only a box value of -1 (true as a number) shows it. A ticked box has the value 1, so it never appears.
[[nodiscard]] bool serialPortNoteDue(int boxValue, const QString& exchangeMode);
/// The note's text: three lines, each ended by a carriage return.
[[nodiscard]] QString serialPortNote();

/// Access of a sequence to the ticks.
class TickBoxes
{
public:
    TickBoxes() = default;
    TickBoxes(const TickBoxes&) = delete;
    TickBoxes& operator=(const TickBoxes&) = delete;
    virtual ~TickBoxes() = default;

    [[nodiscard]] virtual bool isTicked(int box) const = 0;
    virtual void setTicked(int box, bool ticked) = 0;
};

/// The boxes that are ticked, in index order.
[[nodiscard]] QList<int> tickedBoxes(const TickBoxes& ticks);

} // namespace norvane::exchange
