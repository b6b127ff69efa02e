// The lists of planned changes in a customer's folder.
#pragma once

#include "articles/PlannedUpdate.h"
#include "articles/SheetComparison.h"
#include "store/engine/CommitOnExit.h"

#include <functional>
#include <vector>

namespace norvane::articles
{

/// What a list waits for. It is a part of the name of its file.
enum class PlannedState {
    Planned,   ///< its day
    Unsent,    ///< it is stored, and the registers do not have it yet
    Done,      ///< nothing: it is stored and sent
    Cancelled, ///< nothing, but it can be planned again
};

/// "planned", "stored, not sent", "done", "cancelled".
[[nodiscard]] QString stateInWords(PlannedState state);

/// A list's file in the folder "planned" of the customer's folder: "7 PLUDATA 2027-01-01.csv".
struct PlannedFile {
    int number = 0; ///< of the customer's lists; none is used twice
    PlannedState state = PlannedState::Planned;
    QString path;

    /// @throws SpreadsheetError for a file that is not sound, RuntimeFailure with Failure::PathOrFileAccess
    /// for one that cannot be read.
    [[nodiscard]] PlannedList read() const;
};

/// By their numbers.
[[nodiscard]] QList<PlannedFile> plannedFiles(const QString& customerPath);

/// A list with its file.
struct ReadList {
    PlannedFile file;
    PlannedList list;
};
/// Gets the reason why a list cannot be read: "List 7 is damaged ...".
using TellDamage = std::function<void(const QString& text)>;
/// The sound lists in a state, in the order in which they are stored: by day, then by number.
[[nodiscard]] std::vector<ReadList> readLists(const QString& customerPath, PlannedState state,
                                              const TellDamage& tellDamage = {});

/// What a comparison found, as a list. Number and values are in the words of the listing.
[[nodiscard]] PlannedList plannedListFrom(const SheetComparison& comparison, const QDate& day,
                                          const QString& model, const QString& source);

// The following need the lock of a run. A change of a field that a later list changes as well is passed on to
// it: its former value then is the new value of this one. All throw RuntimeFailure with
// Failure::PathOrFileAccess or Failure::DiskFull.

/// Writes a file for @p list. @return its number.
int addPlannedList(const QString& customerPath, const PlannedList& list);
/// Keeps the list's file as a cancelled one. It may be damaged.
void cancelPlannedList(const QString& customerPath, PlannedFile planned);
/// Plans a cancelled list again. @throws SpreadsheetError also if it is damaged.
void replanList(const QString& customerPath, PlannedFile cancelled);
/// Renames the list's file.
void setPlannedState(PlannedFile& file, PlannedState state);

/// While it lives, a database is as it will be on a day: the lists that are due until then are stored in a
/// transaction that is never committed. The records read meanwhile must be destroyed first.
class ExpectedDay
{
public:
    /// @throws RuntimeFailure as the database reports, and with Failure::UserInterrupt when @p keepGoing
    /// returns false.
    ExpectedDay(store::Database& database, const QString& customerPath, const QDate& day, int messageWidth,
                const KeepGoing& keepGoing = {});
    ~ExpectedDay();
    ExpectedDay(const ExpectedDay&) = delete;
    ExpectedDay& operator=(const ExpectedDay&) = delete;

private:
    store::CommitOnExit m_transaction;
};

} // namespace norvane::articles
