// The steps of a night as a table, and what each does; see NightShop.h.
#include "command/NightShop.h"

#include "command/CustomerRun.h"
#include "command/ExchangeRun.h"
#include "command/NightReports.h"
#include "command/PlannedVerbs.h"
#include "command/TerminalBoxes.h"
#include "customers/CopiesElsewhere.h"
#include "customers/RunLock.h"
#include "link/RunNotes.h"
#include "platform/FolderLock.h"
#include "platform/RuntimeFailure.h"

#include <QDir>
#include <QFileInfo>
#include <QRegularExpression>

#include <algorithm>

using namespace Qt::Literals::StringLiterals;

namespace norvane::command
{
namespace
{

/// "2026-11-26T22:31:05Z 2026-11-26": when, and the day that the sales were booked for.
constexpr auto collectedKey = "Collected"_L1;
/// A shop that a night has collected is not collected again for so long: it is the same night.
constexpr qint64 secondsOfNight = qint64{8} * 3600;

constexpr std::chrono::milliseconds betweenLocks{1000};

/// What the night noted when it had collected last.
struct Collected {
    QDateTime at;
    QDate day;
};

Collected readCollected(const ApplicationValues& values)
{
    const QStringList words = link::readNote(values, nightNotes, collectedKey).split(u' ');
    return {QDateTime::fromString(words.value(0), Qt::ISODate),
            QDate::fromString(words.value(1), Qt::ISODate)};
}

bool isWithinNight(const QDateTime& moment, const QDateTime& now)
{
    const qint64 seconds = moment.secsTo(now);
    return moment.isValid() && seconds >= 0 && seconds < secondsOfNight;
}

/// A list of what went wrong, with the code of the first.
void addFailure(NightEnd& end, ExitCode code, const QString& text)
{
    if (end.isDone())
        end.code = code;
    end.words += (end.words.isEmpty() ? QString() : u"; "_s) + text;
}

/// A later attempt that found nothing to do does not hide what an earlier one has done.
void keepEnd(NightEnd& kept, NightEnd now)
{
    if (!kept.isDone() || !now.isDone() || !now.words.isEmpty())
        kept = std::move(now);
}

} // namespace

/// Keeps the texts: what a tool says on the way is of interest when its step fails.
class NightShop::Boxes : public TerminalBoxes
{
public:
    explicit Boxes(QStringList& said) : TerminalBoxes({}), m_said(said) {}

    void message(const QString& text, const QString& title, BoxIcon /*icon*/) override
    {
        const QString plain = QString(text).replace(u'\r', u'\n').replace(u"\n\n"_s, u"\n"_s);
        const QString said = title.isEmpty() || title == pleaseCheck ? plain : u"%1: %2"_s.arg(title, plain);
        if (!m_said.contains(said))
            m_said << said;
    }
    bool ask(const QString& text, const QString& title, BoxIcon icon, BoxAnswer /*preset*/) override
    {
        message(text + u" Answered No."_s, title, icon);
        return false;
    }
    bool answerByOption(const QString& text, const QString& title, QLatin1StringView option) override
    {
        message(u"%1 Answered No; the option --%2 would answer Yes."_s.arg(text, option), title,
                BoxIcon::None);
        return false;
    }

private:
    QStringList& m_said;
};

const std::array<NightShop::Step, nightSteps.size()> NightShop::steps{
    &NightShop::readSettings, &NightShop::applyPlanned, &NightShop::collect,
    &NightShop::report,       &NightShop::publish,      &NightShop::copy};

NightShop::NightShop(const Workplace& workplace, QString name, const NightOptions& options,
                     const NightClock& clock, NightChain& chain)
    : m_options(options), m_clock(clock), m_chain(chain),
      m_boxes(std::make_unique<Boxes>(m_said)), m_workplace{workplace.appPath, workplace.startedIn, false,
                                                            *m_boxes,
                                                            [this](const QString& text) {
                                                                m_said << text;
                                                            }},
      m_name(std::move(name)), m_result{m_name, {}, {}, {}}
{
    m_result.steps.front() = {ExitCode::Stopped, u"not begun"_s, false};
}

NightShop::~NightShop() = default;

void NightShop::attempt()
{
    m_said.clear();
    m_waitUntil = m_clock.now().addSecs(m_options.waitForLock.count());
    const NightEnd taken = guarded([this] {
        m_values = takeCustomer(m_workplace, m_name);
        m_result.shop = QFileInfo(m_values.customerPath).fileName();
        return NightEnd{};
    });
    if (taken.isDone()) {
        attemptSteps();
    } else {
        m_result.steps.front() = taken;
    }
    m_result.said = m_said;
}

void NightShop::attemptSteps()
{
    for (std::size_t step = 0; step < steps.size(); ++step) {
        NightEnd& end = m_result.steps.at(step);
        try {
            keepEnd(end, guarded([&] { return (this->*steps.at(step))(); }));
        } catch (const RuntimeFailure&) {
            end = {ExitCode::Stopped, u"stopped by a signal"_s, false};
            throw;
        }
    }
}

/// Boxes that ended a step have said why.
NightEnd NightShop::failed(ExitCode code, const QString& text) const
{
    if (code == ExitCode::Busy)
        return {code, u"another program is at work with it"_s, true};
    return {code, text.isEmpty() && !m_said.isEmpty() ? m_said.last() : text, false};
}

NightEnd NightShop::guarded(const std::function<NightEnd()>& work)
{
    NightEnd end;
    command::attempt([&] { end = work(); },
                     [&](ExitCode code, const QString& text) { end = failed(code, text); });
    return end;
}

/// Takes a lock that another program holds as soon as it is free, within the time of --wait.
/// @throws CommandError Busy, Unwritable
template <typename Take>
auto NightShop::waitFor(const Take& take)
{
    const auto before = m_said.size();
    for (;;) {
        try {
            return take();
        } catch (const CommandError& error) {
            if (error.code() != ExitCode::Busy || m_clock.now() >= m_waitUntil)
                throw;
        }
        m_said.resize(before);
        m_clock.sleep(betweenLocks);
    }
}

NightEnd NightShop::readSettings()
{
    m_settings = readNightSettings(m_workplace.appPath, m_values.customerPath);
    return m_settings.mistakes.isEmpty() ? NightEnd{}
                                         : failed(ExitCode::BadFile, m_settings.mistakes.join(u'\n'));
}

NightEnd NightShop::applyPlanned()
{
    if (!hasDueChanges(m_values))
        return {};
    const auto lock = waitFor([this] { return lockFor(m_workplace, m_values); });
    NightEnd end;
    const auto note = [this, &end](ExitCode code, const QString& text) {
        addFailure(end, code, failed(code, text).words);
        end.mayRetry = end.mayRetry || code == ExitCode::Stopped || code == ExitCode::Busy;
    };
    const QString done = applyDueChanges(m_workplace, m_values, note);
    end.words = QStringList{done, end.words}.filter(QRegularExpression(u"."_s)).join(u"; "_s);
    return end;
}

bool NightShop::isCollected() const
{
    return m_hasCollected || (!m_options.again && isWithinNight(readCollected(m_values).at, m_clock.now()));
}

/// Until the set time it is still the day before, also on a day that summer time makes longer or shorter.
QDate NightShop::today() const
{
    const QDateTime now = m_clock.now();
    return now.time() < m_settings.dayBegins ? now.date().addDays(-1) : now.date();
}

QDate NightShop::dayToBook() const
{
    return m_options.day.isValid() ? m_options.day : today();
}

/// Sales that are stored and not cleared are cleared first: the next collection would count them twice.
NightEnd NightShop::collect()
{
    if (isCollected())
        return {};
    if (!m_settings.isDayKnown)
        return {ExitCode::BadFile, u"not collected: night.ini may say for which day"_s, false};
    const auto lock = waitFor([this] { return lockFor(m_workplace, m_values); });
    const ExchangeEnd end =
        collectSales(m_workplace, m_values, sales::ClearFirst::Yes, [this] { return dayToBook(); });
    if (end.day.isValid())
        m_result.day = end.day;
    if (end.code != ExitCode::Done)
        return {end.code, end.words, end.code == ExitCode::Stopped};
    link::writeNote(
        m_values, nightNotes, collectedKey,
        u"%1 %2"_s.arg(m_clock.now().toUTC().toString(Qt::ISODate), end.day.toString(Qt::ISODate)));
    m_hasCollected = true;
    return {ExitCode::Done, u"%1, booked for %2"_s.arg(end.words, end.day.toString(Qt::ISODate)), false};
}

/// A day is over when the next one has begun, or this night has collected it.
QDate NightShop::lastClosedDay() const
{
    const QDateTime now = m_clock.now();
    const QDate yesterday = today().addDays(-1);
    const Collected collected = readCollected(m_values);
    return isWithinNight(collected.at, now) ? std::max(collected.day, yesterday) : yesterday;
}

NightEnd NightShop::report()
{
    NightEnd end;
    int files = 0;
    const NightDays days{lastClosedDay(), m_clock.now()};
    std::vector<NightReport> reports = m_settings.reports;
    if (!m_options.reports.isEmpty()) {
        reports.push_back(
            {{}, u"plusales"_s, &nightPeriods().front(), {&fileFormats().front()}, m_options.reports, {}});
    }
    for (const NightReport& report : reports) {
        const NightEnd written = guarded([&] {
            files += writeDueReports(m_workplace, m_values, report, days);
            return NightEnd{};
        });
        if (!written.isDone())
            addFailure(end, written.code, written.words);
    }
    if (files > 0) {
        const QString written = files == 1 ? u"1 report written"_s : u"%1 reports written"_s.arg(files);
        end.words = end.isDone() ? written : written + u"; "_s + end.words;
    }
    return end;
}

NightEnd NightShop::publish()
{
    if (!m_chain.isWanted())
        return {};
    const auto lock = lockFolder();
    return m_chain.publish(m_values);
}

/// One copy a night, and another when sales came after it.
NightEnd NightShop::copy()
{
    const QString wanted = m_options.copies.isEmpty() ? m_settings.copies : m_options.copies;
    if (wanted.isEmpty())
        return {};
    const QString folder = QDir(m_workplace.appPath).absoluteFilePath(wanted);
    const auto former = customers::copiesElsewhere(folder, m_result.shop);
    const bool isCopied = !former.isEmpty() && isWithinNight(former.front().made, m_clock.now()) &&
                          !(former.front().made < readCollected(m_values).at);
    if (isCopied && (m_hasCopied || !m_options.again))
        return {};
    const auto lock = lockFolder();
    const auto made =
        customers::makeCopyElsewhere(m_values.customerPath, folder, m_clock.now(), stopIfSignalled);
    m_hasCopied = true;
    return {ExitCode::Done, u"copied to %1"_s.arg(made.path), false};
}

/// For work that needs no files of the program's folder.
std::unique_ptr<FolderLock> NightShop::lockFolder()
{
    return waitFor([this] {
        auto taken = FolderLock::take(m_values.customerPath, m_workplace.boxes);
        if (taken == nullptr)
            throw CommandError(codeOfRefusedLock({m_values.customerPath}), {});
        return taken;
    });
}

} // namespace norvane::command
