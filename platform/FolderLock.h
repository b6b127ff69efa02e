// One program at a time in a folder.
#pragma once

#include "platform/Boxes.h"

#include <QLockFile>
#include <QString>

#include <memory>

namespace norvane
{

/// Held by whatever reads and writes the working files of the program's folder or walks through a database,
/// for as long as it does so: two programs that exchange at once would mix the data of two shops, and two
/// collections would store a day twice. The lock is a file, which other machines see too.
class FolderLock
{
public:
    /// Takes the lock of @p folder. One whose owner died on this machine is taken over. So is a file
    /// without a readable owner, which a power cut leaves; a message then says so.
    /// @return nullptr when another program, or another window of this one, holds it, or the folder cannot be
    /// written to; the user was told then.
    [[nodiscard]] static std::unique_ptr<FolderLock> take(const QString& folder, Boxes& boxes);

private:
    explicit FolderLock(const QString& path);
    [[nodiscard]] bool isWithoutOwner() const;
    [[nodiscard]] QString refusal() const;
    [[nodiscard]] QString holder() const;

    QLockFile m_file;
};

} // namespace norvane
