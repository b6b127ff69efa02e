// Reads the stamp byte; see PollStamp.h.
#include "sales/PollStamp.h"

#include "platform/FilePaths.h"
#include "platform/RuntimeFailure.h"

#include <QFile>

using namespace Qt::Literals::StringLiterals;

namespace norvane::sales
{
namespace
{

/// Place of the stamp in the file, from 0.
constexpr qint64 stampPosition = 4;

} // namespace

QString ReadPoll194Stamp(const ApplicationValues& values)
{
    const QString path = joinPath(values.appPath, u"poll194.dll"_s);
    QFile file(existingPath(path));
    if (!file.open(QIODevice::ReadWrite) && !file.open(QIODevice::ReadOnly))
        throw RuntimeFailure(Failure::PathOrFileAccess, u"Path/File access error: %1"_s.arg(path));
    const QByteArray stamp = file.seek(stampPosition) ? file.read(1) : QByteArray();
    return NibbleDigits(stamp.isEmpty() ? " "_ba : stamp);
}

QString NibbleDigits(const QByteArray& bytes)
{
    QString digits;
    for (const char byte : bytes) {
        const auto value = static_cast<unsigned char>(byte);
        digits += QString::number(value >> 4) + QString::number(value & 0x0F);
    }
    return digits;
}

} // namespace norvane::sales
