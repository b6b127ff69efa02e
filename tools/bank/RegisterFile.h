// A register's binary file: a header of 16 bytes and records of one length.
//
// clang-format off
//   byte 1..4   "NVRF"
//   5           stamp of a report file, else 0
//   6, 7, 8     file number, model, format (1)
//   9..12       number of records
//   13..14      length of a record
//   15..16      CRC-16 of bytes 1..14 and the records
// clang-format on
//
// Numbers are big-endian. The stamp is at byte 5, as in a collected report.
#pragma once

#include "tools/bank/Model.h"

#include <QByteArray>

namespace bank
{

struct RegisterFile {
    int file = 0;
    Model model = Model::Velmaro;
    int recordLength = 0; ///< bytes
    QByteArray records{}; ///< all records, one after the other
    quint8 stamp = 0;

    [[nodiscard]] qsizetype recordCount() const
    {
        return recordLength == 0 ? 0 : records.size() / recordLength;
    }
    [[nodiscard]] QByteArray record(qsizetype index) const
    {
        return records.mid(index * recordLength, recordLength);
    }
};

[[nodiscard]] QByteArray toBytes(const RegisterFile& file);

/// @throws ToolFailure FileInformationWrong for what is not a register file, FileSizeMismatch when the length
/// does not fit the header, BadCrc when the content was changed.
[[nodiscard]] RegisterFile fromBytes(const QByteArray& bytes);

/// As fromBytes(), and refuses another file number or model. @throws ToolFailure FileInformationWrong
[[nodiscard]] RegisterFile fromBytes(const QByteArray& bytes, int file, Model model);

} // namespace bank
