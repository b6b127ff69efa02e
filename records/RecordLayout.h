// How the columns of a register record stand for the fields of a table: one list of columns for each register
// file, read by RecordReader in one direction and by RecordWriter in the other. There is no second list for
// the way back; what a register file does differently in one direction is said at the column.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <string>
#include <utility>
#include <vector>

namespace norvane::records
{

/// One value that a small field may hold inside an option digit. A weight of 0 writes nothing, a selector of
/// 0 is never found.
struct DigitChoice {
    int value = 0;
    int weight = 0;   ///< added to the digit when the field holds the value
    int selector = 0; ///< place that DigitFlagSet() is asked for when the digit is read
};

/// One flag or small value inside an option digit. A flag is written when its field is true. A number is
/// written by the first choice that it equals; read, the first choice found gives its value, else it is 0.
class DigitPart
{
public:
    DigitPart(int weight, const char* field);
    DigitPart(const char* field, std::vector<DigitChoice> choices);

    /// The register answers at another place than the one that it is told.
    [[nodiscard]] DigitPart readBy(int selector) const;
    /// The answer lands in another field than the one that is sent.
    [[nodiscard]] DigitPart readInto(const char* field) const;
    /// Sent in the left digit, answered in the right one.
    [[nodiscard]] DigitPart readFromRightDigit() const;
    [[nodiscard]] DigitPart notRead() const;
    [[nodiscard]] DigitPart notWritten() const;
    /// The weight is sent whatever the field holds.
    [[nodiscard]] DigitPart alwaysWritten() const;
    /// Written, the field's number is added to the digit as it is.
    [[nodiscard]] DigitPart addingItsNumber() const;
    /// When no choice is found, the field keeps what it has.
    [[nodiscard]] DigitPart keptOtherwise() const;
    /// Read, the field takes the first character of the column just as it stands.
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

/// A two-way or three-way value that is kept as a number: 2 as weight 4, 1 as weight 2, 0 as nothing.
[[nodiscard]] DigitPart threeWay(const char* field);
/// A yes/no option whose field is a number, 1 or 0.
[[nodiscard]] DigitPart numberFlag(int weight, const char* field);

enum class Form {
    Number,  ///< digits filled with zeros
    Text,    ///< text filled with blanks
    Options, ///< two option digits
    Symbol,  ///< a character, kept as its code
    HexByte, ///< one byte of a field of hexadecimal digits, as a decimal number
    Piece,   ///< two characters of a number that is sent in several columns
    Literal, ///< the same text in every record, never read
};

/// A number that the register and the table name differently.
struct CodeWord {
    std::string answered; ///< by the register, without leading zeros
    std::string stored;
    std::string sent;
};

/// One column of a record.
class Column
{
public:
    /// Read, a number is stored as the text stands, its leading zeros kept.
    [[nodiscard]] Column asItStands() const;
    /// The register counts in tenths, hundredths ... of the stored number, @p places behind the point.
    [[nodiscard]] Column scaled(int places) const;
    /// Read, a scaled number is the one that the text begins with; a text that begins with none is 0.
    [[nodiscard]] Column byLeadingNumber() const;
    /// A column that came out as @p usual is sent as @p instead.
    [[nodiscard]] Column writtenInstead(const char* usual, const char* instead) const;
    /// Sent from one field, read into another.
    [[nodiscard]] Column readInto(const char* field) const;
    /// A record without a name gets @p text and the line number, cut to the field.
    [[nodiscard]] Column namedByDefault(const char* text) const;
    /// Sent with @p literal right behind the value.
    [[nodiscard]] Column followedBy(const char* literal) const;
    /// Read, only the first character counts after the leading zeros are gone. Of option digits it is the
    /// left one, and only the digits of exactly one choice, 4 and 2, count.
    [[nodiscard]] Column firstCharacterOnly() const;
    /// Read, only the first @p characters count, leading zeros included.
    [[nodiscard]] Column cutTo(std::size_t characters) const;
    /// A text whose leading zeros go when it is read; one without anything left is "0".
    [[nodiscard]] Column strippedOfZeros() const;
    /// A text in which "^" goes to the register as it is.
    [[nodiscard]] Column keepingMarks() const;
    /// Read, zeros alone are empty text, and some numbers have another name in the table.
    [[nodiscard]] Column withCodeWords(std::vector<CodeWord> words) const;
    /// While @p kindField holds @p kind, the number stands in the first @p places of the column, zeros
    /// behind.
    [[nodiscard]] Column leftBoundWhile(const char* kindField, const char* kind, std::size_t places) const;
    /// Read, takes the text of the column before once more.
    [[nodiscard]] Column rereading() const;
    /// A column that is only read: the register is never told it here.
    [[nodiscard]] Column onlyRead() const;
    /// Newer firmware is never told these records' own text, from the record @p first on: it gets the latest
    /// of
    /// @p texts that a record without a text of its own called for in this download, blanks before that.
    [[nodiscard]] Column withheldFrom(int first, std::vector<std::string> texts) const;
    /// A piece that is read behind the ones before with @p point in between.
    [[nodiscard]] Column joinedBy(const char* point) const;
    /// Option digits sent as the number that they make, without a leading zero.
    [[nodiscard]] Column bare() const;
    /// Option digits that are read as a plain number into @p field.
    [[nodiscard]] Column readAsNumberInto(const char* field) const;

    Form form = Form::Literal;     ///< as it is sent
    Form readForm = Form::Literal; ///< as it is read
    std::size_t width = 0;         ///< characters sent
    std::string field;             ///< written from this field
    std::string readField;         ///< read into this field
    int scale = 0;                 ///< places behind the point
    bool raw = false;              ///< read as it stands
    bool leading = false;          ///< only the number in front is read
    bool firstCharacter = false;
    bool bareOptions = false;
    std::pair<std::string, std::string> replacement; ///< what is sent instead of what; empty for none
    std::string defaultText;
    std::string literal; ///< the literal itself, or what follows the value
    std::array<std::vector<DigitPart>, 2> digits;
    std::size_t cut = std::string::npos; ///< characters that are read
    bool stripped = false;
    bool marksKept = false;
    bool isMessageLine = false; ///< as wide as the register's message lines, whatever the width above
    bool rereads = false;
    bool written = true;
    std::vector<CodeWord> codeWords;
    std::string kindField; ///< empty when the column is always the same
    std::string kind;
    std::size_t leftPlaces = 0; ///< of a number that is left bound
    int firstWithheld = 0;
    std::vector<std::string> withheldTexts; ///< of the record firstWithheld and those behind it
    int place = 0;       ///< of a byte, from 0; of a piece in the number, from its end when negative
    std::string pattern; ///< of the number whose piece this is
    std::string point;
};

[[nodiscard]] Column number(std::size_t width, const char* field);
/// A number with two places behind the point, sent in hundredths.
[[nodiscard]] Column money(std::size_t width, const char* field);
[[nodiscard]] Column text(std::size_t width, const char* field);
[[nodiscard]] Column options(std::vector<DigitPart> left, std::vector<DigitPart> right = {});
[[nodiscard]] Column symbol(const char* field);
/// A line of a message, stripped of zeros, as wide as the register prints.
[[nodiscard]] Column messageLine(const char* field);
/// Two characters, from @p place on, of a number brought to @p pattern; read, the pieces are joined again,
/// the one at place 0 begins.
[[nodiscard]] Column piece(const char* field, const char* pattern, int place);
/// Room for later options of the register: so many zeros.
[[nodiscard]] Column spare(std::size_t zeros);

/// One column, or columns that come again and again with a number in their fields' names.
struct ColumnGroup {
    ColumnGroup(const Column& column) : columns{column} {}
    ColumnGroup(std::vector<Column> made) : columns(std::move(made)) {}

    std::vector<Column> columns;
};

/// The columns in turn for 1, then for 2, up to @p times; the number takes the place of "*" in the fields'
/// names.
[[nodiscard]] ColumnGroup numbered(int times, const std::vector<Column>& columns);

/// So many bytes of a field of hexadecimal digits, each a column of @p width digits.
[[nodiscard]] ColumnGroup hexBytes(int bytes, std::size_t width, const char* field);

/// The columns of the records with certain numbers, counted from 1.
struct ColumnSet {
    ColumnSet(std::vector<int> recordNumbers, const std::vector<ColumnGroup>& groups);

    std::vector<int> records; ///< empty for all that no other set names
    std::vector<Column> columns;
};

/// All columns of a register file.
struct RecordLayout {
    RecordLayout(std::string numberField, const std::vector<ColumnGroup>& groups,
                 const std::vector<ColumnSet>& others = {});

    /// Place in the sets of the columns of a record.
    [[nodiscard]] std::size_t setOf(std::int64_t record) const;

    /// Field that takes the number of the line, from 1; empty for none.
    std::string lineNumberField;
    std::vector<ColumnSet> sets; ///< the usual one first
};

} // namespace norvane::records
