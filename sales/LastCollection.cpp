// See LastCollection.h.
#include "sales/LastCollection.h"

#include "link/RunNotes.h"
#include "platform/FilePaths.h"
#include "store/catalogue/SalesTables.h"
#include "store/engine/Database.h"
#include "store/engine/Recordset.h"

#include <QCryptographicHash>

using namespace Qt::Literals::StringLiterals;

namespace norvane::sales
{
namespace
{

constexpr auto section = "Collection"_L1;
/// "2026-11-24T18:03:11 612 <mark>", and while the registers are not cleared also the result of clearing them
/// ("8", or "none") and "more" if they have more than was stored. One line, so that a part of it is never
/// read as the whole.
constexpr auto storedKey = "Stored"_L1;
constexpr auto noResult = "none"_L1;
constexpr auto moreWord = "more"_L1;
/// "118 320 24 10 3776": as many as there are reports.
constexpr auto recordsKey = "Records"_L1;

void readRecords(const ApplicationValues& values, LastCollection& last)
{
    const QStringList counts = link::readNote(values, section, recordsKey).split(u' ');
    for (std::size_t report = 0; report < reportCount; ++report) {
        bool isNumber = false;
        const qint64 count = counts.value(static_cast<qsizetype>(report)).toLongLong(&isNumber);
        last.records.at(report) = isNumber ? count : -1;
    }
}

/// @p words after the mark.
std::optional<Uncleared> unclearedOf(const QStringList& words)
{
    if (words.isEmpty())
        return std::nullopt;
    bool isNumber = false;
    const int result = words.front().toInt(&isNumber);
    return Uncleared{isNumber ? std::optional(result) : std::nullopt, words.value(1) == moreWord};
}

QStringList wordsOf(const Uncleared& uncleared)
{
    QStringList words{uncleared.result ? QString::number(*uncleared.result) : QString(noResult)};
    if (uncleared.holdsMore)
        words << moreWord;
    return words;
}

} // namespace

LastCollection readLastCollection(const ApplicationValues& values)
{
    const QStringList words = link::readNote(values, section, storedKey).split(u' ');
    LastCollection last;
    last.stored = QDateTime::fromString(words.value(0), Qt::ISODate);
    last.rowsOfDay = words.value(1).toLongLong();
    last.mark = words.value(2).toLatin1();
    last.uncleared = unclearedOf(words.mid(3));
    readRecords(values, last);
    return last;
}

void noteLastCollection(const ApplicationValues& values, const LastCollection& collection)
{
    QStringList words{collection.stored.toString(Qt::ISODate), QString::number(collection.rowsOfDay),
                      QString::fromLatin1(collection.mark)};
    if (collection.uncleared)
        words << wordsOf(*collection.uncleared);
    link::writeNote(values, section, storedKey, words.join(u' '));
    QStringList counts;
    for (const qint64 count : collection.records)
        counts << QString::number(count);
    link::writeNote(values, section, recordsKey, counts.join(u' '));
}

QByteArray markOfReports(const ApplicationValues& values)
{
    QCryptographicHash hash(QCryptographicHash::Sha256);
    for (const PollFile& file : pollFiles()) {
        const QByteArray text = readWholeFile(joinPath(values.appPath, QLatin1StringView(file.name)));
        // With the length, bytes that move from one text to the next change the hash.
        hash.addData(QByteArray::number(text.size()) + ':');
        hash.addData(text);
    }
    return hash.result().toHex();
}

qint64 rowsOfDay(store::Database& database, QDate day)
{
    qint64 rows = 0;
    for (const PollFile& file : pollFiles()) {
        const QString count = u"select count(*) from %1 where %2 = #%3#"_s.arg(
            QLatin1StringView(file.table), QLatin1StringView(store::salestable::day),
            day.toString(u"M/d/yyyy"_s));
        rows += database.openQuery(count).value(0).toText().toLongLong();
    }
    return rows;
}

bool isStillStored(const LastCollection& collection, store::Database& database)
{
    return !collection.mark.isEmpty() &&
           rowsOfDay(database, collection.stored.date()) >= collection.rowsOfDay;
}

} // namespace norvane::sales
