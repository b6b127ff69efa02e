// Whether the user wants to see the overview.
#pragma once

#include <QString>

namespace norvane::shell
{

/// Kept in a file of the user: it belongs to no customer.
class OverviewMemory
{
public:
    /// @param path of an initialisation file, which need not exist.
    explicit OverviewMemory(QString path) : m_path(std::move(path)) {}
    /// That in the user's folder for settings.
    [[nodiscard]] static OverviewMemory ofThisUser();

    /// True until the user has hidden it.
    [[nodiscard]] bool isShown() const;
    /// @return false when the file cannot be written.
    bool keepShown(bool isShown) const;

private:
    QString m_path;
};

} // namespace norvane::shell
