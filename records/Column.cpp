// The words for the columns of a record; see Column.h.
#include "records/Column.h"

#include "records/With.h"

namespace norvane::records
{

ScaledColumn ScaledColumn::byLeadingNumber() const
{
    return with(*this, &ScaledColumn::leading, true);
}

NumberColumn NumberColumn::withLeadingZeros() const
{
    return with(*this, &NumberColumn::raw, true);
}

ScaledColumn NumberColumn::scaled(int places) const
{
    return {.width = width, .field = field, .scale = places};
}

NumberColumn NumberColumn::writtenInstead(const char* usualText, const char* otherText) const
{
    return with(with(*this, &NumberColumn::usual, usualText), &NumberColumn::instead, otherText);
}

NumberColumn NumberColumn::readInto(const char* otherField) const
{
    return with(*this, &NumberColumn::readField, otherField);
}

NumberColumn NumberColumn::followedBy(const char* literal) const
{
    return with(*this, &NumberColumn::tail, literal);
}

NumberColumn NumberColumn::firstCharacterOnly() const
{
    return with(*this, &NumberColumn::firstCharacter, true);
}

NumberColumn NumberColumn::cutTo(std::size_t characters) const
{
    return with(*this, &NumberColumn::cut, characters);
}

NumberColumn NumberColumn::ofNewerFirmware() const
{
    return with(*this, &NumberColumn::newerOnly, true);
}

CodeColumn NumberColumn::withCodeWords(std::vector<CodeWord> words) const
{
    return {width, field, std::move(words)};
}

LeftBoundColumn NumberColumn::leftBoundWhile(const char* kindField, const char* kind,
                                             std::size_t places) const
{
    return {width, field, kindField, kind, places};
}

NumberColumn NumberColumn::rereading() const
{
    return with(*this, &NumberColumn::rereads, true);
}

NumberColumn NumberColumn::onlyRead() const
{
    return with(*this, &NumberColumn::written, false);
}

TextColumn TextColumn::namedByDefault(const char* text) const
{
    return with(*this, &TextColumn::defaultText, text);
}

TextColumn TextColumn::strippedOfZeros() const
{
    return with(*this, &TextColumn::stripped, true);
}

TextColumn TextColumn::keepingMarks() const
{
    return with(*this, &TextColumn::marksKept, true);
}

TextColumn TextColumn::withheldFrom(int first, std::vector<std::string> texts) const
{
    return with(with(*this, &TextColumn::firstWithheld, first), &TextColumn::withheldTexts, std::move(texts));
}

OptionsColumn OptionsColumn::firstCharacterOnly() const
{
    return with(*this, &OptionsColumn::firstCharacter, true);
}

OptionsColumn OptionsColumn::bare() const
{
    return with(*this, &OptionsColumn::isBare, true);
}

OptionsColumn OptionsColumn::readAsNumberInto(const char* field) const
{
    return with(*this, &OptionsColumn::numberField, field);
}

PieceColumn PieceColumn::joinedBy(const char* between) const
{
    return with(*this, &PieceColumn::point, between);
}

NumberColumn number(std::size_t width, const char* field)
{
    return {.width = width, .field = field, .readField = field};
}

ScaledColumn money(std::size_t width, const char* field)
{
    return number(width, field).scaled(2);
}

TextColumn text(std::size_t width, const char* field)
{
    return {.width = width, .field = field};
}

OptionsColumn options(std::vector<DigitPart> left, std::vector<DigitPart> right)
{
    return {.digits = {std::move(left), std::move(right)}};
}

SymbolColumn symbol(const char* field)
{
    return {field};
}

MessageColumn messageLine(const char* field)
{
    return {field};
}

PieceColumn piece(const char* field, const char* pattern, int place)
{
    return {.field = field, .pattern = pattern, .place = place};
}

SpareColumn spare(std::size_t zeros)
{
    return {zeros};
}

} // namespace norvane::records
