// The keys of a shop's keyboard as a list of names: PLUs with the keys and look-ups that sell them.
#pragma once

#include "store/engine/Database.h"

#include <QHash>
#include <QString>

#include <functional>

namespace norvane::reports
{

/// "Level 1 key 117, Level 3 keys 117, 118, look-up 2" by the number of the PLU without leading zeros. How
/// many keys a level has is read from the customer's settings beside the database.
/// @throws RuntimeFailure as the database reports.
[[nodiscard]] QHash<QString, QString> keysByPlu(store::Database& database, const QString& dataFile,
                                                const std::function<bool()>& keepGoing);

} // namespace norvane::reports
