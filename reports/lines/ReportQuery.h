// Runs the statements of one report on the customer's database.
#pragma once

#include "reports/lines/LineStatement.h"
#include "reports/lines/MoneyFormat.h"
#include "reports/lines/RecordRows.h"
#include "reports/lines/ReportLayout.h"
#include "reports/lines/ReportRun.h"
#include "reports/lines/SalesDays.h"
#include "reports/lines/TextTemplate.h"
#include "store/engine/BoundQuery.h"
#include "store/engine/Database.h"
#include "store/sales/SalesTotals.h"

#include <functional>

namespace norvane::reports
{

/// The opened database and the selection of a report. A long statement asks @p keepGoing now and then.
class ReportQuery
{
public:
    /// @throws RuntimeFailure when the database cannot be opened, ReportError when it lacks a table or field
    /// that the report reads.
    ReportQuery(const ReportRequest& request, const ReportLayout& layout, const KeepGoing& keepGoing);

    /// @param condition names only tables that the report reads. @param today: months that ended before it
    /// are read from their totals.
    void select(const Condition& condition, QDate today);
    /// Passes the fields of one line after another to @p take.
    /// @throws ReportCancelled, RuntimeFailure
    void run(const LineSource& source, const std::function<void(const LineFields&)>& take);
    /// See SalesDays; nothing for a report over a table without sales too.
    [[nodiscard]] std::optional<SalesDays> salesDays(const Period& period);
    /// See moneyFormatOf().
    [[nodiscard]] MoneyFormat moneyFormat() { return moneyFormatOf(m_database); }
    /// Fills the lists of names that the layout looks up.
    /// @param money for names that are amounts.
    void readNames(const MoneyFormat& money);

private:
    void checkTables() const;
    void read(LineStatement statement, const std::function<void(store::BoundQuery&)>& take);
    void runWhole(const LineSource& source, const std::function<void(const LineFields&)>& take);
    void runByRecords(const LineSource& source, const std::function<void(const LineFields&)>& take);
    [[nodiscard]] bool hasFewRecords(const Join* join);
    [[nodiscard]] std::shared_ptr<const RecordRows> recordsFor(const LineSource& source,
                                                               const std::vector<LineFields>& lines);
    [[nodiscard]] std::shared_ptr<RecordRows> readRecords(const LineSource& source,
                                                          std::vector<store::Value> others);
    void readList(NameList& list, const MoneyFormat& money);
    [[nodiscard]] std::string monthRows(const LineSource& source);
    void addUpMissing(store::SalesTotals& totals, const store::DayRange& days);
    [[nodiscard]] bool beginTotals(const store::DayRange& time) const;

    const ReportLayout& m_layout;
    const KeepGoing& m_keepGoing;
    const std::function<void(const QString&)>& m_showStep;
    QString m_dataFile;
    store::Database m_database;
    std::shared_ptr<RecordCache> m_records;
    Condition m_condition;
    QDate m_today;
    bool m_mayAddUp = true; ///< false once months could not be added up
};

} // namespace norvane::reports
