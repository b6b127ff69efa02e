#include "tests/architecture/LinkCheck.h"

using namespace Qt::Literals::StringLiterals;

namespace norvane::test
{

namespace
{
// Tests, benchmarks and scripts drive whatever they need.
bool ofProduct(const Target& target)
{
    static const QStringList beside = {u""_s, u"tests"_s, u"bench"_s, u"scripts"_s};
    return !beside.contains(target.folder.section(u'/', 0, 0));
}

QSet<QString> reachedFolders(const BuildMap& map, const Target& target)
{
    QSet<QString> folders;
    for (const QString& name : map.reach(target.name))
        folders << map.targets().value(name).folder.section(u'/', 0, 0);
    return folders;
}
} // namespace

QStringList misplacedWidgets(const BuildMap& map)
{
    QStringList wrong;
    for (const Target& target : map.targets()) {
        const bool mayShow = !target.library || target.folder == "ui"_L1 || target.name.endsWith("_forms"_L1);
        if (ofProduct(target) && !mayShow && map.reach(target.name).contains(u"Qt6::Widgets"_s))
            wrong << target.name;
    }
    return wrong;
}

QStringList folderCycles(const BuildMap& map)
{
    QHash<QString, QSet<QString>> below;
    for (const Target& target : map.targets()) {
        if (ofProduct(target))
            below[target.folder.section(u'/', 0, 0)] += reachedFolders(map, target);
    }
    QStringList wrong;
    for (auto one = below.cbegin(); one != below.cend(); ++one) {
        for (const QString& other : one.value()) {
            if (one.key() < other && below.value(other).contains(one.key()))
                wrong << u"%1 and %2 reach each other"_s.arg(one.key(), other);
        }
    }
    return wrong;
}

QStringList partialTools(const BuildMap& map)
{
    QStringList wrong;
    for (const Target& target : map.targets()) {
        const bool tool = target.folder.section(u'/', 0, 0) == "tools"_L1;
        if (tool && !(reachedFolders(map, target) - QSet<QString>{QString(), u"tools"_s}).isEmpty())
            wrong << target.name;
    }
    return wrong;
}

} // namespace norvane::test
