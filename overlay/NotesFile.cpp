// See NotesFile.h.
#include "overlay/NotesFile.h"

#include "overlay/LevelImport.h"
#include "platform/FilePaths.h"
#include "platform/ProfileFile.h"
#include "platform/RuntimeFailure.h"

#include <QFile>

#include <optional>

using namespace Qt::Literals::StringLiterals;

namespace norvane::overlay
{
namespace
{

constexpr QStringView mainSection = u"Overlay";
constexpr auto groupSection = "Group "_L1;
constexpr QStringView keyboardKey = u"Keyboard";
constexpr QStringView levelKey = u"Level";
constexpr QStringView backgroundKey = u"BackGround";
constexpr QStringView textColourKey = u"TextColour";

std::optional<Colour> colourAt(const ProfileFile& file, const QString& section, QStringView key)
{
    bool isNumber = false;
    const int number = file.value(section, key).toInt(&isNumber);
    return isNumber ? std::optional(Colour{number}) : std::nullopt;
}

void readGroup(const ProfileFile& file, const QString& section, DocumentNotes& notes)
{
    const int group = section.sliced(groupSection.size()).toInt();
    const auto background = colourAt(file, section, backgroundKey);
    const auto textColour = colourAt(file, section, textColourKey);
    if (group > 0 && background && textColour)
        notes.groups[group] = {*background, *textColour};
}

QByteArray entry(QStringView key, int number)
{
    return key.toLatin1() + '=' + QByteArray::number(number) + "\r\n";
}

QByteArray contentOf(const Document& document)
{
    const DocumentNotes& notes = document.notes();
    QByteArray content = "[Overlay]\r\nKeyboard=" + document.geometry().name.toLatin1() + "\r\n";
    content += entry(levelKey, notes.level);
    for (const auto& [group, colours] : notes.groups) {
        content += "[Group " + QByteArray::number(group) + "]\r\n";
        content += entry(backgroundKey, colours.background.number);
        content += entry(textColourKey, colours.textColour.number);
    }
    return content;
}

/// A file without a document's notes would give its colours to the next document of this name.
void removeNotes(const QString& path)
{
    if (pathExists(path) && !QFile::remove(existingPath(path)))
        throw RuntimeFailure(Failure::PathOrFileAccess, u"%1 cannot be deleted"_s.arg(path));
}

} // namespace

QString notesPath(const QString& documentPath)
{
    return documentPath + u".notes"_s;
}

DocumentNotes readNotes(const QString& documentPath, Keyboard keyboard)
{
    const ProfileFile file(notesPath(documentPath));
    DocumentNotes notes;
    if (file.value(mainSection, keyboardKey) != geometryOf(keyboard).name)
        return notes;
    const int level = file.value(mainSection, levelKey).toInt();
    notes.level = level > 0 && level <= overlayLevels ? level : 0;
    for (const QString& section : file.sections()) {
        if (section.startsWith(groupSection, Qt::CaseInsensitive))
            readGroup(file, section, notes);
    }
    return notes;
}

void writeNotes(const QString& documentPath, const Document& document)
{
    const QString path = notesPath(documentPath);
    if (document.notes() == DocumentNotes()) {
        removeNotes(path);
    } else {
        writeWholeFile(path, contentOf(document));
    }
}

} // namespace norvane::overlay
