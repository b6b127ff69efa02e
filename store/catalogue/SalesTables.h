// The tables that collections fill. Everything that lists them takes their names from here.
#pragma once

namespace norvane::store::salestable
{

inline constexpr const char* times = "TIMESALES";
inline constexpr const char* clerks = "CLERKSALES";
inline constexpr const char* plus = "PLUSALES";
inline constexpr const char* mixes = "MIXSALES";
inline constexpr const char* groups = "GROUPSALES"; ///< no poll file fills it
inline constexpr const char* financials = "FINANCIALSALES";

/// The line of the financial report with the net sales, by the ID of its rows in FINANCIALSALES. The layout
/// finsales.rpt draws the same line over the days.
inline constexpr int netSalesLine = 2;

/// The day of the collection, in each of them. Reports choose rows by it.
inline constexpr const char* day = "SALESDATE";

} // namespace norvane::store::salestable
