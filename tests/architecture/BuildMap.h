// The targets of the build with their links, as CMake wrote them down.
#pragma once

#include <QHash>
#include <QSet>
#include <QString>
#include <QStringList>

namespace norvane::test
{

using namespace Qt::Literals::StringLiterals;

/** @brief One library or program. */
struct Target {
    bool library = false;
    QString name;
    QString folder;    ///< as a path from the source root, "store/engine"; empty outside of it
    QStringList links; ///< what its own files may use
    QStringList hands; ///< what it passes on to those that link it
};

/** @brief All targets by name. */
class BuildMap
{
public:
    /** @param text  lines as cmake/BuildMap.cmake writes them
     *  @param root  the source root, without a slash at the end */
    BuildMap(const QString& text, const QString& root)
    {
        QString current;
        for (const QString& line : text.split(u'\n', Qt::SkipEmptyParts)) {
            const QStringList words = line.split(u' ');
            if (words[0] == "target"_L1) { // "target STATIC_LIBRARY norvane_store /root/store"
                current = words[2];
                const QString folder =
                    words[3].startsWith(root + u'/') ? words[3].mid(root.size() + 1) : QString();
                m_targets[current] = {words[1].endsWith("_LIBRARY"_L1), current, folder, {}, {}};
            } else if (words[0] == "LINK_LIBRARIES"_L1) {
                m_targets[current].links << words[1];
            } else if (words[0] == "INTERFACE_LINK_LIBRARIES"_L1) {
                m_targets[current].hands << words[1];
            }
        }
    }

    [[nodiscard]] const QHash<QString, Target>& targets() const { return m_targets; }

    /** @brief Names of all targets that the files of a target may use, itself among them. */
    [[nodiscard]] QSet<QString> reach(const QString& target) const
    {
        QSet<QString> reached = {target};
        QStringList open = m_targets.value(target).links;
        while (!open.isEmpty()) {
            const QString next = open.takeLast();
            if (reached.contains(next))
                continue;
            reached << next;
            open << m_targets.value(next).hands;
        }
        return reached;
    }

    /** @brief Folders that hold what a target may use. */
    [[nodiscard]] QSet<QString> reachedFolders(const QString& target) const
    {
        QSet<QString> folders;
        for (const QString& name : reach(target))
            folders << m_targets.value(name).folder;
        return folders;
    }

private:
    QHash<QString, Target> m_targets;
};

} // namespace norvane::test
