// One run at a time with a customer.
#pragma once

#include "base/ApplicationValues.h"
#include "platform/FolderLock.h"

#include <memory>

namespace norvane::customers
{

/// Held by an exchange, a collection, a price run or a restore for as long as it works: the program's folder
/// holds the working files, the customer's folder the data. A window and a command line, also ones in
/// different folders of the program, thus never work on one customer at once.
class RunLock
{
public:
    /// @return nothing when another run holds one of the two; the user was told then.
    [[nodiscard]] static std::unique_ptr<RunLock> take(const ApplicationValues& values, Boxes& boxes)
    {
        std::unique_ptr<RunLock> lock(new RunLock);
        lock->m_program = FolderLock::take(values.appPath, boxes);
        if (lock->m_program != nullptr)
            lock->m_customer = FolderLock::take(values.customerPath, boxes);
        return lock->m_customer != nullptr ? std::move(lock) : nullptr;
    }

private:
    RunLock() = default;

    std::unique_ptr<FolderLock> m_program;
    std::unique_ptr<FolderLock> m_customer;
};

} // namespace norvane::customers
