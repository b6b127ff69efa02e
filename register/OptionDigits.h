// The digits in which a register packs yes/no options: each holds flags of the weights 4, 2 and 1.
#pragma once

namespace norvane
{

/// Whether the flag at @p position, 1 to 4, is set in an option digit; false for any other position. The
/// positions 1, 2 and 4 are weights. Position 3 is not a bit: the register counts 3, 5 and 7.
[[nodiscard]] constexpr bool DigitFlagSet(int digit, int position)
{
    switch (position) {
    case 1:
        return digit == 1 || digit == 3 || digit == 5 || digit == 7;
    case 2:
        return digit == 2 || digit == 3 || digit == 6 || digit == 7;
    case 3:
        return digit == 3 || digit == 5 || digit == 7;
    case 4:
        return digit >= 4 && digit <= 7;
    default:
        return false;
    }
}

} // namespace norvane
