// See ProgramFolder.h.
#include "base/ProgramFolder.h"

#include <QCoreApplication>
#include <QDir>

namespace norvane
{

QString programFolder()
{
    const QString named = qEnvironmentVariable("NORVANE_FOLDER");
    return named.isEmpty() ? QCoreApplication::applicationDirPath()
                           : QDir::cleanPath(QDir::current().absoluteFilePath(named));
}

} // namespace norvane
