// From the fields of a table to the text of a register record.
#pragma once

#include "records/RecordLayout.h"
#include "records/RegisterTraits.h"
#include "store/engine/Recordset.h"

#include <array>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace norvane::records
{

/// Makes lines from the current record of a recordset. Fields are looked up once; the layout and the
/// recordset must outlive the writer.
class RecordWriter
{
public:
    /// @throws RuntimeFailure with Failure::UnknownName if the table lacks a field of the layout, and what @p
    /// traits throw.
    RecordWriter(const RecordLayout& layout, const store::Recordset& records, RegisterTraits traits);

    /// Appends the current record's line in the register's character set, closed by CR LF. Null counts as
    /// empty: zeros in a number column, blanks in a text column. The lines are counted: some records have
    /// columns of their own.
    /// @throws RuntimeFailure with Failure::NoCurrentRecord without a current record, Failure::Overflow for a
    /// scaled number of more than 18 digits.
    void appendLine(std::string& out);

    /// Ordinals of the fields that lines are made from; the others need not be read.
    [[nodiscard]] const std::vector<int>& fields() const { return m_fields; }

    /// The first text with a comma in the lines so far, in the register's character set; empty if there is
    /// none. A comma always ends a column, so the rest of the line moves by one column.
    [[nodiscard]] const std::string& textWithComma() const { return m_textWithComma; }

private:
    struct Digit {
        const DigitPart* part;
        int ordinal;
    };
    struct Step {
        const Column* column;
        int ordinal;
        int kindOrdinal; ///< of the field with the kind of number in the column
        std::array<std::vector<Digit>, 2> digits;
    };

    [[nodiscard]] int ordinalOf(const std::string& field);
    [[nodiscard]] Step stepOf(const Column& column);
    void addDigits(Step& step, const OptionsColumn& column);

    void append(std::string& out, const NumberColumn& column, const Step& step) const;
    void append(std::string& out, const ScaledColumn& column, const Step& step) const;
    void append(std::string& out, const CodeColumn& column, const Step& step) const;
    void append(std::string& out, const LeftBoundColumn& column, const Step& step) const;
    void append(std::string& out, const TextColumn& column, const Step& step);
    void append(std::string& out, const MessageColumn& column, const Step& step);
    void noteComma(std::string_view text);
    void append(std::string& out, const OptionsColumn& column, const Step& step) const;
    void append(std::string& out, const SymbolColumn& column, const Step& step) const;
    void append(std::string& out, const HexByteColumn& column, const Step& step) const;
    void append(std::string& out, const PieceColumn& column, const Step& step) const;
    void append(std::string& out, const SpareColumn& column, const Step& step) const;
    [[nodiscard]] bool isWithheld(const TextColumn& column) const;
    [[nodiscard]] int digitOf(const std::vector<Digit>& parts) const;
    [[nodiscard]] int weightOf(const Digit& digit) const;

    const RecordLayout& m_layout;
    const store::Recordset& m_records;
    RegisterTraits m_traits;
    std::vector<std::vector<Step>> m_sets;
    std::vector<int> m_fields;
    std::int64_t m_record = 0; ///< number of the line, from 1
    bool m_hasMessages = false;
    std::size_t m_messageWidth = 0;
    bool m_withholdsTexts = false;
    std::string m_textWithComma;
    std::string m_latestDefault; ///< sent for a text that is withheld
};

} // namespace norvane::records
