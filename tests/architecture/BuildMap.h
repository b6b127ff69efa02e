// The targets of the build with their links, as CMake wrote them down.
#pragma once

#include <QHash>
#include <QSet>
#include <QString>
#include <QStringList>

namespace norvane::test
{

/** @brief One library or program. */
struct Target {
    bool library = false;
    QString name;
    QString folder;    ///< of the source root, the first part of its path alone; empty outside of it
    QStringList links; ///< what its own files may use
    QStringList hands; ///< what it hands on to those who link it
};

/** @brief All targets by name. */
class BuildMap
{
public:
    /** @param text  lines as cmake/BuildMap.cmake writes them
     *  @param root  the source root, without a slash at the end */
    BuildMap(const QString& text, const QString& root);

    [[nodiscard]] const QHash<QString, Target>& targets() const { return m_targets; }

    /** @brief Names of all targets that the files of a target may use, itself among them. */
    [[nodiscard]] QSet<QString> reach(const QString& target) const;

    /** @brief Folders that hold what a target may use. */
    [[nodiscard]] QSet<QString> reachedFolders(const QString& target) const;

private:
    QHash<QString, Target> m_targets;
};

} // namespace norvane::test
