// See ExchangeStop.h.
#include "exchange/ExchangeStop.h"

#include "exchange/ExchangeBoxes.h"
#include "link/ResultCodes.h"

using namespace Qt::Literals::StringLiterals;

namespace norvane::exchange
{

QString ExchangeStop::reason(const link::RunOutside& outside) const
{
    if (isLeft)
        return u"left by the user"_s;
    return link::withLastWords(outside, result ? link::resultInWords(*result) : u"answered No"_s);
}

QString ExchangeStop::inWords(const QString& reason, const QList<int>& left) const
{
    const QString stopped = u"stopped at %1: %2"_s.arg(place, reason);
    return left.isEmpty() ? stopped : u"%1; still to do: %2"_s.arg(stopped, boxNames(left));
}

link::FailedStep ExchangeStop::failedStep(int failure, bool isInTurn) const
{
    return {failure, box ? u"%1 (%2)"_s.arg(place, boxName(*box)) : place, isInTurn,
            u"Then start again with the boxes that are left."_s};
}

} // namespace norvane::exchange
