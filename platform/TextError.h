// The base of all exceptions that carry a text for the user.
#pragma once

#include <QString>

#include <stdexcept>

namespace norvane
{

/// Why something was not done, in words for the user.
class TextError : public std::runtime_error
{
public:
    explicit TextError(const QString& text) : std::runtime_error(text.toStdString()), m_text(text) {}
    [[nodiscard]] const QString& text() const { return m_text; }

private:
    QString m_text;
};

} // namespace norvane
