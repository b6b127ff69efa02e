// The words in which the tables of the function keys are written.
#pragma once

#include "keys/functions/KeyOptions.h"

#include <utility>
#include <vector>

namespace norvane::keys::rows
{

using namespace Qt::Literals::StringLiterals;
using enum KeyField;
using enum Models;
using enum NumberControl;

/// Largest numbers that can be typed. What the register stores larger is shown all the same.
inline constexpr Decimal largestWhole{9999, 0};
inline constexpr Decimal largestRate{99999999, 0};
inline constexpr Decimal largestHalo{99999999, 2};
inline constexpr Decimal largestInThousandths{99999999, 3};
inline constexpr Decimal largestMoney{999999, 2};

inline KeyRange key(int number)
{
    return {number, number};
}

inline KeyRange keys(int first, int last)
{
    return {first, last};
}

/// The key's own amount.
inline NumberField haloOfKey()
{
    return {Halo, "Halo"_L1, {halo}, {halo}, largestHalo, 2};
}

inline NumberField haloInThousandths()
{
    return {Halo, "Halo"_L1, {halo}, {halo}, largestInThousandths, 3, HaloDigits::Three};
}

/// A whole number in the control of the amount.
inline NumberField wholeInHalo(QLatin1StringView caption, KeyField field, const Decimal& largest)
{
    return {Halo, caption, {field}, {field}, largest, 0, HaloDigits::NoneFromNow};
}

/// An amount of a field that holds it as it is shown.
inline NumberField moneyInHalo(QLatin1StringView caption, KeyField field)
{
    return {Halo, caption, {field}, {field}, largestMoney};
}

inline NumberField number(NumberControl control, QLatin1StringView caption, ShownFrom from, SavedTo to)
{
    return {control, caption, from, to, largestWhole};
}

inline ShownFrom firstCharacterOf(KeyField field)
{
    return {field, ShownFrom::Extent::First};
}

inline ShownFrom lastCharacterOf(KeyField field)
{
    return {field, ShownFrom::Extent::Last};
}

inline SavedTo addedTo(KeyField field)
{
    return {field, SavedTo::Manner::Adding};
}

inline SavedTo appendedTo(KeyField field)
{
    return {field, SavedTo::Manner::Appending};
}

/// Tax exemptions before a key's own boxes.
inline std::vector<OptionBox> taxSetAnd(const std::vector<OptionBox>& own)
{
    std::vector<OptionBox> all{{0, "Exempt Tax1"_L1}, {1, "Exempt Tax2"_L1}, {2, "Exempt Tax3"_L1},
                               {3, "Exempt Tax4"_L1}, {4, "Exempt Tax5"_L1}, {5, "Exempt Tax6"_L1}};
    all.insert(all.end(), own.begin(), own.end());
    return all;
}

} // namespace norvane::keys::rows
