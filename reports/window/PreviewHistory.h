// The reports that were followed to in a preview, one from a line of the other.
#pragma once

#include "reports/lines/ReportRun.h"
#include "reports/pages/ReportDocument.h"

#include <memory>
#include <vector>

namespace norvane::reports
{

/// Where a reader is in a report.
struct ReadingPlace {
    double page = 0; ///< of the upper edge of the view; fractions are parts of a page
    qsizetype line = -1;
};

/// A report of the way, with its request.
struct HistoryStop {
    ReportRequest request;
    std::shared_ptr<ReportDocument> document;
    ReadingPlace place = {};
};

/// Goes back and forward on the way, as a browser does. There is always a current report.
class PreviewHistory
{
public:
    explicit PreviewHistory(HistoryStop first) { m_stops.push_back(std::move(first)); }

    [[nodiscard]] const HistoryStop& current() const { return m_stops[m_current]; }
    [[nodiscard]] HistoryStop& current() { return m_stops[m_current]; }
    [[nodiscard]] HistoryStop& first() { return m_stops.front(); }
    [[nodiscard]] bool isAlone() const { return m_stops.size() == 1; }
    /// Whether there is a report @p steps forward, or back for -1.
    [[nodiscard]] bool has(int steps) const
    {
        const auto stop = static_cast<qsizetype>(m_current) + steps;
        return stop >= 0 && stop < static_cast<qsizetype>(m_stops.size());
    }
    void go(int steps) { m_current = static_cast<std::size_t>(static_cast<qsizetype>(m_current) + steps); }
    /// Adds @p stop after the current one, in place of all that followed.
    void follow(HistoryStop stop)
    {
        m_stops.resize(++m_current, stop);
        m_stops.push_back(std::move(stop));
    }
    /// The titles up to the current report, each with the line that led there: "Group Sales › 1 DRINKS ...".
    [[nodiscard]] QString path() const;

private:
    std::vector<HistoryStop> m_stops;
    std::size_t m_current = 0;
};

} // namespace norvane::reports
