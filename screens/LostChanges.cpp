// See LostChanges.h.
#include "screens/LostChanges.h"

#include <algorithm>

namespace norvane::screens
{

std::optional<LostChanges> LostChangesList::take(const QString& databasePath, const QString& screenFile)
{
    const auto latest = std::find_if(m_losses.rbegin(), m_losses.rend(), [&](const LostChanges& lost) {
        return lost.databasePath == databasePath && lost.screenFile == screenFile;
    });
    if (latest == m_losses.rend())
        return std::nullopt;
    LostChanges taken = std::move(*latest);
    m_losses.erase(std::next(latest).base());
    return taken;
}

QString LostChangesList::latestScreen(const QString& databasePath) const
{
    const auto latest = std::find_if(m_losses.rbegin(), m_losses.rend(), [&](const LostChanges& lost) {
        return lost.databasePath == databasePath;
    });
    return latest == m_losses.rend() ? QString() : latest->screenFile;
}

} // namespace norvane::screens
