// The routines shared by menus, exchange and text records; see SharedRoutines.h.
#include "base/SharedRoutines.h"

#include "base/CustomerSettings.h"
#include "platform/FilePaths.h"
#include "platform/RuntimeFailure.h"
#include "platform/TextValues.h"

#include <QCoreApplication>
#include <QFileInfo>

#include <limits>

using namespace Qt::Literals::StringLiterals;

namespace norvane
{
namespace
{

/// Shortest memory file of the newer firmware.
constexpr qint64 newerFirmwareLength = 78;

} // namespace

QString GetModelCode(const ApplicationValues& values)
{
    const double model = ecrModel(values);
    if (model == 0 || model == 1)
        return QStringLiteral("Velmaro");
    return model == 2 ? QStringLiteral("Velmarn") : QStringLiteral("Dorvik");
}

int GetFirmwareGeneration(const ApplicationValues& values, Boxes& boxes)
{
    const QString path = joinPath(values.appPath, QStringLiteral("mem.dat"));
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
    return file.size() < newerFirmwareLength ? 2 : 3;
}

ChildResult RunAndWait(const ApplicationValues& values, const QString& commandLine, const ChildWatch& watch)
{
    QCoreApplication::processEvents();
    return runAndWait(commandLine, values.appPath, watch);
}

QString ReadStatusOut()
{
    const QByteArray content = readWholeFile(u"status.out"_s);
    TextValues values({content.constData(), static_cast<std::size_t>(content.size())});
    // An empty place is not a value: a line end too many must not turn an error into a success.
    std::string_view last;
    while (const auto value = values.next())
        last = value->empty() ? last : *value;
    return QString::fromLatin1(last).remove(u'"');
}

} // namespace norvane
