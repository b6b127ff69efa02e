// The one exception of the program, with number and text of the former platform's run-time messages. The
// outermost handler shows it and ends the program.
#pragma once

#include "platform/TextError.h"

namespace norvane
{

/// Numbers of run-time failures as the user sees them.
enum class Failure {
    InvalidArgument = 5,
    Overflow = 6,
    SubscriptOutOfRange = 9,
    TypeMismatch = 13,
    UserInterrupt = 18,
    FileNotFound = 53,
    InputPastEnd = 62,
    DeviceIo = 57,
    DiskFull = 61,
    PathOrFileAccess = 75,
    NoCurrentRecord = 3021,
    DuplicateKey = 3022,
    ReadOnlyRecords = 3027,
    UnknownNameInQuery = 3061,
    TextTooLong = 3163,
    RecordDeleted = 3167,
    UnknownName = 3265,
    RequiredFieldIsNull = 3314,
    NotOurDatabase = 3343,
    EngineFailure = 3000,
    DatabaseLocked = 3260,
    TableExists = 3010,
    FieldExists = 3191,
    Conversion = 3421,
};

/// A failure that ends the program unless a caller is made to deal with it.
class RuntimeFailure : public TextError
{
public:
    /// @param text what happened, in words for the user, naming the file, table or field concerned.
    RuntimeFailure(Failure number, const QString& text) : TextError(text), m_number(number) {}
    [[nodiscard]] Failure failure() const { return m_number; }
    [[nodiscard]] int number() const { return static_cast<int>(m_number); }

private:
    Failure m_number;
};

} // namespace norvane
