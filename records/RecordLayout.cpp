// The words in which record layouts are written; see RecordLayout.h.
#include "records/RecordLayout.h"

#include <algorithm>

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
constexpr std::size_t pieceWidth = 2;

std::string numberedName(std::string name, int number)
{
    if (const auto star = name.find('*'); star != std::string::npos)
        name.replace(star, 1, std::to_string(number));
    return name;
}

void numberDigits(Column& column, int number)
{
    for (auto& parts : column.digits) {
        for (DigitPart& part : parts) {
            part.field = numberedName(part.field, number);
            part.readField = numberedName(part.readField, number);
        }
    }
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

Column Column::byLeadingNumber() const
{
    return with(*this, [](Column& made) { made.leading = true; });
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

Column Column::cutTo(std::size_t characters) const
{
    return with(*this, [&](Column& made) { made.cut = characters; });
}

Column Column::strippedOfZeros() const
{
    return with(*this, [](Column& made) { made.stripped = true; });
}

Column Column::keepingMarks() const
{
    return with(*this, [](Column& made) { made.marksKept = true; });
}

Column Column::withCodeWords(std::vector<CodeWord> words) const
{
    return with(*this, [&](Column& made) { made.codeWords = std::move(words); });
}

Column Column::leftBoundWhile(const char* otherField, const char* value, std::size_t places) const
{
    return with(*this, [&](Column& made) {
        made.kindField = otherField;
        made.kind = value;
        made.leftPlaces = places;
    });
}

Column Column::rereading() const
{
    return with(*this, [](Column& made) { made.rereads = true; });
}

Column Column::onlyRead() const
{
    return with(*this, [](Column& made) { made.written = false; });
}

Column Column::withheldFrom(int first, std::vector<std::string> texts) const
{
    return with(*this, [&](Column& made) {
        made.firstWithheld = first;
        made.withheldTexts = std::move(texts);
    });
}

Column Column::joinedBy(const char* between) const
{
    return with(*this, [&](Column& made) { made.point = between; });
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

Column messageLine(const char* field)
{
    return with(text(0, field).strippedOfZeros(), [](Column& made) { made.isMessageLine = true; });
}

Column piece(const char* field, const char* pattern, int place)
{
    return with(column(Form::Piece, pieceWidth, field), [&](Column& made) {
        made.pattern = pattern;
        made.place = place;
    });
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
            made.kindField = numberedName(made.kindField, number);
            numberDigits(made, number);
            all.push_back(std::move(made));
        }
    }
    return all;
}

ColumnGroup hexBytes(int bytes, std::size_t width, const char* field)
{
    std::vector<Column> all;
    all.reserve(static_cast<std::size_t>(bytes));
    for (int byte = 0; byte < bytes; ++byte) {
        all.push_back(with(column(Form::HexByte, width, field), [&](Column& made) { made.place = byte; }));
    }
    return all;
}

ColumnSet::ColumnSet(std::vector<int> recordNumbers, const std::vector<ColumnGroup>& groups)
    : records(std::move(recordNumbers))
{
    for (const ColumnGroup& group : groups)
        columns.insert(columns.end(), group.columns.begin(), group.columns.end());
}

RecordLayout::RecordLayout(std::string numberField, const std::vector<ColumnGroup>& groups,
                           const std::vector<ColumnSet>& others)
    : lineNumberField(std::move(numberField)), sets{ColumnSet({}, groups)}
{
    sets.insert(sets.end(), others.begin(), others.end());
}

std::size_t RecordLayout::setOf(std::int64_t record) const
{
    for (std::size_t set = 1; set < sets.size(); ++set) {
        const auto& numbers = sets[set].records;
        if (std::find(numbers.begin(), numbers.end(), record) != numbers.end())
            return set;
    }
    return 0;
}

} // namespace norvane::records
