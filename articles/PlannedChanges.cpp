// See PlannedChanges.h.
#include "articles/PlannedChanges.h"

#include "articles/SpreadsheetError.h"
#include "platform/FilePaths.h"

#include <QDir>
#include <QFile>
#include <QRegularExpression>
#include <QScopeGuard>

#include <algorithm>
#include <array>
#include <map>
#include <optional>
#include <utility>

using namespace Qt::Literals::StringLiterals;

namespace norvane::articles
{
namespace
{

struct StateWord {
    PlannedState state;
    QLatin1StringView ending; ///< of a file's name
    QLatin1StringView words;  ///< for the user
};
constexpr auto stateWords = std::to_array<StateWord>({
    {PlannedState::Unsent, ".unsent.csv"_L1, "stored, not sent"_L1},
    {PlannedState::Done, ".done.csv"_L1, "done"_L1},
    {PlannedState::Cancelled, ".cancelled.csv"_L1, "cancelled"_L1},
    // The ending of all others, too.
    {PlannedState::Planned, ".csv"_L1, "planned"_L1},
});

QString plannedFolder(const QString& customerPath)
{
    return joinPath(customerPath, u"planned"_s);
}

const StateWord& stateOf(const QString& name)
{
    return *std::ranges::find_if(
        stateWords, [&](const StateWord& word) { return name.endsWith(word.ending, Qt::CaseInsensitive); });
}

QLatin1StringView endingOf(PlannedState state)
{
    return std::ranges::find(stateWords, state, &StateWord::state)->ending;
}

/// Whether @p one is stored before @p other. A list without a number comes after those of its day.
bool isBefore(const ReadList& one, const ReadList& other)
{
    return std::pair(one.list.day, one.file.number) < std::pair(other.list.day, other.file.number);
}

enum class Change { Comes, Goes };

/// The value that a field is expected to have because of a change, by its former expectation.
using Expectations = std::map<std::pair<QString, QString>, std::pair<QString, QString>>;

Expectations expectationsOf(const PlannedList& list, Change change)
{
    Expectations expectations;
    for (const PlannedRecord& record : list.records) {
        for (const auto& [heading, before, after] : record.fields) {
            expectations[{record.number, heading}] =
                change == Change::Comes ? std::pair(before, after) : std::pair(after, before);
        }
    }
    return expectations;
}

/// @return whether anything was changed.
bool passOn(const Expectations& expectations, PlannedList& later)
{
    bool isChanged = false;
    for (PlannedRecord& record : later.records) {
        for (PlannedField& field : record.fields) {
            const auto expected = expectations.find({record.number, field.heading});
            if (record.isNew || expected == expectations.end() || expected->second.first != field.before)
                continue;
            field.before = expected->second.second;
            isChanged = true;
        }
    }
    return isChanged;
}

void passOnToLater(const QString& customerPath, const ReadList& list, Change change)
{
    const Expectations expectations = expectationsOf(list.list, change);
    for (ReadList& later : readLists(customerPath, PlannedState::Planned)) {
        if (isBefore(list, later) && later.list.table == list.list.table && passOn(expectations, later.list))
            writeWholeFile(later.file.path, plannedText(later.list));
    }
}

} // namespace

QString stateInWords(PlannedState state)
{
    return std::ranges::find(stateWords, state, &StateWord::state)->words;
}

PlannedList PlannedFile::read() const
{
    return plannedListOf(readWholeFile(path));
}

QList<PlannedFile> plannedFiles(const QString& customerPath)
{
    static const QRegularExpression numbered(u"^(\\d{1,9}) "_s);
    QList<PlannedFile> files;
    const QDir folder(plannedFolder(customerPath));
    for (const QString& name : folder.entryList({u"*.csv"_s}, QDir::Files)) {
        if (const auto match = numbered.match(name); match.hasMatch())
            files.append({match.captured(1).toInt(), stateOf(name).state, folder.filePath(name)});
    }
    std::ranges::sort(files, {}, &PlannedFile::number);
    return files;
}

std::vector<ReadList> readLists(const QString& customerPath, PlannedState state, const TellDamage& tellDamage)
{
    std::vector<ReadList> lists;
    for (const PlannedFile& file : plannedFiles(customerPath)) {
        if (file.state != state)
            continue;
        try {
            lists.push_back({file, file.read()});
        } catch (const TextError& error) {
            if (tellDamage)
                tellDamage(u"List %1 (%2): %3"_s.arg(file.number).arg(file.path, error.text()));
        }
    }
    std::ranges::stable_sort(lists, isBefore);
    return lists;
}

PlannedList plannedListFrom(const SheetComparison& comparison, const QDate& day, const QString& model,
                            const QString& source)
{
    const QDateTime now = QDateTime::currentDateTime();
    PlannedList list{day, comparison.sheet().table, model, now.addMSecs(-now.time().msec()), source, {}};
    comparison.forEach([&](const SheetChange& change) {
        PlannedRecord record{QString::fromStdString(change.number), change.isNew, {}};
        for (const auto& [column, before, after] : change.fields) {
            record.fields.append(
                {column->heading, shownSheetValue(*column, before), shownSheetValue(*column, after)});
        }
        list.records.append(record);
    });
    return list;
}

int addPlannedList(const QString& customerPath, const PlannedList& list)
{
    const auto files = plannedFiles(customerPath);
    const int number = files.isEmpty() ? 1 : files.last().number + 1;
    const QString folder = plannedFolder(customerPath);
    if (!QDir().mkpath(folder))
        throw RuntimeFailure(Failure::PathOrFileAccess, u"The folder %1 cannot be made."_s.arg(folder));
    const QString name = u"%1 %2 %3"_s.arg(number).arg(list.table, list.day.toString(Qt::ISODate));
    passOnToLater(customerPath, {{number, PlannedState::Planned, {}}, list}, Change::Comes);
    writeWholeFile(joinPath(folder, name + endingOf(PlannedState::Planned)), plannedText(list));
    return number;
}

void cancelPlannedList(const QString& customerPath, PlannedFile planned)
{
    std::optional<PlannedList> list;
    try {
        list = planned.read();
    } catch (const SpreadsheetError&) {
        // Later lists cannot have been made with it.
        list.reset();
    }
    setPlannedState(planned, PlannedState::Cancelled);
    if (list)
        passOnToLater(customerPath, {planned, *list}, Change::Goes);
}

void replanList(const QString& customerPath, PlannedFile cancelled)
{
    const PlannedList list = cancelled.read();
    setPlannedState(cancelled, PlannedState::Planned);
    passOnToLater(customerPath, {cancelled, list}, Change::Comes);
}

void setPlannedState(PlannedFile& file, PlannedState state)
{
    const QString name = file.path.chopped(endingOf(file.state).size()) + endingOf(state);
    if (!QFile::rename(file.path, name)) {
        throw RuntimeFailure(Failure::PathOrFileAccess,
                             u"The file %1 cannot be renamed to %2."_s.arg(file.path, name));
    }
    file.path = name;
    file.state = state;
}

ExpectedDay::ExpectedDay(store::Database& database, const QString& customerPath, const QDate& day,
                         int messageWidth, const KeepGoing& keepGoing)
    : m_transaction(database)
{
    auto putBack = qScopeGuard([this] { m_transaction.rollBack(); });
    for (const auto& [file, list] : readLists(customerPath, PlannedState::Planned)) {
        if (list.day > day)
            break;
        try {
            (void)storePlannedListWithin(database, sheetOfPlanned(list, messageWidth), list, keepGoing);
        } catch (const SpreadsheetError&) {
            continue; // It will not be stored on its day either.
        }
    }
    putBack.dismiss();
}

ExpectedDay::~ExpectedDay()
{
    m_transaction.rollBack();
}

} // namespace norvane::articles
