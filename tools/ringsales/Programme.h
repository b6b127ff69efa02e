// What a register can sell, by whom and when: read from its own programme.
#pragma once

#include "tools/ringsales/Keyboard.h"

#include <QByteArray>

#include <array>
#include <vector>

namespace bank
{

constexpr std::size_t soldLevels = 4; ///< price levels whose totals a register sends

struct Article {
    QByteArray number;                      ///< 18 digits
    std::array<qint64, soldLevels> cents{}; ///< price by level; 0: it is not sold at this level
    int offer = 0;                          ///< mix and match offer that it belongs to, 0 for none
    bool weighed = false;
    bool promotion = false; ///< may be given away
    bool waste = false;     ///< may be written off
    bool discount = false;
    std::optional<KeyPlace> key; ///< that rings it; nothing if it is rung by its number
};

/// Both ends as the register keeps them: the clock read as a number, 0859 is 859.
struct TimePeriod {
    int number = 0;
    int from = 0;
    int to = 0;
};

struct Programme {
    std::vector<Article> articles; ///< active ones with a price on some level
    std::vector<int> clerks;       ///< numbers of the employees who have a name and are not trainees
    std::vector<TimePeriod> periods;

    /// @return the number of the active period at @p clock, 0 if there is none
    [[nodiscard]] int periodAt(int clock) const;

    /// @param only if given, customers buy only what is on this key
    /// @throws ToolFailure, TextFault; std::runtime_error when there is nothing to sell or nobody to sell it
    [[nodiscard]] static Programme read(const Register& of, const std::optional<KeyPlace>& only = {});
};

} // namespace bank
