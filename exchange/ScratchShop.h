// A customer for one comparison: what a register holds, beside the customer that is compared with it.
#pragma once

#include "base/ApplicationValues.h"

#include <QLockFile>
#include <QTemporaryDir>

namespace norvane::exchange
{

/// A temporary folder with the settings of a customer and an empty database. It serves as program's folder
/// and customer's folder at once, so that everything a fetch writes is in it. Removed at the end, and if the
/// program is killed before, by the next one.
class ScratchShop
{
public:
    /// @throws RuntimeFailure with Failure::PathOrFileAccess, Failure::DiskFull, and as the database reports.
    explicit ScratchShop(const ApplicationValues& customer);

    [[nodiscard]] const ApplicationValues& values() const { return m_values; }
    [[nodiscard]] const QString& folder() const { return m_values.appPath; }

private:
    QTemporaryDir m_folder;
    QLockFile m_inUse; ///< in the folder; a killed program leaves one that can be taken over
    ApplicationValues m_values;
};

} // namespace norvane::exchange
