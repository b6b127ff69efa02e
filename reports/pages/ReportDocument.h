// A report with its pages, as a preview shows it.
#pragma once

#include "reports/pages/ReportPainter.h"

#include <memory>

namespace norvane::reports
{

/// The lines of a report together with their pages, which follow the switch for the charts.
class ReportDocument
{
public:
    /// The pages show the charts at first.
    explicit ReportDocument(ReportData report);
    ReportDocument(const ReportDocument&) = delete;
    ReportDocument& operator=(const ReportDocument&) = delete;

    [[nodiscard]] const ReportData& report() const { return m_report; }
    [[nodiscard]] const PageFont& font() const { return m_font; }
    [[nodiscard]] ReportPages& pages() { return *m_pages; }
    [[nodiscard]] const ReportPages& pages() const { return *m_pages; }
    void paint(QPainter& painter, int page) const
    {
        ReportPainter(m_report, *m_pages, m_font).paint(painter, page);
    }

    [[nodiscard]] bool hasCharts() const;
    [[nodiscard]] bool showsCharts() const { return m_showsCharts; }
    /// Lays the pages out again, with or without the charts.
    void setShowsCharts(bool shows);

    /// The first line from @p from on that contains @p sought in any of its cells, in any case. At the end of
    /// the report the search continues from the other end. @param step 1 forwards, -1 backwards.
    /// @return -1 if no line contains it.
    [[nodiscard]] qsizetype findLine(const QString& sought, qsizetype from, int step) const;
    /// The cells of lines @p first to @p last with tabs between them, as other programs paste them.
    [[nodiscard]] QString linesAsText(qsizetype first, qsizetype last) const;

private:
    [[nodiscard]] bool holds(qsizetype line, const QString& sought) const;

    ReportData m_report;
    PageFont m_font;
    bool m_showsCharts = true;
    std::unique_ptr<ReportPages> m_pages;
};

} // namespace norvane::reports
