// See SumCheck.h.
#include "chain/SumCheck.h"

#include "chain/Rollups.h"
#include "chain/SourceRows.h"

#include <algorithm>
#include <map>

using namespace Qt::Literals::StringLiterals;

namespace norvane::chain
{
namespace
{

QDate publishedDay(const pqxx::field& field)
{
    return QDate::fromString(QString::fromUtf8(field.c_str()), Qt::ISODate);
}

/// "37.020" as "37.02".
std::string withoutTrailingZeros(std::string number)
{
    if (number.find('.') == std::string::npos)
        return number;
    number.erase(number.find_last_not_of('0') + 1);
    if (number.ends_with('.'))
        number.pop_back();
    return number == "-0" ? "0" : number;
}

DaySums sumsInChain(pqxx::work& work, const SalesTable& table, int shop)
{
    std::string sums;
    for (const std::string& column : summedColumnsOf(table))
        sums += ", sum(" + column + ")";
    DaySums all;
    for (const auto& row : work.exec_params("SELECT to_char(day, 'YYYY-MM-DD')" + sums + " FROM " +
                                                table.name + " WHERE shop = $1 GROUP BY day",
                                            shop)) {
        auto& day = all[publishedDay(row[0])];
        for (pqxx::row::size_type at = 1; at < row.size(); ++at)
            day.push_back(withoutTrailingZeros(row[at].c_str()));
    }
    return all;
}

/// The days that a shop published and did not keep.
std::vector<QDate> comparedDays(pqxx::work& work, int shop)
{
    std::vector<QDate> days;
    for (const auto& row : work.exec_params("SELECT to_char(day, 'YYYY-MM-DD') FROM published_days "
                                            "WHERE shop = $1 AND NOT kept ORDER BY day",
                                            shop))
        days.push_back(publishedDay(row[0]));
    return days;
}

/// A day without a row sold nothing: rows of nothing but zeros are not published.
std::string sumOf(const DaySums& sums, QDate day, std::size_t column)
{
    const auto found = sums.find(day);
    return found == sums.end() ? "0" : found->second.at(column);
}

class Comparison
{
public:
    Comparison(Server& server, store::Database& database, int shop)
    {
        server.transact([&](pqxx::work& work) {
            m_days = comparedDays(work, shop);
            for (const auto& table : salesTables())
                m_inChain.push_back(sumsInChain(work, table, shop));
        });
        for (const auto& table : salesTables()) {
            m_inShop.push_back(sumsByDay(database, table));
            for (const auto& [day, sums] : m_inShop.back())
                m_shopDays.insert(day);
        }
    }

    [[nodiscard]] std::vector<DayDifference> differences() const
    {
        std::vector<DayDifference> all;
        for (const QDate day : m_days) {
            if (const QString text = difference(day); m_shopDays.contains(day) && !text.isEmpty())
                all.push_back({day, text});
        }
        return all;
    }

private:
    [[nodiscard]] QString difference(QDate day) const
    {
        for (std::size_t table = 0; table < salesTables().size(); ++table) {
            const auto columns = summedColumnsOf(salesTables()[table]);
            for (std::size_t column = 0; column < columns.size(); ++column) {
                const std::string here = sumOf(m_inShop[table], day, column);
                const std::string there = sumOf(m_inChain[table], day, column);
                if (here != there) {
                    return u"%1: %2 of %3 is %4 in the shop and %5 in the chain."_s.arg(
                        day.toString(Qt::ISODate), QString::fromStdString(columns[column]),
                        QLatin1StringView(salesTables()[table].name), QString::fromStdString(here),
                        QString::fromStdString(there));
                }
            }
        }
        return {};
    }

    std::vector<QDate> m_days;
    std::vector<DaySums> m_inChain; ///< by table
    std::vector<DaySums> m_inShop;
    std::set<QDate> m_shopDays;
};

} // namespace

std::vector<DayDifference> differentDays(Server& server, store::Database& database, int shop)
{
    return Comparison(server, database, shop).differences();
}

std::vector<QDate> wrongMonths(Server& server, int shop)
{
    std::vector<QDate> wrong;
    server.transact([&](pqxx::work& work) {
        for (const QDate month : monthsOf(work, shop)) {
            if (!isRolledUp(work, shop, month))
                wrong.push_back(month);
        }
    });
    return wrong;
}

} // namespace norvane::chain
