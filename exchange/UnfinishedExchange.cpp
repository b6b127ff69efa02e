// See UnfinishedExchange.h.
#include "exchange/UnfinishedExchange.h"

#include "base/LossQuestion.h"
#include "exchange/ExchangeBoxes.h"
#include "link/RunNotes.h"
#include "platform/ShownTime.h"

#include <QStringList>

using namespace Qt::Literals::StringLiterals;

namespace norvane::exchange
{
namespace
{

constexpr auto section = "Exchange"_L1;
/// "UPLOAD 2026-11-24T18:03:11 0,4,36"
constexpr auto unfinishedKey = "Unfinished"_L1;
constexpr auto uploadWord = "UPLOAD"_L1;

QString directionWord(Direction direction)
{
    return direction == Direction::Upload ? QString(uploadWord) : u"DOWNLOAD"_s;
}

QString boxNumbers(const QList<int>& boxes)
{
    QStringList numbers;
    for (const int box : boxes)
        numbers << QString::number(box);
    return numbers.join(u',');
}

QList<int> boxesOf(const QString& numbers)
{
    QList<int> boxes;
    for (const QString& number : numbers.split(u',')) {
        bool isNumber = false;
        const int box = number.toInt(&isNumber);
        if (isNumber && box >= 0 && box < boxCount)
            boxes << box;
    }
    return boxes;
}

QString tickQuestion(Direction direction)
{
    return direction == Direction::Upload
               ? u"Tick these boxes?"_s
               : u"Tick these boxes? A download always goes to all registers. Those that have it already get "
                 u"it once more, which does no harm."_s;
}

} // namespace

std::optional<UnfinishedExchange> unfinishedExchange(const ApplicationValues& values)
{
    const QStringList words = link::readNote(values, section, unfinishedKey).split(u' ');
    UnfinishedExchange exchange{words.value(0) == uploadWord ? Direction::Upload : Direction::Download,
                                QDateTime::fromString(words.value(1), Qt::ISODate), boxesOf(words.value(2))};
    if (exchange.boxes.isEmpty())
        return std::nullopt;
    return exchange;
}

void noteExchange(const ApplicationValues& values, const UnfinishedExchange& exchange)
{
    const QStringList words{directionWord(exchange.direction), exchange.started.toString(Qt::ISODate),
                            boxNumbers(exchange.boxes)};
    link::writeNote(values, section, unfinishedKey, exchange.boxes.isEmpty() ? QString() : words.join(u' '));
}

QList<int> offerUnfinishedExchange(const ApplicationValues& values, Direction direction, Boxes& boxes)
{
    const auto exchange = unfinishedExchange(values);
    if (!exchange)
        return {};
    const QString name = exchange->direction == Direction::Upload ? u"upload"_s : u"download"_s;
    const QString left = u"The %1 of %2 did not finish.\r\rStill to do: %3.\r\r"_s.arg(
        name, shownTime(exchange->started), boxNames(exchange->boxes));
    if (exchange->direction == direction)
        return boxes.ask(left + tickQuestion(direction), pleaseCheck) ? exchange->boxes : QList<int>();
    boxes.message(left + u"To finish it, tick these boxes for the %1."_s.arg(name), pleaseCheck,
                  BoxIcon::Exclamation);
    return {};
}

} // namespace norvane::exchange
