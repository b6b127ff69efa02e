// Adding up a journal; see RungDay.h.
#include "tests/support/RungDay.h"

#include <algorithm>
#include <cmath>

namespace norvane::test
{
namespace
{

constexpr qint64 once = 1000;

void addTo(std::vector<qint64>& sum, const std::vector<qint64>& numbers)
{
    sum.resize(numbers.size());
    for (std::size_t i = 0; i < numbers.size(); ++i)
        sum[i] += numbers[i];
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

/// One line of the journal.
struct RungDay::Entry {
    explicit Entry(const QByteArray& line) : columns(line.trimmed().split(',')) {}

    [[nodiscard]] bool sameTicket(const Entry& other) const
    {
        return columns.first(2) == other.columns.first(2);
    }
    [[nodiscard]] QByteArray period() const { return columns.at(3); }
    [[nodiscard]] QByteArray clerk() const { return columns.at(4); }
    [[nodiscard]] bool takeOut() const { return columns.at(5) == "take out"; }
    [[nodiscard]] QByteArray tender() const { return columns.at(6).toUpper(); }
    [[nodiscard]] QByteArray plu() const { return columns.at(7); }
    [[nodiscard]] std::size_t level() const { return columns.at(8).toULong(); }
    [[nodiscard]] QByteArray offer() const { return columns.at(9); }
    [[nodiscard]] QByteArray kind() const { return columns.at(10); }
    [[nodiscard]] qint64 number(qsizetype column) const { return thousandths(columns.at(column)); }
    [[nodiscard]] qint64 sign() const { return kind() == "sale" ? 1 : kind() == "refund" ? -1 : 0; }
    [[nodiscard]] qint64 quantity() const { return number(11); }
    [[nodiscard]] qint64 amount() const { return number(12); }
    [[nodiscard]] qint64 discount() const { return number(13); }
    [[nodiscard]] qint64 value() const { return sign() * amount() - discount(); }

    QByteArrayList columns;
};

RungDay::RungDay(QByteArrayList financialNames, QByteArrayList employeeNames)
    : m_financialNames(std::move(financialNames)), m_employeeNames(std::move(employeeNames))
{
}

void RungDay::add(const QByteArray& journal, std::size_t levels)
{
    auto lines = journal.split('\n');
    lines.removeFirst();
    lines.removeAll({});
    qint64 value = 0;
    for (qsizetype i = 0; i < lines.size(); ++i) {
        const Entry entry(lines.at(i));
        addEntry(entry, levels);
        value += entry.value();
        if (i + 1 == lines.size() || !Entry(lines.at(i + 1)).sameTicket(entry)) {
            addTicket(entry, value);
            value = 0;
        }
    }
}

void RungDay::addEntry(const Entry& entry, std::size_t levels)
{
    const qint64 sold = entry.sign() * entry.quantity();
    const auto kind = entry.kind();
    std::vector<qint64> plu(2 + 2 * levels);
    plu[0] = kind == "promo" ? entry.quantity() : 0;
    plu[1] = kind == "waste" ? entry.quantity() : 0;
    const auto level = std::min(entry.level(), levels);
    plu[2 * level] = sold;
    plu[2 * level + 1] = entry.value();
    addTo(m_sums[194][entry.plu()], plu);
    if (entry.offer() != "0")
        addTo(m_sums[218][entry.offer()], {sold});

    addLine(entry, "NET SALES", sold, entry.value());
    addLine(entry, "ITEMS SOLD", sold, 0);
    if (entry.discount() != 0)
        addLine(entry, "10% OFF", once, -entry.discount());
    if (kind == "sale")
        addLine(entry, "GROSS SALES", sold, entry.amount());
    if (kind == "refund") {
        addLine(entry, "NEGATIVE SALES", sold, -entry.amount());
        addLine(entry, "REFUND", sold, -entry.amount());
    }
    if (kind == "promo" || kind == "waste")
        addLine(entry, kind.toUpper(), entry.quantity(), entry.amount());
}

void RungDay::addTicket(const Entry& last, qint64 value)
{
    const auto tender = last.tender();
    const QByteArray drawer = tender.endsWith("CARD") ? "CARDS" : tender;
    addLine(last, "CUSTOMERS", once, value);
    addLine(last, last.takeOut() ? "TAKE OUT" : "EAT IN", once, value);
    addLine(last, tender, once, value);
    addLine(last, drawer + " IN DRAWER", once, value);
    addTo(m_sums[191][last.period()], {once, value});
}

void RungDay::addLine(const Entry& entry, const QByteArray& name, qint64 quantity, qint64 value)
{
    const auto financial = m_financialNames.indexOf(name) + 1;
    const auto employee = m_employeeNames.indexOf(name) + 1;
    addTo(m_sums[190][QByteArray::number(financial)], {quantity, value});
    if (employee != 0)
        addTo(m_sums[192][entry.clerk() + '/' + QByteArray::number(employee)], {quantity, value});
}

ReportSums RungDay::sums(int report) const
{
    auto result = m_sums.at(report);
    dropZeros(result);
    return result;
}

} // namespace norvane::test
