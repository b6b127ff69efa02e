// Copying a register file.
#include "exchange/MoveDataFile.h"

#include "platform/FilePaths.h"
#include "platform/RuntimeFailure.h"

#include <QFile>

namespace norvane::exchange
{
namespace
{

/// All spellings go, so that none is found any more.
void removeEverySpelling(const QString& path)
{
    while (pathExists(path)) {
        const QString found = existingPath(path);
        if (!QFile::remove(found)) {
            throw RuntimeFailure(Failure::PathOrFileAccess,
                                 QStringLiteral("The file %1 cannot be deleted.").arg(found));
        }
    }
}

} // namespace

void MoveDataFile(const QString& source, const QString& target, const QString& name)
{
    const QString from = joinPath(source, name);
    const QString to = joinPath(target, name);
    if (!pathExists(from)) {
        removeEverySpelling(to);
        return;
    }
    // The copy takes the older one's place only when it stands whole: an unreadable source or a full disk
    // must not cost the customer's only copy.
    writeWholeFile(to, readWholeFile(from));
}

} // namespace norvane::exchange
