// Reads, converts and stores record by record; see PriceWalk.h.
#include "utilities/PriceWalk.h"

#include "store/engine/CommitOnExit.h"
#include "utilities/PriceConversion.h"

#include <vector>

using namespace Qt::Literals::StringLiterals;

namespace norvane::utilities
{
namespace
{

/// A price pair as places in the record, which are faster than names.
struct PairOfPlaces {
    int source;
    int target;
};

std::vector<PairOfPlaces> placesOf(const store::Recordset& plus, std::span<const PricePair> fields)
{
    std::vector<PairOfPlaces> places;
    for (const PricePair& pair : fields)
        places.push_back({plus.fieldOrdinal(pair.source), plus.fieldOrdinal(pair.target)});
    return places;
}

store::Value targetValue(const store::Value& source, const std::optional<Decimal>& rate)
{
    if (!rate)
        return source;
    return store::Value::text(source.isText() ? convertedPrice(source.textView(), *rate)
                                              : convertedPrice(source.toUtf8(), *rate));
}

void transferRow(store::Recordset& plus, const std::vector<PairOfPlaces>& places,
                 const std::optional<Decimal>& rate)
{
    plus.edit();
    for (const auto& [source, target] : places)
        plus.setValue(target, targetValue(plus.value(source), rate));
    plus.update();
}

} // namespace

qint64 transferPrices(store::Database& database, store::Recordset& plus, std::span<const PricePair> fields,
                      const std::optional<Decimal>& rate, const std::function<void()>& everyRow)
{
    const auto places = placesOf(plus, fields);
    store::CommitOnExit transaction(database);
    plus.setIndex(u"plunumber"_s);
    qint64 changed = 0;
    for (plus.moveFirst(); !plus.atEnd(); plus.moveNext()) {
        everyRow();
        transferRow(plus, places, rate);
        ++changed;
    }
    transaction.commit();
    return changed;
}

} // namespace norvane::utilities
