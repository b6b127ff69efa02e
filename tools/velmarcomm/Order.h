// What one command line of VELMARCOMM orders, after every word of it was checked.
#pragma once

#include <QString>
#include <QStringList>

namespace bank
{

struct Order {
    enum class Kind { Open, Fetch, Send, Consolidate, Collect, Clear }; ///< kindWord() goes by the order

    Kind kind = Kind::Open;
    int port = 1;      ///< lines with a bare rate carry no port word and take port 1
    int registers = 1; ///< 1 to this number in one run
    int file = 0;
    QString name; ///< of the data file in the working directory

    /// The word that faults.ini has for the kind.
    [[nodiscard]] QString kindWord() const;
};

/// @param words the command line without the program's name
/// @throws ToolFailure BadArgument, ArgumentConversionError or UnknownCommand
[[nodiscard]] Order parseOrder(const QStringList& words);

} // namespace bank
