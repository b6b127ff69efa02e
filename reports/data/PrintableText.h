// Control characters on paper and in files.
#pragma once

#include <QString>

namespace norvane::reports
{

/// The text with a blank for each control character.
[[nodiscard]] QString printable(QString text);
[[nodiscard]] QChar printable(QChar letter);

} // namespace norvane::reports
