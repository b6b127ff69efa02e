// A report as the engine fills it, for the tests of pages, files and preview.
#pragma once

#include "reports/data/ReportData.h"

namespace norvane::test
{

using namespace Qt::Literals::StringLiterals;

inline reports::ReportColumn textColumn(const QString& heading, double width,
                                        reports::Alignment alignment = reports::Alignment::Left)
{
    return {heading, paper::millimetres(width), alignment, reports::ColumnKind::Text, 0, 0};
}

inline reports::ReportColumn numberColumn(const QString& heading, double width, int least, int most)
{
    return {heading, paper::millimetres(width), reports::Alignment::Right, reports::ColumnKind::Number, least,
            most};
}

/// The heading and columns of sales by PLU, still without lines.
inline reports::ReportData emptySales()
{
    reports::ReportData report({textColumn(u"PLU"_s, 24, reports::Alignment::Right),
                                textColumn(u"Description"_s, 60), numberColumn(u"Quantity"_s, 26, 0, 3),
                                numberColumn(u"Value"_s, 26, 2, 2)});
    report.heading = {u"PLU Sales Report by Date."_s,
                      u"PLU Sales"_s,
                      u"Friday, 7 May 2004"_s,
                      u"Corner Shop"_s,
                      QDateTime(QDate(2004, 5, 7), QTime(18, 30)),
                      u"No sales on 7 May 2004."_s};
    return report;
}

/// Adds a group of @p plus lines, each sold 1.125 times for 2.345, and its subtotal.
inline void addGroup(reports::ReportData& report, const QString& name, std::int64_t plus)
{
    report.addLine(reports::LineKind::GroupHeading, {name});
    for (std::int64_t plu = 1; plu <= plus; ++plu) {
        report.addLine(reports::LineKind::Detail,
                       {QString::number(plu), u"Article %1"_s.arg(plu), Decimal(1125, 3), Decimal(2345, 3)});
    }
    report.addLine(reports::LineKind::Subtotal,
                   {u"Total %1"_s.arg(name), {}, Decimal(1125 * plus, 3), Decimal(2345 * plus, 3)});
}

inline reports::Chart sampleChart(reports::ChartKind kind, int points)
{
    reports::Chart chart{kind, u"Best-selling PLUs"_s, 2, 2, {}};
    for (int point = 0; point < points; ++point)
        chart.points.push_back({u"Label %1"_s.arg(point), Decimal(10000 - 550 * point, 2)});
    return chart;
}

} // namespace norvane::test
