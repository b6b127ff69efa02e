// What the reports of a rung day must say, added up from the journal that the ringing tool leaves: a second
// bookkeeping that shares nothing with the registers' totals.
#pragma once

#include <QByteArray>
#include <QByteArrayList>

#include <map>
#include <vector>

namespace norvane::test
{

/// The sums of a report's items, in thousandths; items that are all zeros are left out. An item is its
/// number, in the employees' report "clerk/number" and in the PLU report the PLU number.
using ReportSums = std::map<QByteArray, std::vector<qint64>>;

/// Leaves out the items that are all zeros.
void dropZeros(ReportSums& sums);

/// Whole thousandths of a number as reports and journal write it.
[[nodiscard]] qint64 thousandths(const QByteArray& text);

class RungDay
{
public:
    /// @param financialNames, employeeNames what the register calls the lines of both reports, line 1 first
    RungDay(QByteArrayList financialNames, QByteArrayList employeeNames);

    /// Adds a journal, of one or more registers. @param levels price levels that the PLU report tells apart;
    /// sales on higher ones count with the last
    void add(const QByteArray& journal, std::size_t levels);

    /// @param report 190, 191, 192, 194 or 218
    [[nodiscard]] ReportSums sums(int report) const;

private:
    struct Entry;

    void addItem(const Entry& entry, std::size_t levels);
    void addLine(const QByteArray& clerk, const QByteArray& name, const std::vector<qint64>& numbers);

    QByteArrayList m_financialNames;
    QByteArrayList m_employeeNames;
    std::map<int, ReportSums> m_sums;
};

} // namespace norvane::test
