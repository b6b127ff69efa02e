// Copying a register file.
#include "exchange/MoveDataFile.h"

#include "platform/FilePaths.h"
#include "platform/RuntimeFailure.h"

#include <QFile>

using namespace Qt::Literals::StringLiterals;

namespace norvane::exchange
{
namespace
{

/// Removes the file in every case variant, so that no other one is found next.
void removeEverySpelling(const QString& path)
{
    while (pathExists(path)) {
        const QString found = existingPath(path);
        if (!QFile::remove(found))
            throw RuntimeFailure(Failure::PathOrFileAccess, u"The file %1 cannot be deleted."_s.arg(found));
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
    // The whole file is read and written before it replaces the older copy: an unreadable source or a full
    // disk must not cost the customer's only copy.
    writeWholeFile(to, readWholeFile(from));
}

bool keepFormerCopy(const QString& source, const QString& target, const QString& name)
{
    const QString kept = joinPath(target, name);
    const QByteArray former = pathExists(kept) ? readWholeFile(kept) : QByteArray();
    const QByteArray coming = readWholeFile(joinPath(source, name));
    if (!former.isEmpty() && former != coming)
        writeWholeFile(kept + u".former"_s, former);
    return coming.isEmpty() && !former.isEmpty();
}

} // namespace norvane::exchange
