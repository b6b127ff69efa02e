// Why sales could not be published.
#pragma once

#include "platform/TextError.h"

namespace norvane::chain
{

/// Reasons why a publication fails.
enum class ChainFailure {
    BadConnection,  ///< the text is not a connection string
    Unreachable,    ///< no server, no such database, or the login was refused
    ConnectionLost, ///< in the middle of the work
    NoRights,
    Unfit,     ///< a schema of another version, or another encoding
    OtherShop, ///< the shop of that name, or of that folder, is another one
    Busy,      ///< another program is publishing the same shop, holds a lock or the server is too slow
    BadRows,   ///< rows that no table accepts, such as sales without a PLU
    Unwritable,
    Refused ///< by the server for any other reason
};

/// Nothing from the failed step is stored. The text is one sentence and contains no password.
class ChainError : public TextError
{
public:
    ChainError(ChainFailure failure, const QString& text) : TextError(text), m_failure(failure) {}
    [[nodiscard]] ChainFailure failure() const { return m_failure; }

private:
    ChainFailure m_failure;
};

} // namespace norvane::chain
