// The rules of docs/architecture.md, checked on the build and the sources.
#pragma once

#include "tests/architecture/BuildMap.h"

#include <QDirIterator>
#include <QRegularExpression>

namespace norvane::test
{

// Tests, benchmarks, fuzz targets and scripts drive whatever they need.
inline bool ofProduct(const Target& target)
{
    static const QStringList beside = {u""_s, u"tests"_s, u"bench"_s, u"fuzz"_s, u"scripts"_s};
    return !beside.contains(target.folder.section(u'/', 0, 0));
}

/// For each folder of the product, those that its targets reach.
inline QHash<QString, QSet<QString>> foldersBelow(const BuildMap& map)
{
    QHash<QString, QSet<QString>> below;
    for (const Target& target : map.targets()) {
        if (ofProduct(target))
            below[target.folder] += map.reachedFolders(target.name);
    }
    return below;
}

/// The headers of our own that a source names with their folder.
inline QStringList includesOf(const QString& path)
{
    static const QRegularExpression include(uR"(^\s*#\s*include\s*"(\w+/[^"]+))"_s,
                                            QRegularExpression::MultilineOption);
    QFile source(path);
    QStringList headers;
    if (source.open(QIODevice::ReadOnly)) {
        for (const auto& match : include.globalMatch(QString::fromUtf8(source.readAll())))
            headers << match.captured(1);
    }
    return headers;
}

/// The room of a file or header: the innermost folder around it that has targets; empty when there is none.
inline QString roomOf(const QString& path, const QHash<QString, QSet<QString>>& rooms)
{
    QString folder = path;
    while (!folder.isEmpty() && !rooms.contains(folder))
        folder.truncate(qMax(folder.lastIndexOf(u'/'), 0));
    return folder;
}

/** @brief Includes of a room that no target of the including room reaches, as "base/Value.cpp includes
 * top/Plan.h". Tests, benchmarks and scripts drive whatever they need and are not looked at. */
inline QStringList undeclaredIncludes(const BuildMap& map, const QString& root)
{
    QStringList wrong;
    const auto below = foldersBelow(map);
    for (auto room = below.cbegin(); room != below.cend(); ++room) {
        QDirIterator walk(root + u'/' + room.key(), {u"*.cpp"_s, u"*.h"_s}, QDir::Files,
                          QDirIterator::Subdirectories);
        while (walk.hasNext()) {
            const QString file = walk.next().mid(root.size() + 1);
            if (roomOf(file, below) != room.key())
                continue;
            for (const QString& header : includesOf(root + u'/' + file)) {
                if (!room->contains(roomOf(header, below)))
                    wrong << file + " includes "_L1 + header;
            }
        }
    }
    return wrong;
}

/** @brief Libraries with widgets that are neither in ui/ nor named ..._forms; empty when all is well. */
inline QStringList misplacedWidgets(const BuildMap& map)
{
    QStringList wrong;
    for (const Target& target : map.targets()) {
        const bool mayShow = !target.library || target.folder == "ui"_L1 || target.name.endsWith("_forms"_L1);
        if (ofProduct(target) && !mayShow && map.reach(target.name).contains(u"Qt6::Widgets"_s))
            wrong << target.name;
    }
    return wrong;
}

/** @brief Pairs of folders whose libraries reach each other, as "exchange and sales reach each other". */
inline QStringList folderCycles(const BuildMap& map)
{
    QStringList wrong;
    const auto below = foldersBelow(map);
    for (auto one = below.cbegin(); one != below.cend(); ++one) {
        for (const QString& other : one.value()) {
            if (one.key() < other && below.value(other).contains(one.key()))
                wrong << u"%1 and %2 reach each other"_s.arg(one.key(), other);
        }
    }
    return wrong;
}

/** @brief Targets in tools/ that link something of the product, for what the product writes wrongly must
 * show. */
inline QStringList partialTools(const BuildMap& map)
{
    QStringList wrong;
    for (const Target& target : map.targets()) {
        const auto others = map.reachedFolders(target.name) - QSet<QString>{QString(), u"tools"_s};
        if (target.folder.startsWith("tools"_L1) && !others.isEmpty())
            wrong << target.name;
    }
    return wrong;
}

} // namespace norvane::test
