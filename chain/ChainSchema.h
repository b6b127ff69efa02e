// The tables and views of a chain in its database.
#pragma once

#include "chain/Server.h"

namespace norvane::chain
{

/// Creates the schema if there is none, upgrades an older one, and makes the coming months.
/// @throws ChainError NoRights; Unfit for a schema of a later program.
void prepareSchema(Server& server);

/// Whether there is a schema at all. Changes nothing. @throws ChainError Unfit for one of another program.
[[nodiscard]] bool isSchemaCurrent(Server& server);

/// Waits for other changes of the schema to end; held until the transaction ends.
void lockSchema(pqxx::work& work);

} // namespace norvane::chain
