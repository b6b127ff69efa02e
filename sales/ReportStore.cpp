// See ReportStore.h.
#include "sales/ReportStore.h"

#include "base/LossQuestion.h"
#include "link/ExpectedFiles.h"
#include "link/RunNotes.h"
#include "records/ImportTransaction.h"
#include "sales/LastCollection.h"
#include "sales/PollImport.h"
#include "store/engine/CommitOnExit.h"
#include "store/engine/Database.h"

#include <algorithm>

using namespace Qt::Literals::StringLiterals;

namespace norvane::sales
{
namespace
{

QString keepSalesQuestion()
{
    return u"Keep the sales that were read so far? They are still at the registers as well, and the next "
           u"collection would store them a second time.\r"
           u"No puts the sales tables back as they were."_s;
}

/// One collection on its way into the tables.
class ReportStore
{
public:
    ReportStore(const ApplicationValues& values, Boxes& boxes, QDate collected, ReportOrigin origin);

    [[nodiscard]] StoredReports store();

private:
    void importAll();
    [[nodiscard]] bool mayStoreShort() const;
    [[nodiscard]] QString shortReport(std::size_t report) const;
    [[nodiscard]] qint64 fewestExpected(std::size_t report) const;
    [[nodiscard]] bool isRepeat() const;
    [[nodiscard]] bool mayStoreAgain() const;
    void note();
    void noteUncleared();

    const ApplicationValues& m_values;
    Boxes& m_boxes;
    QDate m_collected;
    ReportOrigin m_origin;
    store::Database m_database;
    store::CommitOnExit m_transaction;
    LastCollection m_last;
    bool m_lastIsThere; ///< its rows are still in the tables
    LastCollection m_this;
    bool m_hasSales = false;
    qint64 m_rows = 0;
};

ReportStore::ReportStore(const ApplicationValues& values, Boxes& boxes, QDate collected, ReportOrigin origin)
    : m_values(values), m_boxes(boxes), m_collected(collected), m_origin(origin),
      m_database(values.databasePath), m_transaction(m_database), m_last(readLastCollection(values)),
      m_lastIsThere(isStillStored(m_last, m_database))
{
}

StoredReports ReportStore::store()
{
    records::importOrPutBack(m_transaction, m_boxes, keepSalesQuestion, [this] { importAll(); });
    auto outcome = Stored::Yes;
    if (!mayStoreShort()) {
        outcome = Stored::Refused;
    } else if (isRepeat() && !mayStoreAgain()) {
        outcome = m_origin == ReportOrigin::ThisRun ? Stored::AlreadyThere : Stored::Refused;
    }
    if (outcome != Stored::Yes) {
        m_transaction.rollBack();
        if (outcome == Stored::AlreadyThere)
            noteUncleared();
        return {outcome, 0};
    }
    note();
    m_transaction.commit();
    return {outcome, m_rows};
}

void ReportStore::importAll()
{
    const auto files = pollFiles();
    Q_ASSERT(files.size() == reportCount);
    for (std::size_t report = 0; report < reportCount; ++report) {
        const ImportedReport imported = importPollFile(files[report], m_database, m_values, m_collected);
        m_this.records.at(report) = imported.records;
        m_hasSales = m_hasSales || imported.hasSales;
        m_rows += imported.rows;
    }
    m_this.mark = markOfReports(m_values);
}

bool ReportStore::mayStoreShort() const
{
    QStringList shortReports;
    for (std::size_t report = 0; report < reportCount; ++report) {
        const QString text = shortReport(report);
        if (!text.isEmpty())
            shortReports << text;
    }
    return shortReports.isEmpty() ||
           askBeforeLoss(m_boxes,
                         u"%1\r\rThe sales would be stored short, and the registers would then be "
                         u"cleared. When items were taken out of the registers' programme since, "
                         u"this is as it should be.\r\rGo on all the same?"_s.arg(shortReports.join(u'\r')));
}

/// @return the report with its number of records when that is too small; else empty text.
QString ReportStore::shortReport(std::size_t report) const
{
    const PollFile& file = pollFiles()[report];
    const qint64 count = m_this.records.at(report);
    const qint64 last = m_last.records.at(report);
    const bool isEmpty = count == 0 && last < 0 && !file.mayBeEmpty;
    if (!isEmpty && count >= fewestExpected(report))
        return {};
    const QString text = u"%1: %2 records"_s.arg(link::fileAndAge(QLatin1StringView(file.name))).arg(count);
    return last < 0 ? text : text + u", %1 at the last collection"_s.arg(last);
}

/// A report has a line for each item of the registers' programme, sold or not. The PLUs are the one part that
/// grows and shrinks with the programme; an article that was sold and then taken out is reported once more.
qint64 ReportStore::fewestExpected(std::size_t report) const
{
    const qint64 last = m_last.records.at(report);
    const qint64 plus = link::pluCountOfRegisters(m_values);
    const bool isPluReport = pollFiles()[report].numbering == Numbering::ByText;
    return isPluReport && plus > 0 ? std::min(last, plus) : last;
}

bool ReportStore::isRepeat() const
{
    return m_hasSales && m_lastIsThere && m_this.mark == m_last.mark;
}

bool ReportStore::mayStoreAgain() const
{
    const QString then = m_origin == ReportOrigin::ThisRun
                             ? u"No stores nothing and continues with clearing the registers."_s
                             : u"No stores nothing and leaves the sales at the registers."_s;
    return askBeforeLoss(
        m_boxes, u"These sales are stored already: poll190.txt and the other four reports "
                 u"are the same as those stored on %1.\r\r"
                 u"Yes stores them again, so that they count twice. %2\r\r"
                 u"Store them again?"_s.arg(m_last.stored.toString(u"dd/MM/yyyy 'at' HH:mm"_s), then));
}

/// Written before the commit. When the run is cut off between the two, the rows are missing, and the next
/// collection does not take this one as stored.
void ReportStore::note()
{
    m_this.stored = QDateTime(m_collected, QTime::currentTime());
    m_this.rowsOfDay = rowsOfDay(m_database, m_collected);
    // After a tool that failed, what was stored need not be what the registers hold.
    m_this.uncleared = Uncleared{.result = {}, .holdsMore = m_origin == ReportOrigin::InDoubt};
    noteLastCollection(m_values, m_this);
}

/// The registers have just sent what is stored already, and nothing else.
void ReportStore::noteUncleared()
{
    m_last.uncleared = Uncleared{};
    noteLastCollection(m_values, m_last);
}

} // namespace

StoredReports storeReports(const ApplicationValues& values, Boxes& boxes, QDate collected,
                           ReportOrigin origin)
{
    return ReportStore(values, boxes, collected, origin).store();
}

} // namespace norvane::sales
