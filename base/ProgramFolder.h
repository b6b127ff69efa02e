// Where the program works.
#pragma once

#include <QString>

namespace norvane
{

/// The folder with the screens, the reports, the templates, the tools and the customers, as an absolute path
/// without a closing separator: the one that the environment names in NORVANE_FOLDER, where each user has one
/// of their own and the program file lies elsewhere; else the folder of the program file. It need not be
/// there.
[[nodiscard]] QString programFolder();

} // namespace norvane
