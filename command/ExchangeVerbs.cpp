// Work with the registers: the runs of the window, without it.
#include "command/ExchangeRun.h"
#include "command/Listing.h"
#include "command/RegisterTools.h"
#include "command/StopSignals.h"
#include "command/TerminalBoxes.h"
#include "command/Verbs.h"
#include "customers/RunLock.h"
#include "exchange/ExchangeBoxes.h"
#include "exchange/ExchangeRunner.h"
#include "exchange/RegisterComparison.h"
#include "link/Modem.h"
#include "link/ResultCodes.h"
#include "link/SystemClock.h"
#include "platform/RuntimeFailure.h"
#include "programme/ProgrammeParts.h"
#include "records/RegisterFiles.h"
#include "sales/CollectionRun.h"
#include "sales/UnclearedSales.h"

#include <set>
#include <utility>

using namespace Qt::Literals::StringLiterals;

namespace norvane::command
{
namespace
{

/// Lets a signal end the wait for a modem's answer.
class StoppableClock : public link::SystemClock
{
public:
    void yieldEvents() override { stopIfSignalled(); }
};

/// The way to the registers for as long as a run lasts.
class RegisterLine
{
public:
    RegisterLine() = default;
    /// Also when a failure ends the run: an open call costs the shop money.
    ~RegisterLine() { disconnect(); }
    RegisterLine(const RegisterLine&) = delete;
    RegisterLine& operator=(const RegisterLine&) = delete;

    /// @return the result of dialling, 0 on a direct line. @throws RuntimeFailure with Failure::UserInterrupt
    /// after a signal.
    int connect(const link::LinkSettings& link)
    {
        m_link = link;
        m_modem.setUpLine(link);
        m_isCalling = link.isModem();
        return m_isCalling ? m_modem.DialModem(link) : 0;
    }
    void disconnect()
    {
        if (std::exchange(m_isCalling, false))
            m_modem.Dropphoneline();
    }

private:
    std::unique_ptr<SerialLine> m_line = makeSerialLine();
    StoppableClock m_clock;
    link::Modem m_modem{*m_line, m_clock, printStep};
    link::LinkSettings m_link;
    bool m_isCalling = false;
};

class Ticks : public exchange::TickBoxes
{
public:
    explicit Ticks(std::set<int> boxes) : m_boxes(std::move(boxes)) {}
    [[nodiscard]] bool isTicked(int box) const override { return m_boxes.contains(box); }
    void setTicked(int box, bool ticked) override
    {
        if (ticked) {
            m_boxes.insert(box);
        } else {
            m_boxes.erase(box);
        }
    }

private:
    std::set<int> m_boxes;
};

/// A box by its number in the dialog, counted from 1, or by its caption or the beginning of one, in any case.
/// @throws CommandError NoSuchName for none or several.
int boxOf(const QString& name)
{
    bool isNumber = false;
    const int number = name.toInt(&isNumber);
    if (isNumber && number >= 1 && number <= exchange::boxCount)
        return number - 1;
    QList<int> found;
    for (int box = 0; box < exchange::boxCount; ++box) {
        const QString caption = exchange::boxName(box);
        if (caption.compare(name, Qt::CaseInsensitive) == 0)
            return box;
        if (!name.isEmpty() && caption.startsWith(name, Qt::CaseInsensitive))
            found << box;
    }
    if (found.size() == 1)
        return found.front();
    const QString text = found.isEmpty() ? u"There is no box \"%1\"."_s.arg(name)
                                         : u"\"%1\" may be: %2."_s.arg(name, exchange::boxNames(found));
    throw CommandError(ExitCode::NoSuchName, text);
}

/// The boxes named after the customer; all if none is named.
std::set<int> boxesOf(const QStringList& names)
{
    std::set<int> boxes;
    for (const QString& name : names)
        boxes.insert(boxOf(name));
    for (int box = 0; names.isEmpty() && box < exchange::boxCount; ++box)
        boxes.insert(box);
    return boxes;
}

/// What is left of the last exchange; nothing if it was complete or went the other way.
std::set<int> unfinishedBoxes(const ApplicationValues& values, exchange::Direction direction)
{
    const auto unfinished = exchange::unfinishedExchange(values);
    if (!unfinished || unfinished->direction != direction)
        return {};
    return {unfinished->boxes.begin(), unfinished->boxes.end()};
}

/// The boxes that the command line names.
std::set<int> wantedBoxes(const Invocation& words, const ApplicationValues& values,
                          exchange::Direction direction)
{
    const QStringList names = words.operands.mid(1);
    if (!words.has("unfinished"_L1))
        return boxesOf(names);
    if (!names.isEmpty())
        throw CommandError(ExitCode::Usage, u"Name boxes or use --unfinished, not both."_s);
    return unfinishedBoxes(values, direction);
}

Listing emptyEnd()
{
    return Listing({u"Work"_s, u"Complete"_s, u"Result"_s, u"Code"_s, u"Meaning"_s, u"Tool words"_s});
}

/// A run for programs: only with --json, since scripts that look at the exit code expect no output.
void showEnd(const Workplace& workplace, const QString& work, const ExchangeEnd& end)
{
    if (!workplace.asJson)
        return;
    Listing listing = emptyEnd();
    listing.add({work, end.code == ExitCode::Done, end.words,
                 end.failed ? QVariant(end.failed->result) : QVariant(),
                 end.failed ? QVariant(inWords(*end.failed)) : QVariant(), end.toolWords});
    workplace.show(listing);
}

/// Boxes whose tables a part of a programme has, or a table by its name.
QList<int> boxesOfPart(const QString& name)
{
    QStringList unknown;
    const QStringList tables = programme::tablesNamed({name}, unknown);
    QList<int> boxes;
    for (const exchange::UploadRow& row : exchange::uploadPlan()) {
        const records::RegisterFile* const file = records::registerFile(row.file);
        if (file != nullptr && tables.contains(QLatin1String(file->table), Qt::CaseInsensitive) &&
            row.box != exchange::pluPointsBox)
            boxes << row.box;
    }
    return boxes;
}

/// Boxes to compare, named as for an exchange or by a part of the programme.
QList<int> boxesToCompare(const QStringList& names)
{
    std::set<int> boxes;
    for (const QString& name : names) {
        const QList<int> ofPart = boxesOfPart(name);
        if (ofPart.isEmpty()) {
            boxes.insert(boxOf(name));
        } else {
            boxes.insert(ofPart.begin(), ofPart.end());
        }
    }
    if (names.isEmpty())
        boxes = boxesOf({});
    return {boxes.begin(), boxes.end()};
}

/// Fetches for a comparison; the line is free again afterwards.
exchange::RegisterComparison fetchToCompare(const Workplace& workplace, const ApplicationValues& values,
                                            const QList<int>& boxes)
{
    const link::LinkSettings link = link::readLinkSettings(values);
    auto scratch = std::make_unique<exchange::ScratchShop>(values);
    RegisterLine line;
    if (line.connect(link) == link::modemFailed)
        throw CommandError(ExitCode::Stopped, u"Communications Error: Modem Failure"_s);
    RegisterTools tools(workplace, values, scratch->folder());
    exchange::FetchedFiles fetched =
        exchange::RegisterFetch(values, link, *scratch, tools.outside()).fetch(boxes);
    return {values, std::move(scratch), std::move(fetched)};
}

void showComparison(const Workplace& workplace, const exchange::RegisterComparison& comparison,
                    qint64& different)
{
    const auto rows = [&](const auto& take) {
        different = 0;
        comparison.forEach(
            [&](const exchange::ComparedLine& line) {
                different += line.isOneWay ? 0 : 1;
                take({line.table, line.record, line.field, line.here, line.there,
                      line.isOneWay ? QVariant(true) : QVariant(), line.remark});
                return true;
            },
            untilSignalled);
    };
    workplace.show({u"Table"_s, u"Record"_s, u"Field"_s, u"Here"_s, u"Register"_s, u"One way"_s, u"Remark"_s},
                   rows);
}

void exchangeWith(const Workplace& workplace, const Invocation& words, exchange::Direction direction)
{
    const ApplicationValues values = takeCustomer(workplace, words.operands.front());
    const std::set<int> boxes = wantedBoxes(words, values, direction);
    if (boxes.empty()) {
        if (workplace.asJson)
            workplace.show(emptyEnd());
        printStep(u"Nothing is unfinished."_s);
        return;
    }
    const auto lock = lockFor(workplace, values);
    const ExchangeEnd end = moveBoxes(workplace, values, boxes, direction);
    showEnd(workplace, direction == exchange::Direction::Upload ? u"upload"_s : u"download"_s, end);
    if (end.code != ExitCode::Done)
        throw CommandError(end.code, end.message);
    printStep(end.words);
}

/// The option that answers Yes to the question of the next collection; empty if it would ask nothing.
QString clearHint(const ApplicationValues& values)
{
    if (!sales::mayBeCleared(sales::unclearedCollection(values)))
        return {};
    return u"\"collect --clear-first\" clears them at the registers and then collects what was sold since."_s;
}

} // namespace

ExchangeEnd moveBoxes(const Workplace& workplace, const ApplicationValues& values, std::set<int> boxes,
                      exchange::Direction direction)
{
    const link::LinkSettings link = link::readLinkSettings(values);
    Ticks ticks(std::move(boxes));
    RegisterLine line;
    RegisterTools tools(workplace, values);
    exchange::ExchangeRunner runner(values, link, ticks, tools.outside());
    try {
        if (line.connect(link) == link::modemFailed) {
            runner.endWithoutCall(direction);
            return {ExitCode::Stopped,
                    runner.stopInWords(),
                    u"Communications Error: Modem Failure"_s,
                    tools.failed(),
                    {},
                    {}};
        }
    } catch (const RuntimeFailure& stop) {
        runner.logFailedCall(direction, stop.text());
        throw;
    }
    const bool isUpload = direction == exchange::Direction::Upload;
    const bool isComplete = isUpload ? runner.UploadData() : runner.downloaddata();
    if (isComplete)
        return {ExitCode::Done, runner.resultInWords(), {}, {}, tools.words(), {}};
    return {runner.lacksCopy() ? ExitCode::Unwritable : ExitCode::Stopped,
            runner.stopInWords(),
            {},
            tools.failed(),
            tools.words(),
            {}};
}

void fetch(const Workplace& workplace, const Invocation& words)
{
    exchangeWith(workplace, words, exchange::Direction::Upload);
}

void send(const Workplace& workplace, const Invocation& words)
{
    exchangeWith(workplace, words, exchange::Direction::Download);
}

void compare(const Workplace& workplace, const Invocation& words)
{
    const ApplicationValues values = takeCustomer(workplace, words.operands.front());
    const QList<int> boxes = boxesToCompare(words.operands.mid(1));
    const auto lock = lockFor(workplace, values);
    const exchange::RegisterComparison comparison = fetchToCompare(workplace, values, boxes);
    qint64 different = 0;
    showComparison(workplace, comparison, different);
    for (const QString& note : comparison.notes())
        printMessage(note);
    if (!comparison.fetched().stopped.isEmpty())
        throw CommandError(ExitCode::Stopped, {});
    if (different > 0)
        throw CommandError(ExitCode::Different, {});
}

QDate dayToBook(const Invocation& words, QDate today)
{
    constexpr int mostDaysBack = 7;
    if (!words.has("day"_L1))
        return {};
    const QDate day = words.day("day"_L1);
    if (day > today || day.daysTo(today) > mostDaysBack) {
        throw CommandError(
            ExitCode::Usage,
            u"Sales are booked for today or one of the %1 days before it, not for %2."_s.arg(mostDaysBack)
                .arg(day.toString(Qt::ISODate)));
    }
    return day;
}

ExchangeEnd collectSales(const Workplace& workplace, const ApplicationValues& values,
                         sales::ClearFirst clearFirst, std::function<QDate()> dayToBook)
{
    RegisterLine line;
    RegisterTools tools(workplace, values);
    sales::CollectionRun run(values, {.connectLink = [&line](const auto& link) { return line.connect(link); },
                                      .disconnectLink = [&line] { line.disconnect(); },
                                      .run = tools.outside(),
                                      .dayToBook = std::move(dayToBook)});
    const bool isComplete = run.collect(clearFirst);
    return {isComplete ? ExitCode::Done : ExitCode::Stopped,
            isComplete ? run.resultInWords() : run.stopInWords(),
            {},
            tools.failed(),
            tools.words(),
            run.bookedDay()};
}

void collect(const Workplace& workplace, const Invocation& words)
{
    const QDate given = dayToBook(words, QDate::currentDate());
    const ApplicationValues values = takeCustomer(workplace, words.operands.front());
    const auto lock = lockFor(workplace, values);
    const auto clearFirst = words.has("clear-first"_L1) ? sales::ClearFirst::Yes : sales::ClearFirst::Ask;
    try {
        const ExchangeEnd end = collectSales(workplace, values, clearFirst, [given] {
            return given.isValid() ? given : QDate::currentDate();
        });
        showEnd(workplace, u"collection"_s, end);
        if (end.code != ExitCode::Done)
            throw CommandError(end.code, clearHint(values));
        printStep(end.words);
    } catch (const RuntimeFailure&) {
        if (const QString hint = clearHint(values); !hint.isEmpty())
            printMessage(hint);
        throw;
    }
}

} // namespace norvane::command
