// Walks the exchange plans: opens the exchange, moves the files of each ticked box, stops at the first result
// that is not 0, and at the user's No to what a failed tool left.
#pragma once

#include "base/ApplicationValues.h"
#include "customers/CustomerLog.h"
#include "exchange/ExchangeBoxes.h"
#include "exchange/ExchangePlan.h"
#include "exchange/ExchangeProgress.h"
#include "exchange/ExchangeStop.h"
#include "exchange/KeptFiles.h"
#include "exchange/LedgerRun.h"
#include "exchange/UnfinishedExchange.h"
#include "link/LinkSettings.h"
#include "link/WatchedStep.h"
#include "records/FileProcedures.h"

#include <span>

namespace norvane::exchange
{

/// One run over the ticked boxes. The values, settings and ticks passed in must outlive it. A box is unticked
/// when all its files have moved, so that after a failure the ticks show what is still to do; the customer's
/// folder remembers them too. Nothing is undone.
class ExchangeRunner
{
public:
    ExchangeRunner(const ApplicationValues& values, const link::LinkSettings& link, TickBoxes& ticks,
                   link::RunOutside outside);
    ExchangeRunner(const ExchangeRunner&) = delete;
    ExchangeRunner& operator=(const ExchangeRunner&) = delete;

    /// Fetches from one register, reloads the tables, keeps the binary files in the customer's folder. A
    /// safety copy is made first; without room for it nothing starts.
    /// @return whether all ticked boxes moved, as downloaddata() does. Both write a line to the customer's
    /// log.
    /// @throws RuntimeFailure with Failure::FileNotFound when status.out or a text file is missing,
    /// Failure::TypeMismatch when status.out has no number or the model is invalid, and as the importers
    /// throw.
    bool UploadData();
    /// Makes the files from the tables, or takes the kept ones, and sends them to registers 1 to n.
    /// @throws as UploadData, and Failure::FileNotFound when the kept bitmap file is missing.
    bool downloaddata();
    /// Logs that the modem reached no register, so that nothing was moved, and explains it.
    void endWithoutCall(Direction direction);
    /// Logs that the call failed for another reason.
    void logFailedCall(Direction direction, const QString& reason);
    /// What a complete run has moved: "36 files from register 1, 12 s". Empty for any other.
    [[nodiscard]] const QString& resultInWords() const { return m_result; }
    /// Where and why another run stopped: "stopped at file 67: result 8: Time Out; still to do: PLU, Group".
    [[nodiscard]] const QString& stopInWords() const { return m_stopped; }
    /// Whether the upload did not start because no safety copy could be made; a message was shown then.
    [[nodiscard]] bool lacksCopy() const { return m_lacksCopy; }

private:
    [[nodiscard]] bool loggedUpload();
    [[nodiscard]] bool loggedDownload();
    void showLastBox();
    [[nodiscard]] customers::LoggedWork logLine(Direction direction) const;
    [[nodiscard]] bool logged(customers::LoggedWork& work, bool (ExchangeRunner::*sequence)());
    [[nodiscard]] bool isInTurn() const;
    [[nodiscard]] QString stoppedText(const QString& reason) const;
    bool upload();
    bool download();
    template <typename Row>
    bool moveBoxes(std::span<const Row> plan, bool (ExchangeRunner::*moveRow)(const Row&));
    template <typename Row>
    bool moveBox(int box, std::span<const Row> rows, bool (ExchangeRunner::*moveRow)(const Row&));
    bool uploadRow(const UploadRow& row);
    bool downloadRow(const DownloadRow& row);
    [[nodiscard]] bool convert(const records::Conversion& conversion);
    [[nodiscard]] bool mayGoOn(const link::WatchedStep& step, const QString& consequence);
    void untickWithoutSmartCards();
    [[nodiscard]] bool importFile(int file);
    [[nodiscard]] bool mayTouchPoints(int file);
    [[nodiscard]] bool sendFile(const DownloadRow& row, bool fromTable);
    void notePluCount();
    void begin(Direction direction);
    void noteBoxesLeft();
    [[nodiscard]] bool hasSmartCards() const;
    bool succeeded();
    bool open(const QString& name, const QString& commandLine, const QStringList& expected = {});
    void showStep(const char* verb, int box, int file);

    const ApplicationValues& m_values;
    const link::LinkSettings& m_link;
    TickBoxes& m_ticks;
    link::RunOutside m_outside;
    records::ProcedureContext m_procedures;
    KeptFiles m_keptFiles;
    LedgerRun m_ledger;
    ExchangeProgress m_progress;
    UnfinishedExchange m_exchange; ///< this run, with the boxes that are left
    int m_filesMoved = 0;
    QString m_result;  ///< of a complete run
    QString m_stopped; ///< of any other
    bool m_lacksCopy = false;
    bool m_givesUpPoints = false; ///< the user sends PLUs though their points wait
    ExchangeStop m_stop;
    /// Ends the run; without a text no box is shown.
    struct {
        QString text;
        QString title;
        BoxIcon icon = BoxIcon::None;
    } m_lastBox;
};

} // namespace norvane::exchange
