// Which database the key editors work on.
#pragma once

#include "base/ApplicationValues.h"
#include "store/engine/Database.h"

#include <memory>

namespace norvane::keys
{

/// Makes the chosen customer's database the one in use: after a change of customer, screens and exchange
/// follow only when a key editor is opened.
/// @return a connection for as long as the editor lives. @throws RuntimeFailure as Database does.
[[nodiscard]] std::shared_ptr<store::Database> openCustomerDatabase(ApplicationValues& values);

} // namespace norvane::keys
