// faults.ini of the bank: steps that are to fail, so that testers see what the user would see.
#pragma once

#include <QString>

#include <optional>

namespace bank
{

/// One step of a tool, as a fault is matched against it.
struct Step {
    QString tool; ///< "VELMARCOMM" or "convert"
    QString
        command;  ///< VELMARCOMM: open, fetch, send, consolidate, collect, clear; convert: "u67" and the like
    int file = 0; ///< 0: the step has no file
};

struct Fault {
    int result = 0;               ///< status.out of VELMARCOMM, exit code of convert
    int atRegister = 0;           ///< the registers before it are still served; 0: fails before the first
    int hangSeconds = 0;          ///< waits so long before anything else
    bool crash = false;           ///< ends as a program fault does, nothing written
    QString status;               ///< none: status.out is not touched; garbage: it contains no number
    std::optional<int> bytesLeft; ///< bytes of each file that arrive; the result remains 0
};

/// @return the first fault of @p bankFolder's faults.ini that is due at @p step. Every matching call is
/// counted in faults.log, so that a fault with Nth= comes at the nth one.
[[nodiscard]] std::optional<Fault> dueFault(const QString& bankFolder, const Step& step);

/// Hangs or crashes as the fault says; returns if it asks for neither or only for a pause.
void suffer(const Fault& fault);

} // namespace bank
