// Names of tables and fields in SQL.
#pragma once

#include <QString>

#include <string>
#include <string_view>

namespace norvane::store
{

/// A name as SQL takes it whatever its punctuation: "ROUNDON%".
[[nodiscard]] inline std::string quotedName(std::string_view name)
{
    std::string quoted = "\"";
    for (const char letter : name)
        quoted.append(letter == '"' ? 2 : 1, letter);
    return quoted + '"';
}
[[nodiscard]] inline std::string quotedName(const char* name)
{
    return quotedName(std::string_view(name));
}
[[nodiscard]] inline std::string quotedName(const QString& name)
{
    return quotedName(name.toStdString());
}

} // namespace norvane::store
