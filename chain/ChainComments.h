// What a person who looks into the database is told about tables and columns.
#pragma once

#include <string>
#include <vector>

namespace norvane::chain
{

/// The statements that describe every table, view, function and column of the schema, months included.
[[nodiscard]] std::vector<std::string> commentStatements();

} // namespace norvane::chain
