// Adding up a journal; see RungDay.h.
#include "tests/support/RungDay.h"

#include <algorithm>
#include <cmath>

namespace norvane::test
{
namespace
{

void addTo(std::vector<qint64>& sum, const std::vector<qint64>& numbers)
{
    sum.resize(numbers.size());
    std::transform(sum.begin(), sum.end(), numbers.begin(), sum.begin(), std::plus());
}

} // namespace

void dropZeros(ReportSums& sums)
{
    std::erase_if(sums, [](const auto& item) {
        return std::all_of(item.second.begin(), item.second.end(), [](qint64 number) { return number == 0; });
    });
}

qint64 thousandths(const QByteArray& text)
{
    return std::llround(text.toDouble() * 1000);
}

RungDay::RungDay(QByteArrayList financialNames, QByteArrayList employeeNames)
    : m_financialNames(std::move(financialNames)), m_employeeNames(std::move(employeeNames))
{
}

void RungDay::add(const QByteArray& journal, std::size_t levels)
{
    const auto lines = journal.trimmed().split('\n');
    const auto heads = lines.first().trimmed().split(',');
    QByteArrayList ticket;
    for (const QByteArray& line : lines.sliced(1)) {
        const auto columns = line.trimmed().split(',');
        const auto text = [&](const char* head) {
            return columns.at(heads.indexOf(head));
        };
        const qint64 quantity = thousandths(text("quantity"));
        const qint64 amount = thousandths(text("amount"));
        const qint64 discount = thousandths(text("discount"));
        const auto entry = text("entry");
        const qint64 sale = entry == "sale" ? 1 : 0;
        const qint64 refund = entry == "refund" ? -1 : 0;
        const qint64 promo = entry == "promo" ? 1 : 0;
        const qint64 waste = entry == "waste" ? 1 : 0;
        const qint64 sold = (sale + refund) * quantity;
        const qint64 value = (sale + refund) * amount - discount;
        const qint64 customer = columns.first(2) == ticket ? 0 : 1000;
        ticket = columns.first(2);

        std::vector<qint64> plu(2 + 2 * levels);
        plu[0] = promo * quantity;
        plu[1] = waste * quantity;
        const std::size_t level = std::min<std::size_t>(text("level").toULong(), levels);
        plu[2 * level] = sold;
        plu[2 * level + 1] = value;
        addTo(m_sums[194][text("plu")], plu);
        addTo(m_sums[191][text("period")], {customer, value});
        if (text("offer") != "0")
            addTo(m_sums[218][text("offer")], {sold});

        const auto tender = text("tender").toUpper();
        const struct {
            QByteArray name;
            qint64 quantity;
            qint64 value;
        } reportLines[] = {
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
        for (const auto& each : reportLines)
            addLine(text("clerk"), each.name, {each.quantity, each.value});
    }
}

void RungDay::addLine(const QByteArray& clerk, const QByteArray& name, const std::vector<qint64>& numbers)
{
    const auto financial = m_financialNames.indexOf(name) + 1;
    const auto employee = m_employeeNames.indexOf(name) + 1;
    addTo(m_sums[190][QByteArray::number(financial)], numbers);
    if (employee != 0)
        addTo(m_sums[192][clerk + '/' + QByteArray::number(employee)], numbers);
}

ReportSums RungDay::sums(int report) const
{
    auto result = m_sums.at(report);
    dropZeros(result);
    return result;
}

} // namespace norvane::test
