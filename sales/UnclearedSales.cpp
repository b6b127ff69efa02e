// See UnclearedSales.h.
#include "sales/UnclearedSales.h"

#include "base/CustomerSettings.h"
#include "link/ResultCodes.h"
#include "platform/ShownTime.h"
#include "store/engine/Database.h"

using namespace Qt::Literals::StringLiterals;

namespace norvane::sales
{
namespace
{

QString dayOf(const LastCollection& collection)
{
    return shownTime(collection.stored);
}

QString notClearedSentence(const LastCollection& collection)
{
    const auto result = collection.uncleared ? collection.uncleared->result : std::nullopt;
    return u"The sales of %1 are stored, but were not cleared at all registers (%2)."_s.arg(
        dayOf(collection), result ? link::resultInWords(*result) : u"no result"_s);
}

/// Edits what is noted about sales that are not cleared, if anything is.
template <typename Edit>
void changeNote(const ApplicationValues& values, Edit edit)
{
    LastCollection last = readLastCollection(values);
    if (!last.uncleared)
        return;
    edit(last.uncleared);
    noteLastCollection(values, last);
}

/// After a change of customer the database in use is the former customer's and never held these sales.
bool isOtherCustomers(const ApplicationValues& values)
{
    return customerOf(values, values.databasePath) != values.customerName;
}

} // namespace

std::optional<LastCollection> unclearedCollection(const ApplicationValues& values)
{
    LastCollection last = readLastCollection(values);
    if (!last.uncleared)
        return std::nullopt;
    if (isOtherCustomers(values))
        return last;
    store::Database database(values.databasePath);
    return unclearedCollection(values, database);
}

std::optional<LastCollection> unclearedCollection(const ApplicationValues& values, store::Database& database)
{
    LastCollection last = readLastCollection(values);
    return last.uncleared && isStillStored(last, database) ? std::optional(std::move(last)) : std::nullopt;
}

bool mayBeCleared(const std::optional<LastCollection>& collection)
{
    return collection && collection->uncleared && !collection->uncleared->holdsMore;
}

void noteCleared(const ApplicationValues& values)
{
    changeNote(values, [](std::optional<Uncleared>& noted) { noted.reset(); });
}

void noteClearFailed(const ApplicationValues& values, std::optional<int> result)
{
    changeNote(values, [result](std::optional<Uncleared>& noted) { noted->result = result; });
}

void noteNewerSales(const ApplicationValues& values)
{
    changeNote(values, [](std::optional<Uncleared>& noted) { noted->holdsMore = true; });
}

QString clearFirstQuestion(const LastCollection& collection)
{
    return notClearedSentence(collection) + u" Clear them first?\r\r"
                                            "Yes clears them there and then collects what was sold since."_s;
}

QString countTwiceQuestion(const LastCollection& collection)
{
    QStringList paragraphs;
    if (!mayBeCleared(collection)) {
        paragraphs << notClearedSentence(collection) +
                          u" The registers may also hold newer sales, which clearing them now would lose."_s;
    }
    paragraphs << u"Registers that were not cleared would send the sales of %1 again, and these would be "
                  "counted twice."_s.arg(dayOf(collection))
               << u"Collect all the same?"_s;
    return paragraphs.join(u"\r\r"_s);
}

QString clearAgainQuestion()
{
    return u"The sales are stored, but not all registers were cleared. Clear again?"_s;
}

} // namespace norvane::sales
