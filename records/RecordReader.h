// From the text of a register record to the fields of a table.
#pragma once

#include "records/RecordLayout.h"
#include "records/RegisterTraits.h"
#include "store/engine/Recordset.h"

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace norvane::records
{

/// Stores the columns of one line after another into the record that is open on a recordset. Fields are
/// looked up once; the layout and the recordset must outlive the reader.
class RecordReader
{
public:
    /// @throws RuntimeFailure with Failure::UnknownName if the table lacks a field of the layout.
    RecordReader(const RecordLayout& layout, store::Recordset& records, RegisterTraits traits);

    /// Stores all columns of @p line (bytes of the register, no line end) in the layout's order; of two
    /// columns for one field the later counts. A missing column of a number stores 0, of option digits clears
    /// them, of a text stores an empty text; a number column of blanks alone stores 0.
    /// @param lineNumber counts from 1.
    /// @throws RuntimeFailure with Failure::TypeMismatch for invalid option digits, scaled numbers or bytes,
    /// Failure::TextTooLong for a column that no register could send, and what Recordset::setValue throws.
    void read(std::string_view line, std::int64_t lineNumber);

    /// The column, from 1, in which the reading of a line failed; 0 if no line is partly read.
    [[nodiscard]] int column() const { return m_column; }

private:
    struct Target {
        int ordinal = 0;
        store::FieldType type = store::FieldType::Text;
        int size = 0;
    };
    struct Digit {
        const DigitPart* part;
        Target target;
        std::size_t place; ///< 0 is the left digit
    };
    struct Step {
        const Column* column;
        bool rereads = false; ///< takes the text of the column before
        bool newerOnly = false;
        Target target;
        Target kind; ///< field with the kind of number in the column
        std::vector<Digit> digits;
    };

    [[nodiscard]] Target targetOf(const std::string& field) const;
    [[nodiscard]] Step stepOf(const Column& column) const;
    void addDigits(Step& step, const OptionsColumn& column) const;

    void store(const NumberColumn& column, const Step& step, std::string_view text);
    void store(const ScaledColumn& column, const Step& step, std::string_view text);
    void store(const CodeColumn& column, const Step& step, std::string_view text);
    void store(const LeftBoundColumn& column, const Step& step, std::string_view text);
    void store(const TextColumn& column, const Step& step, std::string_view text);
    void store(const MessageColumn& column, const Step& step, std::string_view text);
    void store(const OptionsColumn& column, const Step& step, std::string_view text);
    void store(const SymbolColumn& column, const Step& step, std::string_view text);
    void store(const HexByteColumn& column, const Step& step, std::string_view text);
    void store(const PieceColumn& column, const Step& step, std::string_view text);
    void store(const SpareColumn& column, const Step& step, std::string_view text);
    void storeDigit(const Digit& digit, int value, std::string_view column);
    void set(const Target& target, store::Value&& value);

    const RecordLayout& m_layout;
    store::Recordset& m_records;
    RegisterTraits m_traits;
    bool m_numbersLines = false;
    Target m_lineNumberField;
    std::int64_t m_line = 0;
    std::vector<std::vector<Step>> m_sets;
    int m_column = 0;
    std::string m_joined; ///< bytes or pieces of the columns before
};

} // namespace norvane::records
