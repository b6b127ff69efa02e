// The words in which record layouts are written; see RecordLayout.h.
#include "records/RecordLayout.h"

namespace norvane::records
{
namespace
{

/// A copy of @p object with something changed.
template <typename Object, typename Change>
Object with(Object object, Change change)
{
    change(object);
    return object;
}

Column column(Form form, std::size_t width, const char* field)
{
    return with(Column(), [&](Column& made) {
        made.form = form;
        made.readForm = form;
        made.width = width;
        made.field = field;
        made.readField = field;
    });
}

constexpr std::size_t symbolWidth = 3;

std::string numberedName(std::string name, int number)
{
    if (const auto star = name.find('*'); star != std::string::npos)
        name.replace(star, 1, std::to_string(number));
    return name;
}

} // namespace

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
    return with(*this, [&](DigitPart& part) { part.choices.front().selector = selector; });
}

DigitPart DigitPart::readInto(const char* otherField) const
{
    return with(*this, [&](DigitPart& part) { part.readField = otherField; });
}

DigitPart DigitPart::readFromRightDigit() const
{
    return with(*this, [](DigitPart& part) { part.fromRightDigit = true; });
}

DigitPart DigitPart::notRead() const
{
    return with(*this, [](DigitPart& part) { part.reading = Reading::Nothing; });
}

DigitPart DigitPart::notWritten() const
{
    return with(*this, [](DigitPart& part) { part.writing = Writing::Nothing; });
}

DigitPart DigitPart::alwaysWritten() const
{
    return with(*this, [](DigitPart& part) { part.writing = Writing::Always; });
}

DigitPart DigitPart::addingItsNumber() const
{
    return with(*this, [](DigitPart& part) { part.writing = Writing::OwnNumber; });
}

DigitPart DigitPart::keptOtherwise() const
{
    return with(*this, [](DigitPart& part) { part.reading = Reading::ChoiceOrKept; });
}

DigitPart DigitPart::readAsFirstCharacter() const
{
    return with(*this, [](DigitPart& part) { part.reading = Reading::FirstCharacter; });
}

DigitPart threeWay(const char* field)
{
    return {field, {{2, 4, 4}, {1, 2, 2}}};
}

DigitPart numberFlag(int weight, const char* field)
{
    return {field, {{1, weight, weight}}};
}

Column Column::asItStands() const
{
    return with(*this, [](Column& made) { made.raw = true; });
}

Column Column::scaled(int places) const
{
    return with(*this, [&](Column& made) { made.scale = places; });
}

Column Column::writtenInstead(const char* usual, const char* instead) const
{
    return with(*this, [&](Column& made) { made.replacement = {usual, instead}; });
}

Column Column::readInto(const char* otherField) const
{
    return with(*this, [&](Column& made) { made.readField = otherField; });
}

Column Column::namedByDefault(const char* name) const
{
    return with(*this, [&](Column& made) { made.defaultText = name; });
}

Column Column::followedBy(const char* tail) const
{
    return with(*this, [&](Column& made) { made.literal = tail; });
}

Column Column::firstCharacterOnly() const
{
    return with(*this, [](Column& made) { made.firstCharacter = true; });
}

Column Column::bare() const
{
    return with(*this, [](Column& made) { made.bareOptions = true; });
}

Column Column::readAsNumberInto(const char* numberField) const
{
    return with(*this, [&](Column& made) {
        made.readForm = Form::Number;
        made.readField = numberField;
    });
}

Column number(std::size_t width, const char* field)
{
    return column(Form::Number, width, field);
}

Column money(std::size_t width, const char* field)
{
    return number(width, field).scaled(2);
}

Column text(std::size_t width, const char* field)
{
    return column(Form::Text, width, field);
}

Column options(std::vector<DigitPart> left, std::vector<DigitPart> right)
{
    return with(column(Form::Options, 2, ""), [&](Column& made) {
        made.digits = {std::move(left), std::move(right)};
    });
}

Column symbol(const char* field)
{
    return column(Form::Symbol, symbolWidth, field);
}

Column spare(std::size_t zeros)
{
    return with(Column(), [&](Column& made) { made.literal.assign(zeros, '0'); });
}

ColumnGroup numbered(int times, const std::vector<Column>& columns)
{
    std::vector<Column> all;
    for (int number = 1; number <= times; ++number) {
        for (Column made : columns) {
            made.field = numberedName(made.field, number);
            made.readField = numberedName(made.readField, number);
            all.push_back(std::move(made));
        }
    }
    return all;
}

RecordLayout::RecordLayout(std::string numberField, const std::vector<ColumnGroup>& groups)
    : lineNumberField(std::move(numberField))
{
    for (const ColumnGroup& group : groups)
        columns.insert(columns.end(), group.columns.begin(), group.columns.end());
}

} // namespace norvane::records
