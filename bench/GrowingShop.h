// A shop with years of sales, for benchmarks of what grows with them.
#pragma once

#include "bench/Shop.h"
#include "store/engine/CommitOnExit.h"
#include "store/engine/Recordset.h"
#include "store/sales/RowAppend.h"

#include <array>

namespace norvane::bench
{

/// A shop that sells the same PLUs every day from 1 January 2017 on.
class GrowingShop : public Shop
{
public:
    static constexpr int plusPerDay = 5000;
    static constexpr int daysPerYear = 365;

    using Shop::Shop;

    [[nodiscard]] int days() const { return m_days; }
    /// The day that is so many days before the last one.
    [[nodiscard]] QDate dayBefore(int days) const { return first().addDays(m_days - 1 - days); }

    /// One collection: the day's totals of all PLUs, on the disk at the end.
    void appendDay(store::Database& open)
    {
        store::CommitOnExit transaction(open);
        addRows(open, transaction);
        transaction.commit();
        ++m_days;
    }

private:
    void addRows(store::Database& open, const store::CommitOnExit& transaction) const
    {
        store::Recordset sales = open.openTable(QStringLiteral("PLUSALES"));
        const store::RowAppend append(open, transaction, QStringLiteral("PLUSALES"));
        const auto ordinal = [&sales](const char* field) {
            return sales.fieldOrdinal(QLatin1StringView(field));
        };
        const std::array fields{ordinal("ID"),    ordinal("SALESDATE"), ordinal("PROMO"),
                                ordinal("WASTE"), ordinal("COUNT1"),    ordinal("VALUE1")};
        const store::Value day = store::Value::date(first().addDays(m_days));
        for (int plu = 0; plu < plusPerDay; ++plu) {
            const int count = (plu * 31 + m_days * 7) % 50;
            sales.addNew();
            sales.setValue(fields[0], store::Value::text(pluNumber(plu)));
            sales.setValue(fields[1], store::Value(day));
            sales.setValue(fields[2], store::Value::whole(0));
            sales.setValue(fields[3], store::Value::whole(0));
            sales.setValue(fields[4], store::Value::whole(count));
            sales.setValue(fields[5], store::Value::number(count * 1.25));
            sales.update();
        }
    }
    [[nodiscard]] static QDate first() { return {2017, 1, 1}; }

    int m_days = 0;
};

} // namespace norvane::bench
