// The targets of the build with their sources and links, as CMake wrote them down.
#pragma once

#include <QHash>
#include <QSet>
#include <QString>
#include <QStringList>

namespace norvane::test
{

/** @brief One library or program. Paths are below the source root ("store/Value.cpp"). */
struct Target {
    bool library = false;
    QString name;
    QString folder;      ///< where its sources lie; without sources, where it is declared
    QStringList sources; ///< of the source root only, what the build makes is left out
    QStringList links;   ///< what its own files may use
    QStringList hands;   ///< what it hands on to those who link it
};

/** @brief All targets by name, and who owns a file. */
class BuildMap
{
public:
    /** @param text  lines as cmake/BuildMap.cmake writes them
     *  @param root  the source root, without a slash at the end */
    BuildMap(const QString& text, const QString& root);

    [[nodiscard]] const QHash<QString, Target>& targets() const { return m_targets; }

    /** @brief Names of all targets that the files of a target may use, itself among them. */
    [[nodiscard]] QSet<QString> reach(const QString& target) const;

    /** @brief The targets that a file belongs to: those that list it or, for a header, the .cpp of its name,
     * else the library of its folder on which the folder's others stand. Empty when there is none or no
     * single one. */
    [[nodiscard]] QStringList ownersOf(const QString& file) const;

    /** @brief Libraries of a folder that stand on no other library of it. */
    [[nodiscard]] QStringList bottomOf(const QString& folder) const;

private:
    void readLine(const QString& line, const QString& root, QString& current);
    [[nodiscard]] bool standsAlone(const Target& target) const;

    QHash<QString, Target> m_targets;
    QHash<QString, QStringList> m_owners; ///< by source file
};

/** @brief The part of a path before its last slash. */
[[nodiscard]] inline QString folderOf(const QString& path)
{
    return path.left(qMax(0, path.lastIndexOf(u'/')));
}

} // namespace norvane::test
