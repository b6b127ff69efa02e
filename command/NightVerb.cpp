// The night of all shops: planned changes, sales, reports, publication, copies.
#include "command/CustomerList.h"
#include "command/ExchangeRun.h"
#include "command/NightRun.h"
#include "command/StopSignals.h"
#include "command/TerminalBoxes.h"
#include "command/Verbs.h"
#include "platform/RuntimeFailure.h"
#include "platform/WholeFile.h"

#include <QProcess>

#include <algorithm>
#include <array>
#include <cstdio>

using namespace Qt::Literals::StringLiterals;

namespace norvane::command
{
namespace
{

/// A unit of a time on the command line.
struct TimeUnit {
    QLatin1StringView sign;
    int seconds;
};
constexpr auto units = std::to_array<TimeUnit>({{"s"_L1, 1}, {"m"_L1, 60}, {"h"_L1, 3600}});

/// "90s", "10m", "2h". @throws CommandError Usage for another text or more than a day.
std::chrono::seconds timeOf(const Invocation& words, QLatin1StringView option)
{
    constexpr int most = 24 * 3600;
    const QString text = words.value(option);
    for (const TimeUnit& unit : units) {
        bool isNumber = false;
        const int count = text.chopped(text.isEmpty() ? 0 : 1).toInt(&isNumber);
        if (text.endsWith(unit.sign) && isNumber && count >= 0 && count <= most / unit.seconds)
            return std::chrono::seconds(count * unit.seconds);
    }
    throw CommandError(ExitCode::Usage,
                       u"--%1 needs a time such as 90s, 10m or 2h, not \"%2\"."_s.arg(option, text));
}

int countOf(const Invocation& words, QLatin1StringView option)
{
    constexpr int most = 100;
    bool isNumber = false;
    const int count = words.value(option).toInt(&isNumber);
    if (!isNumber || count < 0 || count > most) {
        throw CommandError(ExitCode::Usage,
                           u"--%1 needs a number from 0 to %2, not \"%3\"."_s.arg(option).arg(most).arg(
                               words.value(option)));
    }
    return count;
}

NightOptions optionsOf(const Workplace& workplace, const Invocation& words)
{
    NightOptions options;
    options.connection = words.value("to"_L1);
    if (words.has("reports"_L1))
        options.reports = workplace.userFile(words.value("reports"_L1));
    if (words.has("copies"_L1))
        options.copies = workplace.userFile(words.value("copies"_L1));
    if (words.has("wait"_L1))
        options.waitForLock = timeOf(words, "wait"_L1);
    if (words.has("retry"_L1))
        options.retries = countOf(words, "retry"_L1);
    options.betweenRetries = words.has("every"_L1) ? timeOf(words, "every"_L1) : std::chrono::minutes(10);
    options.day = dayToBook(words, QDate::currentDate());
    options.again = words.has("again"_L1);
    return options;
}

/// Two spellings of a name are one shop; one that no folder has is attempted, so that it is in the summary.
QStringList namesOf(const Workplace& workplace, const Invocation& words)
{
    if (words.operands.isEmpty())
        return allCustomers(workplace);
    QStringList names;
    for (const QString& name : words.operands) {
        QString found = name;
        try {
            found = findCustomer(workplace, name).customerName;
        } catch (const CommandError&) {
            found = name;
        }
        if (!names.contains(found))
            names << found;
    }
    return names;
}

Listing listingOf(const std::vector<ShopNight>& shops)
{
    QStringList headings{u"Shop"_s, u"Day"_s};
    for (const auto& step : nightSteps)
        headings << step.name;
    Listing listing(headings + QStringList{u"Left to do"_s, u"Code"_s});
    for (const ShopNight& shop : shops) {
        QVariantList row{shop.shop, shop.day.isValid() ? QVariant(shop.day) : QVariant()};
        for (const NightEnd& end : shop.steps)
            row << (end.words.isEmpty() ? QVariant() : QVariant(end.words));
        listing.add(row + QVariantList{shop.leftToDo(), static_cast<int>(shop.code())});
    }
    return listing;
}

/// What is left to do, and below it what the tools and boxes said beside the reason.
QString withToolWords(const ShopNight& shop)
{
    const QString reason = shop.inWords();
    QString text = reason;
    for (const QString& said : shop.said) {
        if (!reason.contains(said.simplified()))
            text += u"\n  "_s + said.trimmed().replace(u'\n', u"\n  "_s);
    }
    return text;
}

/// The night on the command line: lines on standard output; what is left, with what the tools said, on
/// standard error, which a timer mails.
class NightShown
{
public:
    NightShown(const Workplace& workplace, const Invocation& words) : m_workplace(workplace), m_words(words)
    {
    }

    void showShop(const ShopNight& shop, bool isLast)
    {
        const bool isComplete = shop.code() == ExitCode::Done;
        if (!isComplete && isLast) {
            printMessage(withToolWords(shop));
        } else if (!m_workplace.asJson) {
            write(shop.inWords() + (isComplete ? u"\n"_s : u"; tried again later\n"_s));
        }
    }
    void showAll(const std::vector<ShopNight>& shops)
    {
        if (m_workplace.asJson) {
            unlessUnwritable([&] { m_workplace.show(listingOf(shops)); });
        } else {
            write(nightInWords(shops));
        }
        if (m_words.has("html"_L1))
            unlessUnwritable([&] { writePage(shops); });
    }
    /// @throws CommandError Unwritable if something could not be written.
    void end() const
    {
        if (!m_unwritable.isEmpty())
            throw CommandError(ExitCode::Unwritable, {});
    }

private:
    void write(const QString& text)
    {
        unlessUnwritable([&text] { print(text.toLocal8Bit()); });
    }
    /// A full disk below the output, or a reader that left, must not keep the other shops from their night.
    void unlessUnwritable(const std::function<void()>& show)
    {
        try {
            show();
        } catch (const CommandError& error) {
            if (!m_unwritable.contains(error.text()))
                printMessage(error.text());
            m_unwritable << error.text();
        }
    }
    void writePage(const std::vector<ShopNight>& shops) const
    {
        const QByteArray page = nightPage(shops, m_begun, QDateTime::currentDateTime());
        m_workplace.writeUserFile(m_words.value("html"_L1), [&page](const QString& path) {
            if (const auto error = replaceWholeFile(path, page)) {
                throw CommandError(ExitCode::Unwritable,
                                   u"%1 could not be written: %2"_s.arg(path, error->reason));
            }
        });
    }

    const Workplace& m_workplace;
    const Invocation& m_words;
    QDateTime m_begun = QDateTime::currentDateTime();
    QStringList m_unwritable; ///< why
};

} // namespace

void night(const Workplace& workplace, const Invocation& words)
{
    const NightOptions options = optionsOf(workplace, words);
    const QStringList names = namesOf(workplace, words);
    // As when the disk with the customers is not connected.
    if (names.isEmpty())
        throw CommandError(ExitCode::NoCustomer, u"No customers were found in %1."_s.arg(workplace.appPath));
    // A list of shops that a script reads from standard input must not be eaten by anything that runs here.
    if (std::freopen(qPrintable(QProcess::nullDevice()), "r", stdin) == nullptr)
        std::fclose(stdin);
    catchStopSignals();
    NightShown shown(workplace, words);
    std::vector<ShopNight> results;
    try {
        runNight(
            workplace, names, options, {},
            [&shown](const ShopNight& shop, bool isLast) { shown.showShop(shop, isLast); }, results);
    } catch (const RuntimeFailure&) {
        shown.showAll(results);
        throw;
    }
    shown.showAll(results);
    const auto left =
        std::ranges::find_if(results, [](const ShopNight& shop) { return shop.code() != ExitCode::Done; });
    if (left != results.end())
        throw CommandError(left->code(), {});
    shown.end();
}

} // namespace norvane::command
