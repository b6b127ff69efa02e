// What the reports of a rung day must say, added up from the journal that the ringing tool leaves: a second
// bookkeeping that shares nothing with the registers' totals.
#pragma once

#include <QByteArrayList>

#include <algorithm>
#include <cmath>
#include <map>
#include <vector>

namespace norvane::test
{

/// The sums of a report's items, in thousandths; items that are all zeros are left out. An item is its
/// number, in the employees' report "clerk/number" and in the PLU report the PLU number.
using ReportSums = std::map<QByteArray, std::vector<qint64>>;

/// Leaves out the items that are all zeros.
inline void dropZeros(ReportSums& sums)
{
    std::erase_if(sums, [](const auto& item) {
        return std::ranges::all_of(item.second, [](qint64 number) { return number == 0; });
    });
}

/// Whole thousandths of a number as reports and journal write it.
[[nodiscard]] inline qint64 thousandths(const QByteArray& text)
{
    return std::llround(text.toDouble() * 1000);
}

class RungDay
{
public:
    /// @param financialNames, employeeNames what the register calls the lines of both reports, line 1 first
    RungDay(QByteArrayList financialNames, QByteArrayList employeeNames)
        : m_financialNames(std::move(financialNames)), m_employeeNames(std::move(employeeNames))
    {
    }

    /// Adds a journal, of one or more registers. @param levels price levels that the PLU report
    /// distinguishes; sales on higher ones count with the last
    void add(const QByteArray& journal, std::size_t levels)
    {
        const auto lines = journal.trimmed().split('\n');
        const auto heads = lines.first().trimmed().split(',');
        QByteArrayList ticket;
        for (const QByteArray& line : lines.sliced(1)) {
            const auto columns = line.trimmed().split(',');
            const bool sameTicket = columns.first(2) == ticket;
            ticket = columns.first(2);
            const Entry entry{heads, columns, sameTicket ? 0 : 1000};
            addItem(entry, levels);
            for (const auto& [name, quantity, value] : entry.reportLines())
                addLine(entry.text("clerk"), name, {quantity, value});
        }
    }

    /// @param report 190, 191, 192, 194 or 218
    [[nodiscard]] ReportSums sums(int report) const
    {
        auto result = m_sums.at(report);
        dropZeros(result);
        return result;
    }

private:
    static void addTo(std::vector<qint64>& sum, const std::vector<qint64>& numbers)
    {
        sum.resize(numbers.size());
        std::transform(sum.begin(), sum.end(), numbers.begin(), sum.begin(), std::plus());
    }

    struct ReportLine {
        QByteArray name;
        qint64 quantity;
        qint64 value;
    };
    /// One line of the journal, with what it counts as.
    struct Entry {
        const QByteArrayList& heads;
        const QByteArrayList& columns;
        const qint64 customer; ///< 1000 for the first entry of a ticket, else 0

        [[nodiscard]] QByteArray text(const char* head) const { return columns.at(heads.indexOf(head)); }
        [[nodiscard]] qint64 is(const char* entry) const { return text("entry") == entry ? 1 : 0; }
        [[nodiscard]] std::vector<ReportLine> reportLines() const
        {
            const auto tender = text("tender").toUpper();
            return {
                {"NET SALES", sold, value},
                {"ITEMS SOLD", sold, 0},
                {"10% OFF", discount == 0 ? 0 : 1000, -discount},
                {"GROSS SALES", sale * quantity, sale * amount},
                {"NEGATIVE SALES", refund * quantity, refund * amount},
                {"REFUND", refund * quantity, refund * amount},
                {"PROMO", promo * quantity, promo * amount},
                {"WASTE", waste * quantity, waste * amount},
                {"CUSTOMERS", customer, value},
                {text("destination").toUpper(), customer, value},
                {tender, customer, value},
                {(tender.endsWith("CARD") ? "CARDS" : tender) + " IN DRAWER", customer, value},
            };
        }

        const qint64 quantity = thousandths(text("quantity"));
        const qint64 amount = thousandths(text("amount"));
        const qint64 discount = thousandths(text("discount"));
        const qint64 sale = is("sale");
        const qint64 refund = -is("refund");
        const qint64 promo = is("promo");
        const qint64 waste = is("waste");
        const qint64 sold = (sale + refund) * quantity;
        const qint64 value = (sale + refund) * amount - discount;
    };

    void addItem(const Entry& entry, std::size_t levels)
    {
        std::vector<qint64> plu(2 + 2 * levels);
        plu[0] = entry.promo * entry.quantity;
        plu[1] = entry.waste * entry.quantity;
        const std::size_t level = std::min<std::size_t>(entry.text("level").toULong(), levels);
        plu[2 * level] = entry.sold;
        plu[2 * level + 1] = entry.value;
        addTo(m_sums[194][entry.text("plu")], plu);
        addTo(m_sums[191][entry.text("period")], {entry.customer, entry.value});
        if (entry.text("offer") != "0")
            addTo(m_sums[218][entry.text("offer")], {entry.sold});
    }
    void addLine(const QByteArray& clerk, const QByteArray& name, const std::vector<qint64>& numbers)
    {
        const auto financial = m_financialNames.indexOf(name) + 1;
        const auto employee = m_employeeNames.indexOf(name) + 1;
        addTo(m_sums[190][QByteArray::number(financial)], numbers);
        if (employee != 0)
            addTo(m_sums[192][clerk + '/' + QByteArray::number(employee)], numbers);
    }

    QByteArrayList m_financialNames;
    QByteArrayList m_employeeNames;
    std::map<int, ReportSums> m_sums;
};

} // namespace norvane::test
