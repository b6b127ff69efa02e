// Parts of the list of all PLUs: a group, what sold best, consecutive numbers.
#pragma once

#include "store/engine/Database.h"
#include "store/engine/Value.h"

#include <QDate>
#include <QStringList>

#include <optional>
#include <string>
#include <vector>

namespace norvane::keys
{

/// A choice of PLUs, in an order of its own.
struct PluChoice {
    QString name; ///< "3 Soft Drinks"
    std::string sql;
    std::vector<store::Value> values;
};

/// What sold best in the month before @p today, then a choice for each group, also for one without PLUs.
/// @throws RuntimeFailure as the database reports.
[[nodiscard]] std::vector<PluChoice> pluChoices(store::Database& database, QDate today);

/// "1001..1024" are all PLUs from the one to the other. @return nothing for any other text.
[[nodiscard]] std::optional<PluChoice> pluRange(const QString& text);

/// The numbers of the PLUs, as the tables have them. @throws RuntimeFailure as the database reports.
[[nodiscard]] QStringList pluNumbers(store::Database& database, const PluChoice& choice);

} // namespace norvane::keys
