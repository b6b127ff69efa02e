#include "tests/architecture/Rules.h"

#include <QDirIterator>
#include <QFile>
#include <QRegularExpression>

using namespace Qt::Literals::StringLiterals;

namespace norvane::test
{

namespace
{
struct Include {
    int line;
    QString header;
};

// A header named without a folder lies beside the file.
QList<Include> includesOf(const QString& root, const QString& file)
{
    static const QRegularExpression pattern(uR"(^\s*#\s*include\s*"([^"]+))"_s);
    QFile source(root + u'/' + file);
    QList<Include> found;
    if (!source.open(QIODevice::ReadOnly))
        return found;
    const QStringList lines = QString::fromUtf8(source.readAll()).split(u'\n');
    for (int line = 0; line < lines.size(); ++line) {
        const QString header = pattern.match(lines[line]).captured(1);
        if (!header.isEmpty())
            found.append({line + 1, header.contains(u'/') ? header : folderOf(file) + u'/' + header});
    }
    return found;
}

QStringList allSources(const QString& root)
{
    QStringList files;
    for (const QString& top : QDir(root).entryList(QDir::Dirs | QDir::NoDotAndDotDot)) {
        QDirIterator walk(root + u'/' + top, {u"*.cpp"_s, u"*.h"_s}, QDir::Files,
                          QDirIterator::Subdirectories);
        while (top != "build"_L1 && walk.hasNext())
            files << walk.next().mid(root.size() + 1);
    }
    return files;
}

class Check
{
public:
    Check(const BuildMap& map, QString root) : m_map(map), m_root(std::move(root)) {}

    IncludeReport run()
    {
        for (const QString& file : allSources(m_root))
            checkFile(file);
        return m_report;
    }

private:
    void checkFile(const QString& file)
    {
        const QStringList owners = m_map.ownersOf(file);
        if (owners.isEmpty())
            checkOwnerless(file);
        for (const QString& owner : owners)
            checkFor(owner, m_map.reach(owner), file);
    }

    void checkOwnerless(const QString& file)
    {
        const QString folder = folderOf(file);
        const bool built = std::any_of(m_map.targets().cbegin(), m_map.targets().cend(),
                                       [&](const Target& target) { return target.folder == folder; });
        if (file.endsWith(".cpp"_L1) && built)
            m_report.wrong << u"%1 belongs to no target"_s.arg(file);
        if (!file.startsWith("tests/"_L1) && m_map.bottomOf(folder).size() > 1)
            m_report.wrong << file + " could belong to several libraries: list it in the SOURCES of one"_L1;
    }

    void checkFor(const QString& owner, const QSet<QString>& reach, const QString& file)
    {
        if (m_seen.contains({owner, file}))
            return;
        m_seen << std::pair(owner, file);
        for (const Include& include : includesOf(m_root, file))
            checkInclude(owner, reach, file, include);
    }

    void checkInclude(const QString& owner, const QSet<QString>& reach, const QString& file,
                      const Include& include)
    {
        const QStringList theirs = m_map.ownersOf(include.header);
        ++m_report.includes;
        if (theirs.isEmpty())
            return checkFor(owner, reach, include.header);
        if (reach.intersects(QSet(theirs.cbegin(), theirs.cend())))
            return;
        const QString place = file + u':' + QString::number(include.line);
        m_report.wrong << u"%1 includes %2 of %3, which %4 does not link"_s.arg(place, include.header,
                                                                                theirs.join(u", "_s), owner);
    }

    const BuildMap& m_map;
    QString m_root;
    QSet<std::pair<QString, QString>> m_seen; ///< owner and file
    IncludeReport m_report;
};

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

IncludeReport checkIncludes(const BuildMap& map, const QString& root)
{
    return Check(map, root).run();
}

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
