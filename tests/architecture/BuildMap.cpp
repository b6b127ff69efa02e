#include "tests/architecture/BuildMap.h"

using namespace Qt::Literals::StringLiterals;

namespace norvane::test
{

namespace
{
// "target STATIC_LIBRARY norvane_store /root/store"
Target parseTarget(const QStringList& words, const QString& root)
{
    const QString folder = words.value(3);
    return {words.value(1).endsWith("_LIBRARY"_L1),
            words.value(2),
            folder.startsWith(root + u'/') ? folder.mid(root.size() + 1) : QString(),
            {},
            {},
            {}};
}

void addSource(Target& target, const QString& path)
{
    if (target.sources.isEmpty())
        target.folder = folderOf(path);
    target.sources << path;
}
} // namespace

BuildMap::BuildMap(const QString& text, const QString& root)
{
    QString current;
    for (const QString& line : text.split(u'\n', Qt::SkipEmptyParts))
        readLine(line, root, current);
}

void BuildMap::readLine(const QString& line, const QString& root, QString& current)
{
    const QStringList words = line.split(u' ');
    const QString rest = words.mid(1).join(u' ');
    if (words.first() == "target"_L1) {
        current = words.value(2);
        m_targets.insert(current, parseTarget(words, root));
    } else if (words.first() == "LINK_LIBRARIES"_L1) {
        m_targets[current].links << rest;
    } else if (words.first() == "INTERFACE_LINK_LIBRARIES"_L1) {
        m_targets[current].hands << rest;
    } else if (rest.startsWith(root + u'/') && !rest.startsWith(root + "/build/"_L1)) {
        addSource(m_targets[current], rest.mid(root.size() + 1));
        m_owners[rest.mid(root.size() + 1)] << current;
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

QStringList BuildMap::ownersOf(const QString& file) const
{
    if (m_owners.contains(file))
        return m_owners.value(file);
    if (!file.endsWith(".h"_L1))
        return {};
    const QString source = file.chopped(2) + ".cpp"_L1;
    if (m_owners.contains(source))
        return m_owners.value(source);
    const QStringList bottom = bottomOf(folderOf(file));
    return bottom.size() == 1 ? bottom : QStringList();
}

QStringList BuildMap::bottomOf(const QString& folder) const
{
    QStringList bottom;
    for (const Target& target : m_targets) {
        if (target.library && target.folder == folder && standsAlone(target))
            bottom << target.name;
    }
    return bottom;
}

bool BuildMap::standsAlone(const Target& target) const
{
    const QSet<QString> reached = reach(target.name);
    return std::none_of(reached.cbegin(), reached.cend(), [&](const QString& other) {
        return other != target.name && m_targets.value(other).folder == target.folder;
    });
}

} // namespace norvane::test
