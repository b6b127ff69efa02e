// Fetches register files into a scratch folder and loads their tables there, for a comparison.
#pragma once

#include "exchange/ExchangePlan.h"
#include "exchange/ScratchShop.h"
#include "link/LinkSettings.h"
#include "link/RunOutside.h"
#include "platform/SilentBoxes.h"
#include "records/FileProcedures.h"

#include <QList>
#include <QString>
#include <QStringList>

namespace norvane::exchange
{

/// What came from a register.
struct FetchedFiles {
    QList<int> files;
    QList<int> boxesLeft; ///< of which at least one file did not come
    QString stopped;      ///< why not all came: "file 9: result 8: Time Out"; empty if all did
    bool wasLeft = false; ///< by the user
    QString notice;       ///< about the register: "The register has other firmware ..."
};

/// The opening exchanges and files of an upload. Nothing outside the scratch folder is written, and nothing
/// is asked: without what a tool was to write the fetch ends.
class RegisterFetch
{
public:
    /// @param outside runs the tools in the scratch folder. All must outlive this.
    RegisterFetch(const ApplicationValues& customer, const link::LinkSettings& link,
                  const ScratchShop& scratch, link::RunOutside outside);
    RegisterFetch(const RegisterFetch&) = delete;
    RegisterFetch& operator=(const RegisterFetch&) = delete;
    ~RegisterFetch() = default;

    /// Fetches the files of @p boxes except the points, which registers count, and those that the model does
    /// not have.
    /// A failure ends it as a tool's does.
    /// @throws RuntimeFailure with Failure::UserInterrupt after a signal.
    FetchedFiles fetch(const QList<int>& boxes);

private:
    [[nodiscard]] bool fetchAll(const QList<int>& boxes);
    [[nodiscard]] bool open();
    [[nodiscard]] bool fetchFile(const UploadRow& row);
    [[nodiscard]] bool isHere(int box) const;
    [[nodiscard]] bool runTool(const QString& line, const QString& written);
    [[nodiscard]] bool transfer(const QString& line, const QString& written);
    [[nodiscard]] bool stop(const QString& reason);
    void lookAtFirmware();

    const ApplicationValues& m_customer;
    const link::LinkSettings& m_link;
    const ScratchShop& m_scratch;
    link::RunOutside m_outside;
    SilentBoxes m_noBoxes;
    records::ProcedureContext m_procedures;
    FetchedFiles m_fetched;
    QString m_place; ///< in progress: "file 67"
};

} // namespace norvane::exchange
