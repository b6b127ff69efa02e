// The routines shared by menus, exchange and text records; see SharedRoutines.h.
#include "base/SharedRoutines.h"

#include "base/CustomerSettings.h"
#include "platform/ChildProcess.h"
#include "platform/FilePaths.h"
#include "platform/Numbers.h"
#include "platform/RuntimeFailure.h"
#include "platform/TextFields.h"
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
/// The register's own mark in texts, and the character that stands for it in the database.
constexpr QChar registerMark{0xFD};
constexpr QChar shownMark{u'^'};

QString centred(const QString& text, int width)
{
    if (text.size() > width) {
        throw RuntimeFailure(Failure::InvalidArgument,
                             QStringLiteral("Invalid argument: \"%1\" is longer than %2 characters")
                                 .arg(text, QString::number(width)));
    }
    const int pad = roundHalfEven(static_cast<double>(width - text.size()) / 2);
    return (QString(pad, u' ') + text).leftJustified(width, u' ', true);
}

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
                             QStringLiteral("Overflow: %1 is no memory file of a register").arg(path));
    }
    if (file.size() == 0) {
        boxes.message(QStringLiteral("You must upload the data from the Velmar"));
        return -1;
    }
    return file.size() < newerFirmwareLength ? 2 : 3;
}

QString JustifyField(std::optional<QString>& value, int width, int mode)
{
    const QString text = value ? trimBlanks(*value).toString() : QString();
    QString result;
    switch (mode) {
    case 0:
        result = (QString(width, u'0') + text).right(width);
        break;
    case 1:
        result = text.leftJustified(width, u' ', true);
        break;
    default:
        result = centred(text, width);
    }
    value = result;
    return result;
}

QString EscapeDelimiter(QString& text)
{
    return text.replace(registerMark, shownMark);
}

QString UnescapeDelimiter(QString& text)
{
    return text.replace(shownMark, registerMark);
}

QString StripLeadingZero(QString& text)
{
    QStringView rest = trimBlanks(text);
    while (rest.startsWith(u'0'))
        rest = rest.sliced(1);
    text = rest.toString();
    return text;
}

bool RunAndWait(const ApplicationValues& values, const QString& commandLine)
{
    QCoreApplication::processEvents();
    return runAndWait(commandLine, values.appPath) == ChildResult::Ended;
}

QString ReadStatusOut()
{
    const QByteArray content = readWholeFile(u"status.out"_s);
    TextValues values({content.constData(), static_cast<std::size_t>(content.size())});
    // An empty place is no value: a line end too many must not turn an error into a success.
    std::string_view last;
    while (const auto value = values.next())
        last = value->empty() ? last : *value;
    return QString::fromLatin1(last).remove(u'"');
}

} // namespace norvane
