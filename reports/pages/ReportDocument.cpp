// See ReportDocument.h.
#include "reports/pages/ReportDocument.h"

#include "reports/data/PrintableText.h"

#include <algorithm>

namespace norvane::reports
{

ReportDocument::ReportDocument(ReportData report) : m_report(std::move(report))
{
    setShowsCharts(true);
}

bool ReportDocument::hasCharts() const
{
    return std::ranges::any_of(m_report.charts, [](const Chart& chart) { return !chart.points.empty(); });
}

void ReportDocument::setShowsCharts(bool shows)
{
    m_showsCharts = shows;
    m_pages = std::make_unique<ReportPages>(m_report, m_font, shows);
}

bool ReportDocument::holds(qsizetype line, const QString& sought) const
{
    for (int column = 0; column < m_report.columnCount(); ++column) {
        if (m_report.text(line, column).contains(sought, Qt::CaseInsensitive) ||
            m_report.plainText(line, column).contains(sought, Qt::CaseInsensitive)) {
            return true;
        }
    }
    return false;
}

qsizetype ReportDocument::findLine(const QString& sought, qsizetype from, int step) const
{
    const qsizetype count = m_report.lineCount();
    for (qsizetype tried = 0; tried < count && !sought.isEmpty(); ++tried) {
        const qsizetype line = ((from + step * tried) % count + count) % count;
        if (holds(line, sought))
            return line;
    }
    return -1;
}

QString ReportDocument::linesAsText(qsizetype first, qsizetype last) const
{
    QString text;
    for (qsizetype line = first; line <= last; ++line) {
        QStringList cells;
        for (int column = 0; column < m_report.columnCount(); ++column)
            cells << printable(m_report.plainText(line, column));
        text += cells.join(u'\t') + u'\n';
    }
    return text;
}

} // namespace norvane::reports
