// Which register file an input is for.
#pragma once

#include "records/RegisterFiles.h"

namespace norvane::fuzz
{

/// The file of the number @p byte; for other bytes any file, so that none is wasted.
[[nodiscard]] inline const records::RegisterFile& chosenFile(unsigned char byte)
{
    const auto files = records::registerFiles();
    const auto* const named = records::registerFile(byte);
    return named != nullptr ? *named : files[byte % files.size()];
}

} // namespace norvane::fuzz
