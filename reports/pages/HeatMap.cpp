// See HeatMap.h.
#include "reports/pages/HeatMap.h"

#include <algorithm>

namespace norvane::reports
{
namespace
{

constexpr QColor hottest{0x8a, 0xb0, 0xd2};

int mixed(int end, double part)
{
    constexpr int white = 255;
    return white + static_cast<int>((end - white) * part);
}

} // namespace

int endOfHeat(const ReportData& table)
{
    constexpr int nameAndSum = 2;
    return table.columnCount() > nameAndSum ? table.columnCount() - 1 : table.columnCount();
}

double largestHeat(const ReportData& table)
{
    double largest = 0;
    for (qsizetype line = 0; line < table.lineCount(); ++line) {
        for (int column = 1; column < endOfHeat(table); ++column) {
            const ReportCell cell = table.cell(line, column);
            if (const auto* number = std::get_if<Decimal>(&cell);
                number && table.lineKind(line) == LineKind::Detail)
                largest = std::max(largest, number->toDouble());
        }
    }
    return largest;
}

QColor heatColour(double number, double largest)
{
    const double part = largest > 0 ? std::clamp(number / largest, 0.0, 1.0) : 0;
    return {mixed(hottest.red(), part), mixed(hottest.green(), part), mixed(hottest.blue(), part)};
}

} // namespace norvane::reports
