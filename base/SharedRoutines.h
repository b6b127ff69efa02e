// Small routines that menus, exchange and text records share.
#pragma once

#include "base/ApplicationValues.h"
#include "platform/Boxes.h"
#include "platform/ChildProcess.h"

#include <QString>

namespace norvane
{

/// The model word that the converter takes: "Velmaro", "Velmarn" or "Dorvik". @throws RuntimeFailure with
/// Failure::TypeMismatch as ecrModel() does.
[[nodiscard]] QString GetModelCode(const ApplicationValues& values);

/// Returns 2, 3, or -1 for an empty mem.dat (after a message), by the length of mem.dat in the program's
/// folder.
/// @throws RuntimeFailure with Failure::FileNotFound when the file is missing, Failure::Overflow when it has
/// 32,768 bytes or more.
[[nodiscard]] int GetFirmwareGeneration(const ApplicationValues& values, Boxes& boxes);

/// Whether a flag is set in an option digit. Position 3 is not a bit: the register counts 3, 5 and 7.
[[nodiscard]] constexpr bool DigitFlagSet(int digit, int position)
{
    switch (position) {
    case 1:
        return digit == 1 || digit == 3 || digit == 5 || digit == 7;
    case 2:
        return digit == 2 || digit == 3 || digit == 6 || digit == 7;
    case 3:
        return digit == 3 || digit == 5 || digit == 7;
    case 4:
        return digit >= 4 && digit <= 7;
    default:
        return false;
    }
}

/// Processes pending events once, then runs a tool and waits for it while @p watch observes it.
/// @return how it ended.
ChildResult RunAndWait(const ApplicationValues& values, const QString& commandLine,
                       const ChildWatch& watch = {});

/// The last value of status.out in the working directory; empty text when it holds none.
/// @throws RuntimeFailure with Failure::FileNotFound when the file cannot be opened.
[[nodiscard]] QString ReadStatusOut();

} // namespace norvane
