// Where the program works.
#pragma once

#include <QString>

namespace norvane
{

/// The folder of the screens, reports, templates, tools and customers, as an absolute path without a trailing
/// separator: the value of the environment variable NORVANE_FOLDER (set where each user has a folder and the
/// program is installed elsewhere), otherwise the folder of the program file. It may not exist.
[[nodiscard]] QString programFolder();

} // namespace norvane
