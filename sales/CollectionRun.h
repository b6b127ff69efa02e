// Collects a day's sales from all registers, in an order that loses none.
#pragma once

#include "base/ApplicationValues.h"
#include "link/LinkSettings.h"
#include "link/WatchedStep.h"
#include "sales/ReportStore.h"

#include <QDate>
#include <QList>
#include <QString>

#include <functional>
#include <optional>

namespace norvane::sales
{

/// What a collection calls.
struct CollectionOutside {
    /// Connects the link. @return the result of dialling, 0 on a direct link.
    std::function<int(const link::LinkSettings& link)> connectLink;
    /// Hangs up a modem; nothing on a direct link.
    std::function<void()> disconnectLink;
    link::RunOutside run;
    /// Asked when the sales are stored: the day that they are booked for.
    std::function<QDate()> dayToBook = [] {
        return QDate::currentDate();
    };
};

/// What to do about sales of an earlier collection that are stored and not cleared at all registers.
enum class ClearFirst { Ask, Yes };

/// One run: consolidate at the registers, collect, import, clear at the registers. The registers are cleared
/// only after all five imports, so a run that fails before loses nothing. A run that fails between import and
/// clearing leaves the sales both in the tables and at the registers. Then the user is asked whether to clear
/// again, and the next run asks whether to clear first; see UnclearedSales.h. What a failed tool left is used
/// only after a question; No ends the run. A user who leaves before the import ends it between two tools.
class CollectionRun
{
public:
    /// The values must outlive the run.
    CollectionRun(const ApplicationValues& values, CollectionOutside outside);
    CollectionRun(const CollectionRun&) = delete;
    CollectionRun& operator=(const CollectionRun&) = delete;

    /// Shows the result's text in a box if a step fails. A modem is always hung up first. Adds a line to the
    /// customer's log. @p clearFirst Yes answers the question about an earlier collection if a clear loses
    /// nothing.
    /// @return whether the sales were stored and the registers cleared.
    /// @throws RuntimeFailure with Failure::FileNotFound when status.out is missing, Failure::TypeMismatch
    /// when it has no number or the model is invalid, Failure::Overflow and Failure::TypeMismatch for link
    /// settings, and as storeReports() throws.
    bool collect(ClearFirst clearFirst = ClearFirst::Ask);
    /// What a complete run has stored: "3,776 rows of sales stored, 12 s". Empty for any other.
    [[nodiscard]] const QString& resultInWords() const { return m_result; }
    /// The day that the sales were booked for; invalid if none were stored.
    [[nodiscard]] QDate bookedDay() const { return m_isStored ? m_bookedDay : QDate(); }
    /// Where and why any other has stopped.
    [[nodiscard]] const QString& stopInWords() const { return m_stopped; }

private:
    struct ToolStep;
    /// What a call has to do.
    enum class Task { ClearFormer, Collect, Clear };
    static const ToolStep stepsAheadOfImport[];
    static const ToolStep clearingFormer;
    static const ToolStep clearing;

    [[nodiscard]] bool mayBegin(ClearFirst clearFirst);
    [[nodiscard]] bool mayClearAgain() const;
    [[nodiscard]] std::optional<int> resultOfCall();
    [[nodiscard]] std::optional<int> failedResult();
    [[nodiscard]] std::optional<int> carryOut(Task task);
    [[nodiscard]] std::optional<int> storeSales();
    [[nodiscard]] std::optional<int> fetchReports();
    [[nodiscard]] std::optional<int> clearRegisters(const ToolStep& step);
    [[nodiscard]] std::optional<int> runStep(const ToolStep& step);
    [[nodiscard]] bool sendsDescriptions() const;
    [[nodiscard]] bool mayUse(const link::WatchedStep& step, bool hasReports, const QString& consequence);
    [[nodiscard]] bool convertReports();
    [[nodiscard]] bool hasLeft() const { return !m_outside.run.goOn(); }
    [[nodiscard]] Stored importReports();
    void loggedCall(const std::function<void()>& makeCall);
    void logCall(const std::function<void()>& makeCall);
    void call();
    [[nodiscard]] QString whyStopped() const;
    [[nodiscard]] link::FailedStep failedStep() const;
    [[nodiscard]] QString stoppedText(const QString& reason, const QString& beforeStoring) const;

    const ApplicationValues& m_values;
    CollectionOutside m_outside;
    link::LinkSettings m_link;
    int m_dialResult = 0;
    QString m_place;               ///< the step in progress, for the log
    bool m_isInTurn = false;       ///< the step goes to several registers, one after another
    std::optional<int> m_failed;   ///< the result that stopped the run
    QList<Task> m_tasks;           ///< those that are left, the next one first
    bool m_stepIsComplete = false; ///< the last step's tool wrote what it has to
    bool m_isStored = false;
    QDate m_bookedDay;
    qint64 m_rowsStored = 0;
    QString m_result;  ///< of a complete run
    QString m_stopped; ///< of any other
    bool m_isCleared = false;
    bool m_ended = false; ///< the user left, or rejected files left by a tool
    ReportOrigin m_origin = ReportOrigin::ThisRun;
};

} // namespace norvane::sales
