// One program at a time in a folder.
#pragma once

#include "platform/Boxes.h"

#include <QLockFile>
#include <QString>

#include <memory>

namespace norvane
{

/// Held while working files of the program's folder or all records of a database are read and written: two
/// exchanges at the same time would mix the data of two shops, and two collections would store a day twice.
/// The lock is a file, so other machines see it too.
class FolderLock
{
public:
    /// Takes the lock of @p folder. A lock whose owner died on this machine is taken over. So is a file
    /// without a readable owner, as a power cut leaves it; a message says so.
    /// @return nullptr when another program, or another window of this one, holds it, or the folder cannot be
    /// written to; a message was shown then.
    [[nodiscard]] static std::unique_ptr<FolderLock> take(const QString& folder, Boxes& boxes);

private:
    explicit FolderLock(const QString& path);
    [[nodiscard]] bool isWithoutOwner() const;
    [[nodiscard]] QString refusal() const;
    [[nodiscard]] QString holder() const;

    QLockFile m_file;
};

} // namespace norvane
