// Values of layout keys that are one of several words.
#pragma once

#include <QLatin1String>
#include <QString>

#include <array>
#include <utility>

namespace norvane::reports
{

/// @return false for any other text.
inline bool takeYesNo(const QString& value, bool& flag)
{
    flag = value.compare(QLatin1String("YES"), Qt::CaseInsensitive) == 0;
    return flag || value.compare(QLatin1String("NO"), Qt::CaseInsensitive) == 0;
}

/// @return false for a text that is none of @p choices.
template <typename Choice, std::size_t count>
bool takeChoice(const QString& value, const std::array<std::pair<QLatin1String, Choice>, count>& choices,
                Choice& choice)
{
    for (const auto& [name, meaning] : choices) {
        if (value.compare(name, Qt::CaseInsensitive) == 0) {
            choice = meaning;
            return true;
        }
    }
    return false;
}

} // namespace norvane::reports
