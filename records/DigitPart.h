// The flags and small values in the register's option digits.
#pragma once

#include <string>
#include <vector>

namespace norvane::records
{

/// A value of a small field inside an option digit. Weight 0 writes nothing, selector 0 is never found.
struct DigitChoice {
    int value = 0;
    int weight = 0;   ///< added to the digit when the field holds the value
    int selector = 0; ///< place that DigitFlagSet() is asked for when the digit is read
};

/// A flag or small value inside an option digit. A true flag adds its weight. A number is written by the
/// first choice equal to it; when read, the first choice found gives its value, else 0.
class DigitPart
{
public:
    DigitPart(int weight, const char* field);
    DigitPart(const char* field, std::vector<DigitChoice> choices);

    /// The register returns it in another column.
    [[nodiscard]] DigitPart readBy(int selector) const;
    /// The answer goes into another field than the one that is sent.
    [[nodiscard]] DigitPart readInto(const char* field) const;
    /// Sent in the left digit, answered in the right one.
    [[nodiscard]] DigitPart readFromRightDigit() const;
    [[nodiscard]] DigitPart notRead() const;
    [[nodiscard]] DigitPart notWritten() const;
    /// The weight is sent whatever the field holds.
    [[nodiscard]] DigitPart alwaysWritten() const;
    /// When written, the field's number is added to the digit as it is.
    [[nodiscard]] DigitPart addingItsNumber() const;
    /// When no choice is found, the field keeps what it has.
    [[nodiscard]] DigitPart keptOtherwise() const;
    /// When read, the field takes the first character of the column as it is.
    [[nodiscard]] DigitPart readAsFirstCharacter() const;

    enum class Value { Flag, Number };
    enum class Writing { Choice, Always, OwnNumber, Nothing };
    enum class Reading { Choice, ChoiceOrKept, FirstCharacter, Nothing };

    std::string field;     ///< written from this field
    std::string readField; ///< read into this field
    Value value = Value::Flag;
    std::vector<DigitChoice> choices;
    Writing writing = Writing::Choice;
    Reading reading = Reading::Choice;
    bool fromRightDigit = false;
};

/// A two-way or three-way value kept as a number: 2 has weight 4, 1 has weight 2, 0 none.
[[nodiscard]] DigitPart threeWay(const char* field);
/// A yes/no option whose field is a number, 1 or 0.
[[nodiscard]] DigitPart numberFlag(int weight, const char* field);

} // namespace norvane::records
