// One column of a register record: a type for each form, with the words that make sense for it. A word also
// says what differs in one direction.
#pragma once

#include "records/DigitPart.h"

#include <array>
#include <cstddef>
#include <string>
#include <variant>
#include <vector>

namespace norvane::records
{

/// A value that register and table name differently.
struct CodeWord {
    std::string answered; ///< by the register, without leading zeros
    std::string stored;
    std::string sent;
};

/// A number with places after the point. The register counts in tenths, hundredths ... of it.
struct ScaledColumn {
    std::size_t width = 0; ///< characters sent
    std::string field;
    int scale = 0;        ///< places after the point
    bool leading = false; ///< only the leading number is read

    /// Read, only the number at the beginning counts; without one it is 0.
    [[nodiscard]] ScaledColumn byLeadingNumber() const;
};

/// A number of which some values have another name in the table. Read, zeros alone are empty text.
struct CodeColumn {
    std::size_t width = 0;
    std::string field;
    std::vector<CodeWord> words;
};

/// A number at the left end of its column, followed by zeros, while another field has a certain kind.
struct LeftBoundColumn {
    std::size_t width = 0;
    std::string field;
    std::string kindField;
    std::string kind;
    std::size_t places = 0;
};

/// Digits, filled with zeros on the left.
struct NumberColumn {
    std::size_t width = 0; ///< characters sent, without what follows them
    std::string field;     ///< written from this field
    std::string readField; ///< read into this field
    bool raw = false;      ///< read with its leading zeros
    bool firstCharacter = false;
    std::size_t cut = std::string::npos; ///< characters that are read
    bool rereads = false;
    bool written = true;
    bool newerOnly = false;
    std::string usual{};   ///< is sent as the text below; empty for none
    std::string instead{}; ///< what is sent for the usual text
    std::string tail{};    ///< sent after the number

    /// Read, a number is stored with its leading zeros.
    [[nodiscard]] NumberColumn withLeadingZeros() const;
    /// The register counts in tenths, hundredths ... of the stored number, @p places after the point.
    [[nodiscard]] ScaledColumn scaled(int places) const;
    /// A column that came out as @p usualText is sent as @p otherText instead.
    [[nodiscard]] NumberColumn writtenInstead(const char* usualText, const char* otherText) const;
    /// Sent from one field, read into another.
    [[nodiscard]] NumberColumn readInto(const char* otherField) const;
    /// Sent with @p literal right after the number.
    [[nodiscard]] NumberColumn followedBy(const char* literal) const;
    /// When read, only the first character after the leading zeros counts.
    [[nodiscard]] NumberColumn firstCharacterOnly() const;
    /// Read, only the first @p characters count, leading zeros included.
    [[nodiscard]] NumberColumn cutTo(std::size_t characters) const;
    [[nodiscard]] CodeColumn withCodeWords(std::vector<CodeWord> words) const;
    [[nodiscard]] LeftBoundColumn leftBoundWhile(const char* kindField, const char* kind,
                                                 std::size_t places) const;
    /// Read, takes the text of the column before once more.
    [[nodiscard]] NumberColumn rereading() const;
    /// A column that is read but not written.
    [[nodiscard]] NumberColumn onlyRead() const;
    /// At the end of a line, read only from newer firmware.
    [[nodiscard]] NumberColumn ofNewerFirmware() const;
};

/// Text, filled with blanks on the right.
struct TextColumn {
    std::size_t width = 0;
    std::string field;
    std::string defaultText{};
    bool stripped = false;
    bool marksKept = false;
    int firstWithheld = 0;
    std::vector<std::string> withheldTexts{}; ///< of the record firstWithheld and those after it

    /// A record without a name is named @p text and the line number, cut to the field.
    [[nodiscard]] TextColumn namedByDefault(const char* text) const;
    /// Read without its leading zeros; "0" when nothing is left.
    [[nodiscard]] TextColumn strippedOfZeros() const;
    /// "^" goes to the register as it is.
    [[nodiscard]] TextColumn keepingMarks() const;
    /// Newer firmware gets no texts from record @p first on, but the default text, of @p texts, of the last
    /// record without one. Before the first such record it gets blanks.
    [[nodiscard]] TextColumn withheldFrom(int first, std::vector<std::string> texts) const;
};

/// A line of a message, stripped of leading zeros when it is read, as wide as the register prints.
struct MessageColumn {
    std::string field;
};

/// Two option digits.
struct OptionsColumn {
    std::array<std::vector<DigitPart>, 2> digits; ///< left, right
    bool firstCharacter = false;
    bool isBare = false;
    std::string numberField{}; ///< read as a number into this field; empty when the digits are read

    /// When read, only the first character after the leading zeros counts, and only 4 and 2. It is the left
    /// digit.
    [[nodiscard]] OptionsColumn firstCharacterOnly() const;
    /// Sent as the number that they make, without a leading zero.
    [[nodiscard]] OptionsColumn bare() const;
    /// Read as a plain number into @p field.
    [[nodiscard]] OptionsColumn readAsNumberInto(const char* field) const;
};

/// A character, kept as its code.
struct SymbolColumn {
    std::string field;
};

/// One byte of a field of hexadecimal digits, as a decimal number.
struct HexByteColumn {
    std::size_t width = 0;
    std::string field;
    std::size_t place = 0; ///< of the byte, from 0
};

/// Two characters of a number that is sent in several columns. Read, the pieces are joined, from place 0 on.
struct PieceColumn {
    std::string field;
    std::string pattern; ///< format of the number
    int place = 0;       ///< in the number, from its end when negative
    std::string point{}; ///< placed before this piece when the pieces are joined

    /// Joined with @p between before it.
    [[nodiscard]] PieceColumn joinedBy(const char* between) const;
};

/// Room for later options of the register: always zeros, never read.
struct SpareColumn {
    std::size_t zeros = 0;
};

using Column =
    std::variant<NumberColumn, ScaledColumn, CodeColumn, LeftBoundColumn, TextColumn, MessageColumn,
                 OptionsColumn, SymbolColumn, HexByteColumn, PieceColumn, SpareColumn>;

[[nodiscard]] NumberColumn number(std::size_t width, const char* field);
/// A number with two places after the point, sent in hundredths.
[[nodiscard]] ScaledColumn money(std::size_t width, const char* field);
[[nodiscard]] TextColumn text(std::size_t width, const char* field);
[[nodiscard]] OptionsColumn options(std::vector<DigitPart> left, std::vector<DigitPart> right = {});
[[nodiscard]] SymbolColumn symbol(const char* field);
[[nodiscard]] MessageColumn messageLine(const char* field);
[[nodiscard]] PieceColumn piece(const char* field, const char* pattern, int place);
[[nodiscard]] SpareColumn spare(std::size_t zeros);

} // namespace norvane::records
