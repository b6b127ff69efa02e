// One run at a time with a customer.
#pragma once

#include "base/ApplicationValues.h"
#include "customers/DataOwner.h"
#include "platform/FolderLock.h"

#include <memory>

namespace norvane::customers
{

/// Held by an exchange, a collection, a price run or a restore while it works: the program's folder has the
/// working files, the customer's folder the data. If the open database belongs to another customer, that one
/// is locked as well. A window and a command line, also ones in different folders of the program, thus never
/// work on one customer at once.
class RunLock
{
public:
    /// @return nothing if another run holds one of them; a message was shown then.
    [[nodiscard]] static std::unique_ptr<RunLock> take(const ApplicationValues& values, Boxes& boxes)
    {
        std::unique_ptr<RunLock> lock(new RunLock);
        lock->m_program = FolderLock::take(values.appPath, boxes);
        if (lock->m_program != nullptr)
            lock->m_customer = FolderLock::take(values.customerPath, boxes);
        if (lock->m_customer == nullptr || !lock->takesData(values, boxes))
            return nullptr;
        return lock;
    }

private:
    RunLock() = default;

    [[nodiscard]] bool takesData(const ApplicationValues& values, Boxes& boxes)
    {
        if (!isDataOfAnother(values))
            return true;
        m_data = FolderLock::take(ownerOfData(values).customerPath, boxes);
        return m_data != nullptr;
    }

    std::unique_ptr<FolderLock> m_program;
    std::unique_ptr<FolderLock> m_customer;
    std::unique_ptr<FolderLock> m_data; ///< of another customer whose database is open
};

} // namespace norvane::customers
