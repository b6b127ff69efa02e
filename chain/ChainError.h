// Why sales could not be published.
#pragma once

#include <QString>

#include <stdexcept>

namespace norvane::chain
{

/// Reasons why a publication fails.
enum class ChainFailure {
    BadConnection, ///< the text is not a connection string
    Unreachable,   ///< no server there, no such database, or it refused the login
    WentAway,      ///< in the middle of the work
    NoRights,
    Unfit,     ///< a schema of another version, or another encoding
    OtherShop, ///< the shop of that name, or of that folder, is another one
    Busy,      ///< somebody publishes the same shop
    BadRows,   ///< the shop holds what no table takes, such as sales without a PLU
    Unwritable,
    Refused ///< by the server for any other reason
};

/// Nothing of the step that met it is stored. The text is one sentence, and no password is in it.
class ChainError : public std::runtime_error
{
public:
    ChainError(ChainFailure failure, const QString& text)
        : std::runtime_error(text.toStdString()), m_failure(failure), m_text(text)
    {
    }
    [[nodiscard]] ChainFailure failure() const { return m_failure; }
    [[nodiscard]] const QString& text() const { return m_text; }

private:
    ChainFailure m_failure;
    QString m_text;
};

} // namespace norvane::chain
