// Work that is stored completely or leaves everything as it was.
#pragma once

#include "store/engine/CommitOnExit.h"
#include "store/engine/Database.h"

#include <QScopeGuard>

#include <utility>

namespace norvane::store
{

/// Runs @p work in one transaction of @p database. A failure restores everything, as after a killed process.
/// The recordsets of @p work must be destroyed when it ends; no transaction may be open.
/// @throws RuntimeFailure as @p work throws, and with Failure::DiskFull, Failure::PathOrFileAccess,
/// Failure::DatabaseLocked ... from storing.
template <typename Work>
void allOrNothing(Database& database, Work&& work)
{
    CommitOnExit transaction(database);
    auto putBack = qScopeGuard([&transaction] { transaction.rollBack(); });
    std::forward<Work>(work)();
    putBack.dismiss();
    transaction.commit();
}

} // namespace norvane::store
