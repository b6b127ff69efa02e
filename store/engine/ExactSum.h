// Sums of money and quantities that a report may show to the last digit.
#pragma once

struct sqlite3;
struct sqlite3_value;

namespace norvane
{
class DecimalTotal;
}

namespace norvane::store
{

/// Adds the aggregate exact_sum(x) to a connection; every query on an open Database can use it. It adds in
/// decimal, without rounding at any place:
/// - a double counts as its shortest decimal, so 0.1 added ten times is 1;
/// - a whole number and the text of a number count as they are, so totals can be added up further;
/// - null, a text that is not a number and a blob count as 0.
///
/// The result is a text: the plain decimal without trailing zeros ("5639.55", "-3"), "0" when there was
/// nothing to add, never null. Compare it as a text (exact_sum(x) <> '0') or read it with Decimal::parse,
/// which takes up to 18 digits. A query that adds up an infinite number fails with
/// Failure::UnknownNameInQuery.
/// It takes about as long as sum() for numbers of up to four places after the point and fifteen digits.
///
/// exact_total(x) is for totals that are stored and added again: the same, but a number without decimal
/// places that fits 64 bits is returned as a whole number, which takes less room and time.
///
/// exact_sums(x, y, ...) is for wide tables: the exact_sum of each column with tabs between, in half the
/// time; null if there was nothing to add.
void addExactSum(sqlite3* handle);

/// Adds a value to a total by the same rules. @throws RuntimeFailure with Failure::Overflow for an infinite
/// number.
void addExactly(DecimalTotal& total, sqlite3_value* value);

} // namespace norvane::store
