// What the commands for a chain of shops share.
#pragma once

#include "command/Invocation.h"
#include "command/Workplace.h"

#include <functional>

namespace norvane::chain
{
class Server;
}

namespace norvane::command
{

/// Does @p work with the PostgreSQL of --to.
/// @throws CommandError with the exit code of what went wrong; Usage if --to is missing.
void withServer(const Invocation& words, const std::function<void(chain::Server&)>& work);

/// Publishes the named shops, one after another, and shows a listing of them. What goes wrong with one shop
/// is reported and does not stop the others.
/// @param comparesSums compares all sums with the chain instead of trusting the digests of days; what differs
/// is reported and published again, or only reported with --dry-run.
/// @throws CommandError for the first thing that went wrong.
void publishShops(const Workplace& workplace, const Invocation& words, bool comparesSums);

} // namespace norvane::command
