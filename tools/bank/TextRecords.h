// Packed records and their comma text, both ways, strictly by the layout.
#pragma once

#include "tools/bank/Layout.h"

#include <QByteArray>

#include <stdexcept>

namespace bank
{

/// What is wrong with a text, and where.
class TextFault : public std::runtime_error
{
public:
    /// @param line, column counted from 1; column 0 means the line as a whole
    TextFault(qsizetype line, qsizetype column, const QString& text);
    [[nodiscard]] qsizetype line() const { return m_line; }
    [[nodiscard]] qsizetype column() const { return m_column; }

private:
    qsizetype m_line;
    qsizetype m_column;
};

/// @param text lines that each end in carriage return and line feed, at least one
/// @return the packed records, one after the other
/// @throws TextFault at the first column that does not fit
[[nodiscard]] QByteArray packText(const QByteArray& text, const Columns& columns);

/// @param records whole packed records
/// @return a line for each, with every column in its full width and no comma at the end
/// @throws TextFault naming the record when the packed form holds what no column can
[[nodiscard]] QByteArray unpackText(const QByteArray& records, const Columns& columns);

/// The columns of one record. @throws TextFault
[[nodiscard]] QList<QByteArray> unpackRecord(const QByteArray& record, const Columns& columns,
                                             qsizetype line = 1);

} // namespace bank
