// The tables and views of a chain in its database.
#pragma once

#include "chain/ChainTables.h"
#include "chain/Server.h"

#include <QDate>

namespace norvane::chain
{

/// Creates the schema if there is none and upgrades an older one.
/// @throws ChainError NoRights; Unfit for a schema of a later program.
void prepareSchema(Server& server);

/// Makes the partitions that hold the month of @p day, unless they are there. A partition that was made by
/// one shop serves all.
void makePartitions(Server& server, QDate day);

/// Waits for other changes of the schema to end; held until the transaction ends.
void lockSchema(pqxx::work& work);

} // namespace norvane::chain
