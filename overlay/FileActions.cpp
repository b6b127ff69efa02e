// See FileActions.h.
#include "overlay/FileActions.h"

#include "overlay/DocumentEditor.h"
#include "platform/Boxes.h"
#include "platform/RuntimeFailure.h"

#include <QFileInfo>

using namespace Qt::Literals::StringLiterals;

namespace norvane::overlay
{
namespace
{

/// "Keyboard Files (*.ky4)" of "Keyboard Files (*.ky4)|*.ky4".
QString shownFilter(QStringView filter)
{
    return filter.left(filter.indexOf(u'|')).toString();
}

/// "ky4" of "*.ky4".
QString suffixOf(QStringView extension)
{
    return extension.sliced(extension.lastIndexOf(u'.') + 1).toString();
}

} // namespace

FileActions::FileActions(DocumentEditor& editor, const ApplicationValues& values, Boxes& boxes,
                         OverlayDialogs& dialogs)
    : m_editor(editor), m_values(values), m_boxes(boxes), m_dialogs(dialogs)
{
}

FileChoice FileActions::choice(const QString& title, FileChoice::Name name) const
{
    const DocumentFiles& files = m_editor.document().geometry().files;
    QStringList suffixes = {suffixOf(files.defaultExtension)};
    if (name == FileChoice::Name::Existing)
        suffixes.prepend(suffixOf(files.extension));
    suffixes.removeDuplicates();
    return {title, m_values.customerPath, shownFilter(files.filter), suffixes, name};
}

void FileActions::Newfile()
{
    FileChoice asked = choice(u"New"_s, FileChoice::Name::Any);
    if (m_editor.document().geometry().files.isNewInProgramFolder)
        asked.path = m_values.appPath;
    const QString path = m_dialogs.file(asked);
    if (!path.isEmpty() && mayDropChanges())
        m_editor.newFile(path);
}

void FileActions::OpenFile()
{
    const QString path = m_dialogs.file(choice(u"Open"_s, FileChoice::Name::Existing));
    if (path.isEmpty() || !mayDropChanges())
        return;
    try {
        m_editor.openFile(path);
    } catch (const RuntimeFailure& failure) {
        reportFailure(failure);
    }
}

void FileActions::reportFailure(const RuntimeFailure& failure)
{
    if (failure.failure() == Failure::InputPastEnd) {
        m_boxes.message(u"Incorrect file format"_s, u"File Error"_s, BoxIcon::Critical);
    } else {
        m_boxes.message(u"System error %1: %2"_s.arg(failure.number()).arg(failure.text()), u"Error"_s,
                        BoxIcon::Critical);
    }
}

/// Only the file that is being worked on is replaced without a question.
QString FileActions::fileToSave() const
{
    FileChoice asked = choice(u"Save"_s, FileChoice::Name::ToWrite);
    if (!m_editor.fileName().isEmpty())
        asked.path = m_editor.fileName();
    for (;;) {
        QString path = m_dialogs.file(asked);
        if (path.isEmpty() || !m_editor.replacesOther(path) ||
            m_boxes.ask(u"%1 exists already. Replace it?"_s.arg(QFileInfo(path).fileName()), u"Save"_s,
                        BoxIcon::Question, BoxAnswer::No))
            return path;
        asked.path = path;
    }
}

bool FileActions::SaveFile()
{
    const QString path = fileToSave();
    return !path.isEmpty() && write(path);
}

bool FileActions::saveChanges()
{
    const QString path = m_editor.fileName();
    return path.isEmpty() || m_editor.replacesOther(path) ? SaveFile() : write(path);
}

/// A document that cannot be written remains open, so that it can be saved elsewhere.
bool FileActions::write(const QString& path)
{
    try {
        m_editor.saveFile(path);
    } catch (const RuntimeFailure& failure) {
        reportFailure(failure);
        return false;
    }
    return true;
}

bool FileActions::mayDropChanges()
{
    if (m_editor.history().isClean())
        return true;
    const UnsavedAnswer answer =
        m_boxes.askToSave(u"Changes to %1 are not saved."_s.arg(documentName()), u"Unsaved Changes"_s);
    return answer == UnsavedAnswer::Save ? SaveFile() : answer == UnsavedAnswer::Discard;
}

QString FileActions::documentName() const
{
    return m_editor.fileName().isEmpty() ? u"Untitled"_s : QFileInfo(m_editor.fileName()).fileName();
}

} // namespace norvane::overlay
