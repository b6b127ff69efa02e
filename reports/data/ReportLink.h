// From a line of a report to another report of what the line is made of.
#pragma once

#include <QString>

#include <vector>

namespace norvane::reports
{

/// Only lines in which a field has a value.
struct LineFilter {
    QString field; ///< as formulas name it: "{PLUDATA.GROUPNO}"
    QString value; ///< the field's plain text, a day as yyyy-mm-dd; empty where it names nothing
    QString name;  ///< of the line that was followed, for the subtitle: "1 DRINKS"
};

/// What a click on a line opens: another layout, filtered by the value of a field in this line.
struct ReportLink {
    QString report; ///< file name of the layout
    QString field;
    std::vector<LineFilter> filters; ///< of this report that hold for the other one as well
};

} // namespace norvane::reports
