// See TargetFile.h.
#include "reports/TargetFile.h"

#include "reports/ReportRun.h"

#include <QDir>
#include <QSaveFile>

using namespace Qt::Literals::StringLiterals;

namespace norvane::reports
{

void failWriting(const QString& path, const QString& reason)
{
    throw TargetError(u"%1 could not be written: %2"_s.arg(QDir::toNativeSeparators(path), reason));
}

void replaceFile(const QString& path, const QByteArray& content)
{
    QSaveFile file(path);
    // When the disk becomes full, a write stores a part of the content and reports no error.
    const bool isWhole = file.open(QIODevice::WriteOnly) && file.write(content) == content.size();
    if (!isWhole && file.error() == QFileDevice::NoError)
        failWriting(path, u"the disk is full."_s);
    if (!isWhole || !file.commit())
        failWriting(path, file.errorString());
}

} // namespace norvane::reports
