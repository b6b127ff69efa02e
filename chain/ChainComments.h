// Comments on tables and columns, for people who read the database.
#pragma once

#include <string>
#include <vector>

namespace norvane::chain
{

/// The statements that describe every table, view, function and column of the schema, months included.
[[nodiscard]] std::vector<std::string> commentStatements();

} // namespace norvane::chain
