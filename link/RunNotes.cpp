// See RunNotes.h.
#include "link/RunNotes.h"

#include "base/CustomerSettings.h"
#include "platform/FilePaths.h"
#include "platform/ProfileFile.h"

#include <limits>

using namespace Qt::Literals::StringLiterals;

namespace norvane::link
{
namespace
{

constexpr auto registersSection = "Registers"_L1;
constexpr auto pluCountKey = "PLUs"_L1;

QString notesPath(const ApplicationValues& values)
{
    return joinPath(values.customerPath, runNotesName());
}

} // namespace

QString readNote(const ApplicationValues& values, QLatin1StringView section, QLatin1StringView key)
{
    return ProfileFile(notesPath(values)).value(QString(section), QString(key));
}

QString readLongNote(const ApplicationValues& values, QLatin1StringView section, QLatin1StringView key)
{
    constexpr int anyLength = std::numeric_limits<int>::max();
    return ProfileFile(notesPath(values)).value(QString(section), QString(key), {}, anyLength);
}

void writeNote(const ApplicationValues& values, QLatin1StringView section, QLatin1StringView key,
               const QString& value)
{
    ProfileFile::write(notesPath(values), section, key, value);
}

qint64 pluCountOfRegisters(const ApplicationValues& values)
{
    return readNote(values, registersSection, pluCountKey).toLongLong();
}

void notePluCountOfRegisters(const ApplicationValues& values, qint64 count)
{
    writeNote(values, registersSection, pluCountKey, QString::number(count));
}

} // namespace norvane::link
