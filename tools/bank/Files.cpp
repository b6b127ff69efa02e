// Reading and replacing whole files; see Files.h.
#include "tools/bank/Files.h"

#include "tools/bank/ToolFailure.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QSaveFile>

using namespace Qt::Literals::StringLiterals;

namespace bank
{

QString pathOf(const QString& folder, const QString& name)
{
    const QDir dir(folder);
    if (!QFileInfo::exists(dir.filePath(name))) {
        const auto names = dir.entryList(QDir::Files | QDir::Hidden, QDir::Name);
        for (const auto& present : names) {
            if (present.compare(name, Qt::CaseInsensitive) == 0)
                return dir.filePath(present);
        }
    }
    return dir.filePath(name);
}

QByteArray readFile(const QString& path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        throw ToolFailure(FileOpenError, u"%1: %2"_s.arg(path, file.errorString()));
    return file.readAll();
}

void writeFile(const QString& path, const QByteArray& bytes)
{
    QSaveFile file(path);
    if (!file.open(QIODevice::WriteOnly) || file.write(bytes) != bytes.size() || !file.commit())
        throw ToolFailure(FileWriteError, u"%1: %2"_s.arg(path, file.errorString()));
}

} // namespace bank
