// Stores and sends planned changes whose day has come.
#include "articles/PlannedChanges.h"
#include "articles/SpreadsheetError.h"
#include "base/CustomerSettings.h"
#include "command/ExchangeRun.h"
#include "command/PlannedVerbs.h"
#include "command/StopSignals.h"
#include "command/TerminalBoxes.h"
#include "command/Verbs.h"
#include "customers/CustomerLog.h"
#include "customers/RunLock.h"
#include "customers/SafetyCopies.h"
#include "customers/SetupSettings.h"
#include "exchange/ExchangePlan.h"
#include "link/LinkSettings.h"
#include "platform/RuntimeFailure.h"

#include <QFileInfo>
#include <QScopeGuard>

#include <algorithm>
#include <functional>
#include <set>
#include <utility>

using namespace Qt::Literals::StringLiterals;

namespace norvane::command
{
namespace
{

using articles::PlannedList, articles::PlannedState, articles::ReadList;

/// Stores the lists of one customer that are due and sends what they changed.
class DueChanges
{
public:
    DueChanges(const Workplace& workplace, ApplicationValues values, FailureNote note)
        : m_workplace(workplace), m_values(std::move(values)), m_note(std::move(note))
    {
    }

    /// @throws CommandError, RuntimeFailure
    void storeAndSend()
    {
        store();
        send();
    }
    /// "12 PLUs changed, sent to registers 1 to 3"; empty if nothing was due.
    [[nodiscard]] QString inWords() const { return m_results.join(u", "_s); }

private:
    void store()
    {
        for (ReadList& due : dueLists()) {
            try {
                store(due);
            } catch (const articles::SpreadsheetError& error) {
                m_note(ExitCode::NotAsPlanned,
                       u"list %1 %2. Nothing of it was stored."_s.arg(due.file.number).arg(error.text()));
            }
        }
    }

    [[nodiscard]] std::vector<ReadList> dueLists() const
    {
        auto lists =
            articles::readLists(m_values.customerPath, PlannedState::Planned,
                                [this](const QString& text) { m_note(ExitCode::BadFile, text + u'.'); });
        std::erase_if(lists,
                      [today = QDate::currentDate()](const ReadList& each) { return each.list.day > today; });
        return lists;
    }

    void store(ReadList& due)
    {
        customers::LoggedWork work(m_values.customerPath,
                                   u"planned changes, list %1 for %2"_s.arg(due.file.number)
                                       .arg(due.list.day.toString(Qt::ISODate)));
        const auto [sheet, result] = work.during([&] {
            try {
                return stored(due.list);
            } catch (const TextError& error) {
                work.setResult(u"not stored: the list %1"_s.arg(error.text()));
                throw;
            }
        });
        work.setResult(inLog(sheet, result));
        m_results << result.inWords(sheet.name);
        for (const auto& left : result.leftOut) {
            m_note(ExitCode::NotAsPlanned,
                   u"list %1: not stored: %2."_s.arg(due.file.number).arg(left.inWords(sheet.name)));
        }
        const bool isToSend = result.isStored() && exchange::boxSending(due.list.table).has_value();
        articles::setPlannedState(due.file, isToSend ? PlannedState::Unsent : PlannedState::Done);
    }

    [[nodiscard]] std::pair<articles::TableSheet, articles::PlannedResult> stored(const PlannedList& list)
    {
        const RegisterModel& model = registerModel(m_values);
        if (const QString now = customers::modelInWords(model); list.model != now) {
            throw articles::SpreadsheetError(
                u"is for registers of the model %1; they are %2 now"_s.arg(list.model, now));
        }
        articles::TableSheet sheet = articles::sheetOfPlanned(list, model.messageWidth);
        copyOnce();
        store::Database database(m_values.databasePath);
        auto result = articles::storePlannedList(database, sheet, list, untilSignalled);
        return {std::move(sheet), std::move(result)};
    }

    void copyOnce()
    {
        if (!m_isCopied &&
            !customers::copyBeforeJob(m_values, m_workplace.boxes, u"before planned changes"_s))
            throw CommandError(ExitCode::Unwritable, {});
        m_isCopied = true;
    }

    /// The log has no room for thousands.
    [[nodiscard]] static QString inLog(const articles::TableSheet& sheet,
                                       const articles::PlannedResult& result)
    {
        constexpr qsizetype mostLogged = 3;
        QString text = result.inWords(sheet.name);
        for (const auto& left : result.leftOut.first(std::min(mostLogged, result.leftOut.size())))
            text += u"; "_s + left.inWords(sheet.name);
        return text;
    }

    void send()
    {
        auto unsent =
            articles::readLists(m_values.customerPath, PlannedState::Unsent, [this](const QString& text) {
                m_note(ExitCode::BadFile,
                       text + u". Its changes are stored. Send their box, then delete the file."_s);
            });
        std::set<int> boxes;
        for (const ReadList& each : unsent) {
            if (const auto box = exchange::boxSending(each.list.table))
                boxes.insert(*box);
        }
        if (boxes.empty())
            return;
        if (m_results.isEmpty())
            m_results << u"stored before"_s;
        send(boxes);
        for (ReadList& each : unsent)
            articles::setPlannedState(each.file, PlannedState::Done);
    }

    void send(const std::set<int>& boxes)
    {
        try {
            const ExchangeEnd end = moveBoxes(m_workplace, m_values, boxes, exchange::Direction::Download);
            if (end.code != ExitCode::Done) {
                m_results << u"not sent: %1"_s.arg(end.words);
                throw CommandError(end.code, end.message);
            }
        } catch (const RuntimeFailure& failure) {
            m_results << u"not sent: %1"_s.arg(failure.text());
            throw;
        }
        m_results << u"sent to %1"_s.arg(link::registersInWords(link::readLinkSettings(m_values)));
    }

    const Workplace& m_workplace;
    ApplicationValues m_values;
    FailureNote m_note;
    QStringList m_results;
    bool m_isCopied = false;
};

/// Stores and sends what is due of several customers.
class ApplyRun
{
public:
    explicit ApplyRun(const Workplace& workplace) : m_workplace(workplace) { catchStopSignals(); }

    /// @throws CommandError with the code of the first thing that went wrong, RuntimeFailure after a signal.
    void run(const QStringList& names)
    {
        m_run.forEach(
            names, [this](const QString& name) { apply(name); }, [this] { show(); });
    }

private:
    void apply(const QString& name)
    {
        if (!hasDueChanges(findCustomer(m_workplace, name)))
            return;
        const ApplicationValues values = takeCustomer(m_workplace, name);
        const auto lock = lockFor(m_workplace, values);
        DueChanges due(m_workplace, values,
                       [&](ExitCode code, const QString& text) { m_run.note(name, code, text); });
        const auto report = qScopeGuard([&] {
            if (!due.inWords().isEmpty())
                m_listing.add({QFileInfo(values.customerPath).fileName(), due.inWords()});
        });
        due.storeAndSend();
    }

    /// A timer that had nothing to do mails nothing.
    void show() const
    {
        if (m_workplace.asJson || !m_listing.isEmpty())
            m_workplace.show(m_listing);
    }

    const Workplace& m_workplace;
    Listing m_listing{{u"Shop"_s, u"Result"_s}};
    CustomerRun m_run{u"not finished."_s};
};

} // namespace

bool hasDueChanges(const ApplicationValues& values)
{
    bool isDamaged = false;
    const auto planned = articles::readLists(values.customerPath, PlannedState::Planned,
                                             [&isDamaged](const QString&) { isDamaged = true; });
    return isDamaged ||
           std::ranges::any_of(
               articles::plannedFiles(values.customerPath),
               [](const articles::PlannedFile& file) { return file.state == PlannedState::Unsent; }) ||
           (!planned.empty() && planned.front().list.day <= QDate::currentDate());
}

QString applyDueChanges(const Workplace& workplace, const ApplicationValues& values, const FailureNote& note)
{
    DueChanges due(workplace, values, note);
    attempt([&due] { due.storeAndSend(); }, note);
    return due.inWords();
}

void applyPlanned(const Workplace& workplace, const Invocation& words)
{
    ApplyRun(workplace).run(shopsWithLists(workplace, words));
}

} // namespace norvane::command
