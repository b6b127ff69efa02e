// See Firmware.h.
#include "register/Firmware.h"

#include "platform/FilePaths.h"
#include "platform/RuntimeFailure.h"

#include <QFileInfo>

#include <cstdint>
#include <limits>

namespace norvane
{
namespace
{

/// Shortest memory file of the newer firmware.
constexpr qint64 newerFirmwareLength = 78;

} // namespace

int GetFirmwareGeneration(const QString& programFolder, Boxes& boxes)
{
    const QString path = joinPath(programFolder, QStringLiteral("mem.dat"));
    const QFileInfo file(existingPath(path));
    if (!file.isFile())
        throw RuntimeFailure(Failure::FileNotFound, QStringLiteral("File not found: %1").arg(path));
    if (file.size() > std::numeric_limits<std::int16_t>::max()) {
        throw RuntimeFailure(Failure::Overflow,
                             QStringLiteral("Overflow: %1 is not a memory file of a register").arg(path));
    }
    if (file.size() == 0) {
        boxes.message(QStringLiteral("You must upload the data from the Velmar"));
        return -1;
    }
    return file.size() < newerFirmwareLength ? olderGeneration : newerGeneration;
}

} // namespace norvane
