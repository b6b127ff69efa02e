#include "tests/architecture/BuildMap.h"

using namespace Qt::Literals::StringLiterals;

namespace norvane::test
{

BuildMap::BuildMap(const QString& text, const QString& root)
{
    QString current;
    for (const QString& line : text.split(u'\n', Qt::SkipEmptyParts)) {
        const QStringList words = line.split(u' ');
        if (words[0] == "target"_L1) { // "target STATIC_LIBRARY norvane_store /root/store"
            current = words[2];
            const QString folder =
                words[3].startsWith(root + u'/') ? words[3].mid(root.size() + 1) : QString();
            m_targets[current] = {
                words[1].endsWith("_LIBRARY"_L1), current, folder.section(u'/', 0, 0), {}, {}};
        } else if (words[0] == "LINK_LIBRARIES"_L1) {
            m_targets[current].links << words[1];
        } else if (words[0] == "INTERFACE_LINK_LIBRARIES"_L1) {
            m_targets[current].hands << words[1];
        }
    }
}

QSet<QString> BuildMap::reach(const QString& target) const
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

QSet<QString> BuildMap::reachedFolders(const QString& target) const
{
    QSet<QString> folders;
    for (const QString& name : reach(target))
        folders << m_targets.value(name).folder;
    return folders;
}

} // namespace norvane::test
