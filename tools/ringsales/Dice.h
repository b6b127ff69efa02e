// Chance with its own arithmetic: a seed gives the same day on every platform.
#pragma once

#include <QtGlobal>

namespace bank
{

class Dice
{
public:
    explicit Dice(quint64 seed) : m_state(seed) {}

    /// @return 0 to @p count - 1
    int below(int count) { return static_cast<int>((next() >> 32) * static_cast<quint64>(count) >> 32); }
    bool chance(int percent) { return below(100) < percent; }
    template <typename Values>
    const auto& pick(const Values& values)
    {
        return values.at(static_cast<typename Values::size_type>(below(static_cast<int>(values.size()))));
    }

private:
    /// The generator known as SplitMix64: one step of the state, then its bits are mixed.
    quint64 next()
    {
        m_state += 0x9E3779B97F4A7C15U;
        quint64 mixed = m_state;
        mixed = (mixed ^ (mixed >> 30)) * 0xBF58476D1CE4E5B9U;
        mixed = (mixed ^ (mixed >> 27)) * 0x94D049BB133111EBU;
        return mixed ^ (mixed >> 31);
    }

    quint64 m_state;
};

} // namespace bank
