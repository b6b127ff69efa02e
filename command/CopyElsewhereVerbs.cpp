// Copies of customers elsewhere: making and checking them.
#include "command/StopSignals.h"
#include "command/TerminalBoxes.h"
#include "command/Verbs.h"
#include "customers/CopiesElsewhere.h"
#include "platform/FolderLock.h"
#include "platform/RuntimeFailure.h"

#include <QDirIterator>
#include <QFileInfo>
#include <QTemporaryDir>

using namespace Qt::Literals::StringLiterals;

namespace norvane::command
{
namespace
{

class CopyRun
{
public:
    CopyRun(const Workplace& workplace, QString folder) : m_workplace(workplace), m_folder(std::move(folder))
    {
    }

    /// One customer after the other, whatever happens with one.
    void run(const QStringList& names)
    {
        for (const QString& name : names)
            attempt(name);
        m_workplace.show(m_listing);
        if (m_code != ExitCode::Done)
            throw CommandError(m_code, {});
    }

private:
    void attempt(const QString& name)
    {
        try {
            copy(name);
        } catch (const CommandError& error) {
            note(name, error.code(), error.text());
        } catch (const RuntimeFailure& failure) {
            if (failure.failure() == Failure::UserInterrupt)
                throw;
            note(name, codeOf(failure), failure.text());
        }
    }
    void copy(const QString& name)
    {
        const ApplicationValues values = takeCustomer(m_workplace, name);
        const auto lock = FolderLock::take(values.customerPath, m_workplace.boxes);
        if (lock == nullptr)
            throw CommandError(codeOfRefusedLock({values.customerPath}), u"not copied."_s);
        const auto made = customers::makeCopyElsewhere(values.customerPath, m_folder,
                                                       QDateTime::currentDateTime(), stopIfSignalled);
        m_listing.add({QFileInfo(values.customerPath).fileName(), made.path, QFileInfo(made.path).size()});
    }
    void note(const QString& name, ExitCode code, const QString& text)
    {
        printMessage(u"%1: %2"_s.arg(name, text));
        if (m_code == ExitCode::Done)
            m_code = code;
    }

    const Workplace& m_workplace;
    QString m_folder;
    Listing m_listing{{u"Shop"_s, u"Copy"_s, u"Bytes"_s}};
    ExitCode m_code = ExitCode::Done;
};

/// A file as named, or all copies below a folder.
QStringList copiesNamed(const QString& path)
{
    if (!QFileInfo(path).isDir())
        return {path};
    QStringList paths;
    QDirIterator all(path, {u"[0-9][0-9][0-9][0-9]-*.zip"_s}, QDir::Files, QDirIterator::Subdirectories);
    while (all.hasNext())
        paths << all.next();
    if (paths.isEmpty())
        throw CommandError(ExitCode::NoSuchName, u"There is no copy in %1."_s.arg(path));
    paths.sort();
    return paths;
}

} // namespace

void copyElsewhere(const Workplace& workplace, const Invocation& words)
{
    if (!words.has("to"_L1))
        throw CommandError(ExitCode::Usage, u"Name a folder with --to."_s);
    catchStopSignals();
    CopyRun(workplace, workplace.userFile(words.value("to"_L1))).run(words.operands);
}

void verifyCopies(const Workplace& workplace, const Invocation& words)
{
    QStringList paths;
    for (const QString& name : words.operands)
        paths << copiesNamed(workplace.userFile(name));
    catchStopSignals();
    const QTemporaryDir scratch;
    Listing listing({u"Copy"_s, u"Finding"_s});
    bool isSound = true;
    for (const QString& path : paths) {
        const QString fault = customers::faultOfCopy(path, scratch.path(), stopIfSignalled);
        listing.add({path, fault.isEmpty() ? u"sound"_s : fault});
        isSound = isSound && fault.isEmpty();
    }
    workplace.show(listing);
    if (!isSound)
        throw CommandError(ExitCode::Unsound, {});
}

} // namespace norvane::command
