// What the options of every function key mean: which boxes and numbers a key has, under which captions, and
// where in its record each of them is kept.
#pragma once

#include "platform/Decimal.h"
#include "register/RegisterModel.h"

#include <QLatin1StringView>
#include <QString>

#include <optional>
#include <vector>

namespace norvane::keys
{

/// The fields of a function key's record that hold options and numbers.
enum class KeyField { halo, flag1, flag2, flag3, flag4 };
inline constexpr int flagCount = 4;

/// The boxes of the array Check1. An index is the place of an option in the record.
inline constexpr int checkCount = 24;
inline constexpr int checksOfFlag = 6;

/// Where an option is stored: a flag field holds two digits, each digit three options.
struct OptionPlace {
    KeyField field;
    bool left;  ///< the digit of the tens
    int weight; ///< 4, 2 or 1: its value in the digit
    /// What a ticked box adds to the field.
    [[nodiscard]] int amount() const { return left ? 10 * weight : weight; }
};
/// The place that belongs to @p index, 0 to 23, whatever the key.
[[nodiscard]] OptionPlace placeOf(int index);

/// On which register models an option exists.
enum class Models {
    All,
    Card,   ///< those that know smart cards
    Points, ///< those that take points as payment
};
[[nodiscard]] bool includes(Models models, const RegisterModel& model);

/// A box of the array Check1.
struct OptionBox {
    int index;
    QLatin1StringView caption; ///< an ampersand is a character of it
    Models models = Models::All;
    /// Shows what is stored at the place of this index, when that is not the place to which it is saved.
    std::optional<int> shownAs = {};
};

/// The controls for the numbers of a key.
enum class NumberControl { Halo, otherno, otherno2 };

/// Where a number is read when its key is shown.
struct ShownFrom {
    /// Which characters of the field's text are the number. Some fields have a digit beside packed options.
    enum class Extent { All, First, Last };
    KeyField field;
    Extent extent = Extent::All;
};

/// Where a number goes when its key is saved, after the boxes have set all flags.
struct SavedTo {
    /// What becomes of the digits that the boxes have set.
    enum class Manner {
        Replacing, ///< the number alone is left in the field
        Adding,    ///< to the sum of the boxes
        Appending, ///< after the digits of that sum
    };
    KeyField field;
    Manner manner = Manner::Replacing;
};

/// How many digits after the point Halo shows, at least.
enum class HaloDigits {
    AsTheyStand, ///< 2 at first
    NoneFromNow, ///< for this key and all that are shown after it
    Three,       ///< for this key alone
};

/// A number of a function key.
struct NumberField {
    NumberControl control;
    QLatin1StringView caption;
    ShownFrom from;
    SavedTo to;
    Decimal largest;
    /// Digits of the stored whole number that are after the point: 2 for hundredths.
    int scale = 0;
    HaloDigits digits = HaloDigits::AsTheyStand;
};

/// Numbers of function keys, both ends included.
struct KeyRange {
    int first;
    int last;
};

/// The options of keys of one kind.
struct KeyOptions {
    std::vector<KeyRange> keys;
    std::vector<NumberField> numbers;
    std::vector<OptionBox> boxes;
};

/// Keys up to 156, and those from 157 on. A key without a row has no options.
[[nodiscard]] const std::vector<KeyOptions>& keyOptionsTo156();
[[nodiscard]] const std::vector<KeyOptions>& keyOptionsFrom157();

/// The row of @p rows for function key @p id, nullptr if there is none.
[[nodiscard]] const KeyOptions* optionsOf(qint64 id, const std::vector<KeyOptions>& rows);
/// The row of either table.
[[nodiscard]] const KeyOptions* optionsOf(qint64 id);

} // namespace norvane::keys
