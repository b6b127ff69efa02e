// The words for the parts of an option digit; see DigitPart.h.
#include "records/DigitPart.h"

#include "records/With.h"

namespace norvane::records
{

DigitPart::DigitPart(int weight, const char* flagField)
    : field(flagField), readField(flagField), choices{{1, weight, weight}}
{
}

DigitPart::DigitPart(const char* numberField, std::vector<DigitChoice> choicesInOrder)
    : field(numberField), readField(numberField), value(Value::Number), choices(std::move(choicesInOrder))
{
}

DigitPart DigitPart::readBy(int selector) const
{
    DigitPart part = *this;
    part.choices.front().selector = selector;
    return part;
}

DigitPart DigitPart::readInto(const char* otherField) const
{
    return with(*this, &DigitPart::readField, otherField);
}

DigitPart DigitPart::readFromRightDigit() const
{
    return with(*this, &DigitPart::fromRightDigit, true);
}

DigitPart DigitPart::notRead() const
{
    return with(*this, &DigitPart::reading, Reading::Nothing);
}

DigitPart DigitPart::notWritten() const
{
    return with(*this, &DigitPart::writing, Writing::Nothing);
}

DigitPart DigitPart::alwaysWritten() const
{
    return with(*this, &DigitPart::writing, Writing::Always);
}

DigitPart DigitPart::addingItsNumber() const
{
    return with(*this, &DigitPart::writing, Writing::OwnNumber);
}

DigitPart DigitPart::keptOtherwise() const
{
    return with(*this, &DigitPart::reading, Reading::ChoiceOrKept);
}

DigitPart DigitPart::readAsFirstCharacter() const
{
    return with(*this, &DigitPart::reading, Reading::FirstCharacter);
}

DigitPart threeWay(const char* field)
{
    return {field, {{2, 4, 4}, {1, 2, 2}}};
}

DigitPart numberFlag(int weight, const char* field)
{
    return {field, {{1, weight, weight}}};
}

} // namespace norvane::records
