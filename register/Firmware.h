// Which firmware the register that was last spoken to has.
#pragma once

#include "platform/Boxes.h"

#include <QString>

namespace norvane
{

/// The generations of the firmware.
inline constexpr int olderGeneration = 2;
inline constexpr int newerGeneration = 3;

/// Returns the generation, 2 or 3, by the length of mem.dat in @p programFolder; -1 if that file is empty,
/// after a message in @p boxes.
/// @throws RuntimeFailure with Failure::FileNotFound if the file is missing, Failure::Overflow if it has
/// 32,768 bytes or more.
[[nodiscard]] int GetFirmwareGeneration(const QString& programFolder, Boxes& boxes);

} // namespace norvane
