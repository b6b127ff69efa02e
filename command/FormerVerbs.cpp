// Customers of the former program: converts their databases, and takes over a whole installation.
#include "command/CustomerRun.h"
#include "command/StopSignals.h"
#include "command/TerminalBoxes.h"
#include "command/Verbs.h"
#include "customers/CustomerFolders.h"
#include "customers/FormerCustomer.h"
#include "former/ConversionReport.h"
#include "platform/FilePaths.h"
#include "platform/FolderLock.h"
#include "platform/RuntimeFailure.h"
#include "store/catalogue/DatabaseCheck.h"
#include "store/engine/Database.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QScopeGuard>

using namespace Qt::Literals::StringLiterals;

namespace norvane::command
{
namespace
{

constexpr auto acceptLosses = "accept-losses"_L1;

ExitCode exitCodeOf(former::FormerProblem problem)
{
    switch (problem) {
    case former::FormerProblem::NotOurs:
        return ExitCode::FormerOfAnother;
    case former::FormerProblem::NewerFormat:
        return ExitCode::FormerTooNew;
    case former::FormerProblem::Password:
        return ExitCode::FormerLocked;
    case former::FormerProblem::NotFormer:
    case former::FormerProblem::Unreadable:
        return ExitCode::FormerDamaged;
    case former::FormerProblem::Cancelled:
        return ExitCode::Stopped;
    case former::FormerProblem::NotReadable:
    case former::FormerProblem::NoReader:
    case former::FormerProblem::Changed:
        break;
    }
    return ExitCode::Failed;
}

/// Whether the file opens as a database of ours.
bool isOurs(const QString& database)
{
    try {
        const store::Database opened(database);
        return true;
    } catch (const RuntimeFailure&) {
        return false;
    }
}

/// Converts one folder after the other and lists how each ended.
class ConversionRun
{
public:
    ConversionRun(const Workplace& workplace, const Invocation& words)
        : m_workplace(workplace), m_isDryRun(words.has("dry-run"_L1))
    {
        catchStopSignals();
    }

    /// A customer that cannot be converted is left as it was; the next one follows.
    void convert(const QString& name)
    {
        attempt(
            [&] {
                const ApplicationValues values = findCustomer(m_workplace, name);
                try {
                    takeFolder(values.customerName, values.customerPath);
                } catch (const former::FormerError& error) {
                    throw CommandError(exitCodeOf(error.problem()), error.text());
                }
            },
            [&](ExitCode code, const QString& text) { note(name, code, text); });
    }
    void note(const QString& name, ExitCode code, const QString& text)
    {
        addRow(name, u"not converted"_s, {}, text);
        if (m_code == ExitCode::Done)
            m_code = code;
    }
    /// @throws CommandError with the code of the first that was not converted.
    void end() const
    {
        m_workplace.show(m_listing);
        if (m_code != ExitCode::Done)
            throw CommandError(m_code, {});
    }

private:
    void takeFolder(const QString& name, const QString& folder)
    {
        const QString database = customers::customerDatabase(folder);
        if (isOurs(database)) {
            addRow(name, u"nothing to do"_s, {}, {});
        } else if (m_isDryRun) {
            look(name, former::examine(database, m_workplace.appPath, goOn));
        } else {
            convertFolder(name, folder);
        }
    }

    void look(const QString& name, const former::Examination& found)
    {
        const QStringList losses = former::lossesInWords(found);
        addRow(name, losses.isEmpty() ? u"can be converted"_s : u"would lose something"_s, found.recordCount,
               losses.join(u' '));
        if (!losses.isEmpty() && m_code == ExitCode::Done)
            m_code = ExitCode::FormerDamaged;
    }

    void convertFolder(const QString& name, const QString& folder)
    {
        const auto lock = FolderLock::take(folder, m_workplace.boxes);
        if (lock == nullptr)
            return note(name, codeOfRefusedLock({folder}), u"Nothing was started."_s);
        QString refused;
        const customers::ConversionWatch watch{
            goOn, [&](const former::Examination& found) { return accepts(found, refused); },
            [](qint64, qint64) {
                return goOn();
            }};
        try {
            const auto done = customers::convertCustomer(folder, m_workplace.appPath, watch);
            addRow(name, u"converted"_s, done.records, former::leftOutInWords(done));
        } catch (const former::FormerError& error) {
            if (refused.isEmpty())
                throw;
            note(name, ExitCode::FormerDamaged, refused);
        }
    }

    /// What would be lost is accepted by an option alone. Sets @p refused to it otherwise.
    bool accepts(const former::Examination& found, QString& refused)
    {
        const QStringList losses = former::lossesInWords(found);
        const QString question = u"Not everything in it can be kept:\r%1\r\rConvert it anyway?"_s;
        if (losses.isEmpty() ||
            askBeforeLoss(m_workplace.boxes, question.arg(losses.join(u'\r')), acceptLosses))
            return true;
        refused = losses.join(u' ');
        return false;
    }

    static bool goOn()
    {
        stopIfSignalled();
        return true;
    }

    void addRow(const QString& name, const QString& result, const QVariant& records, const QString& note)
    {
        printStep(u"%1: %2"_s.arg(name, result));
        m_listing.add({name, result, records, note});
    }

    const Workplace& m_workplace;
    Listing m_listing{{u"Name"_s, u"Result"_s, u"Records"_s, u"Note"_s}};
    ExitCode m_code = ExitCode::Done;
    bool m_isDryRun;
};

/// The folders of the program whose database was made by the former program.
QStringList formerCustomers(const QString& appPath)
{
    QStringList names;
    for (const QString& name : customers::customerNames(appPath)) {
        if (store::isFormerDatabase(customers::customerDatabase(QDir(appPath).filePath(name))))
            names << name;
    }
    return names;
}

/// Files of a former customer in the order in which they are copied. The database is the first: a folder
/// without one would be filled like that of a new customer after a copy that was cut off.
QStringList filesToCopy(const QDir& customer)
{
    QStringList files = customer.entryList(QDir::Files | QDir::Hidden, QDir::Name);
    files.removeIf([](const QString& name) { return name.endsWith(".ldb"_L1, Qt::CaseInsensitive); });
    const QString database = QFileInfo(customers::customerDatabase(customer.path())).fileName();
    files.removeOne(database);
    files.prepend(database);
    return files;
}

/// All files or none: a part of a customer would be taken for the whole one later.
/// @return what could not be copied; empty on success.
QString copyCustomer(const QDir& from, const QString& to)
{
    if (!QDir().mkpath(to))
        return to;
    auto removePart = qScopeGuard([&to] { QDir(to).removeRecursively(); });
    for (const QString& name : filesToCopy(from)) {
        stopIfSignalled();
        const bool isDatabase = name.compare(databaseFileName, Qt::CaseInsensitive) == 0;
        QString copy = joinPath(to, isDatabase ? QString(databaseFileName) : name);
        if (!QFile::copy(from.filePath(name), copy))
            return copy;
        QFile::setPermissions(copy, QFile::permissions(copy) | QFile::WriteOwner);
    }
    removePart.dismiss();
    return {};
}

} // namespace

void convertCustomers(const Workplace& workplace, const Invocation& words)
{
    const bool isAll = words.has("all"_L1);
    if (isAll == !words.operands.isEmpty())
        throw CommandError(ExitCode::Usage, u"Name customers, or all of them with --all."_s);
    ConversionRun run(workplace, words);
    for (const QString& name : isAll ? formerCustomers(workplace.appPath) : words.operands)
        run.convert(name);
    run.end();
}

void adoptInstallation(const Workplace& workplace, const Invocation& words)
{
    const QDir installation(workplace.userFile(words.operands.front()));
    if (!installation.exists())
        throw CommandError(ExitCode::Usage, u"There is no folder %1."_s.arg(installation.path()));
    const QStringList names = formerCustomers(installation.path());
    if (names.isEmpty()) {
        throw CommandError(
            ExitCode::NoCustomer,
            u"No customers of the former program were found in %1."_s.arg(installation.path()));
    }
    ConversionRun run(workplace, words);
    for (const QString& name : names) {
        const QString folder = joinPath(workplace.appPath, name);
        if (pathExists(folder)) {
            run.note(name, ExitCode::CustomerExists, u"There is a customer or file of this name already."_s);
            continue;
        }
        const QString failed = copyCustomer(QDir(installation.filePath(name)), folder);
        if (failed.isEmpty()) {
            run.convert(name);
        } else {
            run.note(name, ExitCode::Unwritable,
                     u"%1 cannot be written."_s.arg(QDir::toNativeSeparators(failed)));
        }
    }
    run.end();
}

} // namespace norvane::command
