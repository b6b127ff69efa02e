// The binary register files that the customer's folder keeps, around a fetch and a send.
#pragma once

#include "base/ApplicationValues.h"
#include "exchange/ExchangePlan.h"
#include "link/RunOutside.h"

#include <QString>

namespace norvane::exchange
{

/// Name of a register file in the working directory: "67.dat".
[[nodiscard]] QString dataFile(int file);

/// Copies between the program's folder, where the tools work, and the customer's. Values and outside must
/// outlive it. All functions throw as MoveDataFile().
class KeptFiles
{
public:
    KeptFiles(const ApplicationValues& values, const link::RunOutside& outside)
        : m_values(values), m_outside(outside)
    {
    }

    /// The fetched or sent file @p name becomes the customer's copy. Nothing if a tool reports success but
    /// has written no file.
    void keep(const QString& name) const;
    /// Puts the customer's copy of a file without a table where the tool finds it.
    /// @return whether there is a file to send.
    /// @throws RuntimeFailure with Failure::FileNotFound if the kept bitmap file is missing.
    [[nodiscard]] bool takeForSend(const DownloadRow& row) const;
    /// The copy of a row that follows its send, whatever the result.
    void copyAfterSend(const DownloadRow& row) const;

private:
    const ApplicationValues& m_values;
    const link::RunOutside& m_outside;
};

} // namespace norvane::exchange
