// The report layouts beside those of the menu: the program's lists and further reports, and the shop's own.
#pragma once

#include "base/ApplicationValues.h"

#include <QString>

#include <vector>

namespace norvane::sales
{

/// A layout that no entry of the menu uses.
struct OtherReport {
    QString path;
    QString title;       ///< the name of its file if the layout is faulty
    QString description; ///< the comment at the beginning of the file, or its first mistake
    QString dayField;    ///< the field with the day of a sale, as formulas name it; empty without days
    bool isOfShop = false;
    bool isFaulty = false;

    bool operator==(const OtherReport&) const = default;
};

/// Those in the program's folder and in the customer's, by title; the customer's come first.
[[nodiscard]] std::vector<OtherReport> otherReports(const ApplicationValues& values);

} // namespace norvane::sales
