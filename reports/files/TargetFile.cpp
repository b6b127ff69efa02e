// See TargetFile.h.
#include "reports/files/TargetFile.h"

#include "platform/WholeFile.h"
#include "reports/data/ReportError.h"

#include <QDir>

using namespace Qt::Literals::StringLiterals;

namespace norvane::reports
{

void failWriting(const QString& path, const QString& reason)
{
    throw TargetError(u"%1 could not be written: %2"_s.arg(QDir::toNativeSeparators(path), reason));
}

void replaceFile(const QString& path, const QByteArray& content)
{
    if (const auto error = replaceWholeFile(path, content))
        failWriting(path, error->reason);
}

} // namespace norvane::reports
