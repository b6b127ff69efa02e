// Exports PLUs to a spreadsheet and imports them.
#include "articles/PluExport.h"
#include "articles/PluUpdate.h"
#include "base/CustomerSettings.h"
#include "command/CsvOption.h"
#include "command/StopSignals.h"
#include "command/TerminalBoxes.h"
#include "command/Verbs.h"
#include "customers/CustomerLog.h"
#include "customers/RunLock.h"
#include "customers/SafetyCopies.h"
#include "register/PluNumber.h"
#include "reports/files/CsvFile.h"
#include "reports/files/XlsxFile.h"

#include <QFile>
#include <QFileInfo>

#include <functional>

using namespace Qt::Literals::StringLiterals;

namespace norvane::command
{
namespace
{

void exportTo(const Workplace& workplace, const ApplicationValues& values, const Invocation& words)
{
    const QString path = words.operands[2];
    const QString ending = path == standardOutput ? u"csv"_s : QFileInfo(path).suffix().toLower();
    if (ending != "csv"_L1 && ending != "xlsx"_L1)
        throw CommandError(ExitCode::Usage, u"Name a file that ends in .csv or .xlsx."_s);
    const reports::CsvSigns signs = signsToWrite(words);
    store::Database database(values.databasePath);
    auto plus = articles::exportedPlus(database);
    plus.heading.title = u"PLUs"_s;
    plus.heading.customer = customerOf(values, values.databasePath);
    plus.heading.printed = QDateTime::currentDateTime();
    plus.heading.notice = u"There are no PLUs."_s;
    workplace.writeUserFile(path, [&](const QString& file) {
        if (ending == "csv"_L1) {
            reports::writeCsvWith(signs, plus, file);
        } else {
            reports::writeXlsx(plus, file);
        }
    });
}

/// @throws CommandError BadFile
QByteArray contentOf(const QString& path)
{
    QFile file(path);
    if (QFileInfo(path).isDir())
        throw CommandError(ExitCode::BadFile, u"%1 is a folder."_s.arg(path));
    if (!file.open(QIODevice::ReadOnly))
        throw CommandError(ExitCode::BadFile, u"%1 cannot be read: %2."_s.arg(path, file.errorString()));
    return file.readAll();
}

/// @throws CommandError BadFile when there are any.
void failWith(const articles::PluMistakes& mistakes, const QString& path)
{
    if (mistakes.isEmpty())
        return;
    const auto shown = mistakes.first();
    for (const auto& [line, column, reason] : shown) {
        printMessage(
            u"line %1%2: %3"_s.arg(line).arg(column.isEmpty() ? QString() : u", "_s + column, reason));
    }
    const QString further =
        mistakes.count() > shown.size() ? u" The first %1 are listed."_s.arg(shown.size()) : QString();
    throw CommandError(
        ExitCode::BadFile,
        u"%1 has mistakes: %2. Nothing was changed.%3"_s.arg(path).arg(mistakes.count()).arg(further));
}

/// A file that is compared with the PLUs of a customer.
class FileOfPlus
{
public:
    /// @throws CommandError BadFile
    FileOfPlus(const Workplace& workplace, const ApplicationValues& values, const Invocation& words)
        : m_workplace(workplace), m_path(workplace.userFile(words.operands[2])), m_content(contentOf(m_path)),
          m_database(values.databasePath),
          m_comparison(m_database, m_content, separatorToRead(words), untilSignalled)
    {
    }

    [[nodiscard]] const articles::PluComparison& comparison() const { return m_comparison; }
    /// Lists what the file changes. @throws CommandError BadFile for one with mistakes.
    void show() const
    {
        failWith(m_comparison.mistakes(), m_path);
        m_workplace.show({u"Number"_s, u"Field"_s, u"Old"_s, u"New"_s}, [this](const auto& take) {
            m_comparison.forEach([&take](const articles::PluChange& change) { addRows(change, take); });
        });
    }
    void apply() { articles::applyPluChanges(m_database, m_comparison, untilSignalled); }

private:
    static void addRows(const articles::PluChange& change,
                        const std::function<void(const QVariantList& row)>& take)
    {
        stopIfSignalled();
        const QString number =
            shownKey(articles::pluColumns().front().field, QString::fromStdString(change.number));
        if (change.isNew)
            take({number, u"new PLU"_s, {}, {}});
        for (const auto& [column, before, after] : change.fields) {
            take({number, QString(column->heading), articles::shownPluValue(*column, before),
                  articles::shownPluValue(*column, after)});
        }
    }

    const Workplace& m_workplace;
    QString m_path;
    QByteArray m_content;
    store::Database m_database;
    articles::PluComparison m_comparison;
};

/// @return what was done, for the log.
QString importFrom(FileOfPlus& file, const Workplace& workplace, const ApplicationValues& values,
                   customers::LoggedWork& work)
{
    const articles::PluComparison& comparison = file.comparison();
    if (!comparison.mistakes().isEmpty())
        work.setResult(u"refused: the file has mistakes"_s);
    file.show();
    if (comparison.changeCount() > 0) {
        if (!customers::copyBeforeJob(values, workplace.boxes, u"before PLU import"_s)) {
            work.setResult(u"not started: no safety copy"_s);
            throw CommandError(ExitCode::Unwritable, {});
        }
        file.apply();
    }
    return u"%1 changed, %2 new"_s.arg(comparison.changeCount() - comparison.newCount())
        .arg(comparison.newCount());
}

void importFrom(const Workplace& workplace, const ApplicationValues& values, const Invocation& words)
{
    const auto lock = lockFor(workplace, values);
    customers::LoggedWork work(values.customerPath, u"PLU import"_s);
    const QString result = work.during([&] {
        FileOfPlus file(workplace, values, words);
        return importFrom(file, workplace, values, work);
    });
    work.setResult(result);
    printStep(result);
}

} // namespace

void movePlus(const Workplace& workplace, const Invocation& words)
{
    const QString direction = words.operands[1];
    const bool isExport = direction == "export"_L1;
    if (!isExport && direction != "import"_L1)
        throw CommandError(ExitCode::Usage, u"\"%1\" is neither export nor import."_s.arg(direction));
    const ApplicationValues values = takeCustomer(workplace, words.operands[0]);
    if (isExport) {
        exportTo(workplace, values, words);
    } else if (words.has("dry-run"_L1)) {
        FileOfPlus(workplace, values, words).show();
    } else {
        importFrom(workplace, values, words);
    }
}

} // namespace norvane::command
