// From the fields of a table to the text of a register record.
#pragma once

#include "records/RecordLayout.h"
#include "store/Recordset.h"

#include <string>
#include <vector>

namespace norvane::records
{

/// Makes lines from the current record of a recordset. Fields are looked up once; the layout and the
/// recordset must outlive the writer.
class RecordWriter
{
public:
    /// @throws RuntimeFailure 3265 when the table lacks a field of the layout.
    RecordWriter(const RecordLayout& layout, const store::Recordset& records);

    /// Appends the current record's line in the register's character set, closed by CR LF. Null counts as
    /// empty: zeros in a number column, blanks in a text column.
    /// @throws RuntimeFailure 3021 without a current record, 6 for a scaled number of more than 18 digits.
    void appendLine(std::string& out) const;

private:
    struct Digit {
        const DigitPart* part;
        int ordinal;
    };
    struct Step {
        const Column* column;
        int ordinal;
        std::array<std::vector<Digit>, 2> digits;
    };

    [[nodiscard]] int ordinalOf(const std::string& field) const;
    [[nodiscard]] Step stepOf(const Column& column) const;
    void appendColumn(std::string& out, const Step& step) const;
    void appendNumber(std::string& out, const Step& step) const;
    void appendOptions(std::string& out, const Step& step) const;
    void appendSymbol(std::string& out, const Step& step) const;
    [[nodiscard]] int digitOf(const std::vector<Digit>& parts) const;
    [[nodiscard]] int weightOf(const Digit& digit) const;

    const store::Recordset& m_records;
    std::vector<Step> m_steps;
};

} // namespace norvane::records
