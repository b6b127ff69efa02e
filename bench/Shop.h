// The customer of a benchmark.
#pragma once

#include "base/ApplicationValues.h"
#include "bench/BareDatabase.h"
#include "store/catalogue/Catalogue.h"
#include "store/engine/Database.h"

#include <QTemporaryDir>

#include <algorithm>
#include <cstdint>
#include <string>

namespace norvane::bench
{

/// A customer's folder with a database in which no table has a row yet. It is removed at the end.
class Shop
{
public:
    explicit Shop(const QVector<store::TableDefinition>& tables = store::catalogue())
    {
        store::Database::create(database(), tables);
    }
    /// @param statements what fills the database, in SQL.
    explicit Shop(const std::string& statements) : Shop()
    {
        BareDatabase(database()).run(("begin;" + statements + ";commit").c_str());
    }

    [[nodiscard]] QString folder() const { return m_folder.path(); }
    [[nodiscard]] QString file(const char* name) const { return m_folder.filePath(QLatin1StringView(name)); }
    [[nodiscard]] QString database() const { return file("velmar.mdb"); }

private:
    QTemporaryDir m_folder;

public:
    /// Those of a program that works in this folder for this customer.
    ApplicationValues values{folder(), {}, folder(), database(), {}};
};

/// A shop with a second database of the same kind, for the baseline.
class TwinShop : public Shop
{
public:
    TwinShop() { store::Database::create(bareDatabase(), store::catalogue()); }
    [[nodiscard]] QString bareDatabase() const { return file("bare.mdb"); }
};

/// A number as texts of registers have it: 18 digits.
inline std::string pluNumber(std::int64_t number)
{
    const auto digits = std::to_string(number);
    return std::string(18 - digits.size(), '0') + digits;
}

/// The start of a statement whose table n has the numbers from 1 to @p last in its column i.
inline std::string numbersTo(int last)
{
    return "with recursive n(i) as (select 1 union all select i + 1 from n where i < " +
           std::to_string(last) + ") ";
}

/// The years of sales to make: those of the environment variable NORVANE_SALES_YEARS, or else @p usual.
inline int salesYears(int usual)
{
    const int wanted = qEnvironmentVariableIntValue("NORVANE_SALES_YEARS");
    return wanted > 0 ? wanted : usual;
}

} // namespace norvane::bench
