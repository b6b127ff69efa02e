// See FreeNumber.h.
#include "screens/FreeNumber.h"

#include "store/engine/BoundQuery.h"

using namespace Qt::Literals::StringLiterals;

namespace norvane::screens
{
namespace
{

/// The end of the unbroken row of numbers that begins with the one after ?1. Texts of 18 digits are in the
/// order of their numbers, so that the index leads to each.
constexpr auto freeNumber =
    "WITH RECURSIVE taken(number) AS (SELECT ?1 + 1 UNION ALL SELECT number + 1 FROM taken "
    "WHERE EXISTS (SELECT 1 FROM PLUDATA WHERE PLUNUMBER = printf('%018d', number))) "
    "SELECT CAST(max(number) AS TEXT) FROM taken";

} // namespace

std::optional<PluNumber> nextFreePlu(store::Database& database, const PluNumber& number)
{
    if (!database.hasTable(u"PLUDATA"_s))
        return std::nullopt;
    const auto from = store::Value::whole(static_cast<std::int64_t>(number.value()));
    store::BoundQuery found(database, freeNumber, {from}, u"free number of a PLU"_s);
    return found.next() ? PluNumber::parse(found.value(0).toUtf8()) : std::nullopt;
}

} // namespace norvane::screens
