// What norvane-former and the program that starts it agree on. Used by both, so it needs no library.
#pragma once

#include <string_view>

namespace norvane::former
{

/// Stands for a value that is not stored.
inline constexpr std::string_view nullText = "\\N";
/// Stands for a value that is stored and cannot be shown: a picture, or a date outside of years 100 to 9999.
inline constexpr std::string_view unreadableText = "\\?";

/// Why a file is not read. The number is the exit code of norvane-former.
enum class Refusal {
    None = 0,
    NotReadable = 3, ///< there is no such file, or it may not be read
    NotFormer = 4,   ///< too short, or no database of the former engine
    NewerFormat = 5, ///< of 2007 or later
    Password = 6,
};

} // namespace norvane::former
