// The compact form of factory contents: a register file's factory records without padding.
//
// clang-format off
//   ; a remark
//   columns 1 2 13     the columns that the rows below fill, default all in order
//   default 14=01      what the columns hold that a row leaves out, default zeros or blanks
//   *16 MISC %i        sixteen rows, %i counts from 1
//   fill 99 GROUP %n   more of this row up to 99 records, %n is the record's number
//   fill room ...      up to the number of records that the register has room for
// clang-format on
//
// In texts "^" means the register's mark and \A3 the character with that code. A digit column is filled with
// zeros on the left, or on the right when its value ends in "<".
#pragma once

#include "tools/bank/Layout.h"

#include <QByteArray>
#include <QList>
#include <QString>

namespace bank
{

using Records = QList<QByteArrayList>; ///< every column in its full width

/// @param name for the failure's text
/// @param room records that "fill room" makes
/// @throws std::runtime_error for contents that do not fit the columns
[[nodiscard]] Records readFactoryText(const QByteArray& text, const QString& name, const Columns& columns,
                                      int room);

/// The value of one column in its full width. @throws std::runtime_error when it is too long
[[nodiscard]] QByteArray padded(const QByteArray& value, const Column& column);

} // namespace bank
