// See SettingsFile.h.
#include "command/SettingsFile.h"

#include "platform/FilePaths.h"
#include "platform/RuntimeFailure.h"

#include <QFileInfo>

using namespace Qt::Literals::StringLiterals;

namespace norvane::command
{
namespace
{

void addLine(SettingsFile& file, int number, const QString& text, QString& section)
{
    const qsizetype equals = text.indexOf(u'=');
    if (text.startsWith(u'[') && text.endsWith(u']')) {
        section = text.sliced(1).chopped(1).trimmed();
        file.lines << SettingLine{number, section, {}, {}};
    } else if (equals <= 0) {
        file.addMistake(number, u"\"%1\" is neither a [section] nor Key=Value."_s.arg(text));
    } else if (section.isEmpty()) {
        file.addMistake(number, u"There is no [section] before \"%1\"."_s.arg(text));
    } else {
        file.lines << SettingLine{number, section, text.first(equals).trimmed(),
                                  text.sliced(equals + 1).trimmed()};
    }
}

} // namespace

void SettingsFile::addMistake(int line, const QString& reason)
{
    mistakes << u"%1, line %2: %3"_s.arg(name).arg(line).arg(reason);
}

SettingsFile readSettingsFile(const QString& path)
{
    SettingsFile file{QFileInfo(path).fileName(), {}, {}};
    if (!pathExists(path))
        return file;
    try {
        QString section;
        int number = 0;
        for (const QByteArray& line : readWholeFile(path).split('\n')) {
            const QString text = QString::fromUtf8(line).trimmed();
            ++number;
            if (!text.isEmpty() && !text.startsWith(u';') && !text.startsWith(u'#'))
                addLine(file, number, text, section);
        }
    } catch (const RuntimeFailure& failure) {
        file.mistakes << failure.text();
    }
    return file;
}

} // namespace norvane::command
