// Work that is stored wholly or leaves everything as it was.
#pragma once

#include "store/Database.h"

#include <QScopeGuard>

#include <utility>

namespace norvane::store
{

/// Runs @p work in one transaction of @p database. A failure that passes through puts everything back, as a
/// killed process does. The recordsets of @p work must be gone when it ends; no transaction may be open.
/// @throws RuntimeFailure what @p work throws, and 61, 75, 3260 ... from storing.
template <typename Work>
void allOrNothing(Database& database, Work&& work)
{
    Transaction transaction(database);
    auto putBack = qScopeGuard([&transaction] { transaction.rollBack(); });
    std::forward<Work>(work)();
    putBack.dismiss();
    transaction.commit();
}

} // namespace norvane::store
