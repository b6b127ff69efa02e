// Copying the programme of one keyboard level over another.
#pragma once

#include "keys/KeyGeometry.h"
#include "store/engine/Database.h"

#include <QString>

namespace norvane::keys
{

struct KeyTable;

/// A copy counts this many keys a level whatever the keyboard is. On a keyboard with more keys, levels begin
/// elsewhere, so that it reads and writes across their borders and leaves keys out.
inline constexpr int copiedKeys = 158;

/// Levels count from 1.
struct LevelCopy {
    int from = 1;
    int to = 1;

    /// What the copy does on a keyboard whose levels are not where it counts them: which keys of which levels
    /// are overwritten, and with what. Empty if it does what it says or changes nothing.
    [[nodiscard]] QString misplacedKeys(const KeyGeometry& keyboard) const;
    /// Copies both tables row by row, completely or not at all. @throws RuntimeFailure with
    /// Failure::NoCurrentRecord when a table ends before, else as storing does.
    void run(store::Database& database) const;

private:
    void copyRows(store::Database& database, const KeyTable& table) const;
};

} // namespace norvane::keys
