// How a publication ends, for the commands that publish.
#pragma once

#include "chain/ChainError.h"
#include "chain/Publisher.h"
#include "command/ExitCode.h"

namespace norvane::command
{

[[nodiscard]] ExitCode codeOf(const chain::ChainError& error);
/// Whether a failure concerns one shop, so that the others can be published all the same.
[[nodiscard]] bool isOfShop(const chain::ChainError& error);
/// What the shop no longer has, and which options decide about it.
[[nodiscard]] QString vanishedText(const QString& name, const chain::Published& published);

} // namespace norvane::command
